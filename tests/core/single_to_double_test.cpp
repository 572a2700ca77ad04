// Singles on their way to double: values stay, signalling NaNs become quiet, in code of every kind.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/instruction_level.h"
#include "core/nan_policy.h"
#include "tests/support/expect_bits.h"
#include "tests/support/sweep.h"

namespace zthalf {
namespace {

using testing::bitComparison;

// By integers alone.
std::uint64_t expectedOf(std::uint32_t single) {
  const std::uint64_t sign = static_cast<std::uint64_t>(single >> 31) << 63;
  const std::uint64_t fraction = single & 0x007FFFFFu;
  const std::uint64_t field = single >> 23 & 0xFF;
  if (field == 0xFF) return sign | 0x7FF0000000000000 | fraction << 29 | (fraction != 0 ? 0x0008000000000000 : 0);
  if (field != 0) return sign | (field + 1023 - 127) << 52 | fraction << 29;
  if (fraction == 0) return sign;
  int leading = 22;
  while ((fraction >> leading & 1) == 0) --leading;
  const auto rest = fraction ^ std::uint64_t{1} << leading;
  return sign | static_cast<std::uint64_t>(1023 - 149 + leading) << 52 | rest << (52 - leading);
}

// Every exponent with both signs, each with a few fractions: for the highest one they are NaNs of both kinds.
std::vector<std::uint32_t> notableSingles() {
  std::vector<std::uint32_t> words;
  for (std::uint32_t upper = 0; upper < 0x200; ++upper) {
    for (const std::uint32_t fraction : {0u, 1u, 0x155555u, 0x3FFFFFu, 0x400000u, 0x400001u, 0x7FFFFFu})
      words.push_back(upper << 23 | fraction);
  }
  return words;
}

TEST(SingleToDouble, QuietsOneByOne) {
  bitComparison compare("asDouble");
  for (const std::uint32_t word : notableSingles()) {
    const volatile float single = floatOf(word);
    compare.check(bitsOf(asDouble(single)), expectedOf(word), word);
  }
}

struct wideningPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(float const* src, std::uint64_t* dst, unsigned long n) {
    for (unsigned long i = 0; i < n; ++i) dst[i] = bitsOf(asDouble(src[i]));
  }
};

TEST(SingleToDouble, QuietsInAPass) {
  std::vector<float> singles;
  for (const std::uint32_t word : notableSingles()) singles.push_back(floatOf(word));
  for (std::uint64_t i = 0; i < 100000; ++i)
    singles.push_back(floatOf(static_cast<std::uint32_t>(testing::scrambled(i))));
  std::vector<std::uint64_t> doubles(singles.size());
  leveled<wideningPass, float const*, std::uint64_t*, unsigned long>::chosen()(singles.data(), doubles.data(),
                                                                               singles.size());
  bitComparison compare("asDouble in a pass");
  for (std::size_t i = 0; i < singles.size(); ++i)
    compare.check(doubles[i], expectedOf(bitsOf(singles[i])), singles[i]);
}

// The value is known to the compiler here.
TEST(SingleToDouble, QuietsConstants) {
  EXPECT_EQ(bitsOf(asDouble(floatOf(0x7F800001u))), 0x7FF8000020000000u);
  EXPECT_EQ(bitsOf(asDouble(floatOf(0xFFBFFFFFu))), 0xFFFFFFFFE0000000u);
  EXPECT_FALSE(isSignalling(asDouble(floatOf(0x7F800001u))));
}

}  // namespace
}  // namespace zthalf

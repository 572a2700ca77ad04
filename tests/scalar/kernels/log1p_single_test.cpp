#include "scalar/kernels/log1p_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/steps_single.h"
#include "tests/support/expect_bits.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::log1pSingle;

float reference(float x) { return steps::log1p(x).value(); }

struct Case {
  std::uint32_t x;
  std::uint32_t expected;
  char const* why;
};

void PrintTo(Case const& c, std::ostream* out) { *out << c.why; }

class Log1pSingleCase : public ::testing::TestWithParam<Case> {};

TEST_P(Log1pSingleCase, HasTheStatedBits) {
  const Case c = GetParam();
  EXPECT_EQ(hex(log1pSingle(std::bit_cast<float>(c.x))), hex(std::bit_cast<float>(c.expected))) << c.why;
}

INSTANTIATE_TEST_SUITE_P(Special, Log1pSingleCase,
                         ::testing::Values(Case{0x00000000, 0x00000000, "zero"},
                                           Case{0x80000000, 0x80000000, "minus zero keeps its sign"},
                                           Case{0xBF800000, 0xFF800000, "minus one gives minus infinity"},
                                           Case{0xBF800001, 0xFFC00000, "just below minus one"},
                                           Case{0xFF800000, 0xFFC00000, "minus infinity"},
                                           Case{0xFFC00001, 0xFFC00000, "a negative NaN loses its payload"},
                                           Case{0x7F800000, 0x7F800000, "infinity"},
                                           Case{0x7F800001, 0x7F800001, "a positive NaN comes back as it is"},
                                           Case{0x00000001, 0x00000001, "a subnormal is its own result"},
                                           Case{0xA47FFFFF, 0xA47FFFFF, "the last one below 2^-54"},
                                           Case{0x3F800000, 0x3F317218, "one gives ln 2"},
                                           Case{0x4B800000, 0x41851592, "2^24, where the one is dropped: 24 ln 2"}));

TEST(Log1pSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, log1pSingle, reference); }

TEST(Log1pSingle, EqualsItsStepsAroundEveryBoundary) {
  bitComparison compare("log1pSingle");
  for (const std::uint32_t boundary :
       {0x24800000u, 0x31000000u, 0x3ED413CFu, 0x3F800000u, 0x40000000u, 0x4B000000u, 0x4B800000u, 0x7F7FFFFFu,
        0xA4800000u, 0xB1000000u, 0xBE95F617u, 0xBE95F618u, 0xBF000000u, 0xBF800000u}) {
    for (std::uint32_t distance = 0; distance <= 40; ++distance) {
      for (const std::uint32_t word : {boundary + distance, boundary - distance}) {
        const float x = std::bit_cast<float>(word);
        compare.check(log1pSingle(x), reference(x), x);
      }
    }
  }
}

// Where 1 + x comes out as a power of two, or a few units from it, a shorter series is taken.
TEST(Log1pSingle, EqualsItsStepsWhereTheSumIsNextToAPowerOfTwo) {
  bitComparison compare("log1pSingle");
  for (int e = -3; e <= 30; ++e) {
    const std::uint32_t power = std::bit_cast<std::uint32_t>(std::ldexp(1.0f, e) - 1.0f);
    for (std::uint32_t distance = 0; distance <= 64; ++distance) {
      for (const std::uint32_t word : {power + distance, power - distance}) {
        const float x = std::bit_cast<float>(word);
        compare.check(log1pSingle(x), reference(x), x);
      }
    }
  }
}

TEST(LongLog1pSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, log1pSingle, reference); }

}  // namespace
}  // namespace zthalf::testing

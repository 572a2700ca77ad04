// What the tests of the complex kernels share: comparisons over all meetings of corner values and over numbered ones.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include "scalar/complex/complex_value.h"
#include "tests/scalar/kernels/pair_comparison.h"
#include "tests/support/complex_operands.h"
#include "tests/support/defined_number.h"

namespace zthalf::testing {

// Both parts as one word, so that a difference in either is seen and both are shown.
template <class Wide>
struct partWords {
  wordOf<Wide> re, im;
  friend bool operator==(partWords, partWords) = default;
};

template <class Wide>
std::string hex(partWords<Wide> z) {
  std::string text = hex(z.re);
  text += " + i ";
  text += hex(z.im);
  return text;
}

template <class Wide>
partWords<Wide> wordsOf(complexOf<Wide> z) {
  return {std::bit_cast<wordOf<Wide>>(z.re), std::bit_cast<wordOf<Wide>>(z.im)};
}

// Counts differences and reports the first ten in full.
template <class Wide>
class complexComparison {
 public:
  explicit complexComparison(std::string what) : what_(std::move(what)) {}
  complexComparison(complexComparison const&) = delete;
  complexComparison& operator=(complexComparison const&) = delete;

  template <class Expected, class... Operands>
  void check(complexOf<Wide> result, Expected expected, Operands... operands) {
    const partWords<Wide> wanted = {expected.re.bits, expected.im.bits};
    ++compared_;
    if (wordsOf(result) == wanted || ++differences_ > 10) return;
    std::string text = what_;
    ((text += " ", text += hex(wordsOf(operands))), ...);
    ADD_FAILURE() << text << " = " << hex(wordsOf(result)) << ", expected " << hex(wanted);
  }

  ~complexComparison() {
    EXPECT_GT(compared_, 0u) << what_ << ": nothing was compared";
    EXPECT_EQ(differences_, 0u) << what_ << ": differences among " << compared_ << " results";
  }

 private:
  std::string what_;
  unsigned long compared_ = 0;
  unsigned long differences_ = 0;
};

// All corner values crossed, all special parts of halves crossed, numbered pairs of any size, pairs of parts within
// [-4, 4), and widened halves.
template <class Wide, class Visit>
void forComplexNumbers(std::uint64_t drawn, Visit visit) {
  forEveryCornerPair<Wide>([&](Wide re, Wide im) { visit(complexOf<Wide>{re, im}); });
  for (const std::complex<half_t> z : specialElements<std::complex<half_t>>::all()) {
    visit(exactly<Wide>(complexHalf{z.real().bits, z.imag().bits}));
  }
  for (std::uint64_t i = 0; i < drawn; ++i) {
    const auto any = pairAt<Wide>(i);
    visit(complexOf<Wide>{any.first, any.second});
    const std::uint64_t random = scrambled(3 * i + 1);
    const auto part = [](std::uint64_t word) {
      return static_cast<Wide>(static_cast<std::int32_t>(word)) * static_cast<Wide>(0x1p-29);
    };
    visit(complexOf<Wide>{part(random), part(random >> 32)});
    visit(exactly<Wide>(complexHalf{static_cast<std::uint16_t>(random), static_cast<std::uint16_t>(random >> 32)}));
  }
}

// reference(re, im) on numbers of the defining unit.
template <class Wide, class Kernel, class Reference>
void expectSteps(char const* name, std::uint64_t drawn, Kernel kernel, Reference reference) {
  complexComparison<Wide> compare(name);
  forComplexNumbers<Wide>(drawn, [&](complexOf<Wide> z) {
    compare.check(kernel(z), reference(definedNumber<Wide>(z.re), definedNumber<Wide>(z.im)), z);
  });
}

struct complexCase {
  float re, im;
  std::uint32_t expectedRe, expectedIm;
  char const* why;
};

inline void expectComplexCases(complexOf<float> (*kernel)(complexOf<float>), std::initializer_list<complexCase> cases) {
  for (complexCase const& c : cases) {
    const partWords<float> expected = {c.expectedRe, c.expectedIm};
    EXPECT_EQ(hex(wordsOf(kernel({c.re, c.im}))), hex(expected)) << c.why;
  }
}

inline constexpr std::uint64_t quickComplex = 150000;

}  // namespace zthalf::testing

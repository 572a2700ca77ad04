#include "scalar/kernels/mod.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "scalar/kernels/exact_remainder.h"
#include "tests/scalar/kernels/pair_comparison.h"
#include "tests/scalar/kernels/two_argument_steps.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::modDouble;
using qsl_scalar::modSingle;

constexpr float inf = std::numeric_limits<float>::infinity();
float word(std::uint32_t bits) { return std::bit_cast<float>(bits); }

TEST(ModSingle, SpecialArguments) {
  expectPairs(modSingle, {{5.0f, 0.0f, 0x40A00000, "by zero the result is x"},
                          {-0.0f, 0.0f, 0x00000000, "of two zeros the second one"},
                          {0.0f, -0.0f, 0x80000000, "also a negative one"},
                          {inf, 0.0f, 0x7F800000, "infinity by zero is infinity"},
                          {inf, 3.0f, 0xFFC00000, "infinity"},
                          {word(0x7FC00000), 3.0f, 0xFFC00000, "a NaN x"},
                          {3.0f, word(0x7F800001), 0xFFC00000, "a NaN y"},
                          {2.0f, inf, 0x40000000, "by infinity"},
                          {2.0f, -inf, 0xFF800000, "by an infinity of the other sign"},
                          {0.0f, -inf, 0x80000000, "a zero by it: a zero of its sign"},
                          {0.0f, -3.0f, 0x80000000, "a zero has the sign of y"},
                          {-3.0f, 3.0f, 0x00000000, "equal magnitudes"},
                          {-7.0f, 3.0f, 0x40000000, "-7 by 3 is 2"},
                          {7.0f, -3.0f, 0xC0000000, "7 by -3 is -2"},
                          {-7.0f, -3.0f, 0xBF800000, "-7 by -3 is -1"},
                          {-0x1p-30f, 1.0f, 0x3F800000, "the sum with y is rounded"},
                          {word(7), word(0x80000003), 0x80000002, "subnormals"},
                          {0x1p127f, word(3), 0x00000001, "the longest division"}});
}

TEST(ModDouble, SpecialArguments) {
  constexpr double infinite = std::numeric_limits<double>::infinity();
  const double nan = std::bit_cast<double>(std::uint64_t{0x7FF0000000000001});
  expectPairs(modDouble, {{5.0, 0.0, 0x4014000000000000, "by zero the result is x"},
                          {0.0, -0.0, 0x8000000000000000, "of two zeros the second one"},
                          {infinite, 3.0, 0xFFF8000000000000, "infinity"},
                          {3.0, nan, 0xFFF8000000000000, "a NaN y"},
                          {2.0, -infinite, 0xFFF0000000000000, "by an infinity of the other sign"},
                          {-7.0, 3.0, 0x4000000000000000, "-7 by 3 is 2"},
                          {-0x1p-60, 1.0, 0x3FF0000000000000, "the sum with y is rounded"}});
}

TEST(ModSingle, EqualsItsStepsOnCornerPairs) {
  expectSameOnCornerPairs<float>("modSingle", modSingle, steps::mod<float>);
}
TEST(ModDouble, EqualsItsStepsOnCornerPairs) {
  expectSameOnCornerPairs<double>("modDouble", modDouble, steps::mod<double>);
}
TEST(ModSingle, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(quickPairs, pairAt<float>, modSingle, steps::mod<float>);
}
TEST(ModDouble, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(quickPairs / 4, pairAt<double>, modDouble, steps::mod<double>);
}
TEST(LongModSingle, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(longPairs, pairAt<float>, modSingle, steps::mod<float>);
}

// The C library's remainder is exact as well.
template <class Wide>
void expectExactRemainder(std::uint64_t count) {
  const auto expected = [](Wide x, Wide y) { return std::fmod(x, y); };
  const auto at = [](std::uint64_t i) {
    operandPair<Wide> p = pairAt<Wide>(i);
    p.first = std::abs(p.first);
    p.second = std::abs(p.second);
    if (p.first < p.second) std::swap(p.first, p.second);
    const bool isUsable = std::isfinite(p.first) && std::isfinite(p.second) && p.second > 0;
    return isUsable ? p : operandPair<Wide>{7, 3};
  };
  expectSameOnNumberedPairs(count, at, qsl_scalar::exactRemainder<Wide>, expected);
}

TEST(ExactRemainder, EqualsTheLibrarysOnFloats) { expectExactRemainder<float>(quickPairs); }
TEST(ExactRemainder, EqualsTheLibrarysOnDoubles) { expectExactRemainder<double>(quickPairs / 4); }

}  // namespace
}  // namespace zthalf::testing

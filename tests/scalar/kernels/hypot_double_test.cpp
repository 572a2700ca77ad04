#include "scalar/kernels/hypot_double.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/scalar/kernels/pair_comparison.h"
#include "tests/scalar/kernels/steps_double.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::hypotDouble;

double bySteps(double u, double v) { return steps::doubles::hypot(u, v).value(); }
double word(std::uint64_t bits) { return std::bit_cast<double>(bits); }
constexpr double inf = std::numeric_limits<double>::infinity();

TEST(HypotDouble, SpecialArguments) {
  expectPairs(
      hypotDouble,
      {{3.0, 4.0, 0x4014000000000000, "a Pythagorean triple"},
       {-3.0, -4.0, 0x4014000000000000, "signs are not read"},
       {0.0, -0.0, 0x0000000000000000, "two zeros"},
       {-5.0, 0.0, 0x4014000000000000, "beside a zero the magnitude"},
       {word(0xFFF0000000000001), -0.0, 0x7FF0000000000001, "of a NaN too, as it is"},
       {word(3), word(4), 0x0000000000000005, "subnormals are scaled up"},
       {0x1p-1000, 0x1p-1074, 0x0170000000000000, "a normal number beside a subnormal"},
       {0x1p100, 1.0, 0x4630000000000000, "what does not reach the last place is left out"},
       {0x1.8p1022, 0x1p1023, 0x7FE4000000000000, "large ones are scaled down"},
       {0x1.fffffffffffffp1023, 0x1.fffffffffffffp1023, 0x7FF0000000000000, "overflow in the end"},
       {-inf, 1.0, 0x7FF0000000000000, "an infinity"},
       {inf, word(0x7FF8000000000001), 0x7FF8000000000001, "an infinity does not outrank a NaN"},
       {word(0xFFF8000000000001), 2.0, 0x7FF8000000000001, "a negative NaN gives a positive one"},
       {word(0x7FF8000000000002), word(0xFFF0000000000001), 0x7FF8000000000001, "a signalling NaN first"},
       {word(0x7FF8000000000002), word(0x7FF8000000000003), 0x7FF8000000000002, "of two quiet ones the first"}});
}

TEST(HypotDouble, EqualsItsStepsOnCornerPairs) { expectSameOnCornerPairs<double>("hypotDouble", hypotDouble, bySteps); }

TEST(HypotDouble, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(quickPairs, pairAt<double>, hypotDouble, bySteps);
}

// One or both of them subnormal, where the splits keep the words from before the scaling.
TEST(HypotDouble, EqualsItsStepsBelowTheNormalRange) {
  const auto at = [](std::uint64_t i) {
    const std::uint64_t random = scrambled(i);
    const std::uint64_t first = scrambled(random) >> (2 + random % 62);
    const std::uint64_t second = scrambled(first) >> 12 >> (random >> 6) % 52;
    return operandPair<double>{word(first), word(second)};
  };
  expectSameOnNumberedPairs(quickPairs, at, hypotDouble, bySteps);
}

TEST(LongHypotDouble, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(longPairs, pairAt<double>, hypotDouble, bySteps);
}

}  // namespace
}  // namespace zthalf::testing

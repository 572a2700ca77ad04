#include "scalar/kernels/atan2_double.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/scalar/kernels/pair_comparison.h"
#include "tests/scalar/kernels/steps_double.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::atan2Double;

double bySteps(double y, double x) { return steps::doubles::atan2(y, x).value(); }
double word(std::uint64_t bits) { return std::bit_cast<double>(bits); }
constexpr double inf = std::numeric_limits<double>::infinity();

TEST(Atan2Double, Zeros) {
  expectPairs(atan2Double, {{0.0, 0.0, 0x0000000000000000, "two zeros"},
                            {-0.0, 0.0, 0x0000000000000000, "plus zero whatever their signs"},
                            {0.0, -0.0, 0x0000000000000000, "not pi"},
                            {-0.0, -0.0, 0x0000000000000000, "nor minus pi"},
                            {-0.0, 2.0, 0x8000000000000000, "a zero on the right keeps its sign"},
                            {0.0, -2.0, 0x400921FB54442D18, "on the left it is pi"},
                            {-0.0, -2.0, 0xC00921FB54442D18, "with its sign"},
                            {3.0, -0.0, 0x3FF921FB54442D18, "straight up"},
                            {-3.0, 0.0, 0xBFF921FB54442D18, "straight down"}});
}

TEST(Atan2Double, InfinitiesAndNaNs) {
  expectPairs(atan2Double, {{inf, inf, 0x3FE921FB54442D18, "pi/4"},
                            {-inf, inf, 0xBFE921FB54442D18, "-pi/4"},
                            {inf, -inf, 0x4002D97C7F3321D2, "3pi/4"},
                            {-inf, -inf, 0xC002D97C7F3321D2, "-3pi/4"},
                            {-2.0, inf, 0x8000000000000000, "along the right, from below"},
                            {2.0, -inf, 0x400921FB54442D18, "along the left"},
                            {-inf, -2.0, 0xBFF921FB54442D18, "an infinite ordinate"},
                            {word(0x7FF8000000000000), 1.0, 0xFFF8000000000000, "a NaN beside one"},
                            {0.0, word(0x7FF0000000000001), 0xFFF8000000000000, "a NaN beside a zero"},
                            {inf, word(0x7FF8000000000000), 0xFFF8000000000000, "a NaN beside an infinity"}});
}

TEST(Atan2Double, EqualsItsStepsOnCornerPairs) { expectSameOnCornerPairs<double>("atan2Double", atan2Double, bySteps); }

TEST(Atan2Double, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(quickPairs, pairAt<double>, atan2Double, bySteps);
}

TEST(LongAtan2Double, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(longPairs, pairAt<double>, atan2Double, bySteps);
}

}  // namespace
}  // namespace zthalf::testing

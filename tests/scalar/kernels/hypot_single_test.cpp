#include "scalar/kernels/hypot_single.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/scalar/kernels/pair_comparison.h"
#include "tests/scalar/kernels/two_argument_steps.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::hypotSingle;

float bySteps(float u, float v) { return steps::hypot(u, v).value(); }
float word(std::uint32_t bits) { return std::bit_cast<float>(bits); }
constexpr float inf = std::numeric_limits<float>::infinity();

TEST(HypotSingle, SpecialArguments) {
  expectPairs(hypotSingle, {{3.0f, 4.0f, 0x40A00000, "a Pythagorean triple"},
                            {-3.0f, -4.0f, 0x40A00000, "signs are not read"},
                            {0.0f, -0.0f, 0x00000000, "two zeros"},
                            {-5.0f, 0.0f, 0x40A00000, "beside a zero the magnitude"},
                            {word(0x80000001), 0.0f, 0x00000001, "the smallest subnormal beside a zero"},
                            {word(1), word(1), 0x00000001, "two of them"},
                            {word(3), word(4), 0x00000005, "subnormals are scaled up"},
                            {0x1p100f, 1.0f, 0x71800000, "what does not reach the last place is left out"},
                            {0x1.8p126f, 0x1p127f, 0x7F200000, "large ones are scaled down"},
                            {0x1.fffffep127f, 0x1.fffffep127f, 0x7F800000, "overflow in the end"},
                            {-inf, 1.0f, 0x7F800000, "an infinity"},
                            {inf, word(0x7FC00001), 0x7FC00001, "an infinity does not outrank a NaN"},
                            {word(0xFFC00001), 2.0f, 0x7FC00001, "a negative NaN gives a positive one"},
                            {word(0xFF800001), word(0x7FC00002), 0x7FC00001, "a signalling NaN before a quiet one"},
                            {word(0x7FC00002), word(0xFF800001), 0x7FC00001, "also as the second"},
                            {word(0x7FC00002), word(0x7FC00003), 0x7FC00002, "of two quiet ones the first"}});
}

TEST(HypotSingle, EqualsItsStepsOnCornerPairs) { expectSameOnCornerPairs<float>("hypotSingle", hypotSingle, bySteps); }

TEST(HypotSingle, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(quickPairs, pairAt<float>, hypotSingle, bySteps);
}

TEST(LongHypotSingle, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(longPairs, pairAt<float>, hypotSingle, bySteps);
}

}  // namespace
}  // namespace zthalf::testing

// The power kernel for vector lanes against the one with branches and against the steps of both, run as a loop at every
// instruction level and alone.
#include "scalar/kernels/pow_single_lanes.h"

#include <gtest/gtest.h>

#include <vector>

#include "elementwise/binary_op.h"
#include "scalar/kernels/pow_single.h"
#include "tests/scalar/kernels/pair_comparison.h"
#include "tests/scalar/kernels/power_operands.h"
#include "tests/scalar/kernels/steps_single.h"

namespace zthalf::testing {
namespace {

float inLanes(float x, float y) { return qsl_scalar::powSingleInLanes(x, y); }
float bySteps(float x, float y) { return steps::pow(x, y).value(); }

struct powFtor {
  static constexpr unsigned long grain = 256;
  ZTHALF_INLINE float operator()(float x, float y) const { return qsl_scalar::powSingleInLanes(x, y); }
};

// Runs the loop over a list of pairs and compares every element with the kernel with branches.
void expectLoopEqualsKernel(std::vector<float> x, std::vector<float> y) {
  std::vector<float> results(x.size());
  half_utils::halfBinaryOpParallelLoop(x.data(), y.data(), results.data(), x.size(), powFtor{});
  bitComparison compare("powSingle in lanes");
  for (std::size_t i = 0; i < x.size(); ++i) {
    compare.check(results[i], qsl_scalar::powSingle(x[i], y[i]), x[i], y[i]);
  }
}

TEST(PowSingleInLanes, LoopEqualsTheKernelOnCornerPairs) {
  std::vector<float> x, y;
  forEveryCornerPair<float>([&](float first, float second) {
    x.push_back(first);
    y.push_back(second);
  });
  expectLoopEqualsKernel(x, y);
}

TEST(PowSingleInLanes, LoopEqualsTheKernelOnNumberedPairs) {
  std::vector<float> x, y;
  for (std::uint64_t i = 0; i < quickPairs; ++i) {
    const powerOperands p = powerOperandsAt(i);
    x.push_back(p.x);
    y.push_back(p.y);
  }
  expectLoopEqualsKernel(x, y);
}

TEST(PowSingleInLanes, EqualsItsStepsOnCornerPairs) {
  expectSameOnCornerPairs<float>("powSingle in lanes", inLanes, bySteps);
}

// The powers that are decided before anything is computed, beside every corner.
TEST(PowSingleInLanes, EqualsItsStepsForTheFivePowers) {
  bitComparison compare("powSingle in lanes");
  forEveryCornerPair<float>([&](float x, float) {
    for (const float y : {2.0f, 1.0f, 0.0f, -0.0f, -1.0f, 0.5f}) compare.check(inLanes(x, y), bySteps(x, y), x, y);
  });
}

// Where the sum of the two parts is one half, its nearest integer is zero; next to it, and at the ends of the range,
// the lower part decides.
TEST(PowSingleInLanes, EqualsItsStepsAroundTheLimits) {
  bitComparison compare("powSingle in lanes");
  for (const float limit : {0.5f, -0.5f, 1.5f, 128.0f, -126.0f, -149.0f, -150.0f}) {
    for (const float x : {2.0f, 4.0f, 10.0f, 1.5f, 0.75f, 1.0001f, 123456.0f, 0x1p-140f}) {
      const auto middle = static_cast<float>(limit / std::log2(static_cast<double>(x)));
      for (std::uint32_t distance = 0; distance <= 200; ++distance) {
        for (const std::uint32_t bits : {bitsIn(middle) + distance, bitsIn(middle) - distance}) {
          const float y = std::bit_cast<float>(bits);
          compare.check(inLanes(x, y), bySteps(x, y), x, y);
        }
      }
    }
  }
}

}  // namespace
}  // namespace zthalf::testing

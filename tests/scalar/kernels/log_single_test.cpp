#include "scalar/kernels/log_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/steps_single.h"
#include "tests/support/expect_bits.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::logSingle;

float reference(float x) { return steps::log(x).value(); }

struct Case {
  std::uint32_t x;
  std::uint32_t expected;
  char const* why;
};

void PrintTo(Case const& c, std::ostream* out) { *out << c.why; }

class LogSingleCase : public ::testing::TestWithParam<Case> {};

TEST_P(LogSingleCase, HasTheStatedBits) {
  const Case c = GetParam();
  EXPECT_EQ(hex(logSingle(floatOf(c.x))), hex(floatOf(c.expected))) << c.why;
}

INSTANTIATE_TEST_SUITE_P(Special, LogSingleCase,
                         ::testing::Values(Case{0x00000000, 0xFF800000, "zero"},
                                           Case{0x80000000, 0xFF800000, "minus zero"},
                                           Case{0xBF800000, 0xFFC00000, "minus one gives the negative NaN"},
                                           Case{0x80000001, 0xFFC00000, "the smallest negative number"},
                                           Case{0xFF800000, 0xFFC00000, "minus infinity"},
                                           Case{0xFFC00000, 0xFFC00000, "a negative NaN"},
                                           Case{0xFF812345, 0xFFC00000, "a negative NaN loses its payload"},
                                           Case{0x7F800000, 0x7F800000, "infinity"},
                                           Case{0x7FC12345, 0x7FC12345, "a positive NaN comes back"},
                                           Case{0x7F812345, 0x7F812345, "a signalling one too, as it is"},
                                           Case{0x3F800000, 0x00000000, "one gives plus zero"},
                                           Case{0x40000000, 0x3F317218, "two: both parts of ln 2 meet"},
                                           Case{0x3F000000, 0xBF317218, "a half"},
                                           Case{0x00000001, 0xC2CE8ED0, "the smallest subnormal, -149 ln 2"}));

TEST(LogSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, logSingle, reference); }

TEST(LogSingle, EqualsItsStepsAroundEveryBoundary) {
  bitComparison compare("logSingle");
  for (const std::uint32_t boundary : {0x00800000u, 0x3F3504F3u, 0x3F800000u, 0x3FB504F3u, 0x40000000u, 0x7F7FFFFFu}) {
    for (std::uint32_t distance = 0; distance <= 40; ++distance) {
      for (const std::uint32_t x : {boundary + distance, boundary - distance}) {
        compare.check(logSingle(floatOf(x)), reference(floatOf(x)), x);
      }
    }
  }
}

// The short series is taken within 15 units below a power of two, and at it.
TEST(LogSingle, EqualsItsStepsAroundEveryPowerOfTwo) {
  bitComparison compare("logSingle");
  for (std::uint32_t field = 1; field <= 254; ++field) {
    for (std::uint32_t distance = 0; distance <= 32; ++distance) {
      const float x = floatOf((field << 23) + 8 - distance);
      compare.check(logSingle(x), reference(x), x);
    }
  }
}

TEST(LongLogSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, logSingle, reference); }

}  // namespace
}  // namespace zthalf::testing

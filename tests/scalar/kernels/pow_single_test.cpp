#include "scalar/kernels/pow_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/power_operands.h"
#include "tests/scalar/kernels/steps_single.h"
#include "tests/support/expect_bits.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::powSingle;

float reference(float x, float y) { return steps::pow(x, y).value(); }

constexpr float inf = std::numeric_limits<float>::infinity();
const float nan = std::bit_cast<float>(0x7FC00000u);

struct Case {
  float x;
  float y;
  std::uint32_t expected;
  char const* why;
};

void PrintTo(Case const& c, std::ostream* out) { *out << c.why; }

class PowSingleCase : public ::testing::TestWithParam<Case> {};

TEST_P(PowSingleCase, HasTheStatedBits) {
  const Case c = GetParam();
  EXPECT_EQ(hex(powSingle(c.x, c.y)), hex(std::bit_cast<float>(c.expected))) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Special, PowSingleCase,
    ::testing::Values(
        Case{3.0f, 2.0f, 0x41100000, "a square"}, Case{-inf, 2.0f, 0x7F800000, "the square of minus infinity"},
        Case{std::bit_cast<float>(0xFFA00001u), 2.0f, 0xFFE00001, "the square of a NaN is the NaN made quiet"},
        Case{std::bit_cast<float>(0xFFA00001u), 1.0f, 0xFFA00001, "a NaN to the power one comes back as it is"},
        Case{nan, 0.0f, 0xFFC00000, "a NaN to the power zero is the negative NaN"},
        Case{nan, -0.0f, 0xFFC00000, "to the power minus zero too"},
        Case{-inf, 0.0f, 0x3F800000, "everything else to the power zero is one"},
        Case{-0.0f, -1.0f, 0xFF800000, "the reciprocal of minus zero"},
        Case{std::bit_cast<float>(0xFFA00001u), -1.0f, 0xFFE00001, "the reciprocal of a NaN is the NaN made quiet"},
        Case{-0.0f, 0.5f, 0x00000000, "the root of minus zero is plus zero"},
        Case{-inf, 0.5f, 0x7FC00000, "the root of a negative gives the positive default NaN"},
        Case{-8.0f, 0.5f, 0x7FC00000, "the root of any negative"},
        Case{nan, 0.5f, 0x7FC00000, "the root of a NaN keeps its sign, here plus"},
        Case{std::bit_cast<float>(0xFFC00000u), 0.5f, 0xFFC00000, "and here minus"},
        Case{1.0f, nan, 0xFFC00000, "one to the power NaN is a NaN"}, Case{nan, 3.0f, 0xFFC00000, "a NaN base"},
        Case{-1.0f, inf, 0x3F800000, "minus one to the power infinity"},
        Case{1.0f, -inf, 0x3F800000, "one to the power minus infinity"},
        Case{2.0f, inf, 0x7F800000, "a larger base to the power infinity"},
        Case{2.0f, -inf, 0x00000000, "a larger base to the power minus infinity"},
        Case{-0.5f, inf, 0x00000000, "a smaller base to the power infinity"},
        Case{0.0f, -inf, 0x7F800000, "zero to the power minus infinity"},
        Case{-inf, 3.0f, 0xFF800000, "minus infinity to an odd power"},
        Case{-inf, 4.0f, 0x7F800000, "to an even power"}, Case{-inf, -3.0f, 0x80000000, "to a negative odd power"},
        Case{-inf, -4.0f, 0x00000000, "to a negative even power"},
        Case{-inf, 0.25f, 0xFFC00000, "to a positive power that is not an integer"},
        Case{-inf, -0.25f, 0x00000000, "to a negative power that is not an integer"},
        Case{-0.0f, 3.0f, 0x80000000, "minus zero to an odd power"},
        Case{-0.0f, 0.25f, 0x00000000, "to a power that is not an integer"},
        Case{-0.0f, -0.25f, 0x7F800000, "to a negative one"}, Case{-0.0f, -3.0f, 0xFF800000, "to a negative odd power"},
        Case{-1.0f, 3.0f, 0xBF800000, "minus one to an odd power"},
        Case{-1.0f, 16777216.0f, 0x3F800000, "from 2^24 on every power is even but 2^24 - 1 is not"},
        Case{-1.0f, 16777215.0f, 0xBF800000, "the largest odd power"},
        Case{-1.0f, 0.25f, 0xFFC00000, "minus one to a power that is not an integer"},
        Case{-8.0f, 1.0f / 3.0f, 0xFFC00000, "a negative base to a power that is not an integer"},
        Case{2.0f, 10.0f, 0x44800000, "a power of two is exact"}, Case{-2.0f, 3.0f, 0xC1000000, "minus eight"},
        Case{2.0f, 128.0f, 0x7F800000, "overflow"}, Case{-2.0f, 129.0f, 0xFF800000, "negative overflow"},
        Case{2.0f, -149.0f, 0x00000001, "the smallest subnormal"}, Case{2.0f, -151.0f, 0x00000000, "underflow"},
        Case{-2.0f, -151.0f, 0x80000000, "negative underflow"},
        Case{2.0f, -140.0f, 0x00000200, "a subnormal result is scaled in the end"},
        Case{2.0f, 0x1p28f, 0x7F800000, "a huge power of a base above one"},
        Case{2.0f, -0x1p28f, 0x00000000, "a huge negative power"},
        Case{-0.5f, -0x1p28f, 0x7F800000, "a huge power is even: the sign is lost"}));

// Every pair of a list that holds the boundaries of all cases.
TEST(PowSingle, EqualsItsStepsForEveryPairOfInterestingOperands) {
  constexpr std::uint32_t interesting[] = {
      0x00000000, 0x00000001, 0x007FFFFF, 0x00800000, 0x33800000, 0x3E800000, 0x3EAAAAAB, 0x3F000000, 0x3F000001,
      0x3F5DB3D6, 0x3F5DB3D7, 0x3F7FFFEF, 0x3F7FFFF0, 0x3F7FFFFF, 0x3F800000, 0x3F800001, 0x3F800008, 0x3F800009,
      0x3F9CC471, 0x3F9CC472, 0x3FC00000, 0x3FDDB3D6, 0x3FDDB3D7, 0x40000000, 0x40200000, 0x40400000, 0x40800000,
      0x41200000, 0x42FE0000, 0x42FFFFFF, 0x43000000, 0x43000001, 0x43150000, 0x43160000, 0x43160001, 0x4B7FFFFF,
      0x4B800000, 0x4CFFFFFF, 0x4D000000, 0x4D000001, 0x7E967699, 0x7F7FFFFF, 0x7F800000, 0x7F800001, 0x7FC00000};
  bitComparison compare("powSingle");
  for (const std::uint32_t first : interesting) {
    for (const std::uint32_t second : interesting) {
      for (const std::uint32_t signs : {0u, 1u, 2u, 3u}) {
        const float x = std::bit_cast<float>(first | (signs & 1u) << 31);
        const float y = std::bit_cast<float>(second | (signs & 2u) << 30);
        compare.check(powSingle(x, y), reference(x, y), x, y);
      }
    }
  }
}

std::uint64_t differences(std::uint64_t count) {
  std::atomic<std::uint64_t> different{0};
  inBlocks(count, [&](std::uint64_t first, std::uint64_t end) {
    for (std::uint64_t i = first; i < end; ++i) {
      const powerOperands p = powerOperandsAt(i);
      different += bitsIn(powSingle(p.x, p.y)) != bitsIn(reference(p.x, p.y));
    }
  });
  return different;
}

TEST(PowSingle, EqualsItsStepsOnNumberedPairs) { EXPECT_EQ(differences(1u << 21), 0u); }
TEST(LongPowSingle, EqualsItsStepsOnNumberedPairs) { EXPECT_EQ(differences(1u << 27), 0u); }

// Every base whose logarithm the special expansion for huge powers takes, and the bases next to it.
TEST(PowSingle, EqualsItsStepsForHugePowers) {
  bitComparison compare("powSingle");
  for (std::uint32_t word = 0x3F7FFF00u; word <= 0x3F800100u; ++word) {
    const float x = std::bit_cast<float>(word);
    for (std::uint32_t field = 153; field <= 254; ++field) {
      for (const std::uint32_t fraction : {0u, 1u, 0x123456u, 0x7FFFFFu}) {
        const float y = std::bit_cast<float>(field << 23 | fraction);
        compare.check(powSingle(x, y), reference(x, y), x, y);
        compare.check(powSingle(-x, -y), reference(-x, -y), -x, -y);
      }
    }
  }
}

// The result crosses the overflow and the underflow limit in the smallest steps the operands allow.
TEST(PowSingle, EqualsItsStepsAroundTheLimits) {
  bitComparison compare("powSingle");
  for (const float limit : {128.0f, -126.0f, -149.0f, -150.0f}) {
    for (const float x : {2.0f, 10.0f, 1.5f, 0.75f, 1.0001f, 123456.0f, 0x1p-140f}) {
      const auto middle = static_cast<float>(limit / std::log2(static_cast<double>(x)));
      for (std::uint32_t distance = 0; distance <= 200; ++distance) {
        for (const std::uint32_t word : {bitsIn(middle) + distance, bitsIn(middle) - distance}) {
          const float y = std::bit_cast<float>(word);
          compare.check(powSingle(x, y), reference(x, y), x, y);
        }
      }
    }
  }
}

}  // namespace
}  // namespace zthalf::testing

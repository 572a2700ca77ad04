#include "scalar/rounding.h"

#include <gtest/gtest.h>

#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "zthalf/half_scalar.h"

namespace zthalf {
namespace {

using testing::bitComparison;
using row = testing::known<std::uint16_t, std::uint16_t>;

// The four roundings of a count of units to whole ones, as integer division does them.
constexpr std::int64_t one = exact::unitsInOne;

std::int64_t up(std::int64_t units) { return units > 0 ? (units + one - 1) / one : units / one; }
std::int64_t down(std::int64_t units) { return units < 0 ? (units - one + 1) / one : units / one; }
std::int64_t towardsZero(std::int64_t units) { return units / one; }
std::int64_t toNearest(std::int64_t units) { return (units < 0 ? units - one / 2 : units + one / 2) / one; }

// A zero result has the operand's sign; what is not finite comes back as it is.
std::uint16_t roundedBy(std::int64_t (*rounding)(std::int64_t), std::uint16_t h) {
  if (!exact::isFinite(h)) return h;
  const std::int64_t whole = rounding(exact::unitsOf(h));
  return static_cast<std::uint16_t>(exact::patternOf(whole * one) | (h & 0x8000));
}

TEST(Ceil, IsExactOnEveryPattern) {
  bitComparison compare("ceil");
  testing::forEveryPattern([&](std::uint16_t h) {
    compare.check(half_scalar::ceil({h}), half_t{roundedBy(up, h)}, h);
    compare.check(ceilOf(h), roundedBy(up, h), h);
  });
}

TEST(Floor, IsExactOnEveryPattern) {
  bitComparison compare("floor");
  testing::forEveryPattern([&](std::uint16_t h) {
    compare.check(half_scalar::floor({h}), half_t{roundedBy(down, h)}, h);
    compare.check(floorOf(h), roundedBy(down, h), h);
  });
}

TEST(Fix, IsExactOnEveryPattern) {
  bitComparison compare("fix");
  testing::forEveryPattern([&](std::uint16_t h) {
    compare.check(half_scalar::fix({h}), half_t{roundedBy(towardsZero, h)}, h);
    compare.check(fixOf(h), roundedBy(towardsZero, h), h);
  });
}

TEST(Round, IsExactOnEveryPattern) {
  bitComparison compare("round");
  testing::forEveryPattern([&](std::uint16_t h) {
    compare.check(half_scalar::round({h}), half_t{roundedBy(toNearest, h)}, h);
    compare.check(roundOf(h), roundedBy(toNearest, h), h);
  });
}

TEST(Rounding, LargeValuesInfinitiesAndNaNsComeBackUnchanged) {
  bitComparison compare("ceil, floor, fix, round");
  testing::forEveryPattern([&](std::uint16_t h) {
    if ((h & 0x7FFF) < 0x6400) return;  // 1024
    compare.check(half_scalar::ceil({h}), half_t{h}, h);
    compare.check(half_scalar::floor({h}), half_t{h}, h);
    compare.check(half_scalar::fix({h}), half_t{h}, h);
    compare.check(half_scalar::round({h}), half_t{h}, h);
  });
}

TEST(BitsBelowPoint, AreTheBitsWorthLessThanOne) {
  bitComparison compare("bits below the point");
  for (std::uint32_t m = 0x3C00; m <= 0x7FFF; ++m) {  // from 1.0 on
    unsigned expected = 0;
    for (unsigned bit = 0; bit < 10; ++bit) {
      const int weight = static_cast<int>(m >> 10) - 25 + static_cast<int>(bit);  // the bit stands for 2^weight
      if (weight < 0) expected |= 1u << bit;
    }
    compare.check(bitsBelowPoint(static_cast<std::uint16_t>(m)), static_cast<std::uint16_t>(expected), m);
  }
}

TEST(RoundedMagnitudes, AreExactOnEveryMagnitude) {
  bitComparison compare("rounded magnitudes");
  for (std::uint32_t m = 0; m <= 0x7FFF; ++m) {
    const auto h = static_cast<std::uint16_t>(m);
    compare.check(magnitudeTowardsZero(h), roundedBy(towardsZero, h), h);
    compare.check(magnitudeAwayFromZero(h), roundedBy(up, h), h);
    compare.check(magnitudeToNearest(h), roundedBy(toNearest, h), h);
  }
}

class Ceil : public ::testing::TestWithParam<row> {};
TEST_P(Ceil, GivesTheKnownPattern) {
  EXPECT_EQ(testing::hex(half_scalar::ceil({GetParam().operand})), testing::hex(GetParam().expected)) << GetParam().why;
}
INSTANTIATE_TEST_SUITE_P(Known, Ceil,
                         ::testing::Values(row{0x0001, 0x3C00, "the smallest subnormal goes to 1"},
                                           row{0x8001, 0x8000, "a zero result keeps the sign"},
                                           row{0x8000, 0x8000, "minus zero"},
                                           row{0x63FF, 0x6400, "1023.5: the carry enters the exponent"},
                                           row{0x3C01, 0x4000, "the first half above 1"},
                                           row{0xBBFF, 0x8000, "just above -1"}, row{0x7D00, 0x7D00, "a NaN"}));

class Floor : public ::testing::TestWithParam<row> {};
TEST_P(Floor, GivesTheKnownPattern) {
  EXPECT_EQ(testing::hex(half_scalar::floor({GetParam().operand})), testing::hex(GetParam().expected))
      << GetParam().why;
}
INSTANTIATE_TEST_SUITE_P(Known, Floor,
                         ::testing::Values(row{0x0001, 0x0000, "the smallest subnormal goes to zero"},
                                           row{0x8001, 0xBC00, "its negative goes to -1"},
                                           row{0x8000, 0x8000, "minus zero"},
                                           row{0xE3FF, 0xE400, "-1023.5: the carry enters the exponent"},
                                           row{0x3BFF, 0x0000, "just below 1"}, row{0x7D00, 0x7D00, "a NaN"}));

class Fix : public ::testing::TestWithParam<row> {};
TEST_P(Fix, GivesTheKnownPattern) {
  EXPECT_EQ(testing::hex(half_scalar::fix({GetParam().operand})), testing::hex(GetParam().expected)) << GetParam().why;
}
INSTANTIATE_TEST_SUITE_P(Known, Fix,
                         ::testing::Values(row{0xBFFF, 0xBC00, "just above -2"},
                                           row{0xB800, 0x8000, "-0.5: a zero result keeps the sign"},
                                           row{0x63FF, 0x63FE, "1023.5 to 1023"}, row{0x7D00, 0x7D00, "a NaN"}));

class Round : public ::testing::TestWithParam<row> {};
TEST_P(Round, GivesTheKnownPattern) {
  EXPECT_EQ(testing::hex(half_scalar::round({GetParam().operand})), testing::hex(GetParam().expected))
      << GetParam().why;
}
INSTANTIATE_TEST_SUITE_P(Known, Round,
                         ::testing::Values(row{0x3800, 0x3C00, "0.5 is a tie, away from zero"},
                                           row{0xB800, 0xBC00, "-0.5 too"}, row{0x37FF, 0x0000, "just below 0.5"},
                                           row{0xB7FF, 0x8000, "a zero result keeps the sign"},
                                           row{0x3E00, 0x4000, "1.5"}, row{0x4100, 0x4200, "2.5: not to even"},
                                           row{0x40FF, 0x4000, "just below 2.5"},
                                           row{0x63FF, 0x6400, "1023.5: the carry enters the exponent"},
                                           row{0x7D00, 0x7D00, "a signalling NaN is not made quiet"}));

}  // namespace
}  // namespace zthalf

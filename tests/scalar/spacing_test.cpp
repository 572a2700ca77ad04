// eps and nextafter; the distance in units in the last place has a test file of its own.
#include "scalar/spacing.h"

#include <gtest/gtest.h>

#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "zthalf/half_scalar.h"

namespace zthalf {
namespace {

using testing::bitComparison;

std::uint16_t epsByDifference(std::uint16_t h) {
  if (!exact::isFinite(h)) return 0x7E00;
  const auto magnitude = static_cast<std::uint16_t>(h & 0x7FFF);
  return exact::patternOf(exact::unitsOf(magnitude + 1) - exact::unitsOf(magnitude));
}

TEST(Eps, IsTheDistanceToTheNextMagnitudeOnEveryPattern) {
  bitComparison compare("eps");
  testing::forEveryPattern([&](std::uint16_t h) {
    compare.check(half_scalar::eps({h}), half_t{epsByDifference(h)}, h);
    compare.check(epsOf(h), epsByDifference(h), h);
  });
}

using row = testing::known<std::uint16_t, std::uint16_t>;
class Eps : public ::testing::TestWithParam<row> {};
TEST_P(Eps, GivesTheKnownPattern) {
  EXPECT_EQ(testing::hex(half_scalar::eps({GetParam().operand})), testing::hex(GetParam().expected)) << GetParam().why;
}
INSTANTIATE_TEST_SUITE_P(Known, Eps,
                         ::testing::Values(row{0x7C00, 0x7E00, "infinity has no spacing"},
                                           row{0xFC00, 0x7E00, "nor has minus infinity: a positive NaN"},
                                           row{0xFE55, 0x7E00, "a NaN gives the positive NaN without its payload"},
                                           row{0x7C01, 0x7E00, "a signalling NaN gives a quiet one"},
                                           row{0x8000, 0x0001, "minus zero"}, row{0x0000, 0x0001, "zero"},
                                           row{0x03FF, 0x0001, "the largest subnormal"},
                                           row{0x0400, 0x0001, "the smallest normal has the subnormal spacing"},
                                           row{0x0800, 0x0002, "the next binade, a subnormal result"},
                                           row{0x2C00, 0x0400, "the first normal result"},
                                           row{0x3C00, 0x1400, "2^-10 at 1"}, row{0xBC00, 0x1400, "no sign at -1"},
                                           row{0x7BFF, 0x5000, "32 in the top binade"}));

// The neighbour by numbers: one step along the magnitudes, the sign of the operand kept.
std::uint16_t neighbourByUnits(std::uint16_t x, std::uint16_t y) {
  if (exact::isNaN(x)) return x;
  if (exact::isNaN(y)) return y;
  const std::int64_t from = exact::unitsOf(x);
  const std::int64_t to = exact::unitsOf(y);
  if (from == to) return y;
  if (from == 0) return to > 0 ? 0x0001 : 0x8001;
  const std::uint16_t sign = x & 0x8000;
  const bool outward = (to > from) == (from > 0);
  const int magnitude = (x & 0x7FFF) + (outward ? 1 : -1);
  return static_cast<std::uint16_t>(magnitude | sign);
}

TEST(NextAfter, StepsTowardsTheOtherOnEveryCuratedPair) {
  bitComparison compare("nextafter");
  testing::forEveryCuratedPair([&](std::uint16_t x, std::uint16_t y) {
    const std::uint16_t expected = neighbourByUnits(x, y);
    compare.check(half_scalar::nextafter({x}, {y}), half_t{expected}, x, y);
    compare.check(neighbourOf(x, y), expected, x, y);
  });
}

TEST(NextAfter, StepsTowardsTheSpecialValuesFromEveryPattern) {
  bitComparison compare("nextafter");
  testing::forEveryPattern([&](std::uint16_t x) {
    for (const std::uint16_t y : {0x0000, 0x8000, 0x7C00, 0xFC00, 0x7E00, 0xFC01}) {
      compare.check(half_scalar::nextafter({x}, {y}), half_t{neighbourByUnits(x, y)}, x, y);
      compare.check(half_scalar::nextafter({y}, {x}), half_t{neighbourByUnits(y, x)}, y, x);
    }
    compare.check(half_scalar::nextafter({x}, {x}), half_t{x}, x, x);
  });
}

using pairRow = testing::knownPair<std::uint16_t, std::uint16_t, std::uint16_t>;
class NextAfter : public ::testing::TestWithParam<pairRow> {};
TEST_P(NextAfter, GivesTheKnownPattern) {
  pairRow const& r = GetParam();
  EXPECT_EQ(testing::hex(half_scalar::nextafter({r.first}, {r.second})), testing::hex(r.expected)) << r.why;
}
INSTANTIATE_TEST_SUITE_P(
    Known, NextAfter,
    ::testing::Values(pairRow{0x0000, 0x8000, 0x8000, "equal zeros: the sign comes from the second"},
                      pairRow{0x8000, 0x0000, 0x0000, "equal zeros: the sign comes from the second"},
                      pairRow{0x8000, 0x3C00, 0x0001, "from a zero of either sign upwards"},
                      pairRow{0x0000, 0xBC00, 0x8001, "from a zero of either sign downwards"},
                      pairRow{0x7C00, 0x7C00, 0x7C00, "infinity towards itself"},
                      pairRow{0x7BFF, 0x7C00, 0x7C00, "from the largest finite half to infinity"},
                      pairRow{0x7C00, 0xFC00, 0x7BFF, "from infinity back"},
                      pairRow{0x0001, 0x0000, 0x0000, "from the smallest subnormal to plus zero"},
                      pairRow{0x8001, 0x0000, 0x8000, "from its negative to minus zero"},
                      pairRow{0x8001, 0x7C00, 0x8000, "through minus zero on the way up"},
                      pairRow{0x7C01, 0xFE00, 0x7C01, "a NaN first operand is not made quiet"},
                      pairRow{0x3C00, 0xFC01, 0xFC01, "a NaN second operand is not made quiet"}));

}  // namespace
}  // namespace zthalf

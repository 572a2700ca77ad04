// The distance of two values in units in the last place.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "scalar/spacing.h"
#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_scalar.h"

namespace zthalf {
namespace {

using testing::bitComparison;

constexpr double infinite = std::numeric_limits<double>::infinity();

// Where one of the two is infinite or counts as such, a and b are the halves that they round to.
double distanceAtInfinity(std::uint16_t a, std::uint16_t b) {
  if (a == b || (a == 0x0000 && b == 0x8000) || (a == 0x8000 && b == 0x0000)) return 0.0;
  if ((a ^ b) >> 15 != 0) return infinite;
  return (a & 0x7FFF) == 0x7BFF || (b & 0x7FFF) == 0x7BFF ? 0.5 : infinite;
}

int placeOf(std::uint16_t a, std::uint16_t b) {  // the smaller exponent field, subnormals counting as 1
  const int first = a >> 10 & 31;
  const int second = b >> 10 & 31;
  const int smaller = first < second ? first : second;
  return smaller == 0 ? 1 : smaller;
}

// Two halves: a count of units, divided exactly.
double distanceOfHalves(std::uint16_t a, std::uint16_t b) {
  if (exact::isNaN(a) && exact::isNaN(b)) return 0.0;
  if (exact::isNaN(a) || exact::isNaN(b)) return infinite;
  if (!exact::isFinite(a) || !exact::isFinite(b)) return distanceAtInfinity(a, b);
  if ((a ^ b) == 0x8000 && exact::unitsOf(a) == 0) return 0.5;
  const std::int64_t units = std::llabs(exact::unitsOf(a) - exact::unitsOf(b));
  return std::ldexp(static_cast<double>(units), 1 - placeOf(a, b));
}

// A half, or two wider values, by their doubles, and the halves that they round to.
double distanceOfDoubles(double a, std::uint16_t halfOfA, double b, std::uint16_t halfOfB, bool anyInfinite) {
  if (std::isnan(a)) return std::isnan(b) ? 0.0 : infinite;
  if (std::isnan(b)) return infinite;
  if (anyInfinite) return distanceAtInfinity(halfOfA, halfOfB);
  if (a == 0 && b == 0) return std::signbit(a) == std::signbit(b) ? 0.0 : 0.5;
  volatile double difference = a - b;
  return std::ldexp(std::fabs(difference), 25 - placeOf(halfOfA, halfOfB));
}

template <class Wide>
double distanceOfMixed(std::uint16_t a, Wide b) {
  const double first = reference::widenedToDouble(a);
  return distanceOfDoubles(first, a, b, reference::narrowed(b), std::isinf(first) || std::isinf(b));
}

template <class First, class Second>
double distanceOfWide(First a, Second b) {
  const std::uint16_t first = reference::narrowed(a);
  const std::uint16_t second = reference::narrowed(b);
  return distanceOfDoubles(a, first, b, second, (first & 0x7FFF) == 0x7C00 || (second & 0x7FFF) == 0x7C00);
}

std::vector<std::uint16_t> someHalves() {
  std::vector<std::uint16_t> halves{0x0000, 0x8000, 0x0001, 0x8001, 0x03FF, 0x0400, 0x3C00, 0xBC00, 0x7BFE,
                                    0x7BFF, 0xFBFF, 0x7C00, 0xFC00, 0x7C01, 0x7E00, 0xFC01, 0xFE00};
  for (std::size_t i = 0; i < testing::curatedPatterns().size(); i += 13)
    halves.push_back(testing::curatedPatterns()[i]);
  return halves;
}

// Values between and beyond the halves.
template <class Wide>
std::vector<Wide> someWideValues() {
  using limits = std::numeric_limits<Wide>;
  std::vector<Wide> values{Wide(65504),          Wide(65519),          std::nextafter(Wide(65520), Wide(0)),
                           Wide(65520),          Wide(65536),          Wide(70000),
                           limits::max(),        limits::infinity(),   limits::quiet_NaN(),
                           limits::denorm_min(), limits::min(),        Wide(0),
                           Wide(0x1p-25),        Wide(1.000244140625), Wide(0x1p-14)};
  for (std::size_t i = 0; i < testing::curatedPatterns().size(); i += 97) {
    const Wide value = static_cast<Wide>(reference::widenedToSingle(testing::curatedPatterns()[i]));
    values.push_back(value);
    values.push_back(value * Wide(1.000244140625));  // a quarter of a unit above 1
    values.push_back(value * Wide(1.0001));
  }
  const std::size_t count = values.size();
  for (std::size_t i = 0; i < count; ++i) values.push_back(-values[i]);
  return values;
}

TEST(Ulp, OfHalvesIsExactOnEveryCuratedPair) {
  bitComparison compare("ulp");
  testing::forEveryCuratedPair([&](std::uint16_t a, std::uint16_t b) {
    compare.check(half_scalar::ulp(half_t{a}, half_t{b}), distanceOfHalves(a, b), a, b);
  });
}

TEST(Ulp, OfAdjacentHalvesIsOneOrAHalf) {
  bitComparison compare("ulp");
  for (std::uint16_t h = 0; h < 0x7C00; ++h) {
    const auto next = static_cast<std::uint16_t>(h + 1);
    const double expected = h == 0x7BFF ? 0.5 : 1.0;
    compare.check(half_scalar::ulp(half_t{h}, half_t{next}), expected, h);
    compare.check(half_scalar::ulp(half_t{next}, half_t{h}), expected, h);
  }
}

TEST(Ulp, OfAHalfAndAFloatSeesTheFloatAtFullWidth) {
  bitComparison compare("ulp");
  for (const std::uint16_t a : someHalves()) {
    for (const float b : someWideValues<float>()) {
      const double expected = distanceOfMixed(a, b);
      compare.check(half_scalar::ulp(half_t{a}, b), expected, a, b);
      compare.check(half_scalar::ulp(b, half_t{a}), expected, b, a);
    }
  }
}

TEST(Ulp, OfAHalfAndADoubleSeesTheDoubleAtFullWidth) {
  bitComparison compare("ulp");
  for (const std::uint16_t a : someHalves()) {
    for (const double b : someWideValues<double>()) {
      const double expected = distanceOfMixed(a, b);
      compare.check(half_scalar::ulp(half_t{a}, b), expected, a, b);
      compare.check(half_scalar::ulp(b, half_t{a}), expected, b, a);
    }
  }
}

TEST(Ulp, OfTwoWideValuesJudgesInfinityOnTheirHalves) {
  bitComparison compare("ulp");
  const std::vector<float> singles = someWideValues<float>();
  const std::vector<double> doubles = someWideValues<double>();
  for (const float a : singles) {
    for (const float b : singles) compare.check(ulpDistance(a, b), distanceOfWide(a, b), a, b);
    for (const double b : doubles) {
      compare.check(ulpDistance(a, b), distanceOfWide(a, b), a, b);
      compare.check(ulpDistance(b, a), distanceOfWide(b, a), b, a);
    }
  }
  for (const double a : doubles) {
    for (const double b : doubles) compare.check(ulpDistance(a, b), distanceOfWide(a, b), a, b);
  }
}

using halves = testing::knownPair<std::uint16_t, std::uint16_t, double>;
class UlpOfHalves : public ::testing::TestWithParam<halves> {};
TEST_P(UlpOfHalves, GivesTheKnownDistance) {
  halves const& r = GetParam();
  EXPECT_EQ(testing::hex(half_scalar::ulp(half_t{r.first}, half_t{r.second})), testing::hex(r.expected)) << r.why;
  EXPECT_EQ(testing::hex(half_scalar::ulp(half_t{r.second}, half_t{r.first})), testing::hex(r.expected)) << r.why;
}
INSTANTIATE_TEST_SUITE_P(Known, UlpOfHalves,
                         ::testing::Values(halves{0x3C00, 0x3C01, 1.0, "neighbours"},
                                           halves{0x3C00, 0x3BFF, 1.0, "across a binade: the smaller exponent counts"},
                                           halves{0x3C00, 0x3C00, 0.0, "the same"},
                                           halves{0x0000, 0x8000, 0.5, "the two zeros, on purpose"},
                                           halves{0x0001, 0x8001, 2.0, "across zero"},
                                           halves{0x7BFF, 0x7C00, 0.5, "the largest finite half and infinity"},
                                           halves{0x7BFE, 0x7C00, infinite, "only the largest is near to infinity"},
                                           halves{0xFBFF, 0x7C00, infinite, "not with another sign"},
                                           halves{0x7C00, 0xFC00, infinite, "the two infinities"},
                                           halves{0x7C00, 0x7C00, 0.0, "infinity and itself"},
                                           halves{0x7E00, 0xFE00, 0.0, "NaNs are all alike"},
                                           halves{0x7C01, 0x7E00, 0.0, "NaNs are all alike"},
                                           halves{0x0000, 0x7E00, infinite, "a NaN and a number"},
                                           halves{0x7C00, 0x7E00, infinite, "a NaN and an infinity"}));

using halfAndSingle = testing::knownPair<std::uint16_t, float, double>;
class UlpOfHalfAndSingle : public ::testing::TestWithParam<halfAndSingle> {};
TEST_P(UlpOfHalfAndSingle, GivesTheKnownDistance) {
  halfAndSingle const& r = GetParam();
  const half_t first{r.first};
  const double wide = r.second;
  EXPECT_EQ(testing::hex(half_scalar::ulp(first, r.second)), testing::hex(r.expected)) << r.why;
  EXPECT_EQ(testing::hex(half_scalar::ulp(r.second, first)), testing::hex(r.expected)) << r.why;
  EXPECT_EQ(testing::hex(half_scalar::ulp(first, wide)), testing::hex(r.expected)) << r.why << ", double";
  EXPECT_EQ(testing::hex(half_scalar::ulp(wide, first)), testing::hex(r.expected)) << r.why << ", double";
}
INSTANTIATE_TEST_SUITE_P(
    Known, UlpOfHalfAndSingle,
    ::testing::Values(halfAndSingle{0x3C00, 1.000244140625f, 0.25, "fractions of a unit are seen"},
                      halfAndSingle{0x7C00, 70000.0f, 0.0, "what rounds to infinity is no distance from it"},
                      halfAndSingle{0xFC00, 70000.0f, infinite, "not with another sign"},
                      halfAndSingle{0x7BFF, 70000.0f, 140.5, "finite in its own type: measured in units of 32"},
                      halfAndSingle{0x7C00, 65519.0f, 0.5, "what rounds to the largest finite half"},
                      halfAndSingle{0x7BFF, std::numeric_limits<float>::infinity(), 0.5, "infinity in its own type"},
                      halfAndSingle{0x0000, -0.0f, 0.5, "the two zeros"},
                      halfAndSingle{0x0000, -0x1p-30f, 0x1p-6, "a value that rounds to minus zero is no zero"},
                      halfAndSingle{0x7E00, 1.0f, infinite, "a NaN and a number"},
                      halfAndSingle{0xFC01, std::numeric_limits<float>::quiet_NaN(), 0.0, "two NaNs"}));

TEST(Ulp, OfADoubleBeyondTheRangeCanOverflow) {
  EXPECT_EQ(half_scalar::ulp(half_t{0x0000}, std::numeric_limits<double>::max()), infinite);
  EXPECT_EQ(half_scalar::ulp(half_t{0x7BFF}, 0x1p1023), 0x1p1018);
}

}  // namespace
}  // namespace zthalf

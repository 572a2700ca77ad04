// hypot of halves, and of halves with floats and doubles.
#include "scalar/hypot.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/scalar/kernels/steps_double.h"
#include "tests/scalar/mixed_operands_at.h"
#include "tests/support/exact.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

// The steps, stored and read back one after the other.
template <class Wide, class Word>
std::uint16_t bySteps(Wide x, Wide y, Word lowMask, Word tieLow, Word tieHigh) {
  volatile Wide a = std::abs(x);
  volatile Wide b = std::abs(y);
  if (std::isnan(x) || std::isnan(y)) return 0x7E00;
  volatile Wide squareA = a * a;
  volatile Wide squareB = b * b;
  volatile Wide s = squareA + squareB;
  volatile Wide first = s - squareA;
  volatile Wide second = s - squareB;
  volatile Wide firstRest = first - squareB;
  volatile Wide secondRest = second - squareA;
  volatile Wide e = firstRest + secondRest;
  volatile Wide r = std::sqrt(Wide{s});
  auto pattern = std::bit_cast<Word>(Wide{r});
  if (e != 0 && std::isfinite(Wide{s})) {
    volatile Wide square = r * r;
    volatile Wide dd = s - square;
    const Word low = pattern & lowMask;
    if (low == tieLow && e < dd) {
      pattern |= 1;
    } else if (low == tieHigh && e > dd) {
      pattern -= 1;
    }
  }
  return reference::narrowed(std::bit_cast<Wide>(pattern));
}

std::uint16_t ofFloats(float x, float y) {
  return bySteps(x, y, std::uint32_t{0x3FFF}, std::uint32_t{0x1000}, std::uint32_t{0x3000});
}
std::uint16_t ofDoubles(double x, double y) {
  return bySteps(x, y, std::uint64_t{0x7FFFFFFFFFF}, std::uint64_t{0x20000000000}, std::uint64_t{0x60000000000});
}

std::uint16_t hypot(auto x, auto y) { return half_scalar::hypot(x, y).bits; }

using pair = knownPair<std::uint16_t, std::uint16_t, std::uint16_t>;
class Hypot : public ::testing::TestWithParam<pair> {};

TEST_P(Hypot, IsTheKnownResultInEveryForm) {
  const auto [x, y, expected, why] = GetParam();
  EXPECT_EQ(hex(hypot(half_t{x}, half_t{y})), hex(expected)) << why;
  EXPECT_EQ(hex(hypot(half_t{x}, widen<float>(y))), hex(expected)) << why;
  EXPECT_EQ(hex(hypot(half_t{x}, widen<double>(y))), hex(expected)) << why;
  EXPECT_EQ(hex(hypot(widen<float>(x), half_t{y})), hex(expected)) << why;
  EXPECT_EQ(hex(hypot(widen<double>(x), half_t{y})), hex(expected)) << why;
}

INSTANTIATE_TEST_SUITE_P(
    Special, Hypot,
    ::testing::Values(pair{0x4200, 0x4400, 0x4500, "3 and 4"}, pair{0xC200, 0x4400, 0x4500, "-3 and 4"},
                      pair{0x7C00, 0x7E00, 0x7E00, "an infinity does not outrank a NaN"},
                      pair{0xFE00, 0x3C00, 0x7E00, "the sign of a NaN is not read"},
                      pair{0x3C00, 0xFC01, 0x7E00, "a signalling one"}, pair{0xFC00, 0x7C00, 0x7C00, "two infinities"},
                      pair{0xFC00, 0x0000, 0x7C00, "one infinity"},
                      pair{0x7B53, 0x7B53, 0x7C00, "60000 and 60000: only the rounding to half overflows"},
                      pair{0x8000, 0x0000, 0x0000, "two zeros"}, pair{0x8000, 0xBC00, 0x3C00, "a zero"},
                      pair{0x0001, 0x0001, 0x0001, "the smallest subnormals"},
                      pair{0x0003, 0x0004, 0x0005, "subnormals"}));

TEST(HypotOfHalves, FollowsItsStepsOnCuratedPairs) {
  bitComparison compare("hypot");
  forEveryCuratedPair([&](std::uint16_t x, std::uint16_t y) {
    compare.check(hypotOf(x, y), ofFloats(widen<float>(x), widen<float>(y)), x, y);
  });
}

// The largest whole number whose square is not above s.
std::uint64_t wholeRoot(exact::wideInteger s) {
  auto root = static_cast<std::uint64_t>(std::sqrt(static_cast<long double>(s)));
  while (exact::wideInteger{root} * root > s) --root;
  while (exact::wideInteger{root + 1} * (root + 1) <= s) ++root;
  return root;
}

std::uint16_t exactly(std::uint16_t x, std::uint16_t y) {
  const exact::wideInteger a = exact::magnitudeOf(x);
  const exact::wideInteger b = exact::magnitudeOf(y);
  const exact::wideInteger sum = (a * a + b * b) << 32;  // so the root has 16 bits below the units
  const std::uint64_t root = wholeRoot(sum);
  return exact::nearestHalf(root, exact::unitExponent - 16, exact::wideInteger{root} * root != sum);
}

// Finite random pairs, half of them of about the same size.
TEST(HypotOfHalves, IsCorrectlyRounded) {
  bitComparison compare("hypot");
  randomBits bits(7);
  for (int i = 0; i < 1000000; ++i) {
    const std::uint64_t random = bits.next();
    const auto x = static_cast<std::uint16_t>(random & 0x7FFF);
    const auto near = static_cast<std::uint16_t>((x & 0x7C00) + (random >> 16 & 0x0FFF));
    const auto y = static_cast<std::uint16_t>(i % 2 == 0 ? random >> 32 & 0x7FFF : near & 0x7FFF);
    if (exact::isFinite(x) && exact::isFinite(y)) compare.check(hypotOf(x, y), exactly(x, y), x, y);
  }
}

TEST(HypotWithFloats, FollowsItsSteps) {
  const auto halfFirst = [](std::uint16_t x, float y) { return hypot(half_t{x}, y); };
  const auto wideFirst = [](float x, std::uint16_t y) { return hypot(x, half_t{y}); };
  expectSameOnMixedPairs<float>("hypot", halfFirst, wideFirst, ofDoubles);
}

TEST(HypotWithDoubles, FollowsItsSteps) {
  const auto halfFirst = [](std::uint16_t x, double y) { return hypot(half_t{x}, y); };
  const auto wideFirst = [](double x, std::uint16_t y) { return hypot(x, half_t{y}); };
  expectSameOnMixedPairs<double>("hypot", halfFirst, wideFirst, [](double x, double y) {
    return reference::narrowed(steps::doubles::hypot(x, y).value());
  });
}

TEST(HypotWithDoubles, NaNsArePositive) {
  const double negativeNaN = std::bit_cast<double>(std::uint64_t{0xFFF0000000000001});
  EXPECT_EQ(hex(hypot(half_t{0x3C00}, negativeNaN)), "0x7E00");
  EXPECT_EQ(hex(hypot(negativeNaN, half_t{0x0000})), "0x7E00") << "also beside a zero";
  EXPECT_EQ(hex(hypot(half_t{0xFE00}, 0.0)), "0x7E00");
  EXPECT_EQ(hex(hypot(std::numeric_limits<double>::infinity(), half_t{0xFE00})), "0x7E00");
}

}  // namespace
}  // namespace zthalf::testing

// mod and rem of a half and a float or double, by the exported function objects.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/scalar/kernels/two_argument_steps.h"
#include "tests/scalar/mixed_operands_at.h"
#include "tests/support/reference.h"
#include "zthalf/mod_rem.h"

namespace zthalf::testing {
namespace {

using half::impl::emulated::modFtor;
using half::impl::emulated::remFtor;

// Whether x / y counts as an integer, for finite operands and a y that is none.
template <class Wide>
bool isTakenForInteger(Wide x, Wide y) {
  volatile Wide q = x / y;
  volatile Wide rq = std::round(Wide{q});
  volatile Wide dq = std::abs(q - rq);
  volatile Wide tolerance = std::abs(Wide{q}) * std::numeric_limits<Wide>::epsilon();
  return q == rq || !(dq > tolerance);
}

template <class Wide>
bool hasTolerance(Wide x, Wide y) {
  return std::isfinite(x) && std::isfinite(y) && y != std::floor(y);
}

template <class Wide>
bool signals(Wide x) {
  using word = std::conditional_t<std::is_same_v<Wide, float>, std::uint32_t, std::uint64_t>;
  return std::isnan(x) && (std::bit_cast<word>(x) >> (std::is_same_v<Wide, float> ? 22 : 51) & 1) == 0;
}

template <class Wide>
std::uint16_t expectedRem(Wide x, Wide y) {
  if (std::isnan(x) || std::isnan(y)) {
    const bool second = !std::isnan(x) || (signals(y) && !signals(x));
    return std::signbit(second ? y : x) ? 0xFE00 : 0x7E00;
  }
  if (std::isinf(x) || y == 0) return 0x7E00;
  Wide m = std::fmod(x, y);  // exact
  if (m != 0 && hasTolerance(x, y) && isTakenForInteger(x, y)) m = x * Wide(0);
  return reference::narrowed(m);
}

template <class Wide>
std::uint16_t expectedMod(Wide x, Wide y) {
  Wide m = steps::mod(x, y);
  if (m != 0 && hasTolerance(x, y) && isTakenForInteger(x, y)) m = y * Wide(0);
  return reference::narrowed(m);
}

template <class Ftor>
std::uint16_t apply(auto x, auto y) {
  return Ftor{}(x, y);
}

template <class Wide, class Ftor>
void expectSame(char const* name, std::uint16_t (*expected)(Wide, Wide)) {
  expectSameOnMixedPairs<Wide>(name, apply<Ftor, std::uint16_t, Wide>, apply<Ftor, Wide, std::uint16_t>, expected);
}

TEST(MixedRemainder, RemWithFloatsFollowsItsSteps) { expectSame<float, remFtor>("rem", expectedRem<float>); }
TEST(MixedRemainder, RemWithDoublesFollowsItsSteps) { expectSame<double, remFtor>("rem", expectedRem<double>); }
TEST(MixedRemainder, ModWithFloatsFollowsItsSteps) { expectSame<float, modFtor>("mod", expectedMod<float>); }
TEST(MixedRemainder, ModWithDoublesFollowsItsSteps) { expectSame<double, modFtor>("mod", expectedMod<double>); }

constexpr std::uint16_t one = 0x3C00, minusOne = 0xBC00, tenth = 0x2E66, three = 0x4200, five = 0x4500;

TEST(MixedRemainder, TheToleranceIsTheWiderTypes) {
  EXPECT_EQ(hex(remFtor{}(one, 0.1f)), "0x0000") << "the quotient rounds to ten";
  EXPECT_EQ(hex(remFtor{}(minusOne, 0.1)), "0x8000") << "the sign of x";
  EXPECT_EQ(hex(modFtor{}(one, -0.1)), "0x8000") << "the sign of y";
  EXPECT_EQ(hex(modFtor{}(0.3f, tenth)), hex(expectedMod(0.3f, widen<float>(tenth))))
      << "a half of 0.1 divides 0.3f only as a half";
  EXPECT_EQ(hex(remFtor{}(1.0f, tenth)), "0x0C00") << "no quotient of 10.002 is an integer in float";
  EXPECT_EQ(hex(remFtor{}(1.0, tenth)), "0x0C00") << "nor in double";
  EXPECT_EQ(hex(remFtor{}(one, std::nextafter(0.1f, 0.0f))), hex(expectedRem(1.0f, std::nextafter(0.1f, 0.0f))));
}

TEST(MixedRemainder, NumbersTakeTheSignOfTheirOperand) {
  EXPECT_EQ(hex(remFtor{}(five, 3.0f)), "0x4000");
  EXPECT_EQ(hex(remFtor{}(-5.0f, three)), "0xC000");
  EXPECT_EQ(hex(modFtor{}(-5.0, three)), "0x3C00");
  EXPECT_EQ(hex(modFtor{}(five, -3.0f)), "0xBC00");
  EXPECT_EQ(hex(modFtor{}(std::uint16_t{0x3400}, -1.0f)), "0xBA00") << "0.25 by -1";
  EXPECT_EQ(hex(modFtor{}(std::uint16_t{0x0001}, -1.0)), "0xBC00") << "rounded once, to half";
}

TEST(MixedRemainder, ZerosAndInfinities) {
  constexpr float inf = std::numeric_limits<float>::infinity();
  EXPECT_EQ(hex(remFtor{}(three, 0.0f)), "0x7E00");
  EXPECT_EQ(hex(remFtor{}(-3.0, std::uint16_t{0x8000})), "0x7E00") << "an invalid operation: positive";
  EXPECT_EQ(hex(modFtor{}(three, 0.0f)), "0x4200");
  EXPECT_EQ(hex(modFtor{}(0.0, std::uint16_t{0x8000})), "0x8000");
  EXPECT_EQ(hex(remFtor{}(-inf, three)), "0x7E00");
  EXPECT_EQ(hex(modFtor{}(inf, three)), "0xFE00");
  EXPECT_EQ(hex(remFtor{}(three, inf)), "0x4200");
  EXPECT_EQ(hex(modFtor{}(three, -inf)), "0xFC00");
  EXPECT_EQ(hex(modFtor{}(-3.0f, std::uint16_t{0xFC00})), "0xC200");
}

TEST(MixedRemainder, NaNsOfRemKeepTheirSignAndThoseOfModAreNegative) {
  const float nan = std::bit_cast<float>(0x7FC00001u);
  const float negativeNaN = std::bit_cast<float>(0xFFC00001u);
  const float signalling = std::bit_cast<float>(0x7F800001u);
  EXPECT_EQ(hex(remFtor{}(three, nan)), "0x7E00");
  EXPECT_EQ(hex(remFtor{}(three, negativeNaN)), "0xFE00");
  EXPECT_EQ(hex(remFtor{}(std::uint16_t{0xFE01}, nan)), "0xFE00") << "of two the first";
  EXPECT_EQ(hex(remFtor{}(std::uint16_t{0xFE01}, signalling)), "0x7E00") << "but a signalling one wins";
  EXPECT_EQ(hex(remFtor{}(negativeNaN, std::uint16_t{0x0000})), "0xFE00") << "also by zero";
  EXPECT_EQ(hex(modFtor{}(three, nan)), "0xFE00");
  EXPECT_EQ(hex(modFtor{}(nan, three)), "0xFE00");
  EXPECT_EQ(hex(modFtor{}(nan, std::uint16_t{0x0000})), "0x7E00") << "by zero the result is x";
}

}  // namespace
}  // namespace zthalf::testing

// fma of halves, and of every mixture of halves, floats and doubles.
#include "scalar/multiply_add.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

#include "scalar/functors/multiply_add_functor.h"
#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "tests/support/sweep.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

using half::scalar::emulated::fmaFtor;

std::uint16_t fma(std::uint16_t x, std::uint16_t y, std::uint16_t z) {
  const half_t result = half_scalar::fma(half_t{x}, half_t{y}, half_t{z});
  const fp16binary_t element = fmaFtor{}(fp16binary_t{x}, fp16binary_t{y}, fp16binary_t{z});
  EXPECT_EQ(result.bits, element.bits);
  return result.bits;
}

TEST(FmaOfHalves, KnownResults) {
  EXPECT_EQ(hex(fma(0x7BFF, 0x3C00, 0x7BFF)), "0x7C00") << "65504 + 65504";
  EXPECT_EQ(hex(fma(0x4200, 0x4400, 0xCA00)), "0x0000") << "3 * 4 - 12 is plus zero";
  EXPECT_EQ(hex(fma(0x8000, 0x3C00, 0x8000)), "0x8000") << "-0 * 1 + -0";
  EXPECT_EQ(hex(fma(0x8000, 0x3C00, 0x0000)), "0x0000") << "-0 * 1 + 0";
  EXPECT_EQ(hex(fma(0x3C01, 0x3C01, 0xBC02)), "0x0010") << "the square's last bit alone: 2^-20";
  EXPECT_EQ(hex(fma(0x8581, 0x297F, 0x82CF)), "0x830C") << "a subnormal result";
  EXPECT_EQ(hex(fma(0x7C00, 0x3C00, 0xBC00)), "0x7C00") << "an infinity";
}

TEST(FmaOfHalves, InvalidOperationsGiveThePositiveNaN) {
  EXPECT_EQ(hex(fma(0x7C00, 0x0000, 0x3C00)), "0x7E00") << "infinity times zero";
  EXPECT_EQ(hex(fma(0x8000, 0xFC00, 0xBC00)), "0x7E00");
  EXPECT_EQ(hex(fma(0x7C00, 0x3C00, 0xFC00)), "0x7E00") << "infinity minus infinity";
  EXPECT_EQ(hex(fma(0xFC00, 0x3C00, 0x7C00)), "0x7E00");
  EXPECT_EQ(hex(fma(0x7C00, 0x0000, 0xFE00)), "0x7E00") << "the product's NaN comes before a quiet z";
  EXPECT_EQ(hex(fma(0x7C00, 0x0000, 0xFC01)), "0xFE00") << "but not before a signalling one";
}

// Product first, then the sum with the product as its first operand; a product that is a NaN is quiet.
std::uint16_t nanOf(std::uint16_t x, std::uint16_t y, std::uint16_t z) {
  using namespace reference;
  const bool productIsNaN = isNaN(x) || isNaN(y);
  if (!productIsNaN) return 0x7E00 | (z & 0x8000);
  const auto product = static_cast<std::uint16_t>(0x7E00 | (decidingNaN(x, y) & 0x8000));
  return 0x7E00 | ((isNaN(z) ? decidingNaN(product, z) : product) & 0x8000);
}

TEST(FmaOfHalves, TheSignOfANaNComesFromTheOperandThatDecides) {
  constexpr std::uint16_t operands[] = {0x7E00, 0xFE00, 0x7C01, 0xFC01, 0x7D55, 0xFFFF, 0x3C00, 0xC000};
  for (const std::uint16_t x : operands) {
    for (const std::uint16_t y : operands) {
      for (const std::uint16_t z : operands) {
        if (!reference::isNaN(x) && !reference::isNaN(y) && !reference::isNaN(z)) continue;
        EXPECT_EQ(hex(fma(x, y, z)), hex(nanOf(x, y, z))) << hex(x) << " " << hex(y) << " " << hex(z);
      }
    }
  }
}

// x y + z in whole numbers of 2^-48, rounded once.
std::uint16_t exactly(std::uint16_t x, std::uint16_t y, std::uint16_t z) {
  const __int128 product = static_cast<__int128>(exact::unitsOf(x)) * exact::unitsOf(y);
  const __int128 sum = product + static_cast<__int128>(exact::unitsOf(z)) * exact::unitsInOne;
  const auto magnitude = static_cast<exact::wideInteger>(sum < 0 ? -sum : sum);
  const std::uint16_t rounded = exact::nearestHalf(magnitude, 2 * exact::unitExponent);
  if (sum != 0) return static_cast<std::uint16_t>(rounded | (sum < 0 ? 0x8000 : 0));
  const bool bothNegative = exact::isNegative(x) != exact::isNegative(y) && exact::isNegative(z);
  return bothNegative ? 0x8000 : 0x0000;
}

struct operands {
  std::uint16_t x, y, z;
};

// Random patterns, and every second time a z that is about as large as the product or about half its last place.
operands operandsAt(std::uint64_t i) {
  const std::uint64_t random = scrambled(i);
  const auto x = static_cast<std::uint16_t>(random);
  const auto y = static_cast<std::uint16_t>(random >> 16);
  const auto z = static_cast<std::uint16_t>(random >> 32);
  if (i % 2 == 0) return {x, y, z};
  const int field = (x >> 10 & 31) + (y >> 10 & 31) - 15 - static_cast<int>(random >> 48 & 31) + 8;
  const int held = field < 0 ? 0 : field > 30 ? 30 : field;
  return {x, y, static_cast<std::uint16_t>((z & 0x83FF) | held << 10)};
}

TEST(FmaOfHalves, IsCorrectlyRoundedInTheNormalRange) {
  bitComparison compare("fma");
  for (std::uint64_t i = 0; i < 2000000; ++i) {
    const auto [x, y, z] = operandsAt(i);
    if (!exact::isFinite(x) || !exact::isFinite(y) || !exact::isFinite(z)) continue;
    const std::uint16_t expected = exactly(x, y, z);
    if ((expected & 0x7FFF) >= 0x0400) compare.check(multiplyAdd(x, y, z), expected, x, y, z);
  }
}

// The steps for working type and narrow type, for operands that are no NaNs.
template <class Wide>
Wide nudgedBySteps(Wide x, Wide y, Wide z, std::uint64_t tieMask, std::uint64_t tie) {
  using word = typename formatOf<Wide>::word;
  volatile Wide p = x * y;
  volatile Wide s = p + z;
  volatile Wide first = s - p;
  volatile Wide second = s - z;
  volatile Wide firstRest = first - z;
  volatile Wide secondRest = second - p;
  volatile Wide e = firstRest + secondRest;
  auto pattern = std::bit_cast<word>(Wide{s});
  if (e != 0 && std::isfinite(Wide{s})) {
    if (std::signbit(Wide{e}) != std::signbit(Wide{s})) {
      pattern |= 1;
    } else if ((pattern & tieMask) == tie) {
      pattern -= 1;
    }
  }
  return std::bit_cast<Wide>(pattern);
}

TEST(FmaOfHalves, FollowsItsSteps) {
  bitComparison compare("fma");
  for (std::uint64_t i = 0; i < 2000000; ++i) {
    const auto [x, y, z] = operandsAt(i);
    if (reference::isNaN(x) || reference::isNaN(y) || reference::isNaN(z)) continue;
    const float sum = nudgedBySteps(widen<float>(x), widen<float>(y), widen<float>(z), 0x1FFF, 0x1000);
    compare.check(multiplyAdd(x, y, z), reference::narrowed(std::isnan(sum) ? std::abs(sum) : sum), x, y, z);
  }
}

// The mixtures, each with its working type, its tie and its result.

template <class T>
using elementOf = std::conditional_t<std::is_same_v<T, std::uint16_t>, fp16binary_t, T>;

template <class T>
elementOf<T> element(T v) {
  if constexpr (std::is_same_v<T, std::uint16_t>) {
    return fp16binary_t{v};
  } else {
    return v;
  }
}

template <class T>
T operandAt(std::uint64_t random) {
  if constexpr (std::is_same_v<T, std::uint16_t>) {
    return static_cast<std::uint16_t>(random);
  } else {  // a significand of that width, at an exponent that lets the three operands meet
    const auto significand = static_cast<T>(static_cast<std::int64_t>(random));
    return std::ldexp(significand, static_cast<int>(random % 61) - 93);
  }
}

template <class T>
double valueOfOperand(T v) {
  if constexpr (std::is_same_v<T, std::uint16_t>) {
    return widen<double>(v);
  } else {
    return v;
  }
}

template <class X, class Y, class Z>
auto expectedOf(X x, Y y, Z z) {
  constexpr auto isHalf = []<class T>(T) { return std::is_same_v<T, std::uint16_t>; };
  constexpr bool anyDoubleFactor = std::is_same_v<X, double> || std::is_same_v<Y, double>;
  constexpr bool halfResult = isHalf(X{}) || isHalf(Y{}) || isHalf(Z{});
  constexpr bool floatResult =
      !halfResult && (std::is_same_v<X, float> || std::is_same_v<Y, float> || std::is_same_v<Z, float>);
  const double a = valueOfOperand(x), b = valueOfOperand(y), c = valueOfOperand(z);
  double sum = 0;
  if constexpr (anyDoubleFactor) {
    sum = std::fma(a, b, c);
  } else if constexpr (isHalf(X{}) && isHalf(Y{}) && !std::is_same_v<Z, double>) {
    const auto wideZ = static_cast<float>(c);
    sum = nudgedBySteps(static_cast<float>(a), static_cast<float>(b), wideZ, 0x1FFF, 0x1000);
  } else if constexpr (halfResult) {
    sum = nudgedBySteps(a, b, c, 0x3FFFFFFFFFF, 0x20000000000);
  } else {
    sum = nudgedBySteps(a, b, c, 0x1FFFFFFF, 0x10000000);
  }
  if constexpr (halfResult) {
    return fp16binary_t{reference::narrowed(sum)};
  } else if constexpr (floatResult) {
    return static_cast<float>(sum);
  } else {
    return sum;
  }
}

template <class X, class Y, class Z>
void expectMixtureFollowsItsSteps(char const* name) {
  bitComparison compare(name);
  for (std::uint64_t i = 0; i < 60000; ++i) {
    const X x = operandAt<X>(scrambled(3 * i));
    const Y y = operandAt<Y>(scrambled(3 * i + 1));
    const Z z = operandAt<Z>(scrambled(3 * i + 2));
    if (!std::isfinite(valueOfOperand(x) * valueOfOperand(y) + valueOfOperand(z))) continue;
    const auto result = fmaFtor{}(element(x), element(y), element(z));
    static_assert(std::is_same_v<decltype(result), decltype(expectedOf(x, y, z)) const>);
    compare.check(result, expectedOf(x, y, z), x, y, z);
  }
}

template <class X, class Y>
void expectRowFollowsItsSteps(char const* name) {
  expectMixtureFollowsItsSteps<X, Y, std::uint16_t>(name);
  expectMixtureFollowsItsSteps<X, Y, float>(name);
  expectMixtureFollowsItsSteps<X, Y, double>(name);
}

using H = std::uint16_t;
TEST(FmaOfMixtures, WithTwoHalfFactorsFollowsItsSteps) { expectRowFollowsItsSteps<H, H>("fma(half, half, .)"); }
TEST(FmaOfMixtures, WithAFloatFactorFollowsItsSteps) {
  expectRowFollowsItsSteps<H, float>("fma(half, float, .)");
  expectRowFollowsItsSteps<float, H>("fma(float, half, .)");
  expectRowFollowsItsSteps<float, float>("fma(float, float, .)");
}
TEST(FmaOfMixtures, WithADoubleFactorIsFused) {
  expectRowFollowsItsSteps<H, double>("fma(half, double, .)");
  expectRowFollowsItsSteps<float, double>("fma(float, double, .)");
  expectRowFollowsItsSteps<double, H>("fma(double, half, .)");
  expectRowFollowsItsSteps<double, float>("fma(double, float, .)");
  expectRowFollowsItsSteps<double, double>("fma(double, double, .)");
}

TEST(FmaOfMixtures, NaNsAndInvalidOperations) {
  constexpr double inf = std::numeric_limits<double>::infinity();
  const double quiet = std::bit_cast<double>(std::uint64_t{0x7FF8000000000001});
  const double negative = std::bit_cast<double>(std::uint64_t{0xFFF8000000000002});
  const double signalling = std::bit_cast<double>(std::uint64_t{0xFFF0000000000003});
  const float negativeFloat = std::bit_cast<float>(0xFFC00005u);
  const fp16binary_t one{0x3C00}, halfNaN{0xFE00};
  EXPECT_EQ(hex(fmaFtor{}(inf, 0.0, 1.0)), "0x7FF8000000000000") << "infinity times zero";
  EXPECT_EQ(hex(fmaFtor{}(inf, -1.0, inf)), "0x7FF8000000000000") << "infinity minus infinity";
  EXPECT_EQ(hex(fmaFtor{}(quiet, negative, 1.0)), "0x7FF8000000000001") << "of quiet NaNs the first";
  EXPECT_EQ(hex(fmaFtor{}(1.0, 1.0, negative)), "0xFFF8000000000002");
  EXPECT_EQ(hex(fmaFtor{}(quiet, 1.0, signalling)), "0xFFF8000000000003") << "a signalling one before it";
  EXPECT_EQ(hex(fmaFtor{}(inf, 0.0, negative)), "0xFFF8000000000002") << "fused, an operand's NaN comes before an own";
  EXPECT_EQ(hex(fmaFtor{}(one, inf, halfNaN)), "0xFE00");
  EXPECT_EQ(hex(fmaFtor{}(std::numeric_limits<float>::infinity(), 0.0f, 1.0f)), "0x7FC00000");
  EXPECT_EQ(hex(fmaFtor{}(1.0f, 1.0f, negativeFloat)), "0xFFC00005") << "a float result keeps the payload";
  EXPECT_EQ(hex(fmaFtor{}(one, negativeFloat, one)), "0xFE00");
}

// Beside a quiet NaN that comes first, so that the result tells whether the other one still signalled.
TEST(FmaOfMixtures, AFloatsNaNIsQuietInDouble) {
  const volatile float signallingFloat =
      std::bit_cast<float>(0xFF800002u);  // volatile: no constant, it is widened here
  const float signalling = signallingFloat;
  const float quiet = std::bit_cast<float>(0x7FC00001u);
  const double quietDouble = std::bit_cast<double>(std::uint64_t{0x7FF8000020000000});  // the same
  const fp16binary_t one{0x3C00}, quietHalf{0x7E00}, signallingHalf{0xFC01};
  EXPECT_EQ(hex(fmaFtor{}(quiet, signalling, 1.0f)), "0x7FC00001");
  EXPECT_EQ(hex(fmaFtor{}(quiet, 1.0f, signalling)), "0x7FC00001");
  EXPECT_EQ(hex(fmaFtor{}(1.0f, quiet, signalling)), "0x7FC00001");
  EXPECT_EQ(hex(fmaFtor{}(quietHalf, signalling, one)), "0x7E00");
  EXPECT_EQ(hex(fmaFtor{}(quietDouble, signalling, 1.0)), "0x7FC00001") << "fused";
  EXPECT_EQ(hex(fmaFtor{}(1.0, quietDouble, signalling)), "0x7FC00001") << "fused";
  EXPECT_EQ(hex(fmaFtor{}(quiet, signallingHalf, one)), "0xFE00") << "a half's stays what it is";
  EXPECT_EQ(hex(fmaFtor{}(quietDouble, signallingHalf, one)), "0xFE00") << "fused, a half's stays what it is";
}

}  // namespace
}  // namespace zthalf::testing

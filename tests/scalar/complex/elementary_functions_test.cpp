// The elementary functions of single complex halves.
#include <gtest/gtest.h>

#include "tests/scalar/complex/elementary_steps.h"
#include "tests/support/complex_operands.h"
#include "tests/support/expect_bits.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using complexHalf = std::complex<half_t>;
using complexFunction = complexHalf (*)(complexHalf);

complexHalf of(std::uint16_t re, std::uint16_t im) { return {half_t{re}, half_t{im}}; }

struct namedFunction {
  char const* name;
  complexFunction result, expected;
};
#define ZTHALF_NAMED(function) \
  { #function, &half_scalar::function, &complex_steps::function }
const namedFunction functions[] = {
    {"sqrt", &half_scalar::sqrt, &complex_steps::sqrtOfHalves},
    ZTHALF_NAMED(exp),
    ZTHALF_NAMED(expm1),
    ZTHALF_NAMED(pow10),
    ZTHALF_NAMED(pow2),
    ZTHALF_NAMED(log),
    ZTHALF_NAMED(log1p),
    ZTHALF_NAMED(log2),
    ZTHALF_NAMED(log10),
    ZTHALF_NAMED(sin),
    ZTHALF_NAMED(cos),
    ZTHALF_NAMED(tan),
    ZTHALF_NAMED(sinpi),
    ZTHALF_NAMED(cospi),
    ZTHALF_NAMED(asin),
    ZTHALF_NAMED(acos),
    ZTHALF_NAMED(atan),
    ZTHALF_NAMED(sinh),
    ZTHALF_NAMED(cosh),
    ZTHALF_NAMED(tanh),
    ZTHALF_NAMED(asinh),
    ZTHALF_NAMED(acosh),
    ZTHALF_NAMED(atanh),
};
#undef ZTHALF_NAMED

void PrintTo(namedFunction const& f, std::ostream* out) { *out << f.name; }

// Parts where something changes, with both signs: zeros, ends of the subnormal, the normal and the finite range, NaNs,
// the neighbours of 1/2 and 1, multiples of pi and of 1/12, limits of exponentials.
std::vector<half_t> gridParts() {
  std::vector<half_t> parts;
  for (const std::uint16_t p :
       {0x0000, 0x0001, 0x0002, 0x03FF, 0x0400, 0x0401, 0x1400, 0x2C00, 0x2D55, 0x3000, 0x3155, 0x3400,
        0x37FF, 0x3800, 0x3801, 0x3A48, 0x3AFF, 0x3B00, 0x3B01, 0x3BFF, 0x3C00, 0x3C01, 0x3C80, 0x3D00,
        0x3E00, 0x3E48, 0x3E49, 0x4000, 0x4100, 0x4200, 0x4248, 0x4400, 0x44B6, 0x4500, 0x4880, 0x4980,
        0x498C, 0x498D, 0x4A00, 0x4C00, 0x4D00, 0x5580, 0x5581, 0x5596, 0x5597, 0x5A48, 0x5C00, 0x6400,
        0x7000, 0x7800, 0x7BFE, 0x7BFF, 0x7C00, 0x7C01, 0x7D55, 0x7E00, 0x7E01, 0x7FFF}) {
    parts.push_back({p});
    parts.push_back({static_cast<std::uint16_t>(p | 0x8000)});
  }
  return parts;
}

class ComplexElementary : public ::testing::TestWithParam<namedFunction> {};

TEST_P(ComplexElementary, FollowsItsStepsOnTheGrid) {
  bitComparison compare(GetParam().name);
  for (const half_t re : gridParts()) {
    for (const half_t im : gridParts()) {
      compare.check(GetParam().result({re, im}), GetParam().expected({re, im}), complexHalf{re, im});
    }
  }
}

TEST_P(ComplexElementary, FollowsItsStepsOnDrawnHalves) {
  bitComparison compare(GetParam().name);
  bitSource bits(733);
  for (int i = 0; i < 60'000; ++i) {
    const std::uint64_t random = bits();
    // Of any size, and with parts from 2^-6 to 2^4, where most of the work is done.
    const auto moderate = [](std::uint64_t word) {
      return static_cast<std::uint16_t>((word & 0x83FF) | (9 + (word >> 16) % 10) << 10);
    };
    for (const complexHalf z : {of(static_cast<std::uint16_t>(random), static_cast<std::uint16_t>(random >> 16)),
                                of(moderate(random), moderate(random >> 32))}) {
      compare.check(GetParam().result(z), GetParam().expected(z), z);
    }
  }
}

// Every real part beside a few imaginary ones, and the reverse.
TEST_P(ComplexElementary, FollowsItsStepsAlongLines) {
  bitComparison compare(GetParam().name);
  for (std::uint32_t p = 0; p < 0x10000; p += 3) {
    const auto part = static_cast<std::uint16_t>(p);
    for (const std::uint16_t other : {0x0000, 0x8000, 0xBC00, 0x7E00}) {
      for (const complexHalf z : {of(part, other), of(other, part)}) {
        compare.check(GetParam().result(z), GetParam().expected(z), z);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Functions, ComplexElementary, ::testing::ValuesIn(functions),
                         [](auto const& info) { return std::string(info.param.name); });

TEST(ComplexPower, FollowsItsStepsOnSpecialHalves) {
  bitComparison compare("power");
  forPairsOf<complexHalf, complexHalf>(60'000, [&](complexHalf z, complexHalf w) {
    compare.check(half_scalar::power(z, w), complex_steps::power(z, w), z, w);
  });
}

// Powers with a real exponent: whole ones, odd halves, and others.
TEST(ComplexPower, FollowsItsStepsForRealExponents) {
  bitComparison compare("power");
  bitSource bits(734);
  for (int i = 0; i < 60'000; ++i) {
    const complexHalf z = drawer<complexHalf>::draw(bits);
    const auto quarters = static_cast<float>(static_cast<int>(bits() % 161) - 80);
    const half_t whole = {half_scalar::impl::convertSingleToHalf(quarters * (i % 2 == 0 ? 1.0f : 0.25f))};
    const complexHalf w = {whole, {static_cast<std::uint16_t>(i % 3 == 0 ? 0x8000 : 0)}};
    compare.check(half_scalar::power(z, w), complex_steps::power(z, w), z, w);
  }
}

struct unaryCase {
  std::uint16_t re, im, expectedRe, expectedIm;
};
void expectCases(char const* name, complexFunction function, std::initializer_list<unaryCase> cases) {
  for (unaryCase const& c : cases) {
    EXPECT_EQ(hex(function(of(c.re, c.im))), hex(of(c.expectedRe, c.expectedIm)))
        << name << " of " << hex(of(c.re, c.im));
  }
}

TEST(ComplexElementaryValues, Roots) {
  expectCases("sqrt", half_scalar::sqrt,
              {{0xC400, 0x0000, 0x0000, 0x4000},    // sqrt(-4) is 2i
               {0xC400, 0x8000, 0x0000, 0x4000},    // also with a minus zero
               {0x0000, 0x4000, 0x3C00, 0x3C00},    // sqrt(2i) is 1 + i
               {0x4200, 0x4400, 0x4000, 0x3C00},    // sqrt(3 + 4i) is 2 + i
               {0x7E00, 0x7C00, 0x7E00, 0x7E00},    // a NaN beside an infinity
               {0x3C00, 0x7C00, 0x7C00, 0x7C00},    // an infinite imaginary part
               {0xFE01, 0x0000, 0xFE00, 0x0000},    // a real NaN keeps its sign
               {0xFE01, 0x3C00, 0x7E00, 0x7E00},    // another one does not
               {0xFC00, 0x8001, 0x0000, 0xFC00}});  // from below the cut
}

TEST(ComplexElementaryValues, Exponentials) {
  expectCases("exp", half_scalar::exp,
              {{0x0000, 0x0000, 0x3C00, 0x0000},
               {0xFC00, 0x3C00, 0x0000, 0x0000},
               {0x55A0, 0x3C00, 0x7C00, 0x7C00},  // 90 + i: finite in float, infinite in half
               {0x7E00, 0x0000, 0xFE00, 0x0000}});
  const complexHalf turned = half_scalar::exp(of(0x0000, 0x4248));  // i pi, rounded
  EXPECT_EQ(turned.real().bits, 0xBC00);
  EXPECT_LT(turned.imag().bits & 0x7FFF, 0x1800);
  expectCases("pow2", half_scalar::pow2, {{0x4200, 0x0000, 0x4800, 0x0000}, {0xBC00, 0x8000, 0x3800, 0x0000}});
  expectCases("pow10", half_scalar::pow10, {{0x4000, 0x0000, 0x5640, 0x0000}});
  expectCases("expm1", half_scalar::expm1, {{0x8000, 0x8000, 0x8000, 0x0000}, {0xFC00, 0x0000, 0xBC00, 0x0000}});
}

TEST(ComplexElementaryValues, Logarithms) {
  expectCases("log", half_scalar::log,
              {{0xBC00, 0x0000, 0x0000, 0x4248},
               {0xBC00, 0x8000, 0x0000, 0x4248},  // plus pi whatever the sign of the zero
               {0x0000, 0xC000, 0x398C, 0xBE48},  // -2i
               {0x0000, 0x0000, 0xFC00, 0x0000},
               {0xFC00, 0x0000, 0x7C00, 0x4248},
               {0xFE00, 0x0000, 0xFE00, 0x0000}});
  expectCases("log1p", half_scalar::log1p,
              {{0xBC00, 0x0000, 0xFC00, 0x0000}, {0xC000, 0x0000, 0x0000, 0x4248}, {0xBC00, 0xBC00, 0x0000, 0xBE48}});
  expectCases("log10", half_scalar::log10, {{0xC900, 0x0000, 0x3C00, 0x3D75}, {0x0000, 0xC900, 0x3C00, 0xB975}});
  expectCases("log2", half_scalar::log2, {{0xC800, 0x0000, 0x4200, 0x4488}, {0x8000, 0x4800, 0x4200, 0x4088}});
}

TEST(ComplexElementaryValues, Powers) {
  EXPECT_EQ(hex(half_scalar::power(of(0, 0x3C00), of(0x4000, 0))), hex(of(0xBC00, 0)));            // i squared
  EXPECT_EQ(hex(half_scalar::power(of(0x4000, 0), of(0xBC00, 0))), hex(of(0x3800, 0)));            // 2 to the power -1
  EXPECT_EQ(hex(half_scalar::power(of(0x4000, 0x4200), of(0x4000, 0))), hex(of(0xC500, 0x4A00)));  // (2 + 3i) squared
  EXPECT_EQ(hex(half_scalar::power(of(0, 0), of(0, 0))), hex(of(0x3C00, 0)));
  EXPECT_EQ(hex(half_scalar::power(of(0x7E00, 0), of(0, 0))), hex(of(0xFE00, 0)));
  const complexHalf root = half_scalar::power(of(0xC800, 0), of(0x3555, 0));  // the cube root of -8: 1 + i sqrt(3)
  EXPECT_NEAR(half_scalar::impl::convertHalfToSingle(root.real().bits), 1.0f, 0.002f);
  EXPECT_NEAR(half_scalar::impl::convertHalfToSingle(root.imag().bits), 1.732f, 0.002f);
}

TEST(ComplexElementaryValues, TrigonometricAndHyperbolicFunctions) {
  expectCases("sin", half_scalar::sin, {{0x0000, 0x3C00, 0x0000, 0x3CB3}, {0x8000, 0x7C00, 0x0000, 0x7C00}});
  expectCases("cos", half_scalar::cos, {{0x0000, 0x0000, 0x3C00, 0x0000}, {0x0000, 0xFC00, 0x7C00, 0x0000}});
  expectCases("sinh", half_scalar::sinh, {{0x3C00, 0x0000, 0x3CB3, 0x0000}});
  expectCases("cosh", half_scalar::cosh, {{0x0000, 0x0000, 0x3C00, 0x0000}});
  expectCases("sinpi", half_scalar::sinpi,
              {{0x3C00, 0x3C00, 0x0000, 0xC9C6},    // the exact zero of sin(pi) stays one
               {0x3C00, 0x7C00, 0x0000, 0xFC00}});  // beside an infinity too
  expectCases("cospi", half_scalar::cospi, {{0x3800, 0x3C00, 0x0000, 0xC9C6}, {0x3800, 0x7C00, 0x0000, 0xFC00}});
  expectCases("tan", half_scalar::tan, {{0x0000, 0x0000, 0x0000, 0x0000}, {0x0000, 0x3C00, 0x0000, 0x3A18}});
  const complexHalf high = half_scalar::tan(of(0x3C00, 0x4F80));  // 1 + 30i: the product of the tangents is beyond 1
  EXPECT_EQ(high.imag().bits, 0x3C00);
  EXPECT_LT(high.real().bits & 0x7FFF, 0x0010);
  const complexHalf far = half_scalar::tanh(of(0x63D0, 0x3C00));  // 1000 + i
  EXPECT_EQ(far.real().bits, 0x3C00);
  EXPECT_LT(far.imag().bits & 0x7FFF, 0x0010);
}

TEST(ComplexElementaryValues, InverseFunctions) {
  expectCases("asin", half_scalar::asin, {{0x4000, 0x0000, 0x3E48, 0xBD45}, {0x7E00, 0x0000, 0xFE00, 0x0000}});
  expectCases("acos", half_scalar::acos, {{0x4000, 0x0000, 0x0000, 0x3D45}});
  expectCases("acosh", half_scalar::acosh, {{0x3800, 0x0000, 0x0000, 0x3C30}});
  expectCases("atanh", half_scalar::atanh,
              {{0x3C00, 0x0000, 0x7C00, 0x0000}, {0x4000, 0x0000, 0x3865, 0x3E48}, {0xC000, 0x0000, 0xB865, 0xBE48}});
  const complexHalf pole = half_scalar::atan(of(0x0000, 0x3C00));  // i
  EXPECT_EQ(pole.imag().bits, 0x7C00);
  expectCases("asinh", half_scalar::asinh, {{0xFC00, 0x0000, 0xFC00, 0x0000}, {0x0000, 0x3C00, 0x0000, 0x3E48}});
}

}  // namespace
}  // namespace zthalf::testing

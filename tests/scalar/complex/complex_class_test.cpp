// std::complex of half_t as a class: its layout, its compound operators beside the free ones, its operators with a real
// half beside the arrays of that pair of types, and what the functions of <complex> make of it.
#include <gtest/gtest.h>

#include <array>
#include <complex>
#include <cstring>
#include <functional>
#include <numeric>
#include <type_traits>
#include <vector>

#include "tests/support/complex_operands.h"
#include "tests/support/expect_bits.h"
#include "tests/support/patterns.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using complexHalf = std::complex<half_t>;

static_assert(sizeof(complexHalf) == 4 && alignof(complexHalf) == alignof(half_t));
static_assert(std::is_trivially_copyable_v<complexHalf> && std::is_standard_layout_v<complexHalf>);
static_assert(std::is_same_v<complexHalf::value_type, half_t>);
static_assert(std::is_convertible_v<half_t, complexHalf> && !std::is_constructible_v<complexHalf, float>);
static_assert(!std::is_constructible_v<complexHalf, std::complex<float>>);
static_assert(!std::is_constructible_v<std::complex<float>, complexHalf>);
static_assert(std::is_nothrow_default_constructible_v<complexHalf>);

constexpr complexHalf constant{{0x3C00}, {0x4000}};
static_assert(constant.real().bits == 0x3C00 && constant.imag().bits == 0x4000 && complexHalf{}.imag().bits == 0);

// In the value itself, in arrays, and by way of the array of two halves that the standard promises.
TEST(ComplexClass, IsItsTwoParts) {
  complexHalf z[] = {constant, {{0x7C01}, {0x8000}}};
  std::array<std::uint16_t, 4> patterns{};
  static_assert(sizeof z == sizeof patterns);
  std::memcpy(patterns.data(), z, sizeof z);
  EXPECT_EQ(patterns, (std::array<std::uint16_t, 4>{0x3C00, 0x4000, 0x7C01, 0x8000}));
  EXPECT_EQ(reinterpret_cast<half_t(&)[2]>(z[1])[1].bits, 0x8000);
  z[0].real({0x5555});
  z[0].imag({0x6666});
  EXPECT_EQ(hex(z[0]), "0x66665555");
  z[0] = half_t{0xBC00};
  EXPECT_EQ(hex(z[0]), "0x0000BC00") << "a real half has an imaginary part of +0";
  z[0] = {{0x1234}, {0x8000}};
  EXPECT_EQ(hex(z[0]), "0x80001234");
  EXPECT_EQ(hex(+z[1]), "0x80007C01");
  z[0] = {};
  EXPECT_EQ(hex(z[0]), "0x00000000");
}

TEST(ComplexClass, CompoundOperatorsAreTheFreeOnes) {
  bitComparison sum("+="), difference("-="), product("*="), quotient("/=");
  forPairsOf<complexHalf, complexHalf>(400'000, [&](complexHalf x, complexHalf y) {
    complexHalf z = x;
    sum.check(z += y, x + y, x, y);
    difference.check((z = x) -= y, x - y, x, y);
    product.check((z = x) *= y, x * y, x, y);
    quotient.check((z = x) /= y, x / y, x, y);
  });
  complexHalf z = constant;
  EXPECT_EQ(&(z *= z), &z);
  EXPECT_EQ(hex(z), hex(constant * constant));
}

// The array operation on one element each.
template <class X, class Y>
using arrayOperation = void (*)(X*, Y*, complexHalf*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                                unsigned long, unsigned long const*, unsigned long, unsigned long,
                                unsigned long const*);

template <class X, class Y>
complexHalf ofArrays(arrayOperation<X, Y> operation, X x, Y y) {
  complexHalf result{{0x5555}, {0x5555}};
  const unsigned long dims[] = {1, 1};
  operation(&x, &y, &result, 1, 2, dims, 1, 2, dims, 1, 2, dims);
  return result;
}

struct mixedComparison {
  bitComparison sum, difference, product, quotient;
  explicit mixedComparison(std::string const& pair)
      : sum(pair + " +"), difference(pair + " -"), product(pair + " *"), quotient(pair + " /") {}

  template <class X, class Y>
  void check(X x, Y y) {
    sum.check(x + y, ofArrays<X, Y>(half_vector::plus, x, y), x, y);
    difference.check(x - y, ofArrays<X, Y>(half_vector::minus, x, y), x, y);
    product.check(x * y, ofArrays<X, Y>(half_vector::times, x, y), x, y);
    quotient.check(x / y, ofArrays<X, Y>(half_vector::rdivide, x, y), x, y);
  }
};

TEST(ComplexClass, WithARealHalfTheArraysGiveTheRule) {
  mixedComparison left("z, x"), right("x, z");
  bitComparison compound("z op= x");
  forPairsOf<complexHalf, half_t>(200'000, [&](complexHalf z, half_t x) {
    left.check(z, x);
    right.check(x, z);
    complexHalf w = z;
    compound.check(w += x, z + x, z, x);
    compound.check((w = z) -= x, z - x, z, x);
    compound.check((w = z) *= x, z * x, z, x);
    compound.check((w = z) /= x, z / x, z, x);
  });
}

TEST(ComplexClass, EveryRealHalfMeetsSomeComplexOnes) {
  mixedComparison left("z, x"), right("x, z");
  forEveryPattern([&](std::uint16_t p) {
    const half_t x{p};
    for (const complexHalf z : {complexHalf{{0x3E00}, {0xC233}}, complexHalf{{0x8000}, {0x0001}},
                                complexHalf{{0x7BFF}, {0x8000}}, complexHalf{{0x7C00}, {0x7D01}}}) {
      left.check(z, x);
      right.check(x, z);
    }
  });
}

// Where a real operand is not one with an imaginary part of +0, so that the rule is seen to be taken at all.
TEST(ComplexClass, ARealOperandIsNotOneWithAnImaginaryPartOfZero) {
  const half_t one{0x3C00}, two{0x4000};
  const complexHalf signalling{{0x3C00}, {0x7D01}}, minusZero{{0x3C00}, {0x8000}}, i{{0x0000}, {0x3C00}};
  EXPECT_EQ(hex(signalling - one), "0x7D010000") << "the payload stays";
  EXPECT_EQ(hex(signalling - complexHalf(one)), "0x7E000000");
  EXPECT_EQ(hex(minusZero / two), "0x80003800");
  EXPECT_EQ(hex(minusZero / complexHalf(two)), "0x00003800");
  EXPECT_EQ(hex(minusZero + one), "0x00004000") << "+0 is added";
  EXPECT_EQ(hex(minusZero - one), "0x80000000");
  EXPECT_EQ(hex(one / -i), "0x3C008000") << "a real part of zero with the sign of the divisor";
  EXPECT_EQ(hex(complexHalf(one) / -i), "0x3C000000");
}

TEST(ComplexClass, AlgorithmsUseTheOperators) {
  const std::vector<complexHalf> x{{{0x7C00}, {0x0000}}, {{0x3C01}, {0xBC05}}}, y{{{0x0000}, {0x3C00}}, constant};
  EXPECT_EQ(hex(std::accumulate(x.begin(), x.end(), complexHalf{})), hex(complexHalf{} + x[0] + x[1]));
  EXPECT_EQ(hex(std::inner_product(x.begin(), x.end(), y.begin(), complexHalf{})),
            hex(complexHalf{} + x[0] * y[0] + x[1] * y[1]));
  EXPECT_EQ(hex(std::multiplies<>{}(x[0], y[0])), "0x7C000000") << "infinity times i, no NaN";
  EXPECT_TRUE(constant != half_t{0x3C00} && half_t{0x3C00} == complexHalf(half_t{0x3C00}));
}

TEST(ComplexClass, FunctionsOfTheStandardLibraryAreOurs) {
  bitComparison absolute("abs"), argument("arg"), conjugate("conj"), real("real"), imaginary("imag");
  const auto check = [&](complexHalf z) {
    absolute.check(std::abs(z), half_scalar::abs(z), z);
    argument.check(std::arg(z), half_scalar::atan2(z.imag(), z.real()), z);
    conjugate.check(std::conj(z), half_scalar::conj(z), z);
    real.check(std::real(z), z.real(), z);
    imaginary.check(std::imag(z), z.imag(), z);
  };
  forPairsOf<complexHalf, half_t>(100'000, [&](complexHalf z, half_t) { check(z); });
  EXPECT_EQ(hex(std::conj(complexHalf{{0x3C00}, {0x0000}})), "0x00003C00") << "never a minus zero";
  using std::abs;
  EXPECT_EQ(abs(complexHalf{{0x4200}, {0x4400}}).bits, 0x4500) << "3 and 4 give 5";
}

}  // namespace
}  // namespace zthalf

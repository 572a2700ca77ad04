// Distances of arrays in units in the last place: the ten overloads, against an evaluation on numbers alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>
#include <type_traits>
#include <vector>

#include "tests/support/expect_bits.h"
#include "tests/support/pair_loops.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

constexpr double infinity = std::numeric_limits<double>::infinity();

double valueOf(float x) { return x; }
double valueOf(double x) { return x; }
double valueOf(half_t x) {
  const double sign = x.bits < 0x8000 ? 1.0 : -1.0;
  const int exponent = x.bits >> 10 & 31, fraction = x.bits & 0x3FF;
  if (exponent == 31) return fraction != 0 ? std::nan("") : sign * infinity;
  return sign * (exponent == 0 ? std::ldexp(fraction, -24) : std::ldexp(1024 + fraction, exponent - 25));
}

// The number that x is as a half: nearest, ties to even, with the spacing of the binade that x stands in.
double roundedToHalf(double x) {
  const double magnitude = std::abs(x);
  if (magnitude >= 65520) return std::copysign(infinity, x);
  const int spacing = magnitude < 0x1p-14 ? -24 : std::ilogb(magnitude) - 10;
  return std::copysign(std::ldexp(std::nearbyint(std::ldexp(magnitude, -spacing)), spacing), x);
}

int exponentField(double half) {
  const double magnitude = std::abs(half);
  return magnitude == infinity ? 31 : magnitude < 0x1p-14 ? 0 : std::ilogb(magnitude) + 15;
}

double distanceOfNumbers(double a, double b, bool infinityIsJudgedOnHalves) {
  if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b) ? 0.0 : infinity;
  const double halfOfA = roundedToHalf(a), halfOfB = roundedToHalf(b);
  const bool anyInfinite =
      infinityIsJudgedOnHalves ? std::isinf(halfOfA) || std::isinf(halfOfB) : std::isinf(a) || std::isinf(b);
  const bool sameSign = std::signbit(a) == std::signbit(b);
  if (!anyInfinite) {
    if (a == 0 && b == 0 && !sameSign) return 0.5;
    const int exponent = std::max(1, std::min(exponentField(halfOfA), exponentField(halfOfB)));
    return std::ldexp(std::abs(a - b), 25 - exponent);
  }
  if (halfOfA == halfOfB) return 0.0;
  const bool largestFinite = std::abs(halfOfA) == 65504 || std::abs(halfOfB) == 65504;
  return sameSign && largestFinite ? 0.5 : infinity;
}

template <class A, class B>
double distance(A a, B b) {
  constexpr bool noHalf = !std::is_same_v<A, half_t> && !std::is_same_v<B, half_t>;
  return distanceOfNumbers(valueOf(a), valueOf(b), noHalf);
}
double distance(std::complex<half_t> a, std::complex<half_t> b) {
  return std::max(distance(a.real(), b.real()), distance(a.imag(), b.imag()));
}

// visit(tag of A, tag of B) for the ten overloads.
template <class A, class B>
struct overload {
  using left = A;
  using right = B;
  static void call(A* a, B* b, double* out, unsigned long n) { half_vector::ulp(a, b, out, n); }
};

template <class Visit>
void forEachOverload(Visit visit) {
  visit(overload<half_t, half_t>()), visit(overload<half_t, float>()), visit(overload<half_t, double>());
  visit(overload<float, half_t>()), visit(overload<float, float>()), visit(overload<float, double>());
  visit(overload<double, half_t>()), visit(overload<double, float>()), visit(overload<double, double>());
  visit(overload<std::complex<half_t>, std::complex<half_t>>());
}

constexpr unsigned long drawnPairs = 150'000;

TEST(Ulp, IsTheDistanceOfNumbersInEveryOverload) {
  forEachOverload([](auto form) {
    using A = typename decltype(form)::left;
    using B = typename decltype(form)::right;
    bitSource bits(111);
    std::vector<A> a(drawnPairs);
    std::vector<B> b(drawnPairs);
    std::vector<double> result(drawnPairs);
    for (unsigned long i = 0; i < drawnPairs; ++i) a[i] = drawer<A>::draw(bits), b[i] = drawer<B>::draw(bits);
    // A part of the pairs close together, where the distance is a small number.
    if constexpr (std::is_same_v<A, B>) {
      for (unsigned long i = 0; i < drawnPairs; i += 3) {
        b[i] = a[i];
        reinterpret_cast<unsigned char*>(&b[i])[0] ^= static_cast<unsigned char>(bits() % 8);
      }
    }
    form.call(a.data(), b.data(), result.data(), drawnPairs);
    for (unsigned long i = 0; i < drawnPairs; ++i) {
      const double expected = distance(a[i], b[i]);
      ASSERT_EQ(bitsIn(result[i]), bitsIn(expected)) << "pair " << i << ": " << result[i] << ", expected " << expected;
      if constexpr (requires { half_scalar::ulp(a[i], b[i]); }) {
        ASSERT_EQ(bitsIn(result[i]), bitsIn(half_scalar::ulp(a[i], b[i]))) << "pair " << i;
      }
    }
  });
}

TEST(Ulp, OfEveryPatternAgainstTheCornersIsTheDistanceOfNumbers) {
  std::vector<half_t> all(0x10000), other(0x10000);
  std::vector<double> result(0x10000);
  for (std::uint32_t p = 0; p <= 0xFFFF; ++p) all[p] = {static_cast<std::uint16_t>(p)};
  bitComparison compare("ulp");
  for (const std::uint16_t corner :
       {0x0000, 0x8000, 0x0001, 0x8400, 0x3C00, 0x3C01, 0x7BFF, 0xFBFF, 0x7C00, 0xFC00, 0x7E00}) {
    std::fill(other.begin(), other.end(), half_t{corner});
    half_vector::ulp(all.data(), other.data(), result.data(), all.size());
    for (unsigned long i = 0; i < all.size(); ++i)
      compare.check(result[i], distance(all[i], other[i]), all[i], other[i]);
    half_vector::ulp(other.data(), all.data(), result.data(), all.size());
    for (unsigned long i = 0; i < all.size(); ++i)
      compare.check(result[i], distance(other[i], all[i]), other[i], all[i]);
  }
}

TEST(Ulp, KeepsToItsArraysAtEveryCountMisalignmentAndOverlap) {
  forEachOverload([](auto form) {
    using A = typename decltype(form)::left;
    using B = typename decltype(form)::right;
    checkPairLoop<A, B, double>(
        [&](A* a, B* b, double* out, unsigned long, unsigned long, unsigned long n) { form.call(a, b, out, n); },
        [](A a, B b) { return distance(a, b); }, {pairing::arrays});
  });
}

template <class A, class B>
void expectDistance(A a, B b, double expected) {
  double result = -1;
  half_vector::ulp(&a, &b, &result, 1);
  EXPECT_EQ(bitsIn(result), bitsIn(expected)) << hex(a) << " and " << hex(b);
}

TEST(Ulp, OfHalvesByName) {
  const half_t one{0x3C00}, largest{0x7BFF}, infinite{0x7C00}, notANumber{0x7E00}, zero{0x0000}, minusZero{0x8000};
  expectDistance(one, half_t{0x3C01}, 1.0);
  expectDistance(zero, minusZero, 0.5);
  expectDistance(largest, infinite, 0.5);
  expectDistance(half_t{0xFBFF}, infinite, infinity);
  expectDistance(notANumber, half_t{0xFE00}, 0.0);
  expectDistance(zero, notANumber, infinity);
  expectDistance(infinite, infinite, 0.0);
  expectDistance(infinite, half_t{0xFC00}, infinity);
}

TEST(Ulp, OfMixedOperandsByName) {
  expectDistance(half_t{0x3C00}, 1.000244140625f, 0.25);
  expectDistance(half_t{0x7C00}, 70000.0f, 0.0);    // an infinity, and what rounds to it
  expectDistance(half_t{0x7BFF}, 70000.0f, 140.5);  // neither is infinite in its own type
  expectDistance(70000.0f, 80000.0, 0.0);           // without a half both count as what they round to
  expectDistance(65504.0, 70000.0, 0.5);
  expectDistance(1.0, 1.0 + 0x1p-40, 0x1p-30);
  expectDistance(-0.0f, 0.0, 0.5);
  expectDistance(1e300, -1e300, infinity);
}

TEST(Ulp, OfComplexHalvesIsTheLargerOfTheParts) {
  using complexHalf = std::complex<half_t>;
  const complexHalf z(half_t{0x3C00}, half_t{0x3C00});
  expectDistance(z, complexHalf(half_t{0x3C01}, half_t{0x3C03}), 3.0);
  expectDistance(z, complexHalf(half_t{0x3C03}, half_t{0x3C01}), 3.0);
  expectDistance(z, complexHalf(half_t{0x3C01}, half_t{0x7E00}), infinity);
  expectDistance(complexHalf(half_t{0x7E00}, half_t{0x3C00}), complexHalf(half_t{0xFE00}, half_t{0x3C01}), 1.0);
}

}  // namespace
}  // namespace zthalf

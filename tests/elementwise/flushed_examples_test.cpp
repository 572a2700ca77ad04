// Where subnormal floats are flushed some results beside floats change: one example for each row of the table in
// docs/numerics.md, with both results. And what beside floats does not change.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <vector>

#include "tests/support/expect_bits.h"
#include "tests/support/flushed.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

// The subnormal number of the table.
const volatile float tiny = 0x1p-128f;

half_t half(std::uint16_t pattern) { return std::bit_cast<half_t>(pattern); }
const half_t zero = half(0x0000), one = half(0x3C00), infinity = half(0x7C00);
constexpr std::uint16_t plusZero = 0x0000, minusZero = 0x8000, positiveNaN = 0x7E00, ofInfinity = 0x7C00;

// One pair of elements through an operation on arrays.
template <class Out, class Left, class Right>
Out ofPair(void (*op)(Left*, Right*, Out*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                      unsigned long, unsigned long const*, unsigned long, unsigned long, unsigned long const*),
           Left x, Right y) {
  Out result{};
  const unsigned long n = 1;
  op(&x, &y, &result, 1, 1, &n, 1, 1, &n, 1, 1, &n);
  return result;
}

class FlushedExamples : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!canFlush) GTEST_SKIP();
  }

  // call() gives the first result in the ordinary environment and the second one flushed.
  template <class Call, class Result>
  void expectBoth(Call call, Result ordinary, Result flushed) {
    EXPECT_EQ(bitsIn(call()), bitsIn(ordinary)) << "in the ordinary environment";
    const flushedScope environment;
    EXPECT_EQ(bitsIn(call()), bitsIn(flushed)) << "flushed";
  }
};

TEST_F(FlushedExamples, Comparisons) {
  expectBoth([] { return ofPair<bool>(half_vector::eq, zero, float{tiny}); }, false, true);
  expectBoth([] { return ofPair<bool>(half_vector::lt, zero, float{tiny}); }, true, false);
}

TEST_F(FlushedExamples, SumsAndDifferences) {
  expectBoth([] { return ofPair<half_t>(half_vector::plus, zero, -tiny); }, half(minusZero), half(plusZero));
}

TEST_F(FlushedExamples, Products) {
  expectBoth([] { return ofPair<half_t>(half_vector::times, infinity, float{tiny}); }, half(ofInfinity),
             half(positiveNaN));
}

TEST_F(FlushedExamples, Quotients) {
  expectBoth([] { return ofPair<half_t>(half_vector::rdivide, zero, float{tiny}); }, half(plusZero), half(positiveNaN));
  using complexOfHalf = std::complex<half_t>;
  const auto quotient = [] {
    return ofPair<complexOfHalf>(half_vector::rdivide, complexOfHalf(one, half(0x4000)),
                                 std::complex<float>(0x1p-66f, 0x1p-65f));
  };
  expectBoth([&] { return quotient().imag(); }, half(plusZero), half(positiveNaN));
}

// Where the processor's comparisons would take an operand for zero, these ask for its bits.
TEST_F(FlushedExamples, RemaindersDoNotChange) {
  const half_t small = half(0x8001);
  expectBoth([] { return ofPair<half_t>(half_vector::rem, one, float{tiny}); }, zero, zero);
  expectBoth([&] { return ofPair<half_t>(half_vector::mod, float{tiny}, small); }, small, small);
  expectBoth([] { return ofPair<half_t>(half_vector::mod, one, -0x3p-149f); }, half(minusZero), half(minusZero));
  // The quotient of the first is rounded to zero in the ordinary environment too, and counts as an integer.
  const half_t divisor = half(0xC100);
  expectBoth([&] { return ofPair<half_t>(half_vector::mod, 0x1p-149f, divisor); }, half(minusZero), half(minusZero));
  expectBoth([&] { return ofPair<half_t>(half_vector::mod, 0x1p-148f, divisor); }, divisor, divisor);
}

TEST_F(FlushedExamples, Angles) {
  expectBoth([] { return half_scalar::atan2(float{tiny}, zero); }, half(0x3E48), half(plusZero));
}

TEST_F(FlushedExamples, Powers) {
  expectBoth([] { return half_scalar::power(float{tiny}, half(0x2400)); }, half(0x3400), half(plusZero));
  expectBoth([] { return half_scalar::pow2(float{tiny}, half(0x5800)); }, one, half(plusZero));
}

TEST_F(FlushedExamples, ProductsWithASum) {
  const auto fma = [](float x, float y) {
    half_t z = zero, result{};
    const unsigned long n = 1;
    half_vector::fma(&x, &y, &z, &result, 1, 1, &n, 1, 1, &n, 1, 1, &n, 1, 1, &n);
    return result;
  };
  expectBoth([&] { return fma(tiny, 0x1p127f); }, half(0x3800), half(plusZero));
}

TEST_F(FlushedExamples, MinAndMax) {
  const auto smaller = [](half_t x, float y) {
    half_t result{};
    const unsigned long n = 1;
    half_ptr::minHalfSinglePtr(reinterpret_cast<fp16binary_t*>(&x), &y, reinterpret_cast<fp16binary_t*>(&result), 1, 1,
                               &n, 1, 1, &n, 1, 1, &n);
    return result;
  };
  expectBoth([&] { return smaller(zero, -tiny); }, half(minusZero), half(plusZero));
}

TEST_F(FlushedExamples, Ulp) {
  const auto distance = [](float x) {
    half_t from = zero;
    double result = 0;
    half_vector::ulp(&from, &x, &result, 1);
    return result;
  };
  expectBoth([&] { return distance(tiny); }, 0x1p-104, 0.0);
}

TEST_F(FlushedExamples, ProductsOfMany) {
  std::vector<half_t> factors(20, half(0x0400));  // 2^-14, and then 2^14
  for (std::size_t i = 10; i < 20; ++i) factors[i] = half(0x7400);
  const auto product = [&] {
    half_t result{};
    half_vector::prodSimpleReduceSingle(factors.data(), &result, factors.size());
    return result;
  };
  expectBoth(product, one, zero);
}

}  // namespace
}  // namespace zthalf

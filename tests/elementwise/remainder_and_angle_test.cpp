// Rows of mod, rem, atan2 and realToComplex against the scalar functions, which have tests of their own.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/binary_rows.h"
#include "tests/support/complex_operands.h"
#include "tests/support/expect_bits.h"
#include "zthalf/mod_rem.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

unsigned short bare(half_t x) { return x.bits; }
float bare(float x) { return x; }
double bare(double x) { return x; }

half_t asHalf(half_t x) { return x; }
half_t asHalf(float x) { return {half_scalar::impl::convertSingleToHalf(x)}; }
half_t asHalf(double x) { return {half_scalar::impl::convertDoubleToHalf(x)}; }

// expected(x, y) for each row whose name begins with op; five of them.
template <class Out, class Expected>
void expectRows(std::string const& op, Expected expected) {
  unsigned rows = 0;
  forEachBinaryRow([&](auto row) {
    using type = decltype(row);
    using Left = typename type::left;
    using Right = typename type::right;
    if constexpr (
        std::is_same_v<typename type::output, Out> && !requires(Left x) { x.imag(); } &&
        !requires(Right x) { x.imag(); }) {
      if (std::string(row.name).rfind(op, 0) != 0) return;
      ++rows;
      std::vector<Left> a;
      std::vector<Right> b;
      forPairsOf<Left, Right>(300'000, [&](Left x, Right y) {
        a.push_back(x);
        b.push_back(y);
      });
      std::vector<Out> c(a.size());
      type::call(row.facade, a.data(), b.data(), c.data(), met({a.size()}, {b.size()}));
      bitComparison compare(row.name);
      for (std::size_t i = 0; i < c.size(); ++i) compare.check(c[i], expected(a[i], b[i]), a[i], b[i]);
    }
  });
  EXPECT_EQ(rows, 5u) << op;
}

TEST(RemainderRows, Mod) {
  expectRows<half_t>("mod", [](auto x, auto y) { return half_t{half::impl::emulated::modFtor{}(bare(x), bare(y))}; });
}

TEST(RemainderRows, Rem) {
  expectRows<half_t>("rem", [](auto x, auto y) { return half_t{half::impl::emulated::remFtor{}(bare(x), bare(y))}; });
}

TEST(AngleRows, Atan2TakesTheOrdinateFirst) {
  expectRows<half_t>("atan2", [](auto y, auto x) { return half_scalar::atan2(y, x); });
}

TEST(PairingRows, RealToComplexRoundsEachPartByItself) {
  expectRows<std::complex<half_t>>("realToComplex",
                                   [](auto x, auto y) { return std::complex<half_t>(asHalf(x), asHalf(y)); });
}

template <class Left, class Right>
half_t once(void (*op)(Left*, Right*, half_t*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                       unsigned long, unsigned long const*, unsigned long, unsigned long, unsigned long const*),
            Left x, Right y) {
  half_t result{0xABCD};
  const unsigned long one = 1;
  op(&x, &y, &result, 1, 1, &one, 1, 1, &one, 1, 1, &one);
  return result;
}

TEST(RemainderRows, NamedPairs) {
  EXPECT_EQ(hex((once<float, half_t>(half_vector::mod, -1.0f, {0x4200}))), "0x4000");  // 2
  EXPECT_EQ(hex((once<half_t, float>(half_vector::mod, {0x4500}, 0.0f))), "0x4500");   // 5 by zero
  // 0.3f / 0.1 is an integer as far as a float can tell: a zero with the sign of x, of y in mod.
  EXPECT_EQ(hex((once<float, half_t>(half_vector::rem, -0x1.998p-4f * 3, {0x2E66}))), "0x8000");
  EXPECT_EQ(hex((once<float, half_t>(half_vector::mod, -0x1.998p-4f * 3, {0x2E66}))), "0x0000");
}

}  // namespace
}  // namespace zthalf

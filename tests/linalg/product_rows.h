// The matrix products of the entry list as data, with what their results must be.
#pragma once

#include <gtest/gtest.h>

#include <complex>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/linalg/product_reference.h"
#include "tests/support/drawn_values.h"
#include "tests/support/expect_bits.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {

template <class Left, class Right, class Out>
struct productRow {
  using left = Left;
  using right = Right;
  using output = Out;
  char const* name;
  void (*facade)(Left*, Right*, Out*, unsigned long, unsigned long, unsigned long);
};

// visit(row) for all twenty pairs of types.
template <class Visit>
void forEachProductRow(Visit visit) {
  namespace element = half_vector::element;
#define ZTHALF_VISIT_PRODUCT(op, Left, Right, Out) \
  visit(productRow<element::Left, element::Right, element::Out>{#op #Left #Right, &half_vector::op});
  ZTHALF_PRODUCT_ENTRIES(ZTHALF_VISIT_PRODUCT)
#undef ZTHALF_VISIT_PRODUCT
}

template <class T>
inline constexpr bool isDouble = std::is_same_v<T, double> || std::is_same_v<T, std::complex<double>>;

// The working type of a row.
template <class Row>
using workingType = std::conditional_t<
    std::is_same_v<typename Row::output, half_t>,
    std::conditional_t<isDouble<typename Row::left> || isDouble<typename Row::right>, double, float>,
    std::complex<std::conditional_t<isDouble<typename Row::left> || isDouble<typename Row::right>, double, float>>>;

inline void roundInto(half_t& to, float x) { to = {reference::narrowed(x)}; }
inline void roundInto(half_t& to, double x) { to = {reference::narrowed(x)}; }
template <class Base>
void roundInto(std::complex<half_t>& to, std::complex<Base> z) {
  to = {half_t{reference::narrowed(z.real())}, half_t{reference::narrowed(z.imag())}};
}

// What values a matrix has: numbers between -2 and 2; those and at one place in so many anything; anything everywhere.
enum class values { moderate, spoilt, anything };

template <class T>
struct moderateNumber {
  static T draw(bitSource& bits) {
    const auto x = static_cast<float>(static_cast<int>(bits() % 4097) - 2048) / 1024;
    if constexpr (std::is_same_v<T, half_t>) {
      return {reference::narrowed(x)};
    } else {
      return x + static_cast<T>(bits() % 1000) * static_cast<T>(1e-6);
    }
  }
};
template <class T>
struct moderateNumber<std::complex<T>> {
  static std::complex<T> draw(bitSource& bits) {
    const T re = moderateNumber<T>::draw(bits);
    return {re, moderateNumber<T>::draw(bits)};
  }
};

template <class T>
std::vector<T> drawnMatrix(unsigned long count, values kind, bitSource& bits, unsigned long every = 37) {
  std::vector<T> matrix(count);
  for (T& x : matrix) {
    const bool anything = kind == values::anything || (kind == values::spoilt && bits() % every == 0);
    x = anything ? drawer<T>::draw(bits) : moderateNumber<T>::draw(bits);
  }
  return matrix;
}

// The whole product by the reference.
template <class Row>
std::vector<typename Row::output> referenceProduct(std::vector<typename Row::left> const& a,
                                                   std::vector<typename Row::right> const& b, unsigned long m,
                                                   unsigned long k, unsigned long n) {
  using W = workingType<Row>;
  std::vector<W> row(k), column(k);
  std::vector<typename Row::output> c(m * n);
  for (unsigned long i = 0; i < m; ++i) {
    for (unsigned long l = 0; l < k; ++l) row[l] = reference::workingNumber<W>::of(a[i + l * m]);
    for (unsigned long j = 0; j < n; ++j) {
      for (unsigned long l = 0; l < k; ++l) column[l] = reference::workingNumber<W>::of(b[l + j * k]);
      roundInto(c[i + j * m], reference::outputAfter(row.data(), column.data(), k));
    }
  }
  return c;
}

// One product, each output compared by its bits; what lies behind the output stays as it is.
template <class Row>
void expectProductOf(Row row, std::vector<typename Row::left> a, std::vector<typename Row::right> b, unsigned long m,
                     unsigned long k, unsigned long n) {
  constexpr unsigned long behind = 3;
  bitSource bits(m + k + n);
  const auto mark = moderateNumber<typename Row::output>::draw(bits);
  std::vector<typename Row::output> c(m * n + behind, mark);
  row.facade(a.data(), b.data(), c.data(), m, k, n);
  const auto expected = referenceProduct<Row>(a, b, m, k, n);
  bitComparison compare(std::string(row.name) + " " + std::to_string(m) + " x " + std::to_string(k) + " x " +
                        std::to_string(n));
  for (unsigned long i = 0; i < m * n; ++i) compare.check(c[i], expected[i], half_t{static_cast<std::uint16_t>(i)});
  for (unsigned long i = m * n; i < c.size(); ++i) compare.check(c[i], mark);
}

template <class Row>
void expectProduct(Row row, unsigned long m, unsigned long k, unsigned long n, values kind, bitSource& bits) {
  auto a = drawnMatrix<typename Row::left>(m * k, kind, bits);
  expectProductOf(row, a, drawnMatrix<typename Row::right>(k * n, kind, bits), m, k, n);
}

template <class T>
void setNumber(T& x, double value, double) {
  x = static_cast<T>(value);
}
inline void setNumber(half_t& x, double value, double) { x = {reference::narrowed(value)}; }
template <class T>
void setNumber(std::complex<T>& z, double re, double im) {
  T parts[2];
  setNumber(parts[0], re, 0);
  setNumber(parts[1], im, 0);
  z = {parts[0], parts[1]};
}

// A product in which the order of additions shows: at every third index the factors are so large that beside their
// product, of either sign, the others round away; as often as not the large ones cancel.
template <class Row>
void expectOrder(Row row, unsigned long m, unsigned long k, unsigned long n, bitSource& bits) {
  constexpr bool inDouble = isDouble<typename Row::left> || isDouble<typename Row::right>;
  constexpr double largeHalf = inDouble ? 0x1p15 : 0x1p12, largeOther = inDouble ? 0x1p38 : 0x1p12;
  constexpr double largeLeft = isDouble<typename Row::left> ? largeOther : largeHalf;
  constexpr double largeRight = isDouble<typename Row::right> ? largeOther : largeHalf;
  std::vector<typename Row::left> a(m * k);
  std::vector<typename Row::right> b(k * n);
  const auto sign = [&] { return bits() % 2 != 0 ? -1.0 : 1.0; };
  const auto small = [&] { return sign() * static_cast<double>(bits() % 8) / 4; };
  for (unsigned long l = 0; l < k; ++l) {
    const bool isLarge = bits() % 3 == 0;
    for (unsigned long i = 0; i < m; ++i) setNumber(a[i + l * m], isLarge ? sign() * largeLeft : small(), small());
    for (unsigned long j = 0; j < n; ++j) setNumber(b[l + j * k], isLarge ? sign() * largeRight : small(), small());
  }
  expectProductOf(row, a, b, m, k, n);
}

}  // namespace zthalf::testing

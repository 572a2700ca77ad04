// What one pair of elements gives in each row of the arithmetic families: expectedOf(row name, x, y).
//
// Taken from the library, each with a test of its own: hypot of two real operands and the magnitude of complex halves
// (scalar/hypot, scalar/complex/complex_functions), hypotDouble (scalar/kernels/hypot_double), mod and rem beside wider
// operands (scalar/mixed_remainder).
#pragma once

#include <cmath>
#include <string_view>

#include "tests/scalar/complex/complex_rules.h"
#include "zthalf/half_scalar.h"
#include "zthalf/mod_rem.h"

namespace zthalf::testing {

template <class T>
struct elementOf {
  using part = T;
  static constexpr bool isComplex = false;
};
template <class T>
struct elementOf<std::complex<T>> {
  using part = T;
  static constexpr bool isComplex = true;
};

template <class Left, class Right>
class arithmeticRule {
  using leftPart = typename elementOf<Left>::part;
  using rightPart = typename elementOf<Right>::part;
  static constexpr bool leftIsComplex = elementOf<Left>::isComplex;
  static constexpr bool rightIsComplex = elementOf<Right>::isComplex;
  static constexpr bool halves = std::is_same_v<leftPart, half_t> && std::is_same_v<rightPart, half_t>;
  static constexpr bool anyDouble = std::is_same_v<leftPart, double> || std::is_same_v<rightPart, double>;
  using wide = std::conditional_t<anyDouble, double, float>;
  using number = definedNumber<wide>;
  using complexNumber = rules::pairOf<wide>;
  static constexpr bool isReal = !leftIsComplex && !rightIsComplex;

 public:
  using output = std::conditional_t<isReal, half_t, std::complex<half_t>>;

  static output expectedOf(std::string_view row, Left x, Right y) {
    const auto is = [&](std::string_view op) { return row.substr(0, op.size()) == op; };
    if (is("plus")) return sum(x, y);
    if (is("minus")) return difference(x, y);
    if (is("times")) return product(x, y);
    if (is("rdivide")) return quotient(x, y);
    if (is("hypot")) return hypot(x, y);
    ADD_FAILURE() << "there is no rule for " << row;
    return {};
  }

 private:
  // Sums and products of two halves take the right operand's NaN first.
  static half_t part(number x) { return {rules::rounded(x)}; }
  static half_t add(number x, number y) { return part(halves ? y + x : x + y); }
  template <class T>
  static number re(T x) {
    if constexpr (elementOf<T>::isComplex) {
      return rules::in<wide>(x.real());
    } else {
      return rules::in<wide>(x);
    }
  }
  template <class T>
  static number im(T x) {
    if constexpr (elementOf<T>::isComplex) {
      return rules::in<wide>(x.imag());
    } else {
      return wide(0);
    }
  }

  static output sum(Left x, Right y) {
    if constexpr (isReal) {
      return add(re(x), re(y));
    } else if constexpr (leftIsComplex) {
      return {add(re(x), re(y)), add(im(x), im(y))};
    } else {
      return {add(re(x), re(y)), add(im(y), im(x))};
    }
  }

  static output difference(Left x, Right y) {
    if constexpr (isReal) {
      return part(re(x) - re(y));
    } else if constexpr (!rightIsComplex) {
      if constexpr (std::is_same_v<leftPart, half_t>) {
        return {part(re(x) - re(y)), x.imag()};
      } else {
        return {part(re(x) - re(y)), part(im(x))};
      }
    } else {
      return {part(re(x) - re(y)), part(im(x) - im(y))};
    }
  }

  static output product(Left x, Right y) {
    using rules::way;
    if constexpr (isReal) {
      return part(halves ? re(y) * re(x) : re(x) * re(y));
    } else if constexpr (!leftIsComplex || !rightIsComplex) {
      const complexNumber z = leftIsComplex ? complexNumber{re(x), im(x)} : complexNumber{re(y), im(y)};
      return both(rules::timesReal(z, leftIsComplex ? re(y) : re(x)));
    } else if constexpr (halves) {
      return both(rules::timesComplex<way::nudgedSingle>(rules::in<float>(x), rules::in<float>(y)));
    } else if constexpr (anyDouble) {
      return both(rules::timesComplex<way::fusedDouble>(rules::in<double>(x), rules::in<double>(y)));
    } else {
      return both(rules::timesComplex<way::nudgedDouble>(rules::in<double>(x), rules::in<double>(y)));
    }
  }

  static output quotient(Left x, Right y) {
    const complexNumber a{re(x), im(x)}, b{re(y), im(y)};
    if constexpr (isReal) {
      return part(re(x) / re(y));
    } else if constexpr (!rightIsComplex) {
      return both(rules::byReal(a, re(y)));
    } else if constexpr (!leftIsComplex) {
      return both(rules::realByComplex(re(x), b));
    } else {
      return both(rules::byComplex<halves>(a, b));
    }
  }

  template <class Wide>
  static std::complex<half_t> both(rules::pairOf<Wide> z) {
    return {half_t{rules::rounded(z.re)}, half_t{rules::rounded(z.im)}};
  }

  // A complex operand's magnitude: of floats the root of the exact sum, found in double.
  static half_t magnitude(std::complex<half_t> z) { return half_scalar::abs(z); }
  static double magnitude(std::complex<double> z) { return qsl_scalar::hypotDouble(z.real(), z.imag()); }
  static float magnitude(std::complex<float> z) {
    const volatile double A = static_cast<double>(z.real()) * z.real(), B = static_cast<double>(z.imag()) * z.imag();
    const volatile double s = A + B;
    const volatile double e = ((s - A) - B) + ((s - B) - A);
    const volatile double r = std::sqrt(s);
    const volatile double d = s - r * r;
    std::uint64_t bits = definedNumber<double>(r).bits;
    const std::uint64_t low = bits & 0x3FFFFFFF;
    if (e == e && e != 0 && !std::isinf(s)) {
      if (low == 0x10000000 && e < d) {
        bits |= 1;
      } else if (low == 0x30000000 && e > d) {
        --bits;
      }
    }
    return static_cast<float>(definedNumber<double>::ofBits(bits).value());
  }
  template <class T>
  static T magnitude(T x) {
    return x;
  }

  static output hypot(Left x, Right y) {
    const half_t length = half_scalar::hypot(magnitude(x), magnitude(y));
    if constexpr (isReal) {
      return length;
    } else {
      return {length, half_t{0}};
    }
  }
};

}  // namespace zthalf::testing

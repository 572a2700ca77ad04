// The rules of min and max step by step as they are stated, each form written out for itself. Lengths and angles are
// those of the library's kernels, which have tests of their own.
#pragma once

#include <cmath>
#include <complex>
#include <string>
#include <type_traits>

#include "scalar/kernels/atan2_double.h"
#include "scalar/kernels/atan2_single.h"
#include "scalar/kernels/hypot_double.h"
#include "scalar/kernels/hypot_single.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_t.h"

namespace zthalf::testing::steps {

enum class extremumForm { min, max, minOmitNaN, maxOmitNaN };
inline constexpr extremumForm allExtremumForms[] = {extremumForm::min, extremumForm::max, extremumForm::minOmitNaN,
                                                    extremumForm::maxOmitNaN};

inline extremumForm extremumFormNamed(std::string const& name) {
  const bool omit = name.find("OmitNaN") != std::string::npos;
  if (name.rfind("min", 0) == 0) return omit ? extremumForm::minOmitNaN : extremumForm::min;
  return omit ? extremumForm::maxOmitNaN : extremumForm::max;
}

inline char const* nameOf(extremumForm form) {
  constexpr char const* names[] = {"min", "max", "minOmitNaN", "maxOmitNaN"};
  return names[static_cast<int>(form)];
}

// Whether x takes the place of acc.
template <class T>
bool takesPlace(extremumForm form, T acc, T x) {
  switch (form) {
    case extremumForm::min:
      if (std::isnan(acc)) return false;
      return std::isnan(x) || acc > x;
    case extremumForm::max:
      if (std::isnan(acc)) return false;
      return std::isnan(x) || acc < x;
    case extremumForm::minOmitNaN:
      return std::isnan(acc) || acc > x;
    default:
      return std::isnan(acc) || acc < x;
  }
}

inline float magnitude(std::complex<float> z) { return qsl_scalar::hypotSingle(z.real(), z.imag()); }
inline double magnitude(std::complex<double> z) { return qsl_scalar::hypotDouble(z.real(), z.imag()); }
inline float angle(std::complex<float> z) { return qsl_scalar::atan2Single(z.imag(), z.real()); }
inline double angle(std::complex<double> z) { return qsl_scalar::atan2Double(z.imag(), z.real()); }

template <class T>
std::complex<T> halved(std::complex<T> z) {
  return {z.real() / 2, z.imag() / 2};
}

// Smallest first: of two numbers by magnitude, then angle, then parts; NaNs are out of the way.
template <class T>
bool smallerTakesPlace(std::complex<T> a, std::complex<T> b, T ma, T mb) {
  if (ma < mb) return false;
  if (ma > mb) return true;
  if (std::isinf(ma)) {
    const T ha = magnitude(halved(a)), hb = magnitude(halved(b));
    if (ha < hb) return false;
    if (ha > hb) return true;
  }
  const T ta = angle(a), tb = angle(b);
  if (ta < tb) return false;
  if (ta > tb) return true;
  if (ta >= 0) {
    if (a.real() != b.real()) return b.real() > a.real();
    if (a.real() < 0) return b.imag() > a.imag();
    return b.imag() < a.imag();
  }
  if (a.real() != b.real()) return b.real() < a.real();
  if (a.real() < 0) return b.imag() > a.imag();
  return b.imag() < a.imag();
}

template <class T>
bool largerTakesPlace(std::complex<T> a, std::complex<T> b, T ma, T mb) {
  if (ma > mb) return false;
  if (ma < mb) return true;
  if (std::isinf(ma)) {
    const T ha = magnitude(halved(a)), hb = magnitude(halved(b));
    if (ha > hb) return false;
    if (ha < hb) return true;
  }
  const T ta = angle(a), tb = angle(b);
  if (ta > tb) return false;
  if (ta < tb) return true;
  if (ta >= 0) {
    if (a.real() != b.real()) return b.real() < a.real();
    if (a.real() < 0) return b.imag() < a.imag();
    return b.imag() > a.imag();
  }
  if (a.real() != b.real()) return b.real() > a.real();
  if (a.real() < 0) return b.imag() < a.imag();
  return b.imag() > a.imag();
}

template <class T>
bool takesPlace(extremumForm form, std::complex<T> a, std::complex<T> b) {
  if (a.real() == b.real() && a.imag() == b.imag()) return false;
  const T ma = magnitude(a), mb = magnitude(b);
  switch (form) {
    case extremumForm::min:
      if (std::isnan(ma)) return false;
      return std::isnan(mb) || smallerTakesPlace(a, b, ma, mb);
    case extremumForm::max:
      if (std::isnan(ma)) return false;
      return std::isnan(mb) || largerTakesPlace(a, b, ma, mb);
    case extremumForm::minOmitNaN:
      if (std::isnan(mb)) return false;
      return std::isnan(ma) || smallerTakesPlace(a, b, ma, mb);
    default:
      if (std::isnan(mb)) return false;
      return std::isnan(ma) || largerTakesPlace(a, b, ma, mb);
  }
}

// Conversions of single elements and their parts, by the library's scalar functions.
template <class Wide>
Wide wide(half_t x) {
  if constexpr (std::is_same_v<Wide, float>) return half_scalar::impl::convertHalfToSingle(x.bits);
  return half_scalar::impl::convertHalfToDouble(x.bits);
}
template <class Wide>
Wide wide(float x) {
  return x;
}
template <class Wide>
Wide wide(double x) {
  return static_cast<Wide>(x);
}

inline half_t rounded(float x) { return {half_scalar::impl::convertSingleToHalf(x)}; }
inline half_t rounded(double x) { return {half_scalar::impl::convertDoubleToHalf(x)}; }

template <class T>
struct partsOf {
  static constexpr bool areTwo = false;
  using type = T;
  static T real(T x) { return x; }
  static T imag(T) { return T{}; }
};
template <class T>
struct partsOf<std::complex<T>> {
  static constexpr bool areTwo = true;
  using type = T;
  static T real(std::complex<T> z) { return z.real(); }
  static T imag(std::complex<T> z) { return z.imag(); }
};

template <class Wide, class T>
std::complex<Wide> wideComplex(T x) {
  if constexpr (partsOf<T>::areTwo) {
    return {wide<Wide>(x.real()), wide<Wide>(x.imag())};
  } else {
    return {wide<Wide>(x), Wide{0}};
  }
}

template <class T>
half_t keptPart(T x) {
  if constexpr (std::is_same_v<T, half_t>) {
    return x;
  } else {
    return rounded(x);
  }
}
template <class T>
std::complex<half_t> kept(T x) {
  if constexpr (partsOf<T>::areTwo) {
    return {keptPart(x.real()), keptPart(x.imag())};
  } else {
    return {keptPart(x), half_t{0}};
  }
}

// Of two arrays' elements.
template <class Left, class Right>
auto extremumOfPair(extremumForm form, Left x, Right y) {
  using partX = typename partsOf<Left>::type;
  using partY = typename partsOf<Right>::type;
  using wideType = std::conditional_t<std::is_same_v<partX, double> || std::is_same_v<partY, double>, double, float>;
  if constexpr (partsOf<Left>::areTwo || partsOf<Right>::areTwo) {
    return takesPlace(form, wideComplex<wideType>(x), wideComplex<wideType>(y)) ? kept(y) : kept(x);
  } else {
    const wideType a = wide<wideType>(x), b = wide<wideType>(y);
    return takesPlace(form, a, b) ? rounded(b) : rounded(a);
  }
}

}  // namespace zthalf::testing::steps

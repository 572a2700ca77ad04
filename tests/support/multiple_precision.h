// Exact values by MPFR: an independent judge of how far a result is from the truth.
#pragma once

#include <mpfr.h>

#include <cmath>
#include <limits>

namespace zthalf::testing {

struct binaryFormat {
  int precision;         // significant bits
  int lowestPlace;       // exponent of the last place of subnormals
  double firstInfinite;  // the power of two after the largest finite number
};

inline constexpr binaryFormat halfFormat{11, -24, 0x1p16};
inline constexpr binaryFormat singleFormat{24, -149, 0x1p128};

// A real number with 160 significant bits.
class precise {
 public:
  precise() { mpfr_init2(value_, 160); }
  explicit precise(double v) : precise() { mpfr_set_d(value_, v, MPFR_RNDN); }
  precise(precise const& other) : precise() { mpfr_set(value_, other.value_, MPFR_RNDN); }
  precise& operator=(precise const&) = delete;
  ~precise() { mpfr_clear(value_); }

  mpfr_ptr get() { return value_; }
  bool isFinite() { return mpfr_number_p(value_) != 0; }

  // The exponent of the last place of this number in a format.
  long lastPlaceIn(binaryFormat const& format) {
    if (mpfr_zero_p(value_)) return format.lowestPlace;
    const long place = mpfr_get_exp(value_) - format.precision;
    return place > format.lowestPlace ? place : format.lowestPlace;
  }

  // The nearest number of the format, ties to even; beyond its range an infinity.
  double roundedTo(binaryFormat const& format) {
    const long place = lastPlaceIn(format);
    precise scaled;
    mpfr_mul_2si(scaled.value_, value_, -place, MPFR_RNDN);
    mpfr_rint_roundeven(scaled.value_, scaled.value_, MPFR_RNDN);
    mpfr_mul_2si(scaled.value_, scaled.value_, place, MPFR_RNDN);
    const double rounded = mpfr_get_d(scaled.value_, MPFR_RNDN);
    return std::abs(rounded) < format.firstInfinite ? rounded : std::copysign(HUGE_VAL, rounded);
  }

  // The distance of a result from this number in units in the last place. An infinity stands for the power of two after
  // the largest finite number, and is right for anything beyond.
  double distanceTo(double result, binaryFormat const& format) {
    if (std::isnan(result)) return std::numeric_limits<double>::infinity();
    const double held = std::isinf(result) ? std::copysign(format.firstInfinite, result) : result;
    if (std::isinf(result) && mpfr_cmpabs_ui(value_, 0) > 0) {
      precise limit(held);
      if (mpfr_cmpabs(value_, limit.value_) >= 0 && (mpfr_sgn(value_) > 0) == (result > 0)) return 0.0;
    }
    precise difference;
    mpfr_sub_d(difference.value_, value_, held, MPFR_RNDN);
    mpfr_mul_2si(difference.value_, difference.value_, -lastPlaceIn(format), MPFR_RNDN);
    return std::abs(mpfr_get_d(difference.value_, MPFR_RNDN));
  }

 private:
  mpfr_t value_;
};

using preciseFunction = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);

inline precise exactly(preciseFunction function, double x) {
  precise result(x);
  function(result.get(), result.get(), MPFR_RNDN);
  return result;
}

}  // namespace zthalf::testing

// What a chain of min or max of complex halves holds, and the quick answer to most candidates.
// Internal: promises nothing to users of the library.
//
// Lengths and angles are computed for few elements only. The squares of the lengths are cheap, and where two of them
// are apart by more than what rounding can do to them and to the lengths, they tell which length is smaller.
#pragma once

#include <limits>

#include "core/instruction_level.h"
#include "scalar/complex_extremum.h"
#include "zthalf/half_t.h"

namespace half_utils {

using cplxHalf = std::complex<fp16binary_t>;

ZTHALF_INLINE std::complex<float> widened(cplxHalf z) {
  return {zthalf::widen<float>(z.real().bits), zthalf::widen<float>(z.imag().bits)};
}

// In single: each square is exact, and nothing overflows or underflows. A NaN wherever the length is one.
ZTHALF_INLINE float squaredLengthOf(cplxHalf z) {
  const std::complex<float> wide = widened(z);
  return wide.real() * wide.real() + wide.imag() * wide.imag();
}

struct squaredLengthsPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(cplxHalf const* src, unsigned long n, float* squares) {
    for (unsigned long i = 0; i < n; ++i) squares[i] = squaredLengthOf(src[i]);
  }
};

inline auto squaredLengthsInUse() {
  return zthalf::leveled<squaredLengthsPass, cplxHalf const*, unsigned long, float*>::chosen();
}

// What a chain holds, with its length. The limit is a squared length beyond which no element can replace it.
template <class Kind>
class heldComplex {
 public:
  heldComplex() = default;
  explicit heldComplex(cplxHalf first) { hold(first, zthalf::lengthOf(widened(first))); }

  cplxHalf value() const { return value_; }

  // Whether an element of this squared length may replace what is held.
  bool isWorthAsking(float square) const {
    constexpr bool smallest = Kind::which == zthalf::extremum::smallest;
    if constexpr (Kind::nanWins) return smallest ? !(square > limit_) : !(square < limit_);
    return smallest ? square <= limit_ : square >= limit_;
  }

  // Nothing replaces a NaN that wins.
  bool isSettled() const { return Kind::nanWins && length_ != length_; }

  bool takeIfAhead(cplxHalf candidate) {
    const float length = zthalf::lengthOf(widened(candidate));
    if (!zthalf::isReplaced<Kind>(widened(value_), length_, widened(candidate), length)) return false;
    hold(candidate, length);
    return true;
  }

  bool takeIfAhead(heldComplex const& candidate) {
    if (!zthalf::isReplaced<Kind>(widened(value_), length_, widened(candidate.value_), candidate.length_)) return false;
    *this = candidate;
    return true;
  }

 private:
  // Rounding moves a square by 2^-24 of itself, a length by 2^-23; the margin is far above both. Everything is worth
  // asking beside a NaN, which is replaced by any number.
  void hold(cplxHalf value, float length) {
    constexpr bool smallest = Kind::which == zthalf::extremum::smallest;
    constexpr float infinity = std::numeric_limits<float>::infinity();
    constexpr float margin = 0x1p-16f;
    value_ = value;
    length_ = length;
    limit_ = length != length ? (smallest ? infinity : -infinity)
                              : squaredLengthOf(value) * (smallest ? 1 + margin : 1 - margin);
  }

  cplxHalf value_;
  float length_, limit_;
};

}  // namespace half_utils

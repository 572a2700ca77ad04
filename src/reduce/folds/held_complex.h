// What a chain of min or max of complex halves holds, and the quick answer to most candidates.
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

// In single: each square is exact, and nothing overflows or underflows, nor does the length. A NaN wherever that is
// one.
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

// What a chain holds, with the square of its length. The length itself is computed when it is first asked for.
template <class Kind>
class heldComplex {
 public:
  heldComplex() = default;
  explicit heldComplex(cplxHalf first) { hold(first, squaredLengthOf(first)); }

  cplxHalf value() const { return value_; }

  // Whether an element of this squared length may replace what is held.
  bool isWorthAsking(float square) const {
    if constexpr (Kind::nanWins) return isSmallest ? !(square > limit_) : !(square < limit_);
    return isSmallest ? square <= limit_ : square >= limit_;
  }

  // Nothing replaces a NaN that wins.
  bool isSettled() const { return Kind::nanWins && square_ != square_; }

  bool takeIfAhead(cplxHalf candidate, float square) {
    if (!isBehind(candidate, square)) return false;
    hold(candidate, square);
    return true;
  }
  bool takeIfAhead(heldComplex const& candidate) { return takeIfAhead(candidate.value_, candidate.square_); }

 private:
  static constexpr bool isSmallest = Kind::which == zthalf::extremum::smallest;
  static constexpr float unknown = -1;

  bool isBehind(cplxHalf candidate, float square) {
    const bool isNaN = square_ != square_;
    const bool candidateIsNaN = square != square;
    if (Kind::nanWins ? isNaN : candidateIsNaN) return false;
    if (Kind::nanWins ? candidateIsNaN : isNaN) return true;
    if (isSmallest ? zthalf::areApart(square, square_) : zthalf::areApart(square_, square)) return true;
    if (square == square_ && isSameElement(candidate)) return false;
    if (length_ == unknown) length_ = zthalf::lengthOf(widened(value_));
    return zthalf::isReplaced<Kind>(widened(value_), length_, widened(candidate), zthalf::lengthOf(widened(candidate)));
  }

  // Every chain starts with the tree's first element and so meets it twice.
  bool isSameElement(cplxHalf candidate) const {
    return candidate.real().bits == value_.real().bits && candidate.imag().bits == value_.imag().bits;
  }

  void hold(cplxHalf value, float square) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    value_ = value;
    square_ = square;
    length_ = unknown;
    limit_ = square != square ? (isSmallest ? infinity : -infinity) : square * (isSmallest ? 1 + margin : 1 - margin);
  }

  // Squares that differ by more than this factor are apart, whichever is the base. Everything is worth asking beside a
  // NaN, which any number replaces.
  static constexpr float margin = 0x1p-15f;

  cplxHalf value_;
  float square_, length_;
  float limit_;  // no element of a squared length beyond it is ahead
};

}  // namespace half_utils

// The eight branches of a triangular solve as one recurrence over vectors.
//
// With A on the right the vectors are B's columns, with A on the left they are B's rows: either way all elements of a
// vector go the same way, side by side. Vector v, in the order of the branch, is
//
//   x_v = alpha x_v                                (where alpha is not 1; right and transposed: after all others)
//   x_v = x_v - (s_w x_w) for each earlier w       (s_w the coefficient of w in v; in the branch's order of terms)
//   x_v = x_v / d,  or  x_v (1 / d)                (d the diagonal element, unless it is a unit)
//
// which is every element's sequence of operations in each of the branches, though some of them are written there with
// the loops turned round.
#pragma once

#include <type_traits>

#include "core/float_unit.h"
#include "core/instruction_level.h"

namespace zthalf::linalg {

// When the term of a coefficient is left out.
enum class skipping {
  nothing,       // left, transposed
  coefficients,  // right: a coefficient that is a zero
  elements,      // left, not transposed: an element of x_w that was a zero before its division, which is left out too
};

enum class scaling { none, first, last };

struct triangularSystem {
  float const* coefficients;  // that of w in v at w + v * order; the diagonal in its place
  unsigned long order;
  bool descending;   // the vectors' order
  bool termsAscend;  // the terms' order, by the places of w, where it is not that of the vectors
  bool hasDiagonal;
  bool usesReciprocal;
  bool coefficientFirst;  // s_w x_w, as against x_w s_w: it decides between two NaNs
  skipping skips;
  scaling scales;
  float alpha;
};

// Vectors are solved in strips of so many elements; element e of vector v is at e + v * stripWidth.
inline constexpr unsigned long stripWidth = 32;

// Operations on a strip of vectors: on the processor's unit, or on the defining one, which tells NaNs apart.
template <class Unit>
struct stripPass {
  static constexpr bool isWide = std::is_same_v<Unit, plainUnit>;

  // Where elements are skipped, present holds all bits set for those that are not, and is as large as the strip.
  ZTHALF_INLINE static void run(triangularSystem const* system, float* strip, std::uint32_t* present, bool* anyNaN) {
    triangularSystem const& s = *system;
    std::uint32_t nan = 0;
    for (unsigned long at = 0; at < s.order; ++at) {
      const unsigned long v = s.descending ? s.order - 1 - at : at;
      float* const own = strip + v * stripWidth;
      float const* const row = s.coefficients + v * s.order;
      float x[stripWidth];
      for (unsigned long e = 0; e < stripWidth; ++e) x[e] = own[e];
      if (s.scales == scaling::first) {
        for (unsigned long e = 0; e < stripWidth; ++e) x[e] = Unit::product(s.alpha, x[e]);
      }
      const bool ascends = !s.descending || s.termsAscend;
      unsigned long w = !s.descending ? 0 : s.termsAscend ? v + 1 : s.order - 1;
      for (unsigned long term = 0; term < at; ++term, w = ascends ? w + 1 : w - 1) {
        subtract(s, row[w], strip + w * stripWidth, present + w * stripWidth, x);
      }
      if (s.skips == skipping::elements) {
        for (unsigned long e = 0; e < stripWidth; ++e) {
          present[e + v * stripWidth] = ~maskOf<std::uint32_t>(x[e] == 0);
        }
      }
      if (s.hasDiagonal) divide(s, row[v], x);
      for (unsigned long e = 0; e < stripWidth; ++e) own[e] = x[e];
    }
    for (unsigned long i = 0; i < s.order * stripWidth; ++i) {
      if (s.scales == scaling::last) strip[i] = Unit::product(s.alpha, strip[i]);
      nan |= maskOf<std::uint32_t>(strip[i] != strip[i]);
    }
    *anyNaN = nan != 0;
  }

 private:
  ZTHALF_INLINE static void subtract(triangularSystem const& s, float coefficient, float const* other,
                                     std::uint32_t const* present, float (&x)[stripWidth]) {
    if (s.skips == skipping::coefficients && coefficient == 0) return;
    if (s.skips == skipping::elements) {
      for (unsigned long e = 0; e < stripWidth; ++e) {
        const float term = Unit::product(other[e], coefficient);
        // Subtracting +0 leaves everything as it is, a zero of either sign too.
        x[e] = Unit::difference(x[e], floatOf(bitsOf(term) & present[e]));
      }
    } else if (s.coefficientFirst) {
      for (unsigned long e = 0; e < stripWidth; ++e)
        x[e] = Unit::difference(x[e], Unit::product(coefficient, other[e]));
    } else {
      for (unsigned long e = 0; e < stripWidth; ++e)
        x[e] = Unit::difference(x[e], Unit::product(other[e], coefficient));
    }
  }

  ZTHALF_INLINE static void divide(triangularSystem const& s, float diagonal, float (&x)[stripWidth]) {
    if (s.usesReciprocal) {
      const float reciprocal = Unit::quotient(1.0f, diagonal);
      for (unsigned long e = 0; e < stripWidth; ++e) x[e] = Unit::product(x[e], reciprocal);
    } else if (s.skips == skipping::elements) {
      for (unsigned long e = 0; e < stripWidth; ++e) {
        const std::uint32_t zero = maskOf<std::uint32_t>(x[e] == 0);
        x[e] = floatOf(select(zero, bitsOf(x[e]), bitsOf(Unit::quotient(x[e], diagonal))));
      }
    } else {
      for (unsigned long e = 0; e < stripWidth; ++e) x[e] = Unit::quotient(x[e], diagonal);
    }
  }
};

}  // namespace zthalf::linalg

// Takes down which elements of a stretch are special.
#pragma once

#include <cstdint>

#include "core/float_unit.h"
#include "core/instruction_level.h"
#include "linalg/settlement.h"

namespace zthalf::linalg {

// From this magnitude on an element is special: NaNs, infinities, and what is so large that sums of products of smaller
// ones cannot overflow, whatever the inner dimension.
template <class Base>
inline constexpr Base largeFrom = sizeof(Base) == sizeof(float) ? Base(0x1p38) : Base(0x1p450);

template <class Base>
ZTHALF_INLINE std::uint32_t isSpecial(Base x) {
  using word = typename formatOf<Base>::word;
  constexpr word large = bitsOf(largeFrom<Base>);
  return (bitsOf(x) & bitsOf(withoutSign(valueOf(~word{0})))) >= large ? 1 : 0;
}

// Where index l of a stretch is taken down.
template <bool isOneChain>
struct placeOf {
  static constexpr unsigned long word(unsigned long l) { return isOneChain ? l / 32 : l % 8; }
  static constexpr unsigned long bit(unsigned long l) { return isOneChain ? l % 32 : l / 8; }
  static constexpr unsigned long index(unsigned long word, unsigned long bit) {
    return isOneChain ? 32 * word + bit : 8 * bit + word;
  }
};

// Compiled for the base level alone: it is a small part of the work, and would be large for every level.
//
// Word t of row i is ofRows[t * rows + i], that of column j ofColumns[j * wordCount + t].
template <class Base, bool isComplex, bool isOneChain>
struct specialsPass {
  static constexpr bool isWide = false;
  static constexpr unsigned parts = isComplex ? 2 : 1;
  using place = placeOf<isOneChain>;

  ZTHALF_INLINE static void run(stretch<Base> const* s, specialIndices const* memory) {
    ofRows(*s, memory->ofRows);
    for (unsigned long j = 0; j < s->columns; ++j) {
      std::uint32_t words[wordCount] = {};
      for (unsigned p = 0; p < parts; ++p) ofColumn(s->b + p * s->bPlane + j * s->depth, s->depth, words);
      for (unsigned t = 0; t < wordCount; ++t) memory->ofColumns[j * wordCount + t] = words[t];
    }
  }

 private:
  ZTHALF_INLINE static void ofRows(stretch<Base> const& s, std::uint32_t* all) {
    for (unsigned long i = 0; i < wordCount * s.rows; ++i) all[i] = 0;
    for (unsigned long l = 0; l < s.depth; ++l) {
      std::uint32_t* const words = all + place::word(l) * s.rows;
      const auto bit = static_cast<unsigned>(place::bit(l));
      for (unsigned p = 0; p < parts; ++p) {
        Base const* const a = s.a + p * s.aPlane + l * s.rows;
        for (unsigned long i = 0; i < s.rows; ++i) words[i] |= isSpecial(a[i]) << bit;
      }
    }
  }

  ZTHALF_INLINE static void ofColumn(Base const* b, unsigned long depth, std::uint32_t (&words)[wordCount]) {
    unsigned long l = 0;
    if constexpr (!isOneChain) {
      for (unsigned bit = 0; l + 8 <= depth; l += 8, ++bit) {
        for (unsigned t = 0; t < 8; ++t) words[t] |= isSpecial(b[l + t]) << bit;
      }
    }
    for (; l < depth; ++l) words[place::word(l)] |= isSpecial(b[l]) << place::bit(l);
  }
};

}  // namespace zthalf::linalg

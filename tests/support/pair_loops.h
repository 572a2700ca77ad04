// Drivers for two-operand loops without shapes: every count, misalignment and overlap, against a plain simulation.
//
// A pass takes (a, b, c, na, nb, nc), where na or nb may be 1 beside a longer array; an element function takes one
// loaded element of either side.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <string>

#include "tests/support/loops.h"
#include "tests/support/stage.h"

namespace zthalf::testing {

enum class pairing { arrays, oneOnTheLeft, oneOnTheRight };
using pairingList = std::initializer_list<pairing>;
inline constexpr pairingList allPairings = {pairing::arrays, pairing::oneOnTheLeft, pairing::oneOnTheRight};

struct pairPlacement {
  std::size_t left, right, output;
};

inline std::string textOf(pairPlacement at, pairing how, unsigned long n) {
  char const* const names[] = {"two arrays", "one element on the left", "one element on the right"};
  return std::to_string(n) + " elements, " + names[static_cast<int>(how)] + ", left at " + std::to_string(at.left) +
         ", right at " + std::to_string(at.right) + ", output at " + std::to_string(at.output);
}

// A single element is read once, before anything is written; arrays are read element by element between the writes.
template <class Left, class Right, class Out, class Element>
void ascendPairs(std::byte* bytes, pairPlacement at, pairing how, unsigned long n, Element element) {
  if (n == 0) return;
  const auto firstLeft = load<Left>(bytes + at.left);
  const auto firstRight = load<Right>(bytes + at.right);
  for (unsigned long i = 0; i < n; ++i) {
    const auto x = how == pairing::oneOnTheLeft ? firstLeft : load<Left>(bytes + at.left + i * sizeof(Left));
    const auto y = how == pairing::oneOnTheRight ? firstRight : load<Right>(bytes + at.right + i * sizeof(Right));
    store<Out>(bytes + at.output + i * sizeof(Out), element(x, y));
  }
}

template <class Left, class Right, class Out, class Pass, class Element>
void expectAscendingPairs(stage& on, pairPlacement at, pairing how, unsigned long n, Pass pass, Element element) {
  EXPECT_TRUE(on.agrees(
      [&](std::byte* bytes) {
        pass(arrayAt<Left>(bytes + at.left), arrayAt<Right>(bytes + at.right), arrayAt<Out>(bytes + at.output),
             how == pairing::oneOnTheLeft ? 1 : n, how == pairing::oneOnTheRight ? 1 : n, n);
        return true;
      },
      [&](std::byte* bytes) {
        ascendPairs<Left, Right, Out>(bytes, at, how, n, element);
        return true;
      }))
      << textOf(at, how, n);
}

// The drivers below try every count and offset, or with a stride every so many: where to begin, at another one each
// time.
inline unsigned strideStart(unsigned stride) {
  static unsigned starts = 0;
  return starts++ % stride;
}

// Every count, with three misalignments of each array in such combinations that any two arrays meet in all nine ways.
template <class Left, class Right, class Out, class Pass, class Element>
void checkPairCounts(Pass pass, Element element, pairingList pairings, unsigned stride = 1) {
  constexpr std::size_t gap = 2 * stage::alignment;
  constexpr std::size_t right = gap + roundedUp(mostCount * sizeof(Left)) + gap;
  constexpr std::size_t output = right + roundedUp(mostCount * sizeof(Right)) + gap;
  stage on(output + roundedUp(mostCount * sizeof(Out)) + gap, 71);
  bitSource bits(72);
  for (unsigned i = 0; i < 3; ++i) {
    for (unsigned j = 0; j < 3; ++j) {
      const pairPlacement at{gap + misalignments[i] * alignof(Left), right + misalignments[j] * alignof(Right),
                             output + misalignments[(i + j) % 3] * alignof(Out)};
      drawInto<Left>(on.initial() + at.left, mostCount, bits);
      drawInto<Right>(on.initial() + at.right, mostCount, bits);
      for (const pairing how : pairings) {
        for (unsigned long n = strideStart(stride); n <= mostCount; n += stride) {
          expectAscendingPairs<Left, Right, Out>(on, at, how, n, pass, element);
          if (::testing::Test::HasFailure()) return;
        }
      }
    }
  }
}

// The output at every offset of up to 40 elements, of the larger type, around one operand while the other is far away;
// and all three arrays in one place, if their elements have one size.
template <class Left, class Right, class Out, class Pass, class Element>
void checkPairOverlaps(Pass pass, Element element, pairingList pairings, unsigned stride = 1) {
  constexpr std::size_t largest = std::max({sizeof(Left), sizeof(Right), sizeof(Out)});
  constexpr std::size_t reach = 40 * largest;
  constexpr std::size_t middle = roundedUp(reach + stage::alignment);
  constexpr std::size_t away = 2 * middle + roundedUp(mostCount * largest);
  stage on(away + roundedUp(mostCount * largest) + stage::alignment, 73);
  bitSource bits(74);
  const auto check = [&](pairPlacement at) {
    drawInto<Left>(on.initial() + at.left, mostCount, bits);
    drawInto<Right>(on.initial() + at.right, mostCount, bits);
    for (const pairing how : pairings) {
      for (const unsigned long n : {1UL, 5UL, 40UL, 64UL, mostCount}) {
        expectAscendingPairs<Left, Right, Out>(on, at, how, n, pass, element);
      }
    }
    return !::testing::Test::HasFailure();
  };
  // Of the output and the operand that it overlaps the less aligned one is moved.
  const auto checkAround = [&](std::size_t unit, auto placementAt) {
    const std::size_t first = middle - reach + strideStart(stride) * unit;
    for (std::size_t moved = first; moved <= middle + reach; moved += unit * stride) {
      if (!check(placementAt(moved))) return;
    }
  };
  checkAround(std::min(alignof(Left), alignof(Out)), [&](std::size_t moved) {
    return alignof(Out) <= alignof(Left) ? pairPlacement{middle, away, moved} : pairPlacement{moved, away, middle};
  });
  checkAround(std::min(alignof(Right), alignof(Out)), [&](std::size_t moved) {
    return alignof(Out) <= alignof(Right) ? pairPlacement{away, middle, moved} : pairPlacement{away, moved, middle};
  });
  if constexpr (sizeof(Left) == sizeof(Out) && sizeof(Right) == sizeof(Out)) check({middle, middle, middle});
}

// Arrays that begin or end at a page that may not be touched.
template <class Left, class Right, class Out, class Pass, class Element>
void checkPairFences(Pass pass, Element element, pairingList pairings, unsigned stride = 1) {
  const fencedMemory left, right, output;
  bitSource bits(75);
  for (const bool atEnd : {false, true}) {
    for (const pairing how : pairings) {
      for (unsigned long n = strideStart(stride); n <= mostCount; n += stride) {
        const unsigned long na = how == pairing::oneOnTheLeft ? 1 : n, nb = how == pairing::oneOnTheRight ? 1 : n;
        std::byte* const a = left.at(atEnd, na * sizeof(Left));
        std::byte* const b = right.at(atEnd, nb * sizeof(Right));
        std::byte* const c = output.at(atEnd, n * sizeof(Out));
        drawInto<Left>(a, na, bits);
        drawInto<Right>(b, nb, bits);
        pass(arrayAt<Left>(a), arrayAt<Right>(b), arrayAt<Out>(c), na, nb, n);
        for (unsigned long i = 0; i < n; ++i) {
          const Out expected = element(load<Left>(a + (na > 1 ? i * sizeof(Left) : 0)),
                                       load<Right>(b + (nb > 1 ? i * sizeof(Right) : 0)));
          ASSERT_EQ(std::memcmp(&expected, c + i * sizeof(Out), sizeof(Out)), 0) << "element " << i << " of " << n;
        }
      }
    }
  }
}

template <class Left, class Right, class Out, class Pass, class Element>
void checkPairLoop(Pass pass, Element element, pairingList pairings = allPairings, unsigned stride = 1) {
  checkPairCounts<Left, Right, Out>(pass, element, pairings, stride);
  checkPairOverlaps<Left, Right, Out>(pass, element, pairings, stride);
  checkPairFences<Left, Right, Out>(pass, element, pairings, stride);
}

}  // namespace zthalf::testing

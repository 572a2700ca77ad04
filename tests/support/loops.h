// Drivers for one-operand loops: every count, misalignment and overlap, against a plain simulation.
//
// A pass takes (src, dst, n) and returns nothing or whether it was done; an element function takes one loaded element
// and returns its result, or an empty optional where the pass has to stop.
#pragma once

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <optional>
#include <type_traits>
#include <vector>

#include "tests/support/stage.h"

namespace zthalf::testing {

// Twice the elements of the widest pass, counted generously, and one.
inline constexpr unsigned long mostCount = 2 * 64 + 1;

// Steps of an array's address from a cache line on, in units of its alignment: a complex half may stand at 2 mod 4.
inline constexpr std::size_t misalignments[] = {0, 1, 3};

template <class Pass, class... Args>
bool doneBy(Pass pass, Args... args) {
  if constexpr (std::is_void_v<decltype(pass(args...))>) {
    pass(args...);
    return true;
  } else {
    return pass(args...);
  }
}

// The definition of every one-operand loop: one element after the other, each read after the earlier ones were written.
template <class In, class Out, class Element>
bool ascend(std::byte* src, std::byte* dst, unsigned long n, Element element) {
  for (unsigned long i = 0; i < n; ++i) {
    const std::optional<Out> result = element(load<In>(src + i * sizeof(In)));
    if (!result) return false;
    store<Out>(dst + i * sizeof(Out), *result);
  }
  return true;
}

// Where the arrays of a one-operand loop stand in a stage, in bytes.
struct placement {
  std::size_t source, destination;
};

template <class In, class Out, class Pass, class Element>
void expectAscendingPass(stage& on, placement at, unsigned long n, Pass pass, Element element) {
  EXPECT_TRUE(on.agrees(
      [&](std::byte* bytes) {
        return doneBy(pass, arrayAt<In>(bytes + at.source), arrayAt<Out>(bytes + at.destination), n);
      },
      [&](std::byte* bytes) { return ascend<In, Out>(bytes + at.source, bytes + at.destination, n, element); }))
      << n << " elements, source at " << at.source << ", destination at " << at.destination;
}

// Every count from 0 to mostCount with three misalignments of either array.
template <class In, class Out, class Pass, class Element>
void checkCounts(Pass pass, Element element) {
  constexpr std::size_t gap = 2 * stage::alignment;
  constexpr std::size_t destination = gap + roundedUp(mostCount * sizeof(In)) + gap;
  stage on(destination + roundedUp(mostCount * sizeof(Out)) + gap, 1);
  bitSource bits(2);
  for (const std::size_t sourceShift : misalignments) {
    for (const std::size_t destinationShift : misalignments) {
      const placement at{gap + sourceShift * alignof(In), destination + destinationShift * alignof(Out)};
      drawInto<In>(on.initial() + at.source, mostCount, bits);
      for (unsigned long n = 0; n <= mostCount; ++n) {
        expectAscendingPass<In, Out>(on, at, n, pass, element);
        if (::testing::Test::HasFailure()) return;
      }
    }
  }
}

// In place, for elements of one size.
template <class In, class Out, class Pass, class Element>
void checkInPlace(Pass pass, Element element) {
  static_assert(sizeof(In) == sizeof(Out));
  constexpr std::size_t gap = 2 * stage::alignment;
  stage on(gap + roundedUp(mostCount * sizeof(In)) + gap, 3);
  bitSource bits(4);
  for (const std::size_t shift : misalignments) {
    const std::size_t at = gap + shift * std::max(alignof(In), alignof(Out));
    drawInto<In>(on.initial() + at, mostCount, bits);
    for (unsigned long n = 0; n <= mostCount; ++n) {
      expectAscendingPass<In, Out>(on, {at, at}, n, pass, element);
      if (::testing::Test::HasFailure()) return;
    }
  }
}

// The destination at every offset of up to 40 elements, of the larger type, before and behind the source. The array
// whose type is the less aligned one is moved, in steps of that alignment.
template <class In, class Out, class Pass, class Element>
void checkOverlaps(Pass pass, Element element) {
  constexpr std::size_t unit = std::min(alignof(In), alignof(Out));
  constexpr std::size_t reach = 40 * std::max(sizeof(In), sizeof(Out));
  constexpr std::size_t middle = roundedUp(reach + stage::alignment);
  constexpr unsigned long longCount = 2100;  // beyond every threshold of a loop
  stage on(2 * middle + longCount * std::max(sizeof(In), sizeof(Out)), 5);
  bitSource bits(6);
  for (std::size_t moved = middle - reach; moved <= middle + reach; moved += unit) {
    const placement at = alignof(Out) <= alignof(In) ? placement{middle, moved} : placement{moved, middle};
    std::vector<unsigned long> counts{1, 2, 5, 17, 40, 63, 64, 65, mostCount};
    if (moved % 48 == 0) counts.push_back(longCount);
    drawInto<In>(on.initial() + at.source, counts.back(), bits);
    for (const unsigned long n : counts) {
      expectAscendingPass<In, Out>(on, at, n, pass, element);
      if (::testing::Test::HasFailure()) return;
    }
  }
}

// Memory with a page on either side that must not be touched.
class fencedMemory {
 public:
  fencedMemory() : page_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))) {
    void* const block = mmap(nullptr, 3 * page_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (block == MAP_FAILED) throw std::bad_alloc();
    start_ = static_cast<std::byte*>(block) + page_;
    if (mprotect(start_, page_, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
  }
  ~fencedMemory() { munmap(start_ - page_, 3 * page_); }
  fencedMemory(fencedMemory const&) = delete;
  fencedMemory& operator=(fencedMemory const&) = delete;

  // Where an array of this many bytes begins that has a fence right before it, or right behind it.
  std::byte* at(bool atEnd, std::size_t size) const { return atEnd ? start_ + page_ - size : start_; }

 private:
  std::size_t page_;
  std::byte* start_;
};

// Arrays that begin or end at a page that may not be touched, for every count: a pass that reads or writes one byte
// outside of them ends the program.
template <class In, class Out, class Pass, class Element>
void checkFences(Pass pass, Element element) {
  const fencedMemory source, destination;
  bitSource bits(7);
  for (const bool atEnd : {false, true}) {
    for (unsigned long n = 0; n <= mostCount; ++n) {
      std::byte* const src = source.at(atEnd, n * sizeof(In));
      std::byte* const dst = destination.at(atEnd, n * sizeof(Out));
      drawInto<In>(src, n, bits);
      std::vector<std::byte> expected(n * sizeof(Out));
      const bool wanted = ascend<In, Out>(src, expected.data(), n, element);
      EXPECT_EQ(doneBy(pass, arrayAt<In>(src), arrayAt<Out>(dst), n), wanted);
      if (!wanted) continue;
      EXPECT_TRUE(std::equal(expected.begin(), expected.end(), dst)) << n << " elements";
    }
  }
}

// All of the above.
template <class In, class Out, class Pass, class Element>
void checkLoop(Pass pass, Element element) {
  checkCounts<In, Out>(pass, element);
  if constexpr (sizeof(In) == sizeof(Out)) checkInPlace<In, Out>(pass, element);
  checkOverlaps<In, Out>(pass, element);
  checkFences<In, Out>(pass, element);
}

}  // namespace zthalf::testing

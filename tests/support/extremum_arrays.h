// Arrays for reductions by min and max, and the entries of these as data.
#pragma once

#include <algorithm>
#include <functional>
#include <vector>

#include "tests/support/drawn_values.h"
#include "tests/support/extremum_steps.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {

using steps::extremumForm;

// What stands in an array: the kinds differ in how often things tie and in how much is NaN.
enum class filling { anything, ties, nearlyAllNaN, allNaN, equalLengths, descending, ascending };
inline constexpr filling allFillings[] = {filling::anything, filling::ties,         filling::nearlyAllNaN,
                                          filling::allNaN,   filling::equalLengths, filling::descending,
                                          filling::ascending};

inline half_t drawnHalf(filling kind, unsigned long i, bitSource& bits) {
  const auto nan = [&] { return oneOf<std::uint16_t>({0x7E00, 0xFE00, 0x7C01, 0xFC01, 0xFFFF, 0x7FFF}, bits); };
  switch (kind) {
    case filling::anything:
      return drawer<half_t>::draw(bits);
    case filling::ties:
      return {oneOf<std::uint16_t>({0x0000, 0x8000, 0x8000, 0x0000, 0x3C00, 0xBC00, 0x7C00, 0xFC00}, bits)};
    case filling::nearlyAllNaN:
      return {bits() % 200 == 0 ? oneOf<std::uint16_t>({0x0000, 0x8000, 0x4000}, bits) : nan()};
    case filling::allNaN:
      return {nan()};
    case filling::equalLengths:
      return {oneOf<std::uint16_t>({0x4200, 0x4400, 0xC200, 0xC400, 0x4500, 0xC500, 0x0000, 0x8000}, bits)};
    case filling::descending:
      return {static_cast<std::uint16_t>(0x7B00 - i % 0x7B00)};
    default:
      return {static_cast<std::uint16_t>(0x0100 + i % 0x7A00)};
  }
}

template <class T>
T drawnElement(filling kind, unsigned long i, bitSource& bits) {
  if constexpr (std::is_same_v<T, half_t>) {
    return drawnHalf(kind, i, bits);
  } else {
    const half_t real = drawnHalf(kind, i, bits);
    return {real, drawnHalf(kind, i, bits)};
  }
}

template <class T>
std::vector<T> drawnArray(unsigned long n, filling kind, bitSource& bits) {
  std::vector<T> all(n);
  for (unsigned long i = 0; i < n; ++i) all[i] = drawnElement<T>(kind, i, bits);
  return all;
}

// The table's element types as the tests have them.
template <class T>
struct testElement {
  using type = half_t;
};
template <>
struct testElement<std::complex<fp16binary_t>> {
  using type = std::complex<half_t>;
};

// A reduction entry by its shape: with its name, and called with half_t for the stored type.
template <class Stored>
class extremumEntry {
 public:
  using element = typename testElement<Stored>::type;
  using whole = half_ptr::unary_entry<Stored, Stored>*;
  using indexedWhole = half_ptr::indexed_whole_entry<Stored, Stored>*;
  using along = half_ptr::reduction_entry<Stored, Stored>*;
  using indexedAlong = half_ptr::indexed_reduction_entry<Stored, Stored>*;

  static Stored* stored(element* p) { return reinterpret_cast<Stored*>(p); }
};

#define ZTHALF_VISIT_EXTREMUM(entry, shape, Element, Accumulator, function) \
  visit(#entry, extremumEntry<half::element::Element>{}, half_ptr::entry##Ptr);

// visit(name, extremumEntry<Stored>, function) for every reduction entry of min and max.
template <class Visit>
void forEachExtremumEntry(Visit visit) {
  ZTHALF_EXTREMUM_REDUCTION_ENTRIES(ZTHALF_VISIT_EXTREMUM)
}

#undef ZTHALF_VISIT_EXTREMUM

}  // namespace zthalf::testing

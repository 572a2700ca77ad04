// min and max of arrays: the whole array, and along dimensions, for real and complex halves.
#pragma once

#include <algorithm>

#include "reduce/folds/complex_extremum_folds.h"
#include "reduce/folds/real_extremum_along.h"

namespace half_utils {

// Elements as results; the parts of a complex one alike.
inline fp16binary_t asResultElement(fp16binary_t x) { return {zthalf::asResult(x.bits)}; }
inline cplxHalf asResultElement(cplxHalf z) { return {asResultElement(z.real()), asResultElement(z.imag())}; }

// An element and its index from 1. Of an empty array the element that would be its first is read all the same, with an
// index of 0: what begins every chain has to be read before there is anything to compare it with.
template <class T>
struct indexedElement {
  T value;
  double index;
};

template <class Kind>
indexedElement<fp16binary_t> extremumOfAll(fp16binary_t const* src, unsigned long n) {
  if (n == 0) return {asResultElement(src[0]), 0.0};
  const unsigned long position = realExtremumSearch<Kind>().amongMany(src, n).position;
  return {asResultElement(src[position]), static_cast<double>(position + 1)};
}

template <class Kind>
indexedElement<cplxHalf> extremumOfAll(cplxHalf const* src, unsigned long n) {
  const auto found = reducedTree<complexExtremumFold<Kind>>(src, n);
  return {asResultElement(found.held.value()), static_cast<double>(found.index)};
}

// An output without an element, since a reduced dimension has size 0: there is nothing to read, and the result is what
// any element would have replaced. That is a NaN where NaNs are omitted, otherwise what stands behind everything else;
// for complex elements the longest or the shortest one, with the largest angle or none.
template <class Kind, class T>
T extremumOfNothing() {
  using zthalf::pattern::infinity;
  constexpr bool isSmallest = Kind::which == zthalf::extremum::smallest;
  constexpr bool isComplex = std::is_same_v<T, cplxHalf>;
  constexpr std::uint16_t minusInfinity = zthalf::pattern::signBit | infinity;
  constexpr std::uint16_t last = isComplex ? (isSmallest ? minusInfinity : 0) : (isSmallest ? infinity : minusInfinity);
  return T(fp16binary_t{Kind::nanWins ? last : zthalf::pattern::quietNaN});
}

// The value alone or with its index. Of complex columns the two need not be the same element.
enum class wanted { value, indexedValue };

// write(output, standing) once for each output.
template <class Kind, wanted, class Write>
void forEachExtremum(fp16binary_t const* src, alternatingShape const& shape, bool firstReduced, Write write) {
  if (firstReduced) return realExtremaOfColumns<Kind>(src, shape, write);
  reduceRows<realExtremumRows<Kind>>(src, shape, write);
}

template <class Kind, wanted What, class Write>
void forEachExtremum(cplxHalf const* src, alternatingShape const& shape, bool firstReduced, Write write) {
  if (!firstReduced) return reduceRows<complexExtremumRows<Kind>>(src, shape, write);
  using fold = std::conditional_t<What == wanted::value, complexExtremumValueFold<Kind>, complexExtremumFold<Kind>>;
  reduceColumns<fold>(
      src, shape, [write](unsigned long output, complexWinner<Kind> const& found) { write(output, found.standing()); });
}

template <class Kind, class T>
void extremaAlong(T* src, T* dst, unsigned long ndims, unsigned long const* dims, bool firstReduced) {
  const alternatingShape shape(ndims, dims, firstReduced);
  if (shape.reducesNothing()) {
    std::fill_n(dst, shape.outputs(), extremumOfNothing<Kind, T>());
    return;
  }
  forEachExtremum<Kind, wanted::value>(
      src, shape, firstReduced,
      [dst](unsigned long output, extremumStanding<T> const& found) { dst[output] = asResultElement(found.value); });
}

template <class Kind, class T>
void extremaAlong(T* src, T* dst, double* index, unsigned long ndims, unsigned long const* dims, bool firstReduced,
                  bool linear) {
  const alternatingShape shape(ndims, dims, firstReduced);
  if (shape.reducesNothing()) {
    std::fill_n(dst, shape.outputs(), extremumOfNothing<Kind, T>());
    std::fill_n(index, shape.outputs(), 0.0);
    return;
  }
  forEachExtremum<Kind, wanted::indexedValue>(
      src, shape, firstReduced, [&](unsigned long output, extremumStanding<T> const& found) {
        dst[output] = asResultElement(found.value);
        index[output] = indexOf(found, static_cast<T const*>(src), shape, linear);
      });
}

}  // namespace half_utils

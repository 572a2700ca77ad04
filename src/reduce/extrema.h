// min and max of arrays: the whole array, and along dimensions, for real and complex halves.
// Internal: promises nothing to users of the library.
#pragma once

#include "reduce/complex_extremum_folds.h"
#include "reduce/real_extremum_along.h"

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
  forEachExtremum<Kind, wanted::value>(
      src, shape, firstReduced,
      [dst](unsigned long output, extremumStanding<T> const& found) { dst[output] = asResultElement(found.value); });
}

template <class Kind, class T>
void extremaAlong(T* src, T* dst, double* index, unsigned long ndims, unsigned long const* dims, bool firstReduced,
                  bool linear) {
  const alternatingShape shape(ndims, dims, firstReduced);
  forEachExtremum<Kind, wanted::indexedValue>(
      src, shape, firstReduced, [&](unsigned long output, extremumStanding<T> const& found) {
        dst[output] = asResultElement(found.value);
        index[output] = indexOf(found, static_cast<T const*>(src), shape, linear);
      });
}

}  // namespace half_utils

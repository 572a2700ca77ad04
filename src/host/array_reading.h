// What the fields of a host's array say together: its shape, its class, whether it is complex.
#pragma once

#include <limits>

#include "zthalf/host/vq_fields.h"

namespace zthalf {

inline bool hasFlags(vqArray_tag const* array, std::uint32_t bits) { return (vq_fields::flags(array) & bits) == bits; }

inline bool isComplexArray(vqArray_tag const* array) { return hasFlags(array, vq_flags::complexNumeric); }

struct dimensionList {
  unsigned long count;
  unsigned long const* sizes;
};

// The dimensions, completed first where they are not there yet.
inline dimensionList dimensionsOf(vqArray_tag const* array) {
  if (hasFlags(array, vq_flags::opaqueDimensions)) array->_complete_opaque_dimensions();
  if (hasFlags(array, vq_flags::inlineDimensions)) return {2, vq_fields::inlineDimensions(array)};
  return {vq_fields::listedDimensionCount(array), vq_fields::listedDimensions(array)};
}

// More elements than can be counted are the largest count, so that the host refuses the memory: a product that wraps
// round would get an array that is too small for its own dimensions.
inline unsigned long cappedProduct(unsigned long a, unsigned long b) {
  unsigned long product;
  return __builtin_mul_overflow(a, b, &product) ? std::numeric_limits<unsigned long>::max() : product;
}

// The product of all sizes, in which a zero wins over sizes that are too large; 1 where there are none.
inline unsigned long elementCount(dimensionList dims) {
  unsigned long count = 1;
  for (unsigned long i = 0; i < dims.count; ++i) {
    if (dims.sizes[i] == 0) return 0;
    count = cappedProduct(count, dims.sizes[i]);
  }
  return count;
}

inline unsigned long elementCount(vqArray_tag const* array) { return elementCount(dimensionsOf(array)); }

// Class words from 17 on are numbers of the host's own, which it translates.
inline vqClassID classOf(vqArray_tag const* array) {
  constexpr std::uint32_t firstOfHost = 17;
  const std::uint32_t word = vq_fields::classWord(array);
  return word < firstOfHost ? static_cast<vqClassID>(word) : array->_get_class_id_non_trivial();
}

}  // namespace zthalf

// The fields of a host's array, and the accessors by which this library reads and writes them, each a field and no
// call. A host whose arrays are laid out in another way replaces this one header (docs/host-provider.md).
#pragma once

#include <cstdint>

#include "zthalf/detail/export.h"
#include "zthalf/host/vq_array.h"

struct vqArray_tag {
  std::uint32_t classWord;  ///< a vqClassID below 17; from 17 on `_get_class_id_non_trivial` knows which
  std::uint32_t flagWord;   ///< vq_flags
  std::uint32_t holders;    ///< how many programs hold the array
  std::uint32_t owners;     ///< how many other arrays it is a part of
  union {
    unsigned long inPlace[2];   ///< rows and columns, with vq_flags::inlineDimensions
    unsigned long const* list;  ///< otherwise
  } dimensions;
  unsigned long dimensionCount;  ///< of the list; means nothing with vq_flags::inlineDimensions
  void* data;

  /// Whether another array has the same data buffer.
  ZTHALF_API bool is_data_shared_impl() const;
  /// The class of an array whose class word is 17 or more.
  ZTHALF_API vqClassID _get_class_id_non_trivial() const;
  /// Fills in the dimensions of an array with vq_flags::opaqueDimensions, and clears the bit.
  ZTHALF_API void _complete_opaque_dimensions() const;
};

namespace vq_fields {

inline std::uint32_t classWord(vqArray_tag const* array) { return array->classWord; }

inline std::uint32_t flags(vqArray_tag const* array) { return array->flagWord; }
inline void setFlags(vqArray_tag* array, std::uint32_t bits) { array->flagWord |= bits; }
inline void clearFlags(vqArray_tag* array, std::uint32_t bits) { array->flagWord &= ~bits; }

/// The sum of the two reference counts.
inline std::uint64_t references(vqArray_tag const* array) { return std::uint64_t{array->holders} + array->owners; }

/// Rows and columns, of an array with vq_flags::inlineDimensions.
inline unsigned long const* inlineDimensions(vqArray_tag const* array) { return array->dimensions.inPlace; }
/// The sizes of any other array, and how many they are.
inline unsigned long const* listedDimensions(vqArray_tag const* array) { return array->dimensions.list; }
inline unsigned long listedDimensionCount(vqArray_tag const* array) { return array->dimensionCount; }

inline void* data(vqArray_tag const* array) { return array->data; }

}  // namespace vq_fields

// The arrays of the second host: nothing stands where the embedded host has it. Found before the header of that name
// among the installed ones.
#pragma once

#include <cstdint>

#include "zthalf/detail/export.h"
#include "zthalf/host/vq_array.h"

struct vqArray_tag {
  void* elements;
  unsigned long shapeLength;
  unsigned long columnsAndRows[2];  // kept the other way round, for itself
  unsigned long rowsAndColumns[2];
  unsigned long* shape;
  std::uint64_t marks;
  std::int32_t counts[2];
  std::uint16_t kind;

  ZTHALF_API bool is_data_shared_impl() const;
  ZTHALF_API vqClassID _get_class_id_non_trivial() const;
  ZTHALF_API void _complete_opaque_dimensions() const;
};

namespace vq_fields {

inline std::uint32_t classWord(vqArray_tag const* array) { return array->kind; }

inline std::uint32_t flags(vqArray_tag const* array) { return static_cast<std::uint32_t>(array->marks >> 32); }
inline void setFlags(vqArray_tag* array, std::uint32_t bits) { array->marks |= std::uint64_t{bits} << 32; }
inline void clearFlags(vqArray_tag* array, std::uint32_t bits) { array->marks &= ~(std::uint64_t{bits} << 32); }

inline std::uint64_t references(vqArray_tag const* array) {
  return static_cast<std::uint64_t>(array->counts[0]) + static_cast<std::uint64_t>(array->counts[1]);
}

inline unsigned long const* inlineDimensions(vqArray_tag const* array) { return array->rowsAndColumns; }
inline unsigned long const* listedDimensions(vqArray_tag const* array) { return array->shape; }
inline unsigned long listedDimensionCount(vqArray_tag const* array) { return array->shapeLength; }

inline void* data(vqArray_tag const* array) { return array->elements; }

}  // namespace vq_fields

// The names that a host's arrays go by: the array type, its enumerations, and the bits of an array's flag word.
#pragma once

#include <cstdint>

/// An array of the host. What it is made of stands in zthalf/host/vq_fields.h; most callers hold it by pointer alone.
struct vqArray_tag;

/// A numeric or other class of the host. Of a host's numbers this library knows three: 3, 6 and 7. The others here are
/// those of the embedded host. The library's own number for half, -2357, is a value of this type that no host uses.
enum vqClassID : int {
  vqUnknownClass = 0,
  vqCharacterClass = 2,
  vqLogicalClass = 3,
  vqDoubleClass = 6,
  vqSingleClass = 7,
  vqInt8Class = 8,
  vqInt16Class = 9,
  vqInt32Class = 10,
  vqInt64Class = 11,
  vqUint8Class = 12,
  vqUint16Class = 13,
  vqUint32Class = 14,
  vqUint64Class = 15,
  vqObjectClass = 16,
  vqHalfClass = -2357
};

/// Whether an array has imaginary parts.
enum vqComplexity : int { vqReal = 0, vqComplex = 1 };

/// What frees a buffer; null for one that the host itself has made.
using vqFreeFunction = void (*)(void*);

/// The bits of the flag word that mean something to this library.
namespace vq_flags {

inline constexpr std::uint32_t sparse = 0x10;
/// The first guard of data sharing: the data may not change, whoever asks.
inline constexpr std::uint32_t dataHeld = 0x40;
inline constexpr std::uint32_t numeric = 0x80;
/// The dimensions are not there yet: `_complete_opaque_dimensions` before they are read.
inline constexpr std::uint32_t opaqueDimensions = 0x100;
inline constexpr std::uint32_t complex = 0x800;
/// The second guard: the data may be shared with another array; `is_data_shared_impl` knows.
inline constexpr std::uint32_t maybeShared = 0x1000;
/// Two dimensions, whose sizes stand in the array itself.
inline constexpr std::uint32_t inlineDimensions = 0x80000;

/// An array with imaginary parts has both bits.
inline constexpr std::uint32_t complexNumeric = numeric | complex;

}  // namespace vq_flags

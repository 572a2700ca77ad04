// The tags of the entry list as types. A tag is an alias, so no second table maps names to types: the same row read in
// another namespace gives another layer's signature.
#pragma once

#include <complex>

#include "zthalf/half_t.h"

// The element types that all layers share.
#define ZTHALF_COMMON_TAGS                             \
  using Single = float;                                \
  using Double = double;                               \
  using UInt8 = unsigned char;                         \
  using Int8 = signed char;                            \
  using UInt16 = unsigned short;                       \
  using Int16 = short;                                 \
  using UInt32 = unsigned int;                         \
  using Int32 = int;                                   \
  using UInt64 = unsigned long long;                   \
  using Int64 = long long;                             \
  using Logical = bool;                                \
  using CplxSingle = std::complex<float>;              \
  using CplxDouble = std::complex<double>;             \
  using CplxUInt8 = std::complex<unsigned char>;       \
  using CplxInt8 = std::complex<signed char>;          \
  using CplxUInt16 = std::complex<unsigned short>;     \
  using CplxInt16 = std::complex<short>;               \
  using CplxUInt32 = std::complex<unsigned int>;       \
  using CplxInt32 = std::complex<int>;                 \
  using CplxUInt64 = std::complex<unsigned long long>; \
  using CplxInt64 = std::complex<long long>;

namespace half::element {  // the operation templates
using Half = fp16binary_t;
using CplxHalf = std::complex<fp16binary_t>;
ZTHALF_COMMON_TAGS
}  // namespace half::element

namespace half::storage {  // the few operations that take bare patterns
using Half = unsigned short;
using CplxHalf = std::complex<unsigned short>;
ZTHALF_COMMON_TAGS
}  // namespace half::storage

namespace half_vector::element {  // the facade
using Half = half_t;
using CplxHalf = std::complex<half_t>;
ZTHALF_COMMON_TAGS
}  // namespace half_vector::element

#undef ZTHALF_COMMON_TAGS

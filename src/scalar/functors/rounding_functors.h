// Functors of rounding.
#pragma once

#include "scalar/rounding.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

namespace realOps {

struct ceilFtor {
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::ceilOf(x.bits)}; }
};

struct floorFtor {
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::floorOf(x.bits)}; }
};

struct fixFtor {
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::fixOf(x.bits)}; }
};

struct roundFtor {
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::roundOf(x.bits)}; }
};

}  // namespace realOps

}  // namespace half::scalar::emulated

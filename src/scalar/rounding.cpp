#include "scalar/rounding.h"

#include "zthalf/half_scalar.h"

namespace half_scalar {

half_t ceil(half_t x) { return {zthalf::ceilOf(x.bits)}; }
half_t floor(half_t x) { return {zthalf::floorOf(x.bits)}; }
half_t fix(half_t x) { return {zthalf::fixOf(x.bits)}; }
half_t round(half_t x) { return {zthalf::roundOf(x.bits)}; }

}  // namespace half_scalar

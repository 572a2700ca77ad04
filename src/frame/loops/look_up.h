// The one loop that reads result tables.
#pragma once

#include <cstdint>

#include "zthalf/half_t.h"

namespace half_utils {

// dst[i] = the entry of src[i], in ascending order also where the arrays overlap.
void lookUp(std::uint16_t const* table, fp16binary_t const* src, fp16binary_t* dst, unsigned long n);

}  // namespace half_utils

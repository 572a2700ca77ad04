// Inverse trigonometric functions of a half pattern.
// Internal: promises nothing to users of the library.
#pragma once

#include <cstdint>

namespace zthalf {

std::uint16_t asinOf(std::uint16_t x);
std::uint16_t acosOf(std::uint16_t x);
std::uint16_t atanOf(std::uint16_t x);

}  // namespace zthalf

// Hyperbolic functions and their inverses of a half pattern.
// Internal: promises nothing to users of the library.
#pragma once

#include <cstdint>

namespace zthalf {

std::uint16_t sinhOf(std::uint16_t x);
std::uint16_t coshOf(std::uint16_t x);
std::uint16_t tanhOf(std::uint16_t x);
std::uint16_t asinhOf(std::uint16_t x);
std::uint16_t acoshOf(std::uint16_t x);
std::uint16_t atanhOf(std::uint16_t x);

}  // namespace zthalf

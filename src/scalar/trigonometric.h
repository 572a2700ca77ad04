// Trigonometric functions of a half pattern.
// Internal: promises nothing to users of the library.
#pragma once

#include <cstdint>

namespace zthalf {

// sinpi and cospi are the sine and cosine of pi x.
std::uint16_t sinOf(std::uint16_t x);
std::uint16_t cosOf(std::uint16_t x);
std::uint16_t tanOf(std::uint16_t x);
std::uint16_t sinpiOf(std::uint16_t x);
std::uint16_t cospiOf(std::uint16_t x);

}  // namespace zthalf

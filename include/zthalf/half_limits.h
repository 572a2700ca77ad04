// The limits of half_t. half_t.h includes this file.
#pragma once

#include <limits>

#include "zthalf/half_t.h"

/// The properties of IEEE 754 binary16. `is_iec559` holds: the format is that of the standard, and the operators of
/// half_t give the correctly rounded result of every pair of operands (two roundings, but the second never meets a tie
/// that the first one made). Nothing traps, and no status flag is promised.
template <>
class std::numeric_limits<half_t> {
 public:
  static constexpr bool is_specialized = true;
  static constexpr bool is_signed = true;
  static constexpr bool is_integer = false;
  static constexpr bool is_exact = false;
  static constexpr bool is_bounded = true;
  static constexpr bool is_modulo = false;
  static constexpr bool is_iec559 = true;

  static constexpr int radix = 2;
  static constexpr int digits = 11;       ///< of the significand, the leading one that is not stored among them
  static constexpr int digits10 = 3;      ///< decimal digits that every half gives back
  static constexpr int max_digits10 = 5;  ///< decimal digits that tell all halves apart
  static constexpr int min_exponent = -13;
  static constexpr int max_exponent = 16;
  static constexpr int min_exponent10 = -4;
  static constexpr int max_exponent10 = 4;

  static constexpr bool has_infinity = true;
  static constexpr bool has_quiet_NaN = true;
  static constexpr bool has_signaling_NaN = true;
  static constexpr float_denorm_style has_denorm = denorm_present;
  static constexpr bool has_denorm_loss = false;
  static constexpr float_round_style round_style = round_to_nearest;
  static constexpr bool traps = false;
  static constexpr bool tinyness_before = false;

  static constexpr half_t min() noexcept { return {0x0400}; }      ///< 2^-14, the smallest normal number
  static constexpr half_t max() noexcept { return {0x7BFF}; }      ///< 65504
  static constexpr half_t lowest() noexcept { return {0xFBFF}; }   ///< -65504
  static constexpr half_t epsilon() noexcept { return {0x1400}; }  ///< 2^-10
  static constexpr half_t round_error() noexcept { return {0x3800}; }
  static constexpr half_t infinity() noexcept { return {0x7C00}; }
  static constexpr half_t quiet_NaN() noexcept { return {0x7E00}; }  ///< the NaN of invalid operations
  static constexpr half_t signaling_NaN() noexcept { return {0x7D00}; }
  static constexpr half_t denorm_min() noexcept { return {0x0001}; }  ///< 2^-24
};

// Operands of mixed type: the type in which they meet, and their values there.
#pragma once

#include <cstdint>
#include <type_traits>

#include "core/bits.h"
#include "core/float_conversion.h"
#include "core/nan_policy.h"

namespace zthalf {

// An operand is a half pattern, a float or a double.
template <class T>
inline constexpr bool isHalfOperand = std::is_same_v<T, std::uint16_t>;

template <class... Operands>
inline constexpr bool anyDouble = (std::is_same_v<Operands, double> || ...);

template <class... Operands>
inline constexpr bool anyFloat = (std::is_same_v<Operands, float> || ...);

template <class... Operands>
inline constexpr bool anyHalf = (isHalfOperand<Operands> || ...);

// double if an operand is one, otherwise float.
template <class... Operands>
using widestOf = std::conditional_t<anyDouble<Operands...>, double, float>;

// The operand in a type that holds its value exactly. Of NaNs a float's becomes quiet in double, a half's stays what it
// is.
template <class Wide, class T>
ZTHALF_INLINE Wide exactly(T operand) {
  if constexpr (isHalfOperand<T>) {
    return widen<Wide>(operand);
  } else if constexpr (anyDouble<Wide> && anyFloat<T>) {
    return asDouble(operand);
  } else {
    return static_cast<Wide>(operand);
  }
}

// The operand as a half: what is one stays as it is, a NaN too; the others are rounded.
ZTHALF_INLINE std::uint16_t asHalf(std::uint16_t operand) { return operand; }
ZTHALF_INLINE std::uint16_t asHalf(float operand) { return narrow(operand); }
ZTHALF_INLINE std::uint16_t asHalf(double operand) { return narrow(operand); }

}  // namespace zthalf

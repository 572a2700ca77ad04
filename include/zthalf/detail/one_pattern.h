// What braces around a pattern may hold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <type_traits>

namespace zthalf {

// Compilers only warn of a float variable in braces where an integer is expected. A constructor from a list of such a
// type fits better than the one from patterns, and is deleted.
template <class T>
using enable_if_no_pattern = std::enable_if_t<std::is_floating_point_v<T> || std::is_same_v<T, bool>, int>;

[[gnu::error("braces around a half hold one pattern")]] void moreThanOnePattern() noexcept;

// A list's length is not part of its type. So it is looked at: in a constant expression the call of a function that is
// not constexpr is the error; in other code the compiler reports the call if it still sees one after optimising.
[[gnu::always_inline]] constexpr std::uint16_t onlyPatternOf(std::initializer_list<std::uint16_t> list) noexcept {
  const std::size_t count = list.size();
  if (count > 1) {
    if (__builtin_constant_p(count)) moreThanOnePattern();
    __builtin_trap();
  }
  return count == 0 ? 0 : *list.begin();
}

}  // namespace zthalf

// UTF-8: reading one character at a time, and how much room a text takes on a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace halfscope {

inline constexpr char32_t malformedUtf8 = 0xFFFFFFFF;

// The character that begins at offset, which moves behind it; malformedUtf8, with offset left as it is, where the bytes
// are no character: cut short, longer than needed, a surrogate, or beyond U+10FFFF.
char32_t nextCharacter(std::string_view text, std::size_t& offset);

// The columns a text takes: East Asian wide characters take two, combining marks none.
std::size_t displayWidth(std::string_view text);

// The text cut to at most this many columns, with ".." at its end where something was cut; white space and control
// characters become plain spaces.
std::string shortened(std::string_view text, std::size_t columns);

}  // namespace halfscope

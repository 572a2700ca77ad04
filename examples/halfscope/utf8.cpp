#include "utf8.h"

namespace halfscope {

namespace {

bool isBetween(char32_t c, char32_t first, char32_t last) { return first <= c && c <= last; }

std::size_t columnsOf(char32_t c) {
  const bool combining = isBetween(c, 0x300, 0x36F) || isBetween(c, 0x1AB0, 0x1AFF) || isBetween(c, 0x20D0, 0x20FF) ||
                         isBetween(c, 0x200B, 0x200F) || isBetween(c, 0xFE00, 0xFE0F);
  const bool wide = isBetween(c, 0x1100, 0x115F) || isBetween(c, 0x2E80, 0xA4CF) || isBetween(c, 0xAC00, 0xD7A3) ||
                    isBetween(c, 0xF900, 0xFAFF) || isBetween(c, 0xFE30, 0xFE6F) || isBetween(c, 0xFF00, 0xFF60) ||
                    isBetween(c, 0xFFE0, 0xFFE6) || isBetween(c, 0x1F300, 0x1FAFF) || isBetween(c, 0x20000, 0x3FFFD);
  return combining ? 0 : wide ? 2 : 1;
}

}  // namespace

char32_t nextCharacter(std::string_view text, std::size_t& offset) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(offset);
  if (lead < 0x80) {
    ++offset;
    return lead;
  }
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || offset + length > text.size()) return malformedUtf8;
  char32_t c = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(offset + i) & 0xC0) != 0x80) return malformedUtf8;
    c = (c << 6) | (byte(offset + i) & 0x3Fu);
  }
  constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
  if (c < smallest[length] || c > 0x10FFFF || isBetween(c, 0xD800, 0xDFFF)) return malformedUtf8;
  offset += length;
  return c;
}

std::size_t displayWidth(std::string_view text) {
  std::size_t width = 0;
  for (std::size_t offset = 0; offset < text.size();) {
    const char32_t c = nextCharacter(text, offset);
    if (c == malformedUtf8) ++offset;
    width += c == malformedUtf8 ? 1 : columnsOf(c);
  }
  return width;
}

std::string shortened(std::string_view text, std::size_t columns) {
  std::string plain;
  std::size_t width = 0;
  std::size_t fitting = 0;  // bytes of plain that leave room for the two dots
  for (std::size_t offset = 0; offset < text.size();) {
    const std::size_t start = offset;
    const char32_t c = nextCharacter(text, offset);
    if (c == malformedUtf8) ++offset;
    if (c == malformedUtf8)
      plain += '?';
    else if (c <= 0x20 || isBetween(c, 0x7F, 0x9F))
      plain += ' ';
    else
      plain += text.substr(start, offset - start);
    width += c == malformedUtf8 ? 1 : columnsOf(c);
    if (width + 2 <= columns) fitting = plain.size();
  }
  return width <= columns ? plain : plain.substr(0, fitting) + "..";
}

}  // namespace halfscope

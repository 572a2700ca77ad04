#include "text_file.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "utf8.h"

namespace halfscope {

namespace {

constexpr std::size_t largestFile = std::size_t{1} << 30;

[[noreturn]] void failToRead(std::string const& name, int error) {
  throw inputError(name, "expected a readable CSV file: " + std::generic_category().message(error));
}

std::string allBytes(std::FILE* file, std::string const& name) {
  std::string bytes;
  char block[1 << 16];
  errno = 0;
  while (const std::size_t count = std::fread(block, 1, sizeof block, file)) {
    bytes.append(block, count);
    if (bytes.size() > largestFile) throw inputError(name, "expected at most 1 GiB of text");
  }
  if (std::ferror(file)) failToRead(name, errno);
  return bytes;
}

std::string hexByte(unsigned char byte) {
  char text[8];
  std::snprintf(text, sizeof text, "0x%02X", static_cast<unsigned>(byte));
  return text;
}

// Control characters are refused for two reasons: a file that has them is hardly a table, and column names reach the
// user's terminal.
void expectText(textFile const& file) {
  std::string_view text = file.text;
  for (std::size_t offset = 0; offset < text.size();) {
    const std::size_t start = offset;
    const char32_t c = nextCharacter(text, offset);
    const auto byte = static_cast<unsigned char>(text[start]);
    if (c == malformedUtf8)
      throw inputError(file.name, locate(text, start), "expected UTF-8 text, found the byte " + hexByte(byte));
    const bool allowed = c == '\t' || c == '\n' || c == '\r' || (c >= 0x20 && c < 0x7F) || c > 0x9F;
    if (!allowed)
      throw inputError(file.name, locate(text, start), "expected text, found the control character " + hexByte(byte));
  }
}

}  // namespace

textFile readTextFile(std::string const& path) {
  textFile file;
  if (path == "-") {
    file.name = "standard input";
    file.text = allBytes(stdin, file.name);
  } else {
    file.name = shortened(path, path.size());  // the same, but printable
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored))
      throw inputError(file.name, "expected a CSV file, found a directory");
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> handle(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (!handle) failToRead(file.name, errno);
    file.text = allBytes(handle.get(), file.name);
  }
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (file.text.compare(0, byteOrderMark.size(), byteOrderMark) == 0) file.text.erase(0, byteOrderMark.size());
  expectText(file);
  return file;
}

position locate(std::string_view text, std::size_t offset) {
  position where;
  for (std::size_t i = 0; i < offset; ++i) {
    const bool lineEnd = text[i] == '\n' || (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n'));
    const bool continuation = (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
    if (lineEnd) {
      ++where.line;
      where.column = 1;
    } else if (!continuation) {
      ++where.column;
    }
  }
  return where;
}

}  // namespace halfscope

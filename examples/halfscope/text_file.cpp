#include "text_file.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <new>
#include <system_error>

#include "progress.h"
#include "utf8.h"

namespace halfscope {

namespace {

constexpr std::size_t largestFile = std::size_t{1} << 30;

[[noreturn]] void failToRead(std::string const& name, int error) {
  throw inputError(name, "expected a readable CSV file: " + std::generic_category().message(error));
}

// How large a file will be: known for a regular file, 0 for a pipe. Text that grew by doubling would need up to three
// times its size for a moment.
std::size_t sizeOf(std::FILE* file) {
  struct stat facts {};
  const bool regular = fstat(fileno(file), &facts) == 0 && S_ISREG(facts.st_mode);
  return regular ? std::min(static_cast<std::size_t>(facts.st_size), largestFile) : 0;
}

std::string allBytes(std::FILE* file, std::string const& name) {
  const std::size_t size = sizeOf(file);
  std::string bytes;
  try {
    bytes.reserve(size + 1);
    char block[1 << 16];
    errno = 0;
    while (const std::size_t count = std::fread(block, 1, sizeof block, file)) {
      bytes.append(block, count);
      if (bytes.size() > largestFile) throw inputError(name, "expected at most 1 GiB of text");
      progress::show("reading " + name, bytes.size(), size);
    }
  } catch (std::bad_alloc const&) {
    throw memoryError(name, 3 * std::max(size, bytes.size()));  // text, numbers, and what is made of them
  }
  if (std::ferror(file)) failToRead(name, errno);
  return bytes;
}

std::string inHex(char const* format, std::uint32_t number) {
  char text[16];
  std::snprintf(text, sizeof text, format, static_cast<unsigned>(number));
  return text;
}

// Whether a byte is a character that any text may have; of two values so that many can be looked at in one go.
unsigned char isPlain(unsigned char byte) {
  const bool isPrintable = static_cast<unsigned char>(byte - 0x20) < 0x5F;
  return static_cast<unsigned char>(isPrintable | (byte == '\t') | (byte == '\n') | (byte == '\r'));
}

// Whether all of a block is what almost all of any table is. No early end: so the loop runs in vector lanes.
bool isPlain(std::string_view block) {
  unsigned char all = 1;
  for (const char c : block) all &= isPlain(static_cast<unsigned char>(c));
  return all != 0;
}

// Control characters are refused for two reasons: a file that has them is hardly a table, and column names reach the
// user's terminal.
void expectText(textFile const& file) {
  constexpr std::size_t blockSize = 4096;
  const std::string_view text = file.text;
  for (std::size_t offset = 0; offset < text.size();) {
    const std::string_view block = text.substr(offset, blockSize);
    if (isPlain(block)) {
      offset += block.size();
      continue;
    }
    for (const std::size_t end = offset + block.size(); offset < end;) {
      const std::size_t start = offset;
      const auto byte = static_cast<unsigned char>(text[start]);
      const char32_t c = nextCharacter(text, offset);
      if (c == malformedUtf8)
        throw inputError(file.name, locate(text, start),
                         "expected UTF-8 text, found the byte " + inHex("0x%02X", byte));
      if (isPlain(byte) == 0 && c <= 0x9F)
        throw inputError(file.name, locate(text, start),
                         "expected text, found the control character " + inHex("U+%04X", c));
    }
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

// Reading a whole text file, with everything refused that is not text.
#pragma once

#include <string>
#include <string_view>

#include "input_error.h"

namespace halfscope {

struct textFile {
  std::string name;  // as messages call it
  std::string text;  // valid UTF-8 without a byte order mark and without control characters but tab and line ends
};

// The file at a path; "-" is the standard input. Throws inputError.
textFile readTextFile(std::string const& path);

// Where a byte offset lies. Lines end with LF, CR LF or CR.
position locate(std::string_view text, std::size_t offset);

}  // namespace halfscope

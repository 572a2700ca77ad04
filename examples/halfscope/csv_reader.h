// Comma-separated values, record by record. Fields may be quoted, with quotes doubled inside and line ends kept; spaces
// around a field do not count.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "text_file.h"

namespace halfscope {

struct field {
  std::string_view text;   // without the spaces around it, quotes removed; lives until the next record is read
  std::size_t offset = 0;  // where it begins in the file
  bool quoted = false;
};

// For messages about tables of the kind that is written where a comma stands in numbers.
inline constexpr char const* semicolonHint =
    "; columns must be separated by commas and numbers have a point: tr ',;' '.,' makes them so of decimal commas and "
    "semicolons";

using record = std::vector<field>;

// A line with nothing on it.
inline bool isBlankLine(record const& r) { return r.size() == 1 && r[0].text.empty() && !r[0].quoted; }

class csvReader {
 public:
  explicit csvReader(textFile const& file) : file_(file), text_(file.text) {}  // the file must outlive the reader

  // The next record, blank lines included; false at the end. Throws inputError.
  bool next(record& out);

  // Where the record last read ends.
  std::size_t recordEnd() const { return recordEnd_; }
  position locate(std::size_t offset) const { return halfscope::locate(text_, offset); }
  [[noreturn]] void fail(std::size_t offset, std::string const& what) const;

 private:
  void skipSpaces();
  void readQuoted(field& out);
  void readPlain(field& out);
  void skipLineEnd();

  textFile const& file_;
  std::string_view text_;
  std::size_t offset_ = 0;
  std::size_t recordEnd_ = 0;
  std::deque<std::string> unquoted_;  // the fields of this record that do not stand in the file as they are
};

}  // namespace halfscope

#include "csv_reader.h"

namespace halfscope {

namespace {

bool isSpace(char c) { return c == ' ' || c == '\t'; }
bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

}  // namespace

void csvReader::fail(std::size_t offset, std::string const& what) const {
  throw inputError(file_.name, locate(offset), what);
}

bool csvReader::next(record& out) {
  out.clear();
  std::string const& text = file_.text;
  if (offset_ == text.size()) return false;
  for (;;) {
    skipSpaces();
    field f;
    f.offset = offset_;
    if (offset_ < text.size() && text[offset_] == '"')
      readQuoted(f);
    else
      readPlain(f);
    out.push_back(std::move(f));
    recordEnd_ = offset_;
    if (offset_ == text.size()) return true;
    if (isLineEnd(text[offset_])) {
      skipLineEnd();
      return true;
    }
    ++offset_;  // the comma
  }
}

void csvReader::skipSpaces() {
  while (offset_ < file_.text.size() && isSpace(file_.text[offset_])) ++offset_;
}

void csvReader::readQuoted(field& out) {
  std::string const& text = file_.text;
  out.quoted = true;
  for (;;) {
    ++offset_;
    const std::size_t quote = text.find('"', offset_);
    if (quote == std::string::npos) fail(out.offset, "expected a closing quote for the field that begins here");
    out.text.append(text, offset_, quote - offset_);
    offset_ = quote + 1;
    if (offset_ == text.size() || text[offset_] != '"') break;
    out.text += '"';
  }
  skipSpaces();
  if (offset_ < text.size() && text[offset_] != ',' && !isLineEnd(text[offset_]))
    fail(offset_, "expected a comma or the end of the line after the closing quote");
}

void csvReader::readPlain(field& out) {
  std::string const& text = file_.text;
  const std::size_t end = text.find_first_of(",\r\n", offset_);
  offset_ = end == std::string::npos ? text.size() : end;
  std::size_t last = offset_;
  while (last > out.offset && isSpace(text[last - 1])) --last;
  out.text.assign(text, out.offset, last - out.offset);
}

void csvReader::skipLineEnd() {
  std::string const& text = file_.text;
  const bool two = text[offset_] == '\r' && offset_ + 1 < text.size() && text[offset_ + 1] == '\n';
  offset_ += two ? 2 : 1;
}

}  // namespace halfscope

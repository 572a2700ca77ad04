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
  unquoted_.clear();
  if (offset_ == text_.size()) return false;
  for (;;) {
    skipSpaces();
    field f;
    f.offset = offset_;
    if (offset_ < text_.size() && text_[offset_] == '"')
      readQuoted(f);
    else
      readPlain(f);
    out.push_back(f);
    recordEnd_ = offset_;
    if (offset_ == text_.size()) return true;
    if (isLineEnd(text_[offset_])) {
      skipLineEnd();
      return true;
    }
    ++offset_;  // the comma
  }
}

void csvReader::skipSpaces() {
  while (offset_ < text_.size() && isSpace(text_[offset_])) ++offset_;
}

// Most quoted fields stand in the file as they are; only one with quotes inside is put together anew.
void csvReader::readQuoted(field& out) {
  out.quoted = true;
  std::string* together = nullptr;
  for (;;) {
    ++offset_;
    const std::size_t quote = text_.find('"', offset_);
    if (quote == std::string::npos) fail(out.offset, "expected a closing quote for the field that begins here");
    const std::string_view part = text_.substr(offset_, quote - offset_);
    offset_ = quote + 1;
    const bool doubled = offset_ < text_.size() && text_[offset_] == '"';
    if (doubled && together == nullptr) together = &unquoted_.emplace_back();
    if (together != nullptr) together->append(part).append(doubled ? 1 : 0, '"');
    out.text = together != nullptr ? std::string_view(*together) : part;
    if (!doubled) break;
  }
  skipSpaces();
  if (offset_ < text_.size() && text_[offset_] != ',' && !isLineEnd(text_[offset_]))
    fail(offset_, std::string("expected a comma or the end of the line after the closing quote") +
                      (text_[offset_] == ';' ? semicolonHint : ""));
}

void csvReader::readPlain(field& out) {
  std::size_t end = offset_;
  while (end < text_.size() && text_[end] != ',' && !isLineEnd(text_[end])) ++end;
  offset_ = end;
  while (end > out.offset && isSpace(text_[end - 1])) --end;
  out.text = text_.substr(out.offset, end - out.offset);
}

void csvReader::skipLineEnd() {
  const bool two = text_[offset_] == '\r' && offset_ + 1 < text_.size() && text_[offset_ + 1] == '\n';
  offset_ += two ? 2 : 1;
}

}  // namespace halfscope

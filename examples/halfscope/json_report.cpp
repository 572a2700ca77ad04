#include "json_report.h"

#include <charconv>
#include <cmath>

namespace halfscope {

namespace {

// Writes members and elements in order, with commas and line breaks where they belong.
class jsonWriter {
 public:
  void open(char bracket) {
    separate();
    text_ += bracket;
    first_ = true;
    ++depth_;
  }
  void close(char bracket) {
    --depth_;
    if (!first_) breakLine();
    text_ += bracket;
    first_ = false;
  }
  void key(std::string const& name) {
    separate();
    appendString(name);
    text_ += ": ";
    afterKey_ = true;
  }
  void write(std::string const& value) {
    separate();
    appendString(value);
  }
  void write(std::monostate) {
    separate();
    text_ += "null";
  }
  void write(long long value) {
    separate();
    text_ += std::to_string(value);
  }
  void write(double value) {
    if (!std::isfinite(value))
      return write(std::string(std::isnan(value) ? "NaN" : value < 0 ? "-Infinity" : "Infinity"));
    separate();
    char digits[32];
    text_.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
  }
  void write(cell const& c) {
    std::visit([this](auto const& value) { write(value); }, c.value);
  }

  std::string finish() { return std::move(text_) + '\n'; }

 private:
  void separate() {
    if (!afterKey_ && depth_ > 0) {
      if (!first_) text_ += ',';
      breakLine();
    }
    afterKey_ = false;
    first_ = false;
  }
  void breakLine() { text_.append(1, '\n').append(2 * depth_, ' '); }

  void appendString(std::string const& value) {
    text_ += '"';
    for (const char c : value) {
      if (c == '"' || c == '\\') {
        (text_ += '\\') += c;
      } else if (static_cast<unsigned char>(c) < 0x20) {
        constexpr char hex[] = "0123456789abcdef";
        (((text_ += "\\u00") += hex[c >> 4]) += hex[c & 15]);
      } else {
        text_ += c;
      }
    }
    text_ += '"';
  }

  std::string text_;
  std::size_t depth_ = 0;
  bool first_ = true;
  bool afterKey_ = false;
};

template <class T>
void member(jsonWriter& json, std::string const& name, T const& value) {
  json.key(name);
  json.write(value);
}

void writeSection(jsonWriter& json, section const& s) {
  json.key(s.key);
  json.open('{');
  for (auto const& [name, value] : s.settings) member(json, name, value);
  json.key(s.rowsKey);
  json.open('[');
  for (auto const& row : s.rows) {
    json.open('{');
    for (std::size_t j = 0; j < row.size(); ++j) member(json, s.headings[j].key, row[j]);
    json.close('}');
  }
  json.close(']');
  member(json, "notice", s.notice);
  json.close('}');
}

void writeSummary(jsonWriter& json, summary const& s) {
  json.key("summary");
  json.open('{');
  member(json, "losing_column_count", s.losing);
  member(json, "rounded_column_count", s.rounded);
  member(json, "exact_column_count", s.exact);
  json.key("worst_column");
  if (s.worst.empty())
    json.write(std::monostate{});
  else
    json.write(s.worst);
  member(json, "verdict", s.verdict);
  for (finding const& f : s.findings) member(json, f.key, f.text);
  json.close('}');
}

void writeFile(jsonWriter& json, fileReport const& file) {
  json.open('{');
  member(json, "file", file.name);
  member(json, "rows", static_cast<long long>(file.rows));
  json.key("skipped");
  json.open('[');
  for (skippedColumn const& s : file.skipped) {
    json.open('{');
    member(json, "column", s.name);
    member(json, "reason", s.reason);
    json.close('}');
  }
  json.close(']');
  writeSummary(json, file.inShort);
  for (section const& s : file.sections) writeSection(json, s);
  json.close('}');
}

}  // namespace

std::string jsonReport(report const& r) {
  jsonWriter json;
  json.open('{');
  member(json, "format", reportFormat);
  member(json, "halfscope", std::string(HALFSCOPE_VERSION));
  json.key("files");
  json.open('[');
  for (fileReport const& file : r.files) writeFile(json, file);
  json.close(']');
  if (r.speed) writeSection(json, *r.speed);
  json.close('}');
  return json.finish();
}

}  // namespace halfscope

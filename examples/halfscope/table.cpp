#include "table.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "csv_reader.h"
#include "number.h"
#include "utf8.h"

namespace halfscope {

namespace {

constexpr double missingValue = std::numeric_limits<double>::quiet_NaN();

std::string quoted(std::string const& text) { return '\'' + shortened(text, 32) + '\''; }

struct growingColumn {
  enum class kind { undecided, numeric, text };

  std::string name;
  kind is = kind::undecided;
  std::vector<double> values;  // of a numeric column, or the missing ones of an undecided one

  void add(csvReader const& reader, field const& f) {
    if (is == kind::text) return;
    if (isMissing(f.text)) {
      values.push_back(missingValue);
      return;
    }
    const auto value = parseNumber(f.text);
    if (!value && is == kind::numeric)
      reader.fail(f.offset, "expected a number, or nothing for a missing value, in the numeric column " + quoted(name) +
                                ", found " + quoted(f.text));
    is = value ? kind::numeric : kind::text;
    if (value) values.push_back(*value);
  }
};

std::vector<growingColumn> readHeader(csvReader& reader) {
  record header;
  while (reader.next(header) && isBlankLine(header)) continue;
  if (header.empty() || isBlankLine(header)) reader.fail(0, "expected a line of column names, found an empty file");
  const bool onlyNumbers = std::all_of(
      header.begin(), header.end(), [](field const& f) { return parseNumber(f.text).has_value() || f.text.empty(); });
  const bool anyName = std::any_of(header.begin(), header.end(), [](field const& f) { return !f.text.empty(); });
  if (onlyNumbers && anyName) reader.fail(header[0].offset, "expected a line of column names, found only numbers");
  std::vector<growingColumn> columns(header.size());
  for (std::size_t j = 0; j < header.size(); ++j)
    columns[j].name = header[j].text.empty() ? "column " + std::to_string(j + 1) : header[j].text;
  return columns;
}

void addRow(csvReader const& reader, record const& row, std::vector<growingColumn>& columns) {
  if (row.size() != columns.size()) {
    const bool tooMany = row.size() > columns.size();
    const std::string expected = std::to_string(columns.size()) + (columns.size() == 1 ? " field" : " fields");
    reader.fail(tooMany ? row[columns.size()].offset : reader.recordEnd(),
                "expected " + expected + " as in the line of column names, found " + std::to_string(row.size()));
  }
  for (std::size_t j = 0; j < row.size(); ++j) columns[j].add(reader, row[j]);
}

}  // namespace

table readTable(textFile const& file) {
  csvReader reader(file);
  std::vector<growingColumn> columns = readHeader(reader);
  std::size_t rows = 0;
  std::size_t blankLines = 0;  // not yet followed by a row
  record row;
  const record missing(1);
  while (reader.next(row)) {
    if (isBlankLine(row)) {
      ++blankLines;
      continue;
    }
    // With one column, a blank line between rows can only be a missing value.
    for (; columns.size() == 1 && blankLines > 0; --blankLines, ++rows) addRow(reader, missing, columns);
    blankLines = 0;
    addRow(reader, row, columns);
    ++rows;
  }
  if (rows == 0) reader.fail(file.text.size(), "expected at least one row of values after the column names");

  table result;
  result.name = file.name;
  for (growingColumn const& c : columns) {
    if (c.is == growingColumn::kind::numeric)
      result.columnNames.push_back(c.name);
    else
      result.skipped.push_back({c.name, c.is == growingColumn::kind::text ? "text" : "no values"});
  }
  if (result.columnNames.empty()) {
    const bool otherSeparator = columns.size() == 1 && columns[0].name.find_first_of(";\t|") != std::string::npos;
    reader.fail(0, std::string("expected at least one column of numbers, found none") +
                       (otherSeparator ? "; columns must be separated by commas" : ""));
  }
  result.values = matrix(rows, result.columnNames.size());
  std::size_t j = 0;
  for (growingColumn& c : columns) {
    if (c.is == growingColumn::kind::numeric) std::copy(c.values.begin(), c.values.end(), result.values.column(j++));
    c.values = {};
  }
  return result;
}

std::optional<table> withColumns(table const& t, std::vector<std::string> const& names) {
  const auto wanted = [&](std::string const& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  };
  for (skippedColumn const& s : t.skipped) {
    if (wanted(s.name))
      throw inputError(t.name, "expected a numeric column, but " + quoted(s.name) + " has " +
                                   (s.reason == "text" ? "text in it" : "no values"));
  }
  table result;
  result.name = t.name;
  for (std::size_t j = 0; j < t.columnNames.size(); ++j) {
    if (!wanted(t.columnNames[j])) continue;
    result.columnNames.push_back(t.columnNames[j]);
    result.values.cells.insert(result.values.cells.end(), t.values.column(j), t.values.column(j) + t.values.rows);
  }
  result.values.rows = t.values.rows;
  result.values.columns = result.columnNames.size();
  if (result.columnNames.empty()) return std::nullopt;
  return result;
}

}  // namespace halfscope

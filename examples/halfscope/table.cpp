#include "table.h"

#include <algorithm>
#include <new>

#include "csv_reader.h"
#include "number.h"
#include "utf8.h"

namespace halfscope {

namespace {

constexpr std::size_t moderate = std::size_t{1} << 18;  // elements of a matrix

std::string quoted(std::string_view text) { return '\'' + shortened(text, 32) + '\''; }

struct growingColumn : numericColumn {
  enum class kind { undecided, numeric, text };

  kind is = kind::undecided;  // the values of an undecided one are missing ones

  void add(csvReader const& reader, field const& f, std::size_t rowsAtMost) {
    if (is == kind::text) return;
    const reading r = readCell(f.text);
    if (is == kind::undecided && r.is != reading::kind::missing)
      is = r.is == reading::kind::number ? kind::numeric : kind::text;
    if (r.is == reading::kind::text) {
      if (is == kind::numeric)
        reader.fail(f.offset, "expected a number, or nothing for a missing value, in the numeric column " +
                                  quoted(name) + ", found " + quoted(f.text));
      values = {};
      return;
    }
    if (values.empty()) values.reserve(rowsAtMost);  // growing would need more than twice the room for a moment
    values.push_back(r.value);
    beyond += r.beyond;
  }
};

std::vector<growingColumn> readHeader(csvReader& reader) {
  record header;
  while (reader.next(header) && isBlankLine(header)) continue;
  if (header.empty() || isBlankLine(header)) reader.fail(0, "expected a line of column names, found an empty file");
  const auto isName = [](field const& f) { return readCell(f.text).is == reading::kind::text || f.text == "NA"; };
  const auto isSomething = [](field const& f) { return !f.text.empty(); };
  if (std::none_of(header.begin(), header.end(), isName) && std::any_of(header.begin(), header.end(), isSomething))
    reader.fail(header[0].offset, "expected a line of column names, found only numbers");
  std::vector<growingColumn> columns(header.size());
  for (std::size_t j = 0; j < header.size(); ++j)
    columns[j].name = header[j].text.empty() ? "column " + std::to_string(j + 1) : std::string(header[j].text);
  return columns;
}

// Where a single column was found because something else than commas is between the names.
bool hasOtherSeparator(std::vector<growingColumn> const& columns) {
  return columns.size() == 1 && columns[0].name.find_first_of(";\t|") != std::string::npos;
}

void addRow(csvReader const& reader, record const& row, std::vector<growingColumn>& columns, std::size_t rowsAtMost) {
  if (row.size() != columns.size()) {
    const bool tooMany = row.size() > columns.size();
    const std::string expected = std::to_string(columns.size()) + (columns.size() == 1 ? " field" : " fields");
    const bool semicolons = tooMany && hasOtherSeparator(columns) && columns[0].name.find(';') != std::string::npos;
    reader.fail(tooMany ? row[columns.size()].offset : reader.recordEnd(),
                "expected " + expected + " as in the line of column names, found " + std::to_string(row.size()) +
                    (semicolons ? semicolonHint : ""));
  }
  for (std::size_t j = 0; j < row.size(); ++j) columns[j].add(reader, row[j], rowsAtMost);
}

struct grownTable {
  std::vector<growingColumn> columns;
  std::size_t rows = 0;
};

grownTable readRows(csvReader& reader, textFile const& file) {
  grownTable t{readHeader(reader), 0};
  // About as many rows as line ends of either kind, and no more than fit with all their commas.
  const auto count = [&](char c) {
    return static_cast<std::size_t>(std::count(file.text.begin(), file.text.end(), c));
  };
  const std::size_t rowsAtMost = std::min(std::max(count('\n'), count('\r')), file.text.size() / t.columns.size()) + 1;
  std::size_t blankLines = 0;  // not yet followed by a row
  record row;
  const record missing(1);
  while (reader.next(row)) {
    if (isBlankLine(row)) {
      ++blankLines;
      continue;
    }
    // With one column, a blank line between rows can only be a missing value.
    for (; t.columns.size() == 1 && blankLines > 0; --blankLines, ++t.rows)
      addRow(reader, missing, t.columns, rowsAtMost);
    blankLines = 0;
    addRow(reader, row, t.columns, rowsAtMost);
    if (++t.rows % 4096 == 0)
      progress::show("taking in the numbers of " + file.name, reader.recordEnd(), file.text.size());
  }
  if (t.rows == 0) reader.fail(file.text.size(), "expected at least one row of values after the column names");
  return t;
}

// A double for each field, and beside them the text or, after it, a hundred bytes for each row of one column.
std::size_t memoryFor(std::string const& text) {
  const auto count = [&](char c) { return static_cast<std::size_t>(std::count(text.begin(), text.end(), c)); };
  const std::size_t lines = std::max(count('\n'), count('\r'));
  return (lines + count(',')) * sizeof(double) + std::max(text.size(), 100 * lines);
}

}  // namespace

table readTable(textFile file) {
  csvReader reader(file);
  grownTable grown;
  try {
    grown = readRows(reader, file);
  } catch (std::bad_alloc const&) {
    throw memoryError(file.name, memoryFor(file.text));
  }
  table result{file.name, grown.rows, {}, {}};
  for (growingColumn& c : grown.columns) {
    if (c.is == growingColumn::kind::numeric)
      result.columns.push_back(std::move(c));
    else
      result.skipped.push_back({c.name, c.is == growingColumn::kind::text ? "text" : "no values"});
  }
  if (result.columns.empty())
    reader.fail(0, std::string("expected at least one column of numbers, found none") +
                       (hasOtherSeparator(grown.columns) ? "; columns must be separated by commas" : ""));
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
  table result{t.name, t.rows, {}, {}};
  for (numericColumn const& c : t.columns) {
    if (wanted(c.name)) result.columns.push_back(c);
  }
  if (result.columns.empty()) return std::nullopt;
  return result;
}

tablePart wholeColumns(table const& t, std::size_t first) {
  const std::size_t count = std::min(t.columns.size() - first, std::max<std::size_t>(1, moderate / t.rows));
  tablePart part{t.columns.data() + first, 0, true, matrix(t.rows, count)};
  for (std::size_t j = 0; j < count; ++j)
    std::copy(part.columns[j].values.begin(), part.columns[j].values.end(), part.values.column(j));
  return part;
}

tablePart partOf(table const& t, std::size_t firstColumn, std::size_t firstRow) {
  constexpr std::size_t rowsAtMost = std::size_t{1} << 14;  // with what is made of them, they stay in a cache
  if (t.rows <= moderate) return wholeColumns(t, firstColumn);
  const std::size_t rows = std::min(rowsAtMost, t.rows - firstRow);
  double const* const values = t.columns[firstColumn].values.data() + firstRow;
  tablePart part{t.columns.data() + firstColumn, firstRow, firstRow + rows == t.rows, matrix(rows, 1)};
  std::copy(values, values + rows, part.values.cells.begin());
  return part;
}

}  // namespace halfscope

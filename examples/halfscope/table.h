// A CSV file as numbers: its numeric columns.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "matrix.h"
#include "progress.h"
#include "text_file.h"

namespace halfscope {

struct numericColumn {
  std::string name;
  std::vector<double> values;  // a missing value is a NaN
  long long beyond = 0;        // numbers that double has no place for; see number.h for what stands for them
};

struct skippedColumn {
  std::string name;
  std::string reason;
};

struct table {
  std::string name;
  std::size_t rows = 0;
  std::vector<numericColumn> columns;
  std::vector<skippedColumn> skipped;
};

// The first line that is not blank names the columns. A column whose first cell with something in it is not a number is
// text, and skipped; in any other column every cell is a number or missing. Takes the file, since its text is let go
// when the numbers are known. Throws inputError and memoryError.
table readTable(textFile file);

// The table with only the columns of these names, in the table's order; nothing where it has none of them. Throws
// inputError for a column that is not numeric.
std::optional<table> withColumns(table const& t, std::vector<std::string> const& names);

// Neighbouring columns of a table as one matrix, or some of the rows of one column.
struct tablePart {
  numericColumn const* columns;
  std::size_t firstRow;
  bool hasLastRow;
  matrix values;
};

// The columns from first on, whole: as many as make a matrix of moderate size, but at least one.
tablePart wholeColumns(table const& t, std::size_t first);

// The rows from firstRow on of one column, or whole columns where that is a matrix of moderate size.
tablePart partOf(table const& t, std::size_t firstColumn, std::size_t firstRow);

// Calls work(part) for all parts of a table, column after column, each from its first row to its last. A part at a
// time, so that all that is made of the numbers on the way stays small beside them, and near.
template <class Work>
void forEachPart(table const& t, std::string const& what, Work work) {
  for (std::size_t column = 0, row = 0; column < t.columns.size();) {
    progress::show(what, column, t.columns.size());
    const tablePart part = partOf(t, column, row);
    work(part);
    row = part.hasLastRow ? 0 : row + part.values.rows;
    if (part.hasLastRow) column += part.values.columns;
  }
}

// The same with nothing but whole columns, for what cannot be found out of some of the rows.
template <class Work>
void forWholeColumns(table const& t, std::string const& what, Work work) {
  for (std::size_t column = 0; column < t.columns.size();) {
    progress::show(what, column, t.columns.size());
    const tablePart part = wholeColumns(t, column);
    work(part);
    column += part.values.columns;
  }
}

}  // namespace halfscope

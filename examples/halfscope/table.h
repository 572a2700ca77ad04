// A CSV file as numbers: its numeric columns as one matrix.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "matrix.h"
#include "text_file.h"

namespace halfscope {

struct skippedColumn {
  std::string name;
  std::string reason;
};

struct table {
  std::string name;
  std::vector<std::string> columnNames;  // of the numeric columns
  matrix values;                         // a missing value is a NaN
  std::vector<skippedColumn> skipped;
};

// The first line that is not blank names the columns. A column whose first cell with something in it is not a number is
// text, and skipped; in any other column every cell is a number or missing. Throws inputError.
table readTable(textFile const& file);

// The table with only the columns of these names, in the table's order; nothing where it has none of them. Throws
// inputError for a column that is not numeric.
std::optional<table> withColumns(table const& t, std::vector<std::string> const& names);

}  // namespace halfscope

#include "options.h"

#include "csv_reader.h"

namespace halfscope {

namespace {

// The list is one record of CSV, so that names with commas can be quoted.
void addColumns(std::string const& list, options& out) {
  const textFile text{"--columns", list};
  csvReader reader(text);
  record names;
  if (!reader.next(names)) throw usageError("--columns wants names, separated by commas");
  for (field const& f : names) {
    if (f.text.empty()) throw usageError("--columns has an empty name in '" + list + "'");
    out.columns.push_back(f.text);
  }
}

}  // namespace

options parseOptions(int count, char** arguments) {
  const std::string columnsOption = "--columns";
  options out;
  bool onlyFiles = false;
  for (int i = 1; i < count; ++i) {
    const std::string argument = arguments[i];
    if (onlyFiles || argument == "-" || argument.empty() || argument[0] != '-') {
      out.files.push_back(argument);
    } else if (argument == "--") {
      onlyFiles = true;
    } else if (argument == "--help" || argument == "-h") {
      out.help = true;
    } else if (argument == "--json") {
      out.json = true;
    } else if (argument == "--no-speed") {
      out.speed = false;
    } else if (argument == columnsOption) {
      if (++i == count) throw usageError("--columns wants names, separated by commas");
      addColumns(arguments[i], out);
    } else if (argument.compare(0, columnsOption.size() + 1, columnsOption + '=') == 0) {
      addColumns(argument.substr(columnsOption.size() + 1), out);
    } else {
      throw usageError("there is no option '" + argument + "'");
    }
  }
  return out;
}

std::string helpText() {
  return R"(usage: halfscope [options] [file.csv ...]

Shows what half precision (IEEE 754 binary16: 11 significant bits, up to 65504) does to the numbers of CSV files, and
how fast the library works on them. Without a file it looks at three tables of public data; "-" is the standard input.

  --columns A,B   only these columns; a name with a comma goes in double quotes
  --json          the same for machines, with all columns of all tables
  --no-speed      no measurement: the output is then the same at every run
  --help, -h      this text

A file is UTF-8 text with commas between fields and column names in its first line. A column whose first value is not a
number is taken for text and skipped. An empty cell, NA or nan is a missing value. Numbers are decimal, with a point and
an exponent if need be, or inf.

The text is as wide as the terminal, or as COLUMNS says, and 100 columns where it goes elsewhere. NO_COLOR turns colour
off.

Exit status: 0 when all went well, 2 for a wrong command line or an input that cannot be used (file, line and column are
told on standard error, and nothing is written to standard output), 1 when the output could not be written or memory ran
out.

Words in the tables:
  exact       values that are halves already, in percent
  to inf      finite values that became infinite; to zero: values other than zero that became zero
  subnormal   halves below 2^-14, which have fewer digits
  ulp         unit in the last place: the distance between neighbouring halves; rounding is off by half of one at most
  nearest     deviations that are the nearest half to the deviation in double precision, in percent
  half-double what stands on either side of value - mean: values in half and the mean in double
  typical     the median
  cycles      how often the strongest wave in a column's deviations from a straight line goes up and down in all rows;
              share: its part in their mean square; amplitude: how far it goes to either side
  half sums   a mean whose sum is rounded to half after every addition; single and double sums: rounded at the end
  GB/s        bytes read and written; memcpy is timed for as many of them
)";
}

}  // namespace halfscope

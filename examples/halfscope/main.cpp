// halfscope: what half precision does to the numbers of CSV files.
#include <cstdio>
#include <exception>
#include <string>
#include <utility>

#include "json_report.h"
#include "options.h"
#include "steps/steps.h"
#include "text_report.h"
#include "utf8.h"

namespace halfscope {

namespace {

std::vector<table> readTables(std::vector<std::string> const& paths) {
  std::vector<table> tables;
  for (std::string const& path : paths) tables.push_back(readTable(readTextFile(path)));
  if (!paths.empty()) return tables;
  for (std::string const name : {"elnino.csv", "co2.csv", "sunspots.csv"}) {
    tables.push_back(readTable(readTextFile(HALFSCOPE_DATA "/" + name)));
    tables.back().name = name;
  }
  return tables;
}

// The selected columns of all tables; a table that has none of them is left out, a column that no table has is an
// error.
std::vector<table> select(std::vector<table> tables, std::vector<std::string> const& names) {
  std::vector<table> selected;
  for (table const& t : tables) {
    if (auto part = withColumns(t, names)) selected.push_back(std::move(*part));
  }
  for (std::string const& name : names) {
    bool found = false;
    for (table const& t : selected)
      for (std::string const& column : t.columnNames) found = found || column == name;
    if (found) continue;
    std::string known;
    for (table const& t : tables)
      for (std::string const& column : t.columnNames) known += (known.empty() ? "" : ", ") + shortened(column, 24);
    throw usageError("no file has a column '" + shortened(name, 32) + "'; there are: " + known);
  }
  return selected;
}

report examine(options const& chosen) {
  std::vector<table> tables = readTables(chosen.files);
  if (!chosen.columns.empty()) tables = select(std::move(tables), chosen.columns);

  report result;
  for (table const& t : tables) {
    fileReport file{t.name, t.values.rows, t.values.columns, t.skipped, {}};
    for (auto const& step : steps) file.sections.push_back(step(t));
    result.files.push_back(std::move(file));
  }
  if (chosen.speed) {
    table const* largest = &tables[0];
    for (table const& t : tables) {
      if (t.values.columns > largest->values.columns) largest = &t;
    }
    result.speed = speedStep(*largest);
  }
  return result;
}

// Everything or nothing: the report is complete before its first character is written.
int write(std::string const& text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
  if (!written) std::fprintf(stderr, "halfscope: the output could not be written\n");
  return written ? 0 : 1;
}

int run(int count, char** arguments) {
  const options chosen = parseOptions(count, arguments);
  if (chosen.help) return write(helpText());
  const report result = examine(chosen);
  return write(chosen.json ? jsonReport(result) : textReport(result, standardOutput()));
}

}  // namespace

}  // namespace halfscope

int main(int count, char** arguments) {
  try {
    return halfscope::run(count, arguments);
  } catch (halfscope::usageError const& error) {
    std::fprintf(stderr, "halfscope: %s\nTry --help.\n", error.what());
    return 2;
  } catch (halfscope::inputError const& error) {
    std::fprintf(stderr, "halfscope: %s\n", error.what());
    return 2;
  } catch (std::exception const& error) {
    std::fprintf(stderr, "halfscope: %s\n", error.what());
    return 1;
  }
}

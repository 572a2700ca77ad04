// halfscope: what half precision does to the numbers of CSV files.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <functional>
#include <future>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

#include "json_report.h"
#include "options.h"
#include "progress.h"
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
std::vector<table> select(std::vector<table> const& tables, std::vector<std::string> const& names) {
  std::vector<table> selected;
  for (table const& t : tables) {
    if (auto part = withColumns(t, names)) selected.push_back(std::move(*part));
  }
  for (std::string const& name : names) {
    bool found = false;
    for (table const& t : selected)
      for (numericColumn const& c : t.columns) found = found || c.name == name;
    if (found) continue;
    std::string known;
    for (table const& t : tables)
      for (numericColumn const& c : t.columns) known += (known.empty() ? "" : ", ") + shortened(c.name, 24);
    throw usageError("no file has a column '" + shortened(name, 32) + "'; there are: " + known);
  }
  return selected;
}

fileReport examine(table const& t, bool all) {
  // The three side by side where threads can be had, as the standard library sees fit.
  auto rounding = std::async(roundingOf, std::cref(t));
  auto anomalies = std::async(anomaliesOf, std::cref(t));
  columnFindings found;
  found.statistics = statisticsOf(t);
  found.rounding = rounding.get();
  found.anomalies = anomalies.get();
  fileReport file{t.name, t.rows, t.columns.size(), t.skipped, summaryOf(found), {}};
  if (all)
    file.sections = {roundingSection(found.rounding), anomalySection(t, found.anomalies), mixedStep(t), cyclesStep(t),
                     statisticsSection(found.statistics)};
  return file;
}

// The numbers and about a hundred bytes for each row, of one column at a time.
std::size_t memoryFor(std::vector<table> const& tables) {
  std::size_t numbers = 0, rows = 0;
  for (table const& t : tables) {
    numbers += t.rows * t.columns.size();
    rows = std::max(rows, t.rows);
  }
  return numbers * sizeof(double) + 100 * rows;
}

report examine(options const& chosen) {
  const bool all = chosen.all || chosen.json;
  std::vector<table> tables = readTables(chosen.files);
  if (!chosen.columns.empty()) tables = select(tables, chosen.columns);
  const auto shortOfMemory = [&](char const* reason) {
    const std::string what = tables.size() == 1 ? tables[0].name : std::to_string(tables.size()) + " files";
    return memoryError(what, memoryFor(tables), reason);
  };
  report result;
  try {
    for (table const& t : tables) result.files.push_back(examine(t, all));
    if (all && chosen.speed) {
      table const* largest = &tables[0];
      for (table const& t : tables) {
        if (t.columns.size() > largest->columns.size()) largest = &t;
      }
      result.speed = speedStep(*largest);
    }
  } catch (std::bad_alloc const&) {
    throw shortOfMemory("");
  } catch (std::runtime_error const& error) {  // no room for the stack of a thread, which the library's scheduler wants
    throw shortOfMemory(error.what());
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
  if (chosen.version) return write(versionText());
  const report result = examine(chosen);
  progress::clear();
  return write(chosen.json ? jsonReport(result) : textReport(result, standardOutput()));
}

}  // namespace

}  // namespace halfscope

int main(int count, char** arguments) {
  const auto refuse = [](int status, char const* what, char const* more) {
    halfscope::progress::clear();
    std::fprintf(stderr, "halfscope: %s\n%s", what, more);
    return status;
  };
  try {
    return halfscope::run(count, arguments);
  } catch (halfscope::usageError const& error) {
    return refuse(2, error.what(), "Try --help.\n");
  } catch (halfscope::inputError const& error) {
    return refuse(2, error.what(), "");
  } catch (std::bad_alloc const&) {
    return refuse(1, "not enough memory for the report", "");
  } catch (std::exception const& error) {
    return refuse(1, error.what(), "");
  }
}

#include "options.h"

#include "csv_reader.h"
#include "help_file.h"

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
    out.columns.emplace_back(f.text);
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
    } else if (argument == "--version") {
      out.version = true;
    } else if (argument == "--all") {
      out.all = true;
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

std::string helpText() { return helpFile; }

std::string versionText() { return "halfscope " HALFSCOPE_VERSION "\n"; }

}  // namespace halfscope

// What the tests of halfscope share.
#pragma once

#include <string>
#include <vector>

#include "tests/examples/run_program.h"

namespace examples {

// The folder of these tests and the tables that come with the program.
inline const std::filesystem::path here = EXAMPLES_TESTS;
inline const std::string tables = EXAMPLES_TABLES;

inline std::string columnsAre(int width) { return std::string("COLUMNS=").append(std::to_string(width)); }

// A report that was looked at and kept, of tables ("default": the program's own ones, "all": with --all) at a width.
inline std::string expectedText(std::string name, int width) {
  name.append("-").append(std::to_string(width)).append(".txt");
  return contentsOf(here / "expected" / name);
}

// The report on a text, in full unless arguments say otherwise, without the measurement.
inline outcome look(std::string const& csv, std::vector<std::string> arguments = {"--all"},
                    std::string const& environment = "") {
  arguments.insert(arguments.end(), {"--no-speed", "-"});
  return run("halfscope", arguments, {environment, csv});
}

}  // namespace examples

// The figures of halfscope, through its JSON, against another computation.
#include <gtest/gtest.h>

#include "tests/examples/halfscope_support.h"

namespace {

using namespace examples;

// Runs a Python program on a report; its complaints are the test's.
void expectPythonAgrees(std::vector<std::string> const& program, std::string const& report,
                        std::vector<std::string> const& arguments = {}) {
  const examples::temporaryFolder folder;
  std::ofstream(folder / "report.json", std::ios::binary) << report;
  std::vector<std::string> words = program;
  words.push_back((folder / "report.json").string());
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::string command = "python3";
  for (auto const& word : words) command.append(" ").append(examples::quotedForShell(word));
  const std::string said = (folder / "said").string();
  command.append(" >").append(examples::quotedForShell(said)).append(" 2>&1");
  EXPECT_EQ(std::system(command.c_str()), 0) << contentsOf(said);
}

TEST(Json, EveryFigureAgreesWithAnotherComputation) {
  const std::string checker = here / "check_report.py";
  const std::string readings = here / "tables/readings.csv";
  expectPythonAgrees({checker}, run("halfscope", {"--json", "--no-speed"}).out,
                     {tables + "/elnino.csv", tables + "/co2.csv", tables + "/sunspots.csv"});
  expectPythonAgrees({checker}, run("halfscope", {"--json", "--no-speed", readings}).out, {readings});
}

TEST(Json, HoldsAnyName) {
  const auto result = look("\"quote \"\" backslash \\ tab \t line\nend \xC3\xA9 \xF0\x9F\x8C\x8A\"\n1\n", {"--json"});
  expectPythonAgrees({"-c", R"(
import json, sys
name = json.load(open(sys.argv[1], encoding="utf-8"))["files"][0]["rounding"]["columns"][0]["column"]
assert name == 'quote " backslash \\ tab \t line\nend \u00e9 \U0001F30A', ascii(name)
)"},
                     result.out);
}

TEST(Json, HasTheMeasurement) {
  expectPythonAgrees({"-c", R"(
import json, sys
speed = json.load(open(sys.argv[1]))["speed"]
assert speed["file"].endswith("elnino.csv")
assert speed["elements"] == speed["rows"] * speed["columns"] == 1048567
assert len(speed["operations"]) == 3
for operation in speed["operations"]:
    assert operation["million_elements_per_second"] > 0 and operation["copy_gigabytes_per_second"] > 0
)"},
                     run("halfscope", {"--json", tables + "/elnino.csv"}).out);
}

}  // namespace

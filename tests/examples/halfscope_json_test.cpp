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

TEST(Json, FiguresOfOddTablesAgreeToo) {
  const std::string checker = here / "check_report.py";
  for (std::string const csv : {
           "a,b\n1,-0\n",                                                         // one row
           "a,b\n60000,1\nNA,2\n",                                                // two, and a single value
           "a,b,c\n1,0.1,3\n2,0.2,3\n3,0.3,3\n4,0.4,3\n",                         // lines, exact and rounded
           "a,b\n-0,0\n0,-0\n-0,NA\n",                                            // zeros of both signs
           "a,b\ninf,65504\n-inf,65519\n1,65520\n2,-65504\n3,1e308\n",            // infinities, and the end of half
           "a,b\n1e-7,1\n-1e-7,\n1e-9,\n2e-7,5\n0,1\n",                           // what is left is almost nothing
           "a,b\n1e400,0.500000000000000000001\n1,-0.49999999999999999999999\n",  // not halves, though it seems so
           "a,b\n-1e400,5.9604644775390625e-8\n1,5.9604644775390624e-8\n",        // the same, and one that is
           "a,b\n1e400,1e-400\n1e500,-1e-500\ninf,0\n-2e310,1e-330\n",            // beyond double, and ends
           "a,b\n3e4,9\n-6e4,1\n6e4,9\n-6e4,1\n6e4,8\n-6e4,1\n",                  // deviations larger than their values
       }) {
    const temporaryFolder folder;
    const std::string table = folder / "table.csv";
    std::ofstream(table, std::ios::binary) << csv;
    const auto result = run("halfscope", {"--json", "--no-speed", table});
    EXPECT_EQ(result.status, 0) << result.err;
    expectPythonAgrees({checker}, result.out, {table});
  }
}

TEST(Json, IsWhatTheSchemaDescribes) {
  const std::string checker = here / "check_schema.py", schema = here / "../../docs/halfscope-report.schema.json";
  const std::string odd = "t,a,b,c,d,e\nx,1e400,1,inf,,1e-400\ny,2,1,NaN,,7\n";
  for (auto const& report : {run("halfscope", {"--json"}), look(contentsOf(here / "tables/readings.csv"), {"--json"}),
                             look(odd, {"--json"}), look("a\n0\n", {"--json"})}) {
    EXPECT_EQ(report.status, 0) << report.err;
    expectPythonAgrees({checker, schema}, report.out);
  }
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
assert len(speed["operations"]) == 7
for operation in speed["operations"]:
    assert operation["million_elements_per_second"] > 0 and operation["copy_gigabytes_per_second"] > 0
)"},
                     run("halfscope", {"--json", tables + "/elnino.csv"}).out);
}

}  // namespace

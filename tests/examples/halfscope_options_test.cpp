// The command line of halfscope.
#include <gtest/gtest.h>

#include "tests/examples/halfscope_support.h"

namespace {

using namespace examples;

TEST(Columns, AreSelectedByName) {
  const auto result = run("halfscope", {"--no-speed", "--columns", "DEC,co2", "--columns=JAN"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_NE(result.out.find("elnino.csv: 61 rows, 2 numeric columns"), std::string::npos);
  EXPECT_NE(result.out.find("co2.csv: 2,284 rows, 1 numeric column\n"), std::string::npos);
  EXPECT_EQ(result.out.find("sunspots.csv"), std::string::npos);
  EXPECT_EQ(look("\"a,b\",c\n1,2\n", {"--columns", "\"a,b\""}).status, 0);
}

TEST(Refused, CommandLines) {
  for (auto const& [arguments, message] : std::vector<std::pair<std::vector<std::string>, std::string>>{
           {{"--fast"}, "there is no option '--fast'"},
           {{"--columns"}, "--columns wants names, separated by commas"},
           {{"--columns="}, "--columns wants names, separated by commas"},
           {{"--columns", "JAN,,DEC"}, "--columns has an empty name in 'JAN,,DEC'"},
           {{"--columns", "CO2", tables + "/co2.csv"}, "no file has a column 'CO2'; there are: date, co2"},
       }) {
    const auto result = run("halfscope", arguments);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "halfscope: " + message + "\nTry --help.\n");
  }
  const auto text = look("a,b\nx,1\n", {"--columns", "a"});
  EXPECT_EQ(text.status, 2);
  EXPECT_EQ(text.err, "halfscope: standard input: expected a numeric column, but 'a' has text in it\n");
}

TEST(Halfscope, HelpNamesEveryOption) {
  const auto result = run("halfscope", {"--help"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  for (std::string const option : {"--all", "--columns", "--json", "--no-speed", "--version", "--help"})
    EXPECT_NE(result.out.find("  " + option), std::string::npos) << option;
  EXPECT_EQ(result.out, run("halfscope", {"-h"}).out);
}

TEST(Halfscope, TellsItsVersion) {
  const auto result = run("halfscope", {"--version"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "halfscope " EXAMPLES_VERSION "\n");
}

TEST(Halfscope, SaysSoWhenItCannotWrite) {
  for (std::string const arguments : {" --all --no-speed", " --help"}) {  // more and less than a buffer
    const examples::temporaryFolder folder;
    std::string command = examples::commandOf("halfscope");
    command.append(arguments).append(" >/dev/full 2>").append(quotedForShell((folder / "err").string()));
    const int status = std::system(command.c_str());
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_EQ(contentsOf(folder / "err"), "halfscope: the output could not be written\n");
  }
}

}  // namespace

// What halfscope prints, at every width, in pipes and on terminals.
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>

#include "tests/examples/halfscope_support.h"

namespace {

using namespace examples;

std::vector<std::string> linesOf(std::string const& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// Characters, not bytes: the tables of these tests have no wide ones.
std::size_t charactersOf(std::string const& line) {
  return static_cast<std::size_t>(
      std::count_if(line.begin(), line.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

class Width : public testing::TestWithParam<int> {};

using ExpectedText = Width;

TEST_P(ExpectedText, DefaultTables) {
  for (auto const& [name, arguments] : std::vector<std::pair<std::string, std::vector<std::string>>>{
           {"default", {}}, {"all", {"--all", "--no-speed"}}}) {
    const auto result = run("halfscope", arguments, {columnsAre(GetParam()), ""});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, expectedText(name, GetParam()));
  }
}

TEST_P(ExpectedText, TableWithEverythingInIt) {
  for (auto const& [name, arguments] :
       std::vector<std::pair<std::string, std::vector<std::string>>>{{"readings", {}}, {"readings-all", {"--all"}}}) {
    const auto result = look(contentsOf(here / "tables/readings.csv"), arguments, columnsAre(GetParam()));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, expectedText(name, GetParam()));
  }
}

INSTANTIATE_TEST_SUITE_P(Widths, ExpectedText, testing::Values(80, 100, 160));

using AnyWidth = Width;

TEST_P(AnyWidth, HoldsEveryLine) {
  std::vector<std::string> arguments = {tables + "/elnino.csv", here / "tables/readings.csv"};
  auto result = run("halfscope", arguments, {columnsAre(GetParam()), ""});
  ASSERT_EQ(result.status, 0);
  auto lines = linesOf(result.out);
  ASSERT_GT(lines.size(), 30u);
  arguments.insert(arguments.end(), {"--all", GetParam() % 2 == 1 ? "--no-speed" : "--all"});
  result = run("halfscope", arguments, {columnsAre(GetParam()), ""});
  ASSERT_EQ(result.status, 0);
  for (auto const& line : linesOf(result.out)) lines.push_back(line);
  ASSERT_GT(lines.size(), 150u);
  for (auto const& line : lines) {
    // A file's name is one word, which is not broken.
    if (line.find(".csv") != std::string::npos) continue;
    EXPECT_LE(charactersOf(line), static_cast<std::size_t>(GetParam())) << line;
    EXPECT_TRUE(line.empty() || line.back() != ' ') << line;
  }
}

INSTANTIATE_TEST_SUITE_P(Widths, AnyWidth, testing::Values(40, 41, 57, 71, 81, 99, 119, 133, 200));

TEST(Summary, OfAFileFitsOnAScreen) {
  for (std::string const file : {"elnino.csv", "co2.csv", "sunspots.csv"}) {
    const auto result = run("halfscope", {std::string(tables).append("/").append(file)}, {columnsAre(80), ""});
    EXPECT_EQ(result.status, 0);
    EXPECT_LE(linesOf(result.out).size(), 24u) << result.out;
  }
  std::string header = "a", row = "0.1";  // many columns with all kinds of findings
  for (int i = 0; i < 100; ++i) {
    header.append(",a rather long name for column ").append(std::to_string(i));
    row.append(i % 4 == 0 ? ",1e9" : i % 4 == 1 ? ",1e-9" : i % 4 == 2 ? ",0.7" : ",text");
  }
  const auto result = look(header.append("\n").append(row).append("\n").append(row), {}, columnsAre(80));
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_LE(linesOf(result.out).size(), 24u) << result.out;
  EXPECT_LE(linesOf(expectedText("readings", 80)).size(), 24u);
}

TEST(Halfscope, IsAHundredWideWhereThereIsNoTerminal) {
  const auto expected = expectedText("default", 100);
  EXPECT_EQ(run("halfscope").out, expected);
  EXPECT_EQ(run("halfscope", {}, {"COLUMNS=wide", ""}).out, expected);
}

// The report as it arrives on a terminal of a width.
std::string onTerminal(unsigned short width, std::string const& environment) {
  winsize size{};
  size.ws_row = 24;
  size.ws_col = width;
  int screen = -1;
  const pid_t child = forkpty(&screen, nullptr, nullptr, &size);
  if (child == 0) {
    const std::string command =
        "exec env -u COLUMNS -u NO_COLOR " + environment + " " + examples::commandOf("halfscope");
    execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
    _exit(127);
  }
  std::string text;
  char block[4096];
  for (ssize_t count = 0; (count = read(screen, block, sizeof block)) > 0;)
    text.append(block, static_cast<std::size_t>(count));
  close(screen);
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  return text;
}

std::string withoutColour(std::string text) {
  for (std::size_t begin = 0; (begin = text.find("\x1b[", begin)) != std::string::npos;)
    text.erase(begin, text.find('m', begin) + 1 - begin);
  return text;
}

TEST(Terminal, GivesTheWidth) {
  for (const unsigned short width : {80, 160})
    EXPECT_EQ(onTerminal(width, "TERM=dumb"), expectedText("default", width));
}

TEST(Terminal, GetsColourAndNothingElseInAddition) {
  const auto expected = expectedText("default", 80);
  const auto coloured = onTerminal(80, "TERM=xterm");
  EXPECT_NE(coloured.find("\x1b[1melnino.csv"), std::string::npos);
  EXPECT_EQ(withoutColour(coloured), expected);
  EXPECT_EQ(onTerminal(80, "TERM=xterm NO_COLOR=1"), expected);
}

TEST(Halfscope, MeasuresSpeedUnlessTold) {
  const auto result = run("halfscope", {"--all", tables + "/co2.csv"});
  EXPECT_EQ(result.status, 0);
  EXPECT_NE(result.out.find("Speed: "), std::string::npos);
  EXPECT_NE(result.out.find("1,048,576 elements"), std::string::npos);
  EXPECT_EQ(run("halfscope", {"--all", tables + "/co2.csv", "--no-speed"}).out.find("Speed: "), std::string::npos);
}

}  // namespace

// What halfscope makes of files, good and bad.
#include <gtest/gtest.h>

#include "tests/examples/halfscope_support.h"

namespace {

using namespace examples;

// The same table in many spellings.
TEST(Reading, SpellingDoesNotMatter) {
  const auto plain = look("a,b\n1,2.5\n-300,\n0.001,inf\n");
  ASSERT_EQ(plain.status, 0) << plain.err;
  for (auto const& [what, text] : std::vector<std::pair<std::string, std::string>>{
           {"CR LF", "a,b\r\n1,2.5\r\n-300,\r\n0.001,inf\r\n"},
           {"CR", "a,b\r1,2.5\r-300,\r0.001,inf\r"},
           {"byte order mark",
            "\xEF\xBB\xBF"
            "a,b\n1,2.5\n-300,\n0.001,inf\n"},
           {"no line end at the end", "a,b\n1,2.5\n-300,\n0.001,inf"},
           {"quotes", "\"a\",\"b\"\n\"1\",\"2.5\"\n\"-300\",\"\"\n\"0.001\",\"inf\"\n"},
           {"spaces", " a ,\tb\n  1,2.5  \n -300 , \n0.001\t, \"inf\" \n"},
           {"exponents", "a,b\n1e0,25E-1\n-3e+2,\n1.e-3,inf\n"},
           {"signs", "a,b\n+1,+2.5\n-300,\n+.001,+inf\n"},
           {"words", "a,b\n1,2.5\n-300,NaN\n0.001,Infinity\n"},
           {"missing", "a,b\n1,2.5\n-300,NA\n0.001,INF\n"},
           {"blank lines", "\n\na,b\n\n1,2.5\n-300,\n  \n0.001,inf\n\n\n"},
           {"many digits",
            "a,b\n1.0000000000000000000000000000000000000000,25" + std::string(400, '0') + "e-401\n-300,\n0.001,inf\n"},
       }) {
    const auto result = look(text);
    EXPECT_EQ(result.status, 0) << what << ": " << result.err;
    EXPECT_EQ(result.out, plain.out) << what;
  }
}

TEST(Reading, InASingleColumnABlankLineIsAMissingValue) {
  EXPECT_EQ(look("a\n1\n\n3\n\n").out, look("a\n1\nNA\n3\n").out);
  EXPECT_NE(look("a\n1\n\n3\n\n").out, look("a\n1\n3\n").out);
  EXPECT_EQ(look("a\r\n1\r\n3\r\n").out, look("a\n1\n3\n").out);
}

TEST(Reading, TextColumnsAreListedAndSkipped) {
  const auto result = look("name,x,later,none\nA,1,,\n2,2,text,\n");
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_NE(result.out.find("standard input: 2 rows, 1 numeric column\n"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("skipped: name (text), later (text), none (no values)\n"), std::string::npos) << result.out;
}

struct Refusal {
  char const* what;
  std::string text;
  char const* message;  // behind "halfscope: standard input"
};

void PrintTo(Refusal const& r, std::ostream* out) { *out << r.what; }

class Refused : public testing::TestWithParam<Refusal> {};

TEST_P(Refused, WithPlaceAndExpectation) {
  for (std::string const format : {"--no-speed", "--json"}) {
    const auto result = run("halfscope", {format, "-"}, {"", GetParam().text});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, std::string("halfscope: standard input") + GetParam().message + "\n");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Malformed, Refused,
    testing::Values(
        Refusal{"empty", "", ":1:1: expected a line of column names, found an empty file"},
        Refusal{"only blank lines", "\n \r\n\n", ":1:1: expected a line of column names, found an empty file"},
        Refusal{"only a byte order mark", "\xEF\xBB\xBF", ":1:1: expected a line of column names, found an empty file"},
        Refusal{"no column names", "1950,23.11\n1951,24.19\n",
                ":1:1: expected a line of column names, found only numbers"},
        Refusal{"no rows", "a,b\n", ":2:1: expected at least one row of values after the column names"},
        Refusal{"short row", "a,b,c\n1,2,3\n4,5\n", ":3:4: expected 3 fields as in the line of column names, found 2"},
        Refusal{"long row", "a,b\n1,2\n4,5,66\n", ":3:5: expected 2 fields as in the line of column names, found 3"},
        Refusal{"long row of one column", "a\n1\n4,5\n",
                ":3:3: expected 1 field as in the line of column names, found 2"},
        Refusal{"word among numbers", "a,b\n1,2\n4, five\n",
                ":3:4: expected a number, or nothing for a missing value, in the numeric column 'b', found 'five'"},
        Refusal{"number with a tail", "a\n1\n2x\n",
                ":3:1: expected a number, or nothing for a missing value, in the numeric column 'a', found '2x'"},
        Refusal{"two signs", "a\n1\n+-2\n",
                ":3:1: expected a number, or nothing for a missing value, in the numeric column 'a', found '+-2'"},
        Refusal{"comma for a point", "a\n1\n\"2,5\"\n",
                ":3:1: expected a number, or nothing for a missing value, in the numeric column 'a', found '2,5'"},
        Refusal{"place counted in characters", "\xC3\xA9,b\n1,2\n\"\",\"\xC3\xA9\xC3\xA9\"\n",
                ":3:4: expected a number, or nothing for a missing value, in the numeric column 'b', found "
                "'\xC3\xA9\xC3\xA9'"},
        Refusal{"place after lines in quotes", "n,b\n\"x\ny\",1\nz,w\n",
                ":4:3: expected a number, or nothing for a missing value, in the numeric column 'b', found 'w'"},
        Refusal{"open quote", "a,b\n1,\"2\n3,4\n", ":2:3: expected a closing quote for the field that begins here"},
        Refusal{"text behind a quote", "a,b\n1,\"2\"3\n",
                ":2:6: expected a comma or the end of the line after the closing quote"},
        Refusal{"zero byte", std::string("a,b\n1,2\0\n", 9), ":2:4: expected text, found the control character U+0000"},
        Refusal{"escape sequence", "a\x1B[2J\n1\n", ":1:2: expected text, found the control character U+001B"},
        Refusal{"executable",
                "\x7F"
                "ELF\x02\x01\x01",
                ":1:1: expected text, found the control character U+007F"},
        Refusal{"Latin-1", "caf\xE9,b\n1,2\n", ":1:4: expected UTF-8 text, found the byte 0xE9"},
        Refusal{"control character of two bytes", "a\xC2\x9B\n1\n",
                ":1:2: expected text, found the control character U+009B"},
        Refusal{"character in more bytes than it needs", "\xE0\x80\xA1\n1\n",
                ":1:1: expected UTF-8 text, found the byte 0xE0"},
        Refusal{"half of a surrogate pair", "\xED\xA0\x80\n1\n", ":1:1: expected UTF-8 text, found the byte 0xED"},
        Refusal{"beyond Unicode", "\xF4\x90\x80\x80\n1\n", ":1:1: expected UTF-8 text, found the byte 0xF4"},
        Refusal{"character cut short", "a\n1\n\xE2\x82", ":3:1: expected UTF-8 text, found the byte 0xE2"},
        Refusal{"UTF-16",
                std::string("\xFF\xFE"
                            "a\0\n\0",
                            6),
                ":1:1: expected UTF-8 text, found the byte 0xFF"},
        Refusal{"only text", "a,b\nx,y\n", ":1:1: expected at least one column of numbers, found none"},
        Refusal{"semicolons", "a;b\n1;2\n",
                ":1:1: expected at least one column of numbers, found none; columns must be separated by commas"},
        Refusal{"semicolons and decimal commas", "a;b\n1,5;2\n",
                ":2:3: expected 1 field as in the line of column names, found 2; columns must be separated by commas "
                "and numbers have a point: tr ',;' '.,' makes them so of decimal commas and semicolons"},
        Refusal{"the same in quotes", "\"a\";\"b\"\n1,5;2\n",
                ":1:4: expected a comma or the end of the line after the closing quote; columns must be separated by "
                "commas and numbers have a point: tr ',;' '.,' makes them so of decimal commas and semicolons"}));

TEST(Refused, FilesThatCannotBeRead) {
  const examples::temporaryFolder folder;
  const std::string missing = (folder / "missing.csv").string();
  auto result = run("halfscope", {tables + "/co2.csv", missing});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "halfscope: " + missing + ": expected a readable CSV file: No such file or directory\n");

  result = run("halfscope", {tables});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "halfscope: " + tables + ": expected a CSV file, found a directory\n");
}

}  // namespace

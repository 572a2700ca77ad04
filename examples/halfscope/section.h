// What a step of the program hands over: a table of values that know how they look, and a sentence on what to see in
// it. The text report and the JSON report both read this and nothing else, so a new step needs no change in either.
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace halfscope {

struct cell {
  std::variant<std::monostate, long long, double, std::string> value;  // for machines; monostate is "none"
  std::string text;                                                    // for people
  bool remarkable = false;                                             // worth the reader's eye
};

struct heading {
  std::string key;    // the name in JSON
  std::string label;  // over the column
  std::string unit;   // below the label, may be empty
  int rank;           // 0 is never left out; else the highest goes first where the terminal is narrow
  bool rare = false;  // counts of what seldom happens: a column of zeros goes before all others
};

struct section {
  std::string key;
  std::string title;
  std::string rowsKey;  // the name of the list of rows in JSON
  std::vector<heading> headings;
  std::vector<std::vector<cell>> rows;                 // the first cell of a row is its name
  std::vector<std::pair<std::string, cell>> settings;  // facts about the whole table, for JSON
  std::string notice;                                  // what to see in it, in plain words
};

// Cells of the usual kinds.
cell textCell(std::string const& text);
cell countCell(long long count, bool remarkable = false);
// A share of a whole: the count in JSON, percent for people.
cell shareCell(long long count, long long whole);
// A value in the data's own unit.
cell valueCell(double value);
// An error in units in the last place.
cell ulpCell(double ulps, bool remarkable = false);
// A number with so many decimals.
cell decimalCell(double value, int decimals);
// Where there is nothing to say.
cell noCell();

// The texts of these cells, for sentences.
std::string countText(long long count);
std::string shareText(long long count, long long whole);
std::string valueText(double value);
std::string ulpText(double ulps);
std::string decimalText(double value, int decimals);

}  // namespace halfscope

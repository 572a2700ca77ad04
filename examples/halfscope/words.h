// Small parts of sentences.
#pragma once

#include <string>
#include <vector>

#include "section.h"
#include "utf8.h"

namespace halfscope {

// A column's name as sentences use it.
inline std::string nameInText(std::string const& name) { return shortened(name, 24); }

inline std::string someOf(long long count, long long whole) {
  return count == whole ? (whole == 1 ? "the only value" : "all " + countText(whole) + " values")
                        : countText(count) + " of " + countText(whole) + " values";
}

inline void addSentence(std::string& text, std::string const& sentence) {
  if (!text.empty()) text += ' ';
  text += sentence;
}

// The names of those for which something holds.
template <class Columns, class Holds>
std::vector<std::string> namesOf(Columns const& columns, Holds holds) {
  std::vector<std::string> names;
  for (auto const& c : columns) {
    if (holds(c)) names.push_back(c.name);
  }
  return names;
}

inline double share(long long count, long long whole) {
  return whole == 0 ? 0.0 : static_cast<double>(count) / static_cast<double>(whole);
}

// Of a result: "is exact", or how near it is to something.
inline std::string nearnessText(double ulps, std::string const& what) {
  return ulps == 0 ? "is exact" : "is within " + (ulps < 0.0005 ? "0.001" : ulpText(ulps)) + " ulp of " + what;
}

// "A", "A and B", or "A and 3 others".
inline std::string nameList(std::vector<std::string> const& names) {
  if (names.size() == 1) return nameInText(names[0]);
  return nameInText(names[0]) + " and " +
         (names.size() == 2 ? nameInText(names[1]) : std::to_string(names.size() - 1) + " others");
}

}  // namespace halfscope

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

// "A", "A and B", or "A and 3 others".
inline std::string nameList(std::vector<std::string> const& names) {
  if (names.size() == 1) return nameInText(names[0]);
  return nameInText(names[0]) + " and " +
         (names.size() == 2 ? nameInText(names[1]) : std::to_string(names.size() - 1) + " others");
}

}  // namespace halfscope

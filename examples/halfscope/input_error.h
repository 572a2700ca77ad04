// What the program reports to its user in place of a result: what is wrong with an input and where, or that the memory
// does not suffice for it.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace halfscope {

// A place in a text as editors count it: lines and characters from 1.
struct position {
  unsigned long line = 1;
  unsigned long column = 1;
};

class inputError : public std::runtime_error {
 public:
  inputError(std::string const& source, std::string const& what) : std::runtime_error(source + ": " + what) {}
  inputError(std::string const& source, position where, std::string const& what)
      : std::runtime_error(source + ':' + std::to_string(where.line) + ':' + std::to_string(where.column) + ": " +
                           what) {}
};

class memoryError : public std::runtime_error {
 public:
  memoryError(std::string const& source, std::size_t bytes, std::string const& reason = "")
      : std::runtime_error("not enough memory for " + source + ": about " + std::to_string((bytes >> 20) + 1) +
                           " MB needed" + (reason.empty() ? "" : " (" + reason + ")")) {}
};

}  // namespace halfscope

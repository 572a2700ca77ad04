// What is wrong with an input and where: the one exception that the program reports to its user.
#pragma once

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

}  // namespace halfscope

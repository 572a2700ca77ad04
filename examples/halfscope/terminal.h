// What the program's output goes to.
#pragma once

#include <cstddef>

namespace halfscope {

struct terminal {
  std::size_t width;  // at least 40
  bool colour;
};

// The width is that of COLUMNS where it is set to a number, else that of the terminal, and 100 where there is none.
// Colour is for terminals only, and not where NO_COLOR is set.
terminal standardOutput();

}  // namespace halfscope

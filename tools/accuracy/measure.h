// How far a function's results are from the truth, over the whole input line.
#pragma once

#include <cstdint>
#include <vector>

#include "tools/accuracy/functions.h"

namespace zthalf::accuracy {

// The input line: every finite half from -65504 to 65504, both zeros included. Position 0 is -65504.
inline constexpr unsigned finiteOfOneSign = 0x7C00;
inline constexpr unsigned lineLength = 2 * finiteOfOneSign;

constexpr std::uint16_t patternAt(unsigned position) {
  return static_cast<std::uint16_t>(position < finiteOfOneSign ? 0xFBFF - position : position - finiteOfOneSign);
}

struct measurement {
  std::vector<double> error;  // for each position, in units in the last place; negative where there is no true value
  double worst = 0;
  std::uint16_t worstInput = 0;
  std::uint16_t worstResult = 0;
  unsigned measured = 0;
  unsigned notNearest = 0;  // results that are not the correctly rounded ones
};

measurement measure(measuredFunction const& f);

}  // namespace zthalf::accuracy

// One function's error over the input line as a picture.
#pragma once

#include <string>

#include "tools/accuracy/measure.h"

namespace zthalf::accuracy {

// An SVG document. From left to right stand all finite halves in order, as many in each column; a column's bar is the
// largest error in it. Up to the line at one half a unit a result can be the nearest half.
std::string plotOf(char const* name, measurement const& m);

}  // namespace zthalf::accuracy

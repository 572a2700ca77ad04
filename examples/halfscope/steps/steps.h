// The steps of the program, each in a file of its own: what a table looks like through one part of the library.
#pragma once

#include "section.h"
#include "table.h"

namespace halfscope {

// rounding.cpp: what becomes of the values of each column in half precision.
section roundingStep(table const& t);

// anomalies.cpp: the deviations from each column's mean, computed in half.
section anomalyStep(table const& t);

// speed.cpp: how fast the two steps above run on a larger copy of the table.
section speedStep(table const& t);

// The steps that every file goes through, in the order of the report.
inline constexpr section (*steps[])(table const&) = {roundingStep, anomalyStep};

}  // namespace halfscope

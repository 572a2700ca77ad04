// The steps of the program, each in a file of its own: what a table looks like through one part of the library.
#pragma once

#include "section.h"
#include "table.h"

namespace halfscope {

// rounding.cpp: what becomes of the values of each column in half precision.
section roundingStep(table const& t);

// anomalies.cpp: the deviations from each column's mean, computed in half.
section anomalyStep(table const& t);

// mixed.cpp: the same deviations with the values or the means in double.
section mixedStep(table const& t);

// cycles.cpp: the strongest cycle down the rows of each column, by complex halves.
section cyclesStep(table const& t);

// statistics.cpp: mean, minimum and maximum of each column in half.
section statisticsStep(table const& t);

// speed.cpp: how fast the steps above run on a larger copy of the table.
section speedStep(table const& t);

// The steps that every file goes through, in the order of the report.
inline constexpr section (*steps[])(table const&) = {roundingStep, anomalyStep, mixedStep, cyclesStep, statisticsStep};

}  // namespace halfscope

// The steps of the program, each in a file of its own: what a table looks like through one part of the library. The
// three that the summary speaks of have headers: rounding.h, anomalies.h and statistics.h.
#pragma once

#include "section.h"
#include "table.h"

namespace halfscope {

// mixed.cpp: the deviations with the values or the means in double.
section mixedStep(table const& t);

// cycles.cpp: the strongest cycle down the rows of each column, by complex halves.
section cyclesStep(table const& t);

// speed.cpp: how fast the steps run on a larger copy of the table.
section speedStep(table const& t);

}  // namespace halfscope

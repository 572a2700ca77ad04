// Step 2: the deviations from each column's mean, computed in half.
#pragma once

#include <vector>

#include "section.h"
#include "steps/deviations.h"
#include "table.h"

namespace halfscope {

struct columnAnomalies : columnDeviations {
  double mean = 0;
  double offset = 0;  // what was added, as a half
};

std::vector<columnAnomalies> anomaliesOf(table const& t);

section anomalySection(table const& t, std::vector<columnAnomalies> const& columns);

}  // namespace halfscope

// The report for machines.
#pragma once

#include <string>

#include "report.h"

namespace halfscope {

// What docs/halfscope-report.schema.json describes. A member that is added leaves the number as it is; one that is
// renamed, removed or gets another meaning raises it.
inline constexpr long long reportFormat = 1;

// One JSON object in UTF-8. Infinities and NaNs, which JSON numbers cannot be, are the strings "Infinity", "-Infinity"
// and "NaN"; what does not exist is null.
std::string jsonReport(report const& r);

}  // namespace halfscope

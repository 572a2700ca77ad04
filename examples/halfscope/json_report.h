// The report for machines.
#pragma once

#include <string>

#include "report.h"

namespace halfscope {

// One JSON object in UTF-8. Infinities and NaNs, which JSON numbers cannot be, are the strings "Infinity", "-Infinity"
// and "NaN"; what does not exist is null.
std::string jsonReport(report const& r);

}  // namespace halfscope

// The report for people.
#pragma once

#include <string>

#include "report.h"
#include "terminal.h"

namespace halfscope {

// Lines of at most the terminal's width: tables leave out columns, the least important first, and say so; sentences
// wrap between words.
std::string textReport(report const& r, terminal const& out);

}  // namespace halfscope

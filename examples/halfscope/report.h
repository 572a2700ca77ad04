// All that a run of the program found out.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "section.h"
#include "summary.h"
#include "table.h"

namespace halfscope {

struct fileReport {
  std::string name;
  std::size_t rows;
  std::size_t columns;
  std::vector<skippedColumn> skipped;
  summary inShort;
  std::vector<section> sections;  // none where only the summary is wanted
};

struct report {
  std::vector<fileReport> files;
  std::optional<section> speed;
};

}  // namespace halfscope

// Step 5: mean, minimum and maximum of each column in half.
#pragma once

#include <string>
#include <vector>

#include "section.h"
#include "table.h"

namespace halfscope {

struct sumResult {
  double mean = 0;
  double ulps = 0;  // away from the mean in double
};

struct extremeValue {
  double value = 0;           // as a half
  std::size_t row = 0;        // of the first one, counted from 1
  std::size_t rowInFile = 0;  // of the first one among the file's values; 0 where it is not known
};

// The library's results, in double for the report.
struct columnStatistics {
  std::string name;
  bool isMeanKnown = true;  // not where the size of a number got lost
  double mean = 0;          // in double from the file's values
  sumResult halfSums, singleSums, doubleSums;
  extremeValue minimum, maximum;

  bool meanFits() const;  // into half
};

std::vector<columnStatistics> statisticsOf(table const& t);

section statisticsSection(std::vector<columnStatistics> const& columns);

}  // namespace halfscope

// What half precision does to a table, on one screen: a verdict, the columns that suffer most, and the most telling
// findings in plain words.
#pragma once

#include <string>
#include <vector>

#include "section.h"
#include "steps/anomalies.h"
#include "steps/rounding.h"
#include "steps/statistics.h"

namespace halfscope {

// What the steps found out, column by column.
struct columnFindings {
  std::vector<columnRounding> rounding;
  std::vector<columnAnomalies> anomalies;
  std::vector<columnStatistics> statistics;
};

struct finding {
  std::string key;  // one word, and the name in JSON
  std::string text;
};

struct summary {
  long long losing = 0;   // columns with values that became infinite, zero, or equal to another value
  long long rounded = 0;  // columns of which no value is lost, but some are rounded
  long long exact = 0;
  std::string worst;  // the column that loses most, empty where none does
  std::string verdict;
  section columns;  // the worst ones
  std::vector<finding> findings;
};

summary summaryOf(columnFindings const& found);

}  // namespace halfscope

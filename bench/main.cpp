// Registers the rows of all files of the program and runs those that --benchmark_filter names.
#include <benchmark/benchmark.h>

#include "bench/rows.h"

namespace bench {

// A function and not a variable: the files that register rows may be initialised in any order.
std::vector<void (*)()>& rowMakers() {
  static std::vector<void (*)()> makers;
  return makers;
}

}  // namespace bench

int main(int argc, char** argv) {
  for (auto* make : bench::rowMakers()) make();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}

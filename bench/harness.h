// How a row of the benchmark table is measured and named.
#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace bench {

// A measurement is named row/subject/data/count: what is done, who does it, on which kind of data, on how many
// elements. compare.py reads the four parts back.
struct point {
  std::string row;
  std::string data;
  unsigned long n;
  bool onThreads = false;  // then the time of the clock counts, otherwise the processor time of the calling thread
};

// What the library is measured as: its instruction levels by name, or the one that a user gets.
struct ownSubject {
  std::string name;
  void (*select)();
};
std::vector<ownSubject> const& ownSubjects();

inline constexpr unsigned long fitsFirstLevel = 4096;       // all arrays of a call stay in the nearest caches
inline constexpr unsigned long leavesNearCaches = 1048576;  // memory traffic counts

// prepare() makes the arrays and returns the call to be timed; it runs when the measurement starts.
template <class Prepare>
void measure(point const& p, std::string const& subject, Prepare prepare) {
  const std::string name = p.row + "/" + subject + "/" + p.data + "/" + std::to_string(p.n);
  const auto run = [prepare, n = p.n](benchmark::State& state) {
    auto call = prepare();
    for (auto _ : state) {
      call();
      benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * n));
  };
  auto* registered = benchmark::RegisterBenchmark(name.c_str(), run);
  if (p.onThreads) registered->UseRealTime();
}

template <class Prepare>
void measureOurs(point const& p, Prepare prepare) {
  for (ownSubject const& own : ownSubjects()) {
    measure(p, own.name, [prepare, select = own.select] {
      select();
      return prepare();
    });
  }
}

}  // namespace bench

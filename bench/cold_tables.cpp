// What a pass over a result table costs when no line of the table is in a cache, beside computing the elements: the
// measurement behind the element counts in src/frame/loops/result_loop.h. All patterns occur, so that nearly every
// element meets a line of its own at first.
#if defined(__x86_64__)
#include <immintrin.h>

#include <chrono>

#include "bench/rows.h"
#include "frame/loops/result_loop.h"
#include "scalar/functors/elementary_functors.h"
#include "scalar/functors/power_functors.h"

namespace bench {
namespace {

void forget(std::uint16_t const* table) {
  for (std::size_t i = 0; i < zthalf::results::patternCount; i += 32) _mm_clflush(table + i);
  _mm_mfence();
}

template <class Ftor, class Tabled>
void coldRow(std::string const& name, unsigned long n, void (*select)(), Tabled f) {
  const auto run = [=](benchmark::State& state) {
    select();
    array<fp16binary_t> source(n), destination(n);
    for (unsigned long i = 0; i < n; ++i) source.data()[i] = {static_cast<std::uint16_t>(i * 40503u & 0x7FFF)};
    for (auto _ : state) {
      half_utils::unaryOpSimpleLoop(source.data(), destination.data(), n, Ftor{});
      forget(zthalf::results::tableOf<Ftor>::results);
      const auto start = std::chrono::steady_clock::now();
      half_utils::unaryOpSimpleLoop(source.data(), destination.data(), n, f);
      const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
      state.SetIterationTime(elapsed.count());
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * n));
  };
  benchmark::RegisterBenchmark(name.c_str(), run)->UseManualTime();
}

// The table's row is the same at every level.
template <class Ftor>
void coldRows(std::string const& function, std::initializer_list<unsigned long> counts) {
  for (const unsigned long n : counts) {
    const std::string end = "/plain/" + std::to_string(n);
    coldRow<Ftor>(
        "cold-" + function + "/table" + end, n, [] {}, half_utils::lookUpFtor<Ftor>{});
    for (ownSubject const& own : ownSubjects()) {
      if (zthalf::earnsLevelsFor<Ftor, fp16binary_t> || &own == &ownSubjects().front())
        coldRow<Ftor>("cold-" + function + "/" + own.name + end, n, own.select, Ftor{});
    }
  }
}

const bool added = addRows([] {
  using namespace half::scalar::emulated;
  coldRows<expm1Ftor>("expm1", {32, 64, 96, 128, 256, 1024});
  coldRows<pow2Ftor>("pow2", {32, 64, 96, 128, 256, 1024});
  coldRows<log1pFtor>("log1p", {32, 64, 96, 128, 256, 1024});
  for (const unsigned long n : {1024, 2048, 3072, 4096, 6144, 8192, 16384, 32768, 65536}) {
    coldRows<expFtor>("exp", {n});
    coldRows<logFtor>("log", {n});
    coldRows<sqrtFtor>("sqrt", {n});
    coldRows<rsqrtFtor>("rsqrt", {n});
  }
});

}  // namespace
}  // namespace bench
#endif

// Reductions: the whole array, columns and rows of a square matrix, each accumulator, on one thread and on all.
#include <tbb/global_control.h>

#include <cmath>

#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

using selector = void (*)(void*, void*, unsigned long, unsigned long*, bool, bool, bool, FloatTypeEnum, FloatTypeEnum);

enum class form { whole, columns, rows };

struct reduction {
  selector op;
  form over = form::whole;
  FloatTypeEnum accumulator = FloatTypeSingle;  // double means double results too
  bool omitNaN = false;
  bool isComplex = false;
};

// Threads count: what the scheduler may use is limited while the call is measured.
auto reducing(reduction r, unsigned long n, content kind, std::size_t threads) {
  return [=] {
    const unsigned long elements = r.isComplex ? n / 2 : n;
    const auto side = static_cast<unsigned long>(std::sqrt(static_cast<double>(elements)));
    auto source = filled<half_t>(n, kind);
    array<std::complex<double>> results(side);
    auto limit = std::make_shared<tbb::global_control>(tbb::global_control::max_allowed_parallelism, threads);
    return [=] {
      unsigned long dims[2] = {r.over == form::whole ? elements : side, elements / side};
      const FloatTypeEnum out = r.accumulator == FloatTypeDouble ? FloatTypeDouble : FloatTypeHalf;
      r.op(source.data(), results.data(), r.over == form::whole ? 1 : 2, dims, r.over != form::rows, r.isComplex,
           r.omitNaN, r.accumulator, out);
      static_cast<void>(limit);
    };
  };
}

constexpr unsigned long fillsMemory = 16777216;

void rowsOf(std::string const& name, reduction r) {
  for (const unsigned long n : {fitsFirstLevel, leavesNearCaches})
    measureOurs({name, "plain", n}, reducing(r, n, content::plain, 1));
}

void rowsOfAccumulators(std::string const& name, reduction r) {
  const std::pair<char const*, FloatTypeEnum> accumulators[] = {
      {"-half", FloatTypeHalf}, {"-single", FloatTypeSingle}, {"-double", FloatTypeDouble}};
  for (auto const& [suffix, accumulator] : accumulators) {
    r.accumulator = accumulator;
    r.omitNaN = false;
    rowsOf(name + suffix, r);
    r.omitNaN = true;
    rowsOf(name + suffix + "-omitnan", r);
  }
}

const bool added = addRows([] {
  rowsOfAccumulators("sum", {half_vector::sum});
  rowsOfAccumulators("mean", {half_vector::mean});
  rowsOfAccumulators("prod", {half_vector::prod});
  rowsOfAccumulators("sum-columns", {half_vector::sum, form::columns});
  rowsOfAccumulators("sum-rows", {half_vector::sum, form::rows});
  rowsOf("sum-complex-single", {half_vector::sum, form::whole, FloatTypeSingle, false, true});
  rowsOf("prod-complex-single", {half_vector::prod, form::whole, FloatTypeSingle, false, true});
  rowsOf("prod-complex-half", {half_vector::prod, form::whole, FloatTypeHalf, false, true});
  const std::pair<char const*, reduction> largeRows[] = {{"sum-half", {half_vector::sum, form::whole, FloatTypeHalf}},
                                                         {"sum-single", {half_vector::sum}},
                                                         {"sum-columns-single", {half_vector::sum, form::columns}},
                                                         {"sum-rows-single", {half_vector::sum, form::rows}}};
  for (auto const& [name, r] : largeRows) {
    measureOurs({name, "plain", fillsMemory, true}, reducing(r, fillsMemory, content::plain, 1));
    measureOurs({std::string(name) + "-2threads", "plain", fillsMemory, true},
                reducing(r, fillsMemory, content::plain, 2));
    measureOurs({name, "nans", leavesNearCaches}, reducing(r, leavesNearCaches, content::nans, 1));
  }
});

}  // namespace
}  // namespace bench

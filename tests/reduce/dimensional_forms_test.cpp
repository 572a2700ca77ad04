// The walks of the column and the row form against plain index arithmetic over the whole source.
#include "reduce/dimensional_forms.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "tests/reduce/traced_fold.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using sizeVector = std::vector<unsigned long>;

unsigned long productOf(sizeVector const& dims, std::size_t first, std::size_t step) {
  unsigned long product = 1;
  for (std::size_t d = first; d < dims.size(); d += step) product *= dims[d];
  return product;
}

trace treeOf(std::uint32_t const* x, unsigned long n) {
  if (n > 256) return joined(treeOf(x, n / 2), treeOf(x + n / 2, n - n / 2));
  return std::accumulate(x, x + n, trace{17}, stepped);
}

// Looks at every element of the source once, in memory order, and sorts it to its output.
struct reference {
  reference(std::vector<std::uint32_t> const& x, sizeVector const& dims, bool firstReduced) {
    const std::size_t keptFrom = firstReduced ? 1 : 0;
    const unsigned long run = firstReduced ? dims[0] : 1;
    values.assign(productOf(dims, keptFrom, 2), 17);
    std::vector<unsigned long> combination(values.size(), 0);
    // Memory order visits the combinations of one output in ascending order.
    for (unsigned long e = 0; run > 0 && e < productOf(dims, 0, 1); e += run) {
      unsigned long output = 0, scale = 1, rest = e;
      for (std::size_t d = 0; d < dims.size(); ++d) {
        const unsigned long index = rest % dims[d];
        rest /= dims[d];
        if (d % 2 != keptFrom) continue;
        output += index * scale;
        scale *= dims[d];
      }
      trace& value = values[output];
      value = mixed(value, combination[output]++, e);
      value = firstReduced ? finished(value, treeOf(&x[e], run)) : stepped(value, x[e]);
    }
  }
  std::vector<trace> values;
};

std::vector<trace> reduced(std::vector<std::uint32_t> const& x, sizeVector const& dims, bool firstReduced) {
  const half_utils::alternatingShape shape(dims.size(), dims.data(), firstReduced);
  std::vector<trace> results(shape.outputs(), 0);
  const auto write = [&](unsigned long output, trace value) { results[output] = value; };
  firstReduced ? half_utils::reduceColumns<tracedFold>(x.data(), shape, write)
               : half_utils::reduceRows<tracedRows>(x.data(), shape, write);
  return results;
}

void expectReference(sizeVector const& dims) {
  std::vector<std::uint32_t> x(productOf(dims, 0, 1));
  std::iota(x.begin(), x.end(), 1);
  for (const bool firstReduced : {true, false}) {
    if (firstReduced && dims.size() < 2) continue;
    const auto results = reduced(x, dims, firstReduced);
    if (firstReduced && dims[0] == 0) continue;  // no element to sort; see the test of empty dimensions
    EXPECT_EQ(results, reference(x, dims, firstReduced).values)
        << ::testing::PrintToString(dims) << (firstReduced ? " columns" : " rows");
  }
}

TEST(DimensionalForms, MatchIndexArithmeticForOneToSixDimensions) {
  for (const auto& dims : std::vector<sizeVector>{{1},
                                                  {9},
                                                  {40},
                                                  {1, 1},
                                                  {5, 7},
                                                  {7, 5},
                                                  {300, 40},
                                                  {40, 300},
                                                  {9000, 3},
                                                  {257, 33},
                                                  {1, 50},
                                                  {50, 1},
                                                  {3, 4, 5},
                                                  {1, 9, 17},
                                                  {17, 9, 1},
                                                  {260, 3, 4},
                                                  {2, 3, 4, 5},
                                                  {9, 2, 10, 3},
                                                  {2, 3, 2, 3, 4},
                                                  {5, 1, 2, 3, 2},
                                                  {2, 3, 4, 2, 3, 2},
                                                  {3, 9, 2, 9, 2, 9}})
    expectReference(dims);
}

TEST(DimensionalForms, MatchIndexArithmeticOnBothSidesOfTheFork) {
  for (const unsigned long outputs : {1023UL, 1024UL, 1025UL, 3000UL}) {
    expectReference({outputs, 6});
    expectReference({6, outputs});
    expectReference({2, outputs, 3});
  }
  expectReference({3, 70, 2, 30});
  expectReference({70, 3, 30, 2});
}

TEST(DimensionalForms, GiveTheSameOnAnyNumberOfThreads) {
  const sizeVector dims{5, 40, 3, 60};
  std::vector<std::uint32_t> x(productOf(dims, 0, 1));
  std::iota(x.begin(), x.end(), 1);
  for (const bool firstReduced : {true, false}) {
    const auto expected = reference(x, dims, firstReduced).values;
    for (const int threads : {1, 2, 3, 4, 8, 16, 64})
      onThreads(threads, [&] { EXPECT_EQ(reduced(x, dims, firstReduced), expected) << threads; });
  }
}

TEST(DimensionalForms, LeaveOutputsAtTheirStartWhereNothingIsReduced) {
  const std::vector<std::uint32_t> none;
  EXPECT_EQ(reduced(none, {4, 3, 0}, true), std::vector<trace>(3, 17)) << "no combination";
  EXPECT_EQ(reduced(none, {4, 0}, false), std::vector<trace>(4, 17));
  EXPECT_EQ(reduced(none, {4, 0, 2, 5}, false), std::vector<trace>(8, 17));
}

TEST(DimensionalForms, FinishWithAnEmptyTreeForEachCombination) {
  const trace once = finished(mixed(17, 0, 0), 17);
  EXPECT_EQ(reduced({}, {0, 3}, true), std::vector<trace>(3, once));
  EXPECT_EQ(reduced({}, {0, 3, 2}, true), std::vector<trace>(3, finished(mixed(once, 1, 0), 17)));
}

TEST(DimensionalForms, TouchNothingWithoutOutputs) {
  for (const sizeVector& dims : {sizeVector{0}, {0, 5}, {0, 5, 3}, {3, 5, 0}}) {
    const half_utils::alternatingShape rows(dims.size(), dims.data(), false);
    half_utils::reduceRows<tracedRows>(nullptr, rows, [](unsigned long, trace) { FAIL(); });
  }
  for (const sizeVector& dims : {sizeVector{5, 0}, {0, 0}, {5, 0, 3}, {5, 2, 3, 0}}) {
    const half_utils::alternatingShape columns(dims.size(), dims.data(), true);
    half_utils::reduceColumns<tracedFold>(nullptr, columns, [](unsigned long, trace) { FAIL(); });
  }
}

}  // namespace
}  // namespace zthalf

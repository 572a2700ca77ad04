// Where passes begin to read result tables, and that nothing shows there.
#include "frame/loops/result_loop.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scalar/functors/elementary_functors.h"
#include "tests/support/expect_bits.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using half_utils::tableFrom;
namespace functor = half::scalar::emulated;

// Puts back the level that the program runs at.
class TableLoop : public ::testing::Test {
 protected:
  void TearDown() override { forceLevel(before_); }

 private:
  instructionLevel before_ = currentLevel();
};

template <class Ftor>
unsigned long tableFromAt(instructionLevel level) {
  forceLevel(level);
  return tableFrom<Ftor>();
}

// What is computed faster reads its table later. Nothing is run here, so levels that the processor lacks take part.
template <class Ftor>
void expectLaterAtWiderLevels() {
  EXPECT_LT(tableFromAt<Ftor>(instructionLevel::base), tableFromAt<Ftor>(instructionLevel::v3));
  EXPECT_LT(tableFromAt<Ftor>(instructionLevel::v3), tableFromAt<Ftor>(instructionLevel::v4));
}

TEST_F(TableLoop, WideFunctionsReadTheirTableLaterAtWiderLevels) {
  expectLaterAtWiderLevels<functor::expFtor>();
  expectLaterAtWiderLevels<functor::logFtor>();
  expectLaterAtWiderLevels<functor::sqrtFtor>();
  expectLaterAtWiderLevels<functor::rsqrtFtor>();
}

TEST_F(TableLoop, RootsReadTheirTableLaterThanLogarithms) {
  for (const instructionLevel level : {instructionLevel::base, instructionLevel::v3, instructionLevel::v4})
    EXPECT_LT(tableFromAt<functor::logFtor>(level), tableFromAt<functor::sqrtFtor>(level));
}

TEST_F(TableLoop, FunctionsOfOneElementAtATimeReadItEarlyAtEveryLevel) {
  for (const instructionLevel level : {instructionLevel::base, instructionLevel::v3, instructionLevel::v4})
    EXPECT_EQ(tableFromAt<functor::log1pFtor>(level), 128u);
}

// Counts just below and at every level's threshold, at the level of this run: the same bits.
template <class Ftor>
void expectScalarResults(char const* name, void (*array)(half_t*, half_t*, unsigned long), half_t (*scalar)(half_t)) {
  const instructionLevel own = currentLevel();
  std::vector<unsigned long> counts;
  for (const instructionLevel level : {instructionLevel::base, instructionLevel::v3, instructionLevel::v4}) {
    const unsigned long from = tableFromAt<Ftor>(level);
    counts.insert(counts.end(), {from - 1, from, from + 1});
  }
  forceLevel(own);
  bitComparison compare(name);
  for (const unsigned long n : counts) {
    std::vector<half_t> source(n), result(n);
    for (unsigned long i = 0; i < n; ++i) source[i] = {static_cast<std::uint16_t>(i * 40503u)};
    array(source.data(), result.data(), n);
    for (unsigned long i = 0; i < n; ++i) compare.check(result[i], scalar(source[i]), source[i]);
  }
}

TEST_F(TableLoop, ResultsAreTheSameOnBothSidesOfTheThreshold) {
  expectScalarResults<functor::expFtor>("exp", half_vector::exp, half_scalar::exp);
  expectScalarResults<functor::logFtor>("log", half_vector::log, half_scalar::log);
  expectScalarResults<functor::sqrtFtor>("sqrt", half_vector::sqrt, half_scalar::sqrt);
  expectScalarResults<functor::rsqrtFtor>("rsqrt", half_vector::rsqrt, half_scalar::rsqrt);
  expectScalarResults<functor::log1pFtor>("log1p", half_vector::log1p, half_scalar::log1p);
}

// Overlapping arrays are read in ascending order, each element after the earlier ones were written.
TEST_F(TableLoop, AShiftedDestinationIsReadBack) {
  constexpr unsigned long n = 40'000;
  std::vector<half_t> array(n + 1);
  for (unsigned long i = 0; i <= n; ++i) array[i] = {static_cast<std::uint16_t>(i * 7919u)};
  half_t expected = array[0];
  half_vector::exp(array.data(), array.data() + 1, n);
  for (unsigned long i = 1; i <= n; ++i) {
    expected = half_scalar::exp(expected);
    ASSERT_EQ(hex(array[i]), hex(expected)) << i;
  }
}

}  // namespace
}  // namespace zthalf

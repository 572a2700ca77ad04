// The plan of an expansion and the walk over its runs.
#include "elementwise/expansion.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <tuple>
#include <vector>

#include "tests/support/shapes.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using half_utils::expansionPlan;
using half_utils::odometer;
using half_utils::runStart;
using half_utils::shape;
using testing::meetingShapes;
using testing::met;
using testing::onEachThreadCount;
using testing::randomMeeting;
using testing::sizeList;

shape shapeOf(sizeList const& dims) { return {testing::countOf(dims), dims.size(), dims.data()}; }

expansionPlan planOf(meetingShapes const& shapes) { return {shapeOf(shapes.a), shapeOf(shapes.b), shapeOf(shapes.c)}; }

// Whether a meeting reaches the expansion at all, or is settled by element counts.
bool isExpanded(meetingShapes const& shapes) {
  const unsigned long na = testing::countOf(shapes.a), nb = testing::countOf(shapes.b), nc = testing::countOf(shapes.c);
  return nc != 0 && !(std::max(na, nb) == nc && (na == nb || na == 1 || nb == 1));
}

std::vector<meetingShapes> randomExpansions(unsigned long count, std::uint64_t seed) {
  std::mt19937_64 bits(seed);
  std::vector<meetingShapes> expansions;
  while (expansions.size() < count) {
    meetingShapes shapes = randomMeeting(bits);
    if (isExpanded(shapes)) expansions.push_back(std::move(shapes));
  }
  return expansions;
}

struct planExample {
  char const* name;
  sizeList a, b, c;
  unsigned meeting;
  unsigned long firstOuter, run, runs;
};

class ExpansionPlan : public ::testing::TestWithParam<planExample> {};

TEST_P(ExpansionPlan, MergesTheLeadingDimensionsOfOneKind) {
  planExample const& example = GetParam();
  const meetingShapes shapes = met(example.a, example.b);
  ASSERT_EQ(shapes.c, example.c);
  const expansionPlan plan = planOf(shapes);
  EXPECT_EQ(plan.runMeeting, example.meeting);
  EXPECT_EQ(plan.firstOuter, example.firstOuter);
  EXPECT_EQ(plan.run, example.run);
  EXPECT_EQ(plan.runs, example.runs);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, ExpansionPlan,
    ::testing::Values(planExample{"MatrixAndColumn", {1000, 1}, {1000, 20}, {1000, 20}, 3, 1, 1000, 20},
                      planExample{"RowAndMatrix", {1, 20}, {1000, 20}, {1000, 20}, 1, 1, 1000, 20},
                      planExample{"ColumnAndRow", {3, 1}, {1, 4}, {3, 4}, 2, 1, 3, 4},
                      planExample{"RowAndColumn", {1, 4}, {3, 1}, {3, 4}, 1, 1, 3, 4},
                      planExample{"TwoDigits", {2, 1, 3}, {1, 5, 3}, {2, 5, 3}, 2, 1, 2, 15},
                      planExample{"LeadingOnes", {1, 3}, {1, 1, 2}, {1, 3, 2}, 2, 2, 3, 2},
                      planExample{"OnesInsideTheRun", {2, 1, 3}, {2, 1, 3, 4}, {2, 1, 3, 4}, 3, 3, 6, 4},
                      planExample{"OnesEndNoRun", {5, 1, 2, 1}, {1, 1, 1, 3}, {5, 1, 2, 3}, 2, 3, 10, 3}),
    [](auto const& info) { return info.param.name; });

TEST(ExpansionPlan, HoldsTheStepsOfEveryDimension) {
  const meetingShapes shapes = met({2, 1, 3}, {1, 5, 3, 2});
  const expansionPlan plan = planOf(shapes);
  EXPECT_EQ(plan.steps[0], (sizeList{2, 2, 6, 6}));
  EXPECT_EQ(plan.steps[1], (sizeList{1, 5, 15, 30}));
  EXPECT_EQ(plan.outSteps, (sizeList{2, 10, 30, 60}));
}

// Every run of a random plan is contiguous in the output and, for an operand that varies in it, in that operand.
TEST(ExpansionPlan, CutsRandomMeetingsIntoRunsOfOneKind) {
  for (meetingShapes const& shapes : randomExpansions(3000, 61)) {
    const expansionPlan plan = planOf(shapes);
    ASSERT_EQ(plan.run * plan.runs, testing::countOf(shapes.c)) << shapes;
    ASSERT_NE(plan.runMeeting, half_utils::neitherVaries) << shapes;
    const unsigned long stepA = (plan.runMeeting & half_utils::leftVaries) != 0 ? 1 : 0;
    const unsigned long stepB = (plan.runMeeting & half_utils::rightVaries) != 0 ? 1 : 0;
    for (unsigned long k = 0; k < testing::countOf(shapes.c); ++k) {
      const unsigned long start = k / plan.run * plan.run;
      ASSERT_EQ(shapes.offsetInA(k), shapes.offsetInA(start) + (k - start) * stepA) << shapes << ", element " << k;
      ASSERT_EQ(shapes.offsetInB(k), shapes.offsetInB(start) + (k - start) * stepB) << shapes << ", element " << k;
    }
  }
}

void expectAtRun(odometer const& at, meetingShapes const& shapes, expansionPlan const& plan, unsigned long run) {
  ASSERT_EQ(at.outOffset(), run * plan.run) << shapes << ", run " << run;
  ASSERT_EQ(at.offsets()[0], shapes.offsetInA(run * plan.run)) << shapes << ", run " << run;
  ASSERT_EQ(at.offsets()[1], shapes.offsetInB(run * plan.run)) << shapes << ", run " << run;
}

TEST(Odometer, AdvancesThroughTheRunsInOrder) {
  for (meetingShapes const& shapes : randomExpansions(3000, 62)) {
    const expansionPlan plan = planOf(shapes);
    odometer at(plan);
    for (unsigned long run = 0; run < plan.runs; ++run) {
      expectAtRun(at, shapes, plan, run);
      at.advance();
    }
    if (HasFailure()) return;
  }
}

TEST(Odometer, SeekingIsAsManyAdvancesAndCanBeContinued) {
  std::mt19937_64 bits(63);
  for (meetingShapes const& shapes : randomExpansions(1000, 64)) {
    const expansionPlan plan = planOf(shapes);
    odometer at(plan);
    for (int repetition = 0; repetition < 8; ++repetition) {
      const unsigned long run = bits() % plan.runs;
      at.seek(run);
      for (unsigned long next = run; next < std::min(run + 20, plan.runs); ++next) {
        expectAtRun(at, shapes, plan, next);
        at.advance();
      }
    }
    if (HasFailure()) return;
  }
}

using visit = std::tuple<unsigned long, unsigned long, unsigned long>;

std::vector<visit> expectedVisits(meetingShapes const& shapes, expansionPlan const& plan) {
  std::vector<visit> visits;
  for (unsigned long run = 0; run < plan.runs; ++run) {
    const unsigned long start = run * plan.run;
    visits.emplace_back(shapes.offsetInA(start), shapes.offsetInB(start), start);
  }
  return visits;
}

TEST(ForEachRun, VisitsTheRunsInAscendingOrder) {
  for (meetingShapes const& shapes : randomExpansions(1000, 65)) {
    const expansionPlan plan = planOf(shapes);
    std::vector<visit> visits;
    half_utils::forEachRun(plan,
                           [&](runStart const& start, unsigned long c) { visits.emplace_back(start[0], start[1], c); });
    ASSERT_EQ(visits, expectedVisits(shapes, plan)) << shapes;
  }
}

TEST(ForEachRunInParallel, VisitsEachRunOnceOnAnyNumberOfThreads) {
  onEachThreadCount([](int threads) {
    for (meetingShapes const& shapes : randomExpansions(200, 66)) {
      const expansionPlan plan = planOf(shapes);
      for (const unsigned long grainLimit : {2UL, 32UL, 128UL}) {
        std::vector<visit> visits(plan.runs);
        std::vector<std::atomic<int>> counts(plan.runs);
        half_utils::forEachRunInParallel(plan, grainLimit, [&](runStart const& start, unsigned long c) {
          visits.at(c / plan.run) = {start[0], start[1], c};
          ++counts.at(c / plan.run);
        });
        ASSERT_EQ(visits, expectedVisits(shapes, plan)) << shapes << " on " << threads << " threads";
        for (auto const& count : counts) ASSERT_EQ(count, 1) << shapes;
      }
    }
  });
}

TEST(ForEachRunInParallel, RethrowsWhatLeavesABody) {
  const meetingShapes shapes = met({3, 1, 50}, {1, 40, 50});
  const expansionPlan plan = planOf(shapes);
  onEachThreadCount([&](int) {
    EXPECT_THROW(half_utils::forEachRunInParallel(plan, 32,
                                                  [&](runStart const&, unsigned long c) {
                                                    if (c == 777 * plan.run) throw std::domain_error("run 777");
                                                  }),
                 std::domain_error);
  });
}

TEST(ExpansionThreshold, StandsSevenBelowTheEndOfTheCounts) {
  EXPECT_EQ(half_utils::expansionThreshold, 0xFFFF'FFFF'FFFF'FFF9u);
}

TEST(ExpansionGrain, IsTheExactQuotientHeldToTheLimit) {
  const auto expected = [](unsigned long run, unsigned long limit) {
    const unsigned __int128 threshold = (static_cast<unsigned __int128>(1) << 64) - 7;
    const unsigned __int128 quotient = (threshold + run - 1) / run;
    return static_cast<unsigned long>(std::min<unsigned __int128>(quotient, limit));
  };
  std::vector<unsigned long> runs{1, 2, 3, 7, 1000, 0xFFFF'FFFF'FFFF'FFF8, 0xFFFF'FFFF'FFFF'FFF9, -1UL};
  for (int bit = 0; bit < 64; ++bit) {
    for (const unsigned long step : {-2UL, -1UL, 0UL, 1UL, 2UL}) runs.push_back((1UL << bit) + step);
    for (unsigned long divisor = 1; divisor <= 300; ++divisor)
      runs.push_back(-7UL / divisor + static_cast<unsigned long>(bit % 3) - 1);
  }
  std::mt19937_64 bits(67);
  for (int i = 0; i < 100'000; ++i) runs.push_back(bits() >> bits() % 64);
  for (const unsigned long limit : {32UL, 64UL, 128UL, 256UL}) {
    for (const unsigned long run : runs) {
      if (run == 0) continue;
      ASSERT_EQ(half_utils::expansionGrain(run, limit), expected(run, limit)) << run << " to " << limit;
    }
  }
}

TEST(ExpansionGrain, FallsBelowTheLimitWhereThatManyRunsWouldReachTheThreshold) {
  EXPECT_EQ(half_utils::expansionGrain((1UL << 57) - 1, 128), 128u);
  EXPECT_EQ(half_utils::expansionGrain(1UL << 57, 128), 128u);
  EXPECT_EQ(half_utils::expansionGrain((1UL << 57) + 1, 128), 128u);
  EXPECT_EQ(half_utils::expansionGrain(1UL << 58, 128), 64u);
  EXPECT_EQ(half_utils::expansionGrain(1UL << 63, 128), 2u);
  EXPECT_EQ(half_utils::expansionGrain(-7UL, 128), 1u);
}

}  // namespace
}  // namespace zthalf

// Implicit expansion: how two shapes meet, and the walk over the output in runs.
// Internal: promises nothing to users of the library.
#pragma once

#include <vector>

#include "frame/parallel_ranges.h"

namespace half_utils {

// An array's shape as callers give it: element count and sizes, first dimension fastest.
struct shape {
  unsigned long n;
  unsigned long ndims;
  unsigned long const* dims;

  // A dimension that the array does not have counts as 1.
  unsigned long size(unsigned long d) const { return d < ndims ? dims[d] : 1; }
};

// How a dimension, or a run of them, treats the operands: bit 0 is set where the right one varies, bit 1 where the left
// one does. An operand that does not vary has size 1 there.
enum meeting : unsigned { neitherVaries = 0, rightVaries = 1, leftVaries = 2, bothVary = 3 };

// The output cut into runs: the longest leading dimensions that all treat the operands in one way. Within a run each
// operand is either one element or contiguous, so a run is one call of a flat pass.
struct expansionPlan {
  expansionPlan(shape a, shape b, shape c);

  shape a, b, c;
  // Element counts of dimensions 0 to d: also the step from one index of dimension d + 1 to the next.
  std::vector<unsigned long> stepsA, stepsB, stepsC;
  meeting runMeeting = neitherVaries;
  unsigned long firstOuter = 0;  // the first dimension that is not part of the run
  unsigned long run = 0;         // output elements of a run
  unsigned long runs = 0;
};

// Where a run starts in the three arrays.
using runBody = bodyView<unsigned long, unsigned long, unsigned long>;  // offsets in a, b and c

// The position of one run among the plan's outer dimensions.
class odometer {
 public:
  explicit odometer(expansionPlan const& plan);

  // To the start of the run with this number.
  void seek(unsigned long runNumber);
  // To the start of the next run.
  void advance();

  unsigned long offsetA() const { return offsetA_; }
  unsigned long offsetB() const { return offsetB_; }
  unsigned long offsetC() const { return offsetC_; }

 private:
  expansionPlan const& plan_;
  std::vector<unsigned long> indexA_, indexB_, indexC_;
  unsigned long offsetA_ = 0, offsetB_ = 0, offsetC_ = 0;
};

// All runs on the calling thread, in ascending order of the output.
void forEachRun(expansionPlan const& plan, runBody body);

// The same in parallel, cut no finer than grainLimit runs.
void forEachRunInParallel(expansionPlan const& plan, unsigned long grainLimit, runBody body);

// The expansion forks from this count on, the largest that its grain computation can carry: no array reaches it.
inline constexpr unsigned long expansionThreshold = -7UL;

// How many runs a parallel piece holds at least: the limit, or fewer where that many runs would reach the threshold.
// The limit is a power of two.
unsigned long expansionGrain(unsigned long run, unsigned long grainLimit);

}  // namespace half_utils

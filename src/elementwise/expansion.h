// Implicit expansion: how the shapes of two or three operands meet, and the walk over the output in runs.
#pragma once

#include <array>
#include <vector>

#include "frame/loops/parallel_ranges.h"

namespace half_utils {

inline constexpr unsigned mostOperands = 3;

// An array's shape as callers give it: element count and sizes, first dimension fastest.
struct shape {
  unsigned long n;
  unsigned long ndims;
  unsigned long const* dims;

  // A dimension that the array does not have counts as 1.
  unsigned long size(unsigned long d) const { return d < ndims ? dims[d] : 1; }
};

// How a dimension, or a run of them, treats the operands: one bit for each, the first operand's the highest, set where
// it varies. An operand that does not vary has size 1 there.
using meeting = unsigned;

// The meetings of two operands.
inline constexpr meeting neitherVaries = 0, rightVaries = 1, leftVaries = 2, bothVary = 3;

// Whether operand o of so many varies.
inline constexpr bool varies(meeting here, unsigned operands, unsigned o) { return (here >> (operands - 1 - o)) & 1; }

// The output cut into runs: the longest leading dimensions that all treat the operands in one way. Within a run each
// operand is either one element or contiguous, so a run is one call of a flat pass.
struct expansionPlan {
  expansionPlan(shape a, shape b, shape out) : expansionPlan(2, {a, b, {}}, out) {}
  expansionPlan(shape a, shape b, shape c, shape out) : expansionPlan(3, {a, b, c}, out) {}

  unsigned operands;
  std::array<shape, mostOperands> in;
  shape out;
  // Element counts of dimensions 0 to d: also the step from one index of dimension d + 1 to the next.
  std::array<std::vector<unsigned long>, mostOperands> steps;
  std::vector<unsigned long> outSteps;
  meeting runMeeting = 0;
  unsigned long firstOuter = 0;  // the first dimension that is not part of the run
  unsigned long run = 0;         // output elements of a run
  unsigned long runs = 0;

 private:
  expansionPlan(unsigned count, std::array<shape, mostOperands> const& operandShapes, shape outShape);
};

// Where a run starts in the operands.
using runStart = std::array<unsigned long, mostOperands>;
using runBody = bodyView<runStart const&, unsigned long>;  // and in the output

// The position of one run among the plan's outer dimensions.
class odometer {
 public:
  explicit odometer(expansionPlan const& plan);

  // To the start of the run with this number.
  void seek(unsigned long runNumber);
  // To the start of the next run.
  void advance();

  runStart const& offsets() const { return offsets_; }
  unsigned long outOffset() const { return outOffset_; }

 private:
  // An operand of size 1 in a dimension does not move there.
  struct dimension {
    unsigned long size, index;
    runStart moves;
  };

  std::vector<dimension> dimensions_;
  runStart offsets_{};
  unsigned long run_, outOffset_ = 0;
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

#include "elementwise/expansion.h"

#include <algorithm>
#include <bit>

namespace half_utils {

namespace {

std::vector<unsigned long> cumulativeSizes(shape s, unsigned long ndims) {
  std::vector<unsigned long> steps(ndims);
  unsigned long product = 1;
  for (unsigned long d = 0; d < ndims; ++d) steps[d] = product *= s.size(d);
  return steps;
}

meeting meetingIn(unsigned long d, shape a, shape b) {
  return static_cast<meeting>((a.size(d) != 1 ? leftVaries : 0u) | (b.size(d) != 1 ? rightVaries : 0u));
}

}  // namespace

expansionPlan::expansionPlan(shape left, shape right, shape out)
    : a(left),
      b(right),
      c(out),
      stepsA(cumulativeSizes(a, c.ndims)),
      stepsB(cumulativeSizes(b, c.ndims)),
      stepsC(cumulativeSizes(c, c.ndims)) {
  // Dimensions in which nobody varies belong to any run; the first other one decides what kind the run is.
  for (; firstOuter < c.ndims; ++firstOuter) {
    const meeting here = meetingIn(firstOuter, a, b);
    if (runMeeting == neitherVaries) {
      runMeeting = here;
    } else if (here != neitherVaries && here != runMeeting) {
      break;
    }
  }
  run = firstOuter > 0 ? stepsC[firstOuter - 1] : 1;
  runs = c.n / run;
}

odometer::odometer(expansionPlan const& plan)
    : plan_(plan), indexA_(plan.c.ndims), indexB_(plan.c.ndims), indexC_(plan.c.ndims) {}

void odometer::advance() {
  const auto wrap = [](unsigned long& index, unsigned long& offset, unsigned long step) {
    offset -= step * index;
    index = 0;
  };
  const auto step = [](shape s, unsigned long d, unsigned long& index, unsigned long& offset, unsigned long step) {
    if (s.size(d) < 2) return;
    ++index;
    offset += step;
  };
  for (unsigned long d = plan_.firstOuter; d < plan_.c.ndims; ++d) {
    const unsigned long stepA = d > 0 ? plan_.stepsA[d - 1] : 1;
    const unsigned long stepB = d > 0 ? plan_.stepsB[d - 1] : 1;
    if (indexC_[d] + 1 != plan_.c.dims[d]) {
      ++indexC_[d];
      step(plan_.a, d, indexA_[d], offsetA_, stepA);
      step(plan_.b, d, indexB_[d], offsetB_, stepB);
      offsetC_ += plan_.run;
      return;
    }
    indexC_[d] = 0;
    wrap(indexA_[d], offsetA_, stepA);
    wrap(indexB_[d], offsetB_, stepB);
  }
}

void odometer::seek(unsigned long runNumber) {
  offsetA_ = offsetB_ = offsetC_ = 0;
  unsigned long rest = runNumber;
  for (unsigned long d = plan_.firstOuter; d < plan_.c.ndims; ++d) {
    const unsigned long stepA = d > 0 ? plan_.stepsA[d - 1] : 1;
    const unsigned long stepB = d > 0 ? plan_.stepsB[d - 1] : 1;
    const unsigned long stepC = d > 0 ? plan_.stepsC[d - 1] : 1;
    const unsigned long i = rest % plan_.c.dims[d];
    rest /= plan_.c.dims[d];
    indexC_[d] = i;
    indexA_[d] = plan_.stepsA[d] == stepA ? 0 : i;
    indexB_[d] = plan_.stepsB[d] == stepB ? 0 : i;
    offsetA_ += stepA * indexA_[d];
    offsetB_ += stepB * indexB_[d];
    offsetC_ += stepC * i;
  }
}

void forEachRun(expansionPlan const& plan, runBody body) {
  if (plan.run > plan.c.n) return;
  odometer at(plan);
  for (unsigned long i = 0; i < std::max(plan.runs, 1UL); ++i) {
    body(at.offsetA(), at.offsetB(), at.offsetC());
    at.advance();
  }
}

void forEachRunInParallel(expansionPlan const& plan, unsigned long grainLimit, runBody body) {
  forRanges(plan.runs, expansionGrain(plan.run, grainLimit), [&](unsigned long begin, unsigned long end) {
    odometer at(plan);
    at.seek(begin);
    for (unsigned long i = begin; i < end; ++i) {
      body(at.offsetA(), at.offsetB(), at.offsetC());
      at.advance();
    }
  });
}

unsigned long expansionGrain(unsigned long run, unsigned long grainLimit) {
  const int limitBits = std::countr_zero(grainLimit);
  if (run >> (64 - limitBits) == 0) return grainLimit;
  return (expansionThreshold - 1) / run + 1;
}

}  // namespace half_utils

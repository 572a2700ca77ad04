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

}  // namespace

expansionPlan::expansionPlan(unsigned count, std::array<shape, mostOperands> const& operandShapes, shape outShape)
    : operands(count), in(operandShapes), out(outShape), outSteps(cumulativeSizes(out, out.ndims)) {
  for (unsigned o = 0; o < operands; ++o) steps[o] = cumulativeSizes(in[o], out.ndims);
  const auto meetingIn = [this](unsigned long d) {
    meeting here = 0;
    for (unsigned o = 0; o < operands; ++o) here = here << 1 | static_cast<meeting>(in[o].size(d) != 1);
    return here;
  };
  // Dimensions in which nobody varies belong to any run; the first other one decides what kind the run is.
  for (; firstOuter < out.ndims; ++firstOuter) {
    const meeting here = meetingIn(firstOuter);
    if (runMeeting == 0) {
      runMeeting = here;
    } else if (here != 0 && here != runMeeting) {
      break;
    }
  }
  run = firstOuter > 0 ? outSteps[firstOuter - 1] : 1;
  runs = out.n / run;
}

odometer::odometer(expansionPlan const& plan) : run_(plan.run) {
  dimensions_.reserve(plan.out.ndims - plan.firstOuter);
  for (unsigned long d = plan.firstOuter; d < plan.out.ndims; ++d) {
    dimension here{plan.out.dims[d], 0, {}};
    for (unsigned o = 0; o < plan.operands; ++o) {
      const unsigned long step = d > 0 ? plan.steps[o][d - 1] : 1;
      here.moves[o] = plan.in[o].size(d) < 2 ? 0 : step;
    }
    dimensions_.push_back(here);
  }
}

void odometer::advance() {
  outOffset_ += run_;
  for (dimension& here : dimensions_) {
    if (++here.index != here.size) {
      for (unsigned o = 0; o < mostOperands; ++o) offsets_[o] += here.moves[o];
      return;
    }
    here.index = 0;
    for (unsigned o = 0; o < mostOperands; ++o) offsets_[o] -= here.moves[o] * (here.size - 1);
  }
}

void odometer::seek(unsigned long runNumber) {
  offsets_ = {};
  outOffset_ = runNumber * run_;
  for (dimension& here : dimensions_) {
    here.index = runNumber % here.size;
    runNumber /= here.size;
    for (unsigned o = 0; o < mostOperands; ++o) offsets_[o] += here.moves[o] * here.index;
  }
}

void forEachRun(expansionPlan const& plan, runBody body) {
  if (plan.run > plan.out.n) return;
  odometer at(plan);
  for (unsigned long i = 0; i < std::max(plan.runs, 1UL); ++i) {
    body(at.offsets(), at.outOffset());
    at.advance();
  }
}

void forEachRunInParallel(expansionPlan const& plan, unsigned long grainLimit, runBody body) {
  forRanges(plan.runs, expansionGrain(plan.run, grainLimit), [&](unsigned long begin, unsigned long end) {
    odometer at(plan);
    at.seek(begin);
    for (unsigned long i = begin; i < end; ++i) {
      body(at.offsets(), at.outOffset());
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

#include "elementwise/elementwise_op.h"

#include <algorithm>

#include "elementwise/gathered_operand.h"
#include "frame/loops/loop_policy.h"

namespace half_utils {

namespace {

// Operands whose runs are shorter than this are gathered into blocks: fetching an element costs less than half a
// nanosecond, a call of a wide pass and the elements that do not fill its vectors up to 40.
constexpr unsigned long shortRun = 64;

void* atOffset(void* array, unsigned long elements, std::size_t size) {
  return static_cast<std::byte*>(array) + elements * size;
}

// The outputs from begin to end - 1, all operands read in the order of the output.
void passOverGathered(elementwiseOp const& op, operandPointers const& in, void* out, expansionPlan const& plan,
                      unsigned long begin, unsigned long end) {
  elementBlock blocks[mostOperands];
  std::vector<gatheredOperand> operands;
  operands.reserve(op.operands);
  for (unsigned o = 0; o < op.operands; ++o) {
    operands.emplace_back(in[o], op.sizes[o], plan.in[o], plan.out);
    operands.back().seek(begin);
  }
  const flatPass pass = op.passFor(op.allVary());
  for (unsigned long k = begin; k < end; k += blockSize) {
    const unsigned long n = std::min(blockSize, end - k);
    operandPointers block{};
    for (unsigned o = 0; o < op.operands; ++o) block[o] = operands[o].read(n, blocks[o]);
    pass(block, atOffset(out, k, op.outSize), n);
  }
}

// A run, or a piece of a flat loop, by the pass of arrays alone. On its own because of its large frame.
[[gnu::noinline]] void passOverRepeated(elementwiseOp const& op, meeting along, operandPointers const& in, void* out,
                                        unsigned long n) {
  elementBlock blocks[mostOperands];
  operandPointers block = in;
  for (unsigned o = 0; o < op.operands; ++o) {
    if (varies(along, op.operands, o)) continue;
    repeatElement(in[o], op.sizes[o], std::min(n, blockSize), blocks[o]);
    block[o] = blocks[o].bytes;
  }
  const flatPass pass = op.passFor(op.allVary());
  for (unsigned long k = 0; k < n; k += blockSize) {
    pass(block, atOffset(out, k, op.outSize), std::min(blockSize, n - k));
    for (unsigned o = 0; o < op.operands; ++o) {
      if (varies(along, op.operands, o)) block[o] = atOffset(block[o], blockSize, op.sizes[o]);
    }
  }
}

// What does the runs of one meeting.
class runner {
 public:
  runner(elementwiseOp const& op, meeting along)
      : op_(op), along_(along), pass_(op.repeatsSingles && along != op.allVary() ? nullptr : op.passFor(along)) {}

  void operator()(operandPointers const& in, void* out, unsigned long n) const {
    pass_ != nullptr ? pass_(in, out, n) : passOverRepeated(op_, along_, in, out, n);
  }

 private:
  elementwiseOp const& op_;
  meeting along_;
  flatPass pass_;
};

}  // namespace

void flatLoopInParallel(elementwiseOp const& op, meeting along, operandPointers const& in, void* out, unsigned long n) {
  const runner pass(op, along);
  forAffineRanges(n, op.grain, [&](unsigned long begin, unsigned long end) {
    operandPointers from = in;
    for (unsigned o = 0; o < op.operands; ++o) {
      if (varies(along, op.operands, o)) from[o] = atOffset(in[o], begin, op.sizes[o]);
    }
    pass(from, atOffset(out, begin, op.outSize), end - begin);
  });
}

void flatLoop(elementwiseOp const& op, meeting along, operandPointers const& in, void* out, unsigned long n) {
  if (forks(n)) return flatLoopInParallel(op, along, in, out, n);
  runner(op, along)(in, out, n);
}

void expand(elementwiseOp const& op, operandPointers const& in, void* out, expansionPlan const& plan, bool parallel) {
  const unsigned long grainLimit = op.grain / 2;
  if (plan.run < shortRun) {
    const auto visit = [&](unsigned long begin, unsigned long end) {
      passOverGathered(op, in, out, plan, begin * plan.run, end * plan.run);
    };
    return parallel ? forRanges(plan.runs, expansionGrain(plan.run, grainLimit), visit) : visit(0, plan.runs);
  }
  const auto visit = [&, pass = runner(op, plan.runMeeting)](runStart const& start, unsigned long outStart) {
    operandPointers from{};
    for (unsigned o = 0; o < op.operands; ++o) from[o] = atOffset(in[o], start[o], op.sizes[o]);
    pass(from, atOffset(out, outStart, op.outSize), plan.run);
  };
  parallel ? forEachRunInParallel(plan, grainLimit, visit) : forEachRun(plan, visit);
}

}  // namespace half_utils

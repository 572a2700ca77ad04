#include "frame/loops/parallel_ranges.h"

#include <tbb/blocked_range.h>
#include <tbb/parallel_for.h>
#include <tbb/partitioner.h>

#include "frame/loops/fork.h"
#include "frame/loops/lost_threads.h"
#include "frame/loops/task_order.h"

namespace half_utils {

namespace {

template <class Range, class Body, class Partitioner>
void forkOver(Range const& range, Body body, Partitioner& partitioner) {
  if (threadsAreLost()) return body(range);
  tbb::task_group_context context = forkContext();
  taskOrder order;
  whileTakingOnlyOwnTasks([&] { tbb::parallel_for(range, order.inTask(body), partitioner, context); });
}

tbb::blocked_range<unsigned long> indices(unsigned long n, unsigned long grain) { return {0, n, grain}; }

auto onBounds(rangeBody body) {
  return [body](tbb::blocked_range<unsigned long> const& r) { body(r.begin(), r.end()); };
}

}  // namespace

void forAffineRanges(unsigned long n, unsigned long grain, rangeBody body) {
  if (n == 0) return;
  tbb::affinity_partitioner affinity;
  forkOver(indices(n, grain), onBounds(body), affinity);
}

void forRanges(unsigned long n, unsigned long grain, rangeBody body) {
  if (n == 0) return;
  tbb::auto_partitioner const partitioner;
  forkOver(indices(n, grain), onBounds(body), partitioner);
}

bool forRangesUntilCancelled(unsigned long n, unsigned long grain, cancellableBody body) {
  bool cancelled = false;
  cancellableIndices const all(0, n, grain, &cancelled);
  if (!all.empty()) {
    tbb::auto_partitioner const partitioner;
    forkOver(
        all, [body](cancellableIndices const& r) { body(r); }, partitioner);
  }
  return !cancelled;
}

}  // namespace half_utils

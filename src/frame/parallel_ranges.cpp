#include "frame/parallel_ranges.h"

#include <tbb/blocked_range.h>
#include <tbb/parallel_for.h>
#include <tbb/partitioner.h>

#include "frame/task_order.h"

namespace half_utils {

using range = tbb::blocked_range<unsigned long>;

void forAffineRanges(unsigned long n, unsigned long grain, rangeBody body) {
  tbb::affinity_partitioner affinity;
  taskOrder order;
  tbb::parallel_for(range(0, n, grain), order.inTask([body](range const& r) { body(r.begin(), r.end()); }), affinity);
}

void forRanges(unsigned long n, unsigned long grain, rangeBody body) {
  tbb::auto_partitioner const partitioner;
  taskOrder order;
  tbb::parallel_for(range(0, n, grain), order.inTask([body](range const& r) { body(r.begin(), r.end()); }),
                    partitioner);
}

bool forRangesUntilCancelled(unsigned long n, unsigned long grain, cancellableBody body) {
  bool cancelled = false;
  cancellableIndices const all(0, n, grain, &cancelled);
  if (!all.empty()) {
    tbb::auto_partitioner const partitioner;
    taskOrder order;
    tbb::parallel_for(all, order.inTask([body](cancellableIndices const& r) { body(r); }), partitioner);
  }
  return !cancelled;
}

}  // namespace half_utils

// A range of indices for tbb::parallel_for that any body can cancel.
#pragma once

#include <tbb/blocked_range.h>

#include <atomic>

namespace half {

// Shaped like tbb::blocked_range, with a flag shared by all pieces of one loop. Once the flag is set the range splits
// no more and its end falls on its beginning, so that a body which asks for end() at each step stops at once.
//
// The flag is a bool on the stack of the call that owns the loop, read and written as a plain byte: the relaxed access
// only tells the compiler that other threads write it. The one value ever stored is true, and a reader that sees it
// late does a few more elements, so no result depends on when it is seen.
template <class Index>
class cancellable_range {
 public:
  using const_iterator = Index;

  cancellable_range(Index begin, Index end, Index grain, bool* cancelled)
      : end_(end), begin_(begin), grain_(grain), cancelled_(cancelled) {}

  cancellable_range(cancellable_range& other, tbb::split)
      : end_(other.end_), begin_(middleOf(other)), grain_(other.grain_), cancelled_(other.cancelled_) {
    other.end_ = begin_;
  }

  void cancel() const { std::atomic_ref(*cancelled_).store(true, std::memory_order_relaxed); }

  bool empty() const { return isCancelled() || !(begin_ < end_); }
  bool is_divisible() const { return !isCancelled() && grain_ < end_ - begin_; }
  Index begin() const { return begin_; }
  Index end() const { return isCancelled() ? begin_ : end_; }
  Index grainsize() const { return grain_; }

 private:
  bool isCancelled() const { return std::atomic_ref(*cancelled_).load(std::memory_order_relaxed); }
  static Index middleOf(cancellable_range const& r) { return r.begin_ + (r.end_ - r.begin_) / 2u; }

  Index end_;
  Index begin_;
  Index grain_;
  bool* cancelled_;
};

}  // namespace half

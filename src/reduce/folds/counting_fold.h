// A sum that skips NaNs and counts what it did not skip.
#pragma once

#include <algorithm>

#include "reduce/folds/lane_fold.h"

namespace half_utils {

template <class Number>
struct countedNumber {
  Number sum;
  unsigned long count;
};

template <int parts>
unsigned long numbersAmong(std::uint16_t const* elements, unsigned long n) {
  unsigned long count = 0;
  zthalf::leveled<numbersPass<parts>, std::uint16_t const*, unsigned long, unsigned long*>::chosen()(elements, n,
                                                                                                     &count);
  return count;
}

// Step is the plain addition: it is how partial sums meet, whether NaN or not. Only elements are skipped.
template <class Step>
struct countingFold {
  using source = sourceOf<Step>;
  using accumulator = countedNumber<typename Step::number>;

  static accumulator initial(source const*) { return {Step::identity(), 0}; }
  static accumulator start(source const* first) { return initial(first); }
  static accumulator join(accumulator left, accumulator right) {
    return {laneFold<Step>::join(left.sum, right.sum), left.count + right.count};
  }
  static accumulator finish(accumulator total, accumulator partial, reducedPosition at) {
    return {laneFold<Step>::finish(total.sum, partial.sum, at), total.count + partial.count};
  }
  static void leaves(leafSpan<source> const* leaves, unsigned count, accumulator* results) {
    typename Step::number sums[batchLeaves];
    laneFold<skippingNaN<Step>>::leaves(leaves, count, sums);
    for (unsigned i = 0; i < count; ++i) {
      const source* const first = leaves[i].tree + leaves[i].begin;
      results[i] = {sums[i], numbersAmong<Step::parts>(patternsOf(first), leaves[i].length())};
    }
  }
};

template <class Step>
class countingRows {
 public:
  using source = sourceOf<Step>;
  static constexpr unsigned long widest = laneRows<Step>::widest;

  countingRows(source const* first, unsigned long length) : sums_(first, length) {
    std::fill_n(counts_, length, 0UL);
    std::fill_n(recent_, length, std::uint16_t{0});
  }

  void add(source const* elements, unsigned long length, reducedPosition at) {
    sums_.add(elements, length, at);
    countNumbers_(patternsOf(elements), length, recent_);
    if (++steps_ < fullCount) return;
    for (unsigned long j = 0; j < length; ++j) counts_[j] += recent_[j];
    std::fill_n(recent_, length, std::uint16_t{0});
    steps_ = 0;
  }

  countedNumber<typename Step::number> result(unsigned long j) const {
    return {sums_.result(j), counts_[j] + recent_[j]};
  }

 private:
  static constexpr unsigned long fullCount = 0xFFFF;  // what a 16-bit lane can hold

  laneRows<skippingNaN<Step>> sums_;
  unsigned long counts_[widest];
  std::uint16_t recent_[widest];
  unsigned long steps_ = 0;
  decltype(zthalf::leveled<numbersRowPass<Step::parts>, std::uint16_t const*, unsigned long, std::uint16_t*>::chosen())
      countNumbers_ =
          zthalf::leveled<numbersRowPass<Step::parts>, std::uint16_t const*, unsigned long, std::uint16_t*>::chosen();
};

}  // namespace half_utils

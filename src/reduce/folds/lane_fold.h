// A step as a fold of the tree, the column form and the row form: the leaves of a batch and the outputs of a row run
// side by side.
#pragma once

#include <algorithm>
#include <complex>
#include <type_traits>

#include "reduce/dimensional_forms.h"
#include "reduce/folds/lanes.h"

namespace half_utils {

template <class Step>
using sourceOf = std::conditional_t<Step::parts == 2, std::complex<fp16binary_t>, fp16binary_t>;

template <class Source>
std::uint16_t const* patternsOf(Source const* elements) {
  return reinterpret_cast<std::uint16_t const*>(elements);
}

template <class Step, bool settles>
auto tilePassInUse() {
  using wide = typename Step::wide;
  return zthalf::leveled<tilePass<Step, settles>, std::uint16_t const* const*, unsigned long, wide*>::chosen();
}

template <class Step, bool settles>
auto rowPassInUse() {
  using wide = typename Step::wide;
  return zthalf::leveled<rowPass<Step, settles>, std::uint16_t const*, unsigned long, wide const*, wide*, unsigned long,
                         bool*>::chosen();
}

template <class Step>
typename Step::number widened(sourceOf<Step> const& element) {
  typename Step::number x;
  for (int p = 0; p < Step::parts; ++p) x.part[p] = zthalf::widen<typename Step::wide>(patternsOf(&element)[p]);
  return x;
}

template <class Step>
struct laneFold {
  using source = sourceOf<Step>;
  using accumulator = typename Step::number;

  static accumulator initial(source const*) { return Step::identity(); }
  static accumulator start(source const*) { return Step::identity(); }
  static accumulator join(accumulator left, accumulator right) { return Step::settled(left, right); }
  static accumulator finish(accumulator total, accumulator partial, reducedPosition) {
    return Step::finished(total, partial);
  }

  // Leaves of one depth differ in length by at most one element. Where they lie at two depths, some have 256 elements
  // and others half as many; tiles take from one kind at a time.
  static void leaves(leafSpan<source> const* leaves, unsigned count, accumulator* results) {
    constexpr unsigned long longLeaf = 3 * leafLimit / 4;
    unsigned chosen[tileLanes];
    for (const bool longOnes : {true, false}) {
      unsigned lanes = 0;
      for (unsigned i = 0; i < count; ++i) {
        if ((leaves[i].length() > longLeaf) != longOnes) continue;
        chosen[lanes++] = i;
        if (lanes == tileLanes) runTile(leaves, chosen, lanes, results), lanes = 0;
      }
      if (lanes > 0) runTile(leaves, chosen, lanes, results);
    }
  }

 private:
  using wide = typename Step::wide;

  static void runTile(leafSpan<source> const* leaves, unsigned const* chosen, unsigned lanes, accumulator* results) {
    unsigned long common = leafLimit;
    for (unsigned lane = 0; lane < lanes; ++lane) common = std::min(common, leaves[chosen[lane]].length());
    if (lanes <= lanesNotWorthATile) {
      for (unsigned lane = 0; lane < lanes; ++lane)
        results[chosen[lane]] = continued(leaves[chosen[lane]], 0, Step::identity());
      return;
    }
    std::uint16_t const* arrays[tileLanes];
    for (unsigned lane = 0; lane < tileLanes; ++lane) {
      auto const& leaf = leaves[chosen[std::min(lane, lanes - 1)]];  // lanes to spare do the last one's work again
      arrays[lane] = patternsOf(leaf.tree + leaf.begin);
    }
    wide numbers[Step::parts * tileLanes];
    runLanes<Step::plainIsEnough>(arrays, common, numbers);
    if constexpr (!Step::plainIsEnough) {
      if (anyNaN(numbers)) runLanes<true>(arrays, common, numbers);
    }
    for (unsigned lane = 0; lane < lanes; ++lane) {
      accumulator number;
      for (int p = 0; p < Step::parts; ++p) number.part[p] = numbers[p * tileLanes + lane];
      results[chosen[lane]] = continued(leaves[chosen[lane]], common, number);
    }
  }

  template <bool settles>
  static void runLanes(std::uint16_t const* const* arrays, unsigned long n, wide* numbers) {
    for (int p = 0; p < Step::parts; ++p) std::fill_n(numbers + p * tileLanes, tileLanes, Step::identity().part[p]);
    tilePassInUse<Step, settles>()(arrays, n, numbers);
  }

  static bool anyNaN(wide const* numbers) {
    bool any = false;
    for (unsigned i = 0; i < Step::parts * tileLanes; ++i) any |= numbers[i] != numbers[i];
    return any;
  }

  // The rest of a leaf's chain.
  static accumulator continued(leafSpan<source> const& leaf, unsigned long done, accumulator number) {
    for (unsigned long i = leaf.begin + done; i < leaf.end; ++i)
      number = Step::settled(number, widened<Step>(leaf.tree[i]));
    return number;
  }

  // A chain alone waits for each of its steps; a tile of one or two lanes does no better.
  static constexpr unsigned lanesNotWorthATile = 2;
};

// Neighbouring outputs of the row form. The values before a step are kept until it is known that none became a NaN:
// the step is then done again, and from the first NaN on each step is a settled one.
template <class Step>
class laneRows {
 public:
  using source = sourceOf<Step>;
  static constexpr unsigned long widest = 1024;

  laneRows(source const*, unsigned long length) {
    for (int p = 0; p < Step::parts; ++p) std::fill_n(values_ + p * widest, length, Step::identity().part[p]);
  }
  laneRows(laneRows const&) = delete;
  laneRows& operator=(laneRows const&) = delete;

  void add(source const* elements, unsigned long length, reducedPosition) {
    fetchAhead(elements, length);
    if (!settles_) {
      plain_(patternsOf(elements), length, now_, then_, widest, &settles_);
      settles_ &= !Step::plainIsEnough;
    }
    if (settles_) {
      bool stays;
      settled_(patternsOf(elements), length, now_, then_, widest, &stays);
    }
    std::swap(now_, then_);
  }

  typename Step::number result(unsigned long j) const {
    typename Step::number number;
    for (int p = 0; p < Step::parts; ++p) number.part[p] = now_[p * widest + j];
    return number;
  }

 private:
  using wide = typename Step::wide;

  // Rows lie far apart, in pages of their own where the source is wide, so that nothing else brings them near in time.
  // Prefetching an unmapped address is harmless.
  void fetchAhead(source const* elements, unsigned long length) {
    const auto here = reinterpret_cast<std::uintptr_t>(elements);
    const auto ahead = here + rowsAhead * (here - before_);
    before_ = here;
    for (unsigned long byte = 0; byte < length * sizeof(source); byte += 64)
      __builtin_prefetch(reinterpret_cast<void const*>(ahead + byte));
  }

  static constexpr unsigned long rowsAhead = 4;

  std::uintptr_t before_ = 0;
  wide values_[Step::parts * widest], spare_[Step::parts * widest];
  wide* now_ = values_;
  wide* then_ = spare_;
  bool settles_ = false;
  decltype(rowPassInUse<Step, false>()) plain_ = rowPassInUse<Step, Step::plainIsEnough>();
  decltype(rowPassInUse<Step, true>()) settled_ = rowPassInUse<Step, true>();
};

}  // namespace half_utils

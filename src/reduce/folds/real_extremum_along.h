// Extrema of real halves along dimensions: runs one after the other, or rows in vector lanes.
#pragma once

#include "reduce/dimensional_forms.h"
#include "reduce/folds/extremum_position.h"
#include "reduce/folds/real_extremum.h"

namespace half_utils {

// The column form: the extremum of each run, and of those. There is at least one run, and an element in it.
template <class Kind, class Write>
void realExtremaOfColumns(fp16binary_t const* src, alternatingShape const& shape, Write write) {
  constexpr unsigned long widest = 32;
  struct held {
    std::int16_t place;
    extremumStanding<fp16binary_t> at;
  };
  const unsigned long n = shape.runLength();
  const realExtremumSearch<Kind> search;
  forAllBlocks(shape, widest, [&](outputBlock const& block, reducedWalk& walk) {
    held totals[widest];
    for (unsigned long k = 0; k < shape.combinations(); ++k) {
      for (unsigned long c = 0; c < block.length; ++c) {
        fp16binary_t const* const origin = src + block.offset + c * n;
        fp16binary_t const* const run = origin + walk.offset();
        const placedElement found = search.amongMany(run, n);
        if (k == 0 || replaces<Kind>(found.place, totals[c].place))
          totals[c] = {found.place, {run[found.position], origin, k, found.position}};
      }
      walk.advance();
    }
    for (unsigned long c = 0; c < block.length; ++c) write(block.first + c, totals[c].at);
  });
}

// One step of neighbouring outputs: each takes in the element of its place, or keeps what it holds.
template <class Kind>
struct rowStepPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(fp16binary_t const* elements, unsigned long n, std::uint16_t step, std::int16_t* places,
                                std::uint16_t* patterns, std::uint16_t* steps) {
    for (unsigned long j = 0; j < n; ++j) {
      const std::uint16_t x = elements[j].bits;
      const std::int16_t place = placeOf<Kind>(x);
      const auto isReplaced = zthalf::maskOf<std::uint16_t>(replaces<Kind>(place, places[j]));
      places[j] = static_cast<std::int16_t>(
          zthalf::select(isReplaced, static_cast<std::uint16_t>(place), static_cast<std::uint16_t>(places[j])));
      patterns[j] = zthalf::select(isReplaced, x, patterns[j]);
      steps[j] = zthalf::select(isReplaced, step, steps[j]);
    }
  }
};

// The row form. In 16-bit lanes a step's number has 16 bits too: after as many steps what the lanes hold is settled
// into the totals, and they begin anew.
template <class Kind>
class realExtremumRows {
 public:
  using source = fp16binary_t;
  static constexpr unsigned long widest = 1024;

  // Few outputs would fill no wide register; they are done in narrow ones.
  realExtremumRows(fp16binary_t const* first, unsigned long length)
      : first_(first), length_(length), step_(length < 32 ? &stepPass::base : stepPass::chosen()) {
    clearLanes();
    for (unsigned long j = 0; j < length; ++j) {
      patterns_[j] = first[j].bits;
      steps_[j] = 0;
      totals_[j] = {zthalf::lastPlace, first[j].bits, 0};
    }
  }

  void add(fp16binary_t const* elements, unsigned long length, reducedPosition at) {
    const auto step = static_cast<std::uint16_t>(at.combination);
    if (step == 0 && at.combination != 0) settle();
    base_ = at.combination - step;
    step_(elements, length, step, places_, patterns_, steps_);
  }

  extremumStanding<fp16binary_t> result(unsigned long j) const {
    const total found = withLane(j);
    return {{found.pattern}, first_ + j, found.combination, 0};
  }

 private:
  using stepPass = zthalf::leveled<rowStepPass<Kind>, fp16binary_t const*, unsigned long, std::uint16_t, std::int16_t*,
                                   std::uint16_t*, std::uint16_t*>;

  struct total {
    std::int16_t place;
    std::uint16_t pattern;
    unsigned long combination;
  };

  // What was held earlier stays unless it is replaced; before the first step nothing but the last place is held.
  total withLane(unsigned long j) const {
    return replaces<Kind>(places_[j], totals_[j].place) ? total{places_[j], patterns_[j], base_ + steps_[j]}
                                                        : totals_[j];
  }

  void settle() {
    for (unsigned long j = 0; j < length_; ++j) totals_[j] = withLane(j);
    clearLanes();
  }

  void clearLanes() { std::fill_n(places_, length_, zthalf::lastPlace); }

  fp16binary_t const* first_;
  unsigned long length_;
  unsigned long base_ = 0;  // the combination of step 0
  std::int16_t places_[widest];
  std::uint16_t patterns_[widest], steps_[widest];
  total totals_[widest];
  void (*step_)(fp16binary_t const*, unsigned long, std::uint16_t, std::int16_t*, std::uint16_t*, std::uint16_t*);
};

}  // namespace half_utils

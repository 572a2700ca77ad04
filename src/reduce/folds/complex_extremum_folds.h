// Extrema of complex halves as folds. Each chain, each join and each beginning is the tree's: with another order of
// steps another element could win, since (-1, -0) and (-1, +0) are equal and have the smallest and the largest angle.
#pragma once

#include "reduce/dimensional_forms.h"
#include "reduce/folds/extremum_position.h"
#include "reduce/folds/held_complex.h"

namespace half_utils {

// A chain's or a tree's winner with its index on the run, from 1. Where nothing has replaced what a chain began with,
// the index is that of the chain's own first element: no join takes it, since the value ties with the left one or
// loses.
template <class Kind>
struct complexWinner {
  heldComplex<Kind> held;
  unsigned long index;
  unsigned long combination;
  cplxHalf const* origin;

  extremumStanding<cplxHalf> standing() const { return {held.value(), origin, combination, index - 1}; }
};

template <class Kind>
struct complexExtremumFold {
  using source = cplxHalf;
  using accumulator = complexWinner<Kind>;

  static accumulator initial(cplxHalf const* tree) { return {heldComplex<Kind>(*tree), 0, 0, tree}; }
  static accumulator start(cplxHalf const* first) { return initial(first); }

  static void leaves(leafSpan<cplxHalf> const* leaves, unsigned count, accumulator* results) {
    const auto squaredLengths = squaredLengthsInUse();
    float squares[leafLimit];
    accumulator beginning = initial(leaves[0].tree);
    for (unsigned l = 0; l < count; ++l) {
      auto const& leaf = leaves[l];
      if (leaf.tree != beginning.origin) beginning = initial(leaf.tree);
      accumulator chain = beginning;
      chain.index = leaf.begin + 1;
      squaredLengths(leaf.tree + leaf.begin, leaf.length(), squares);
      for (unsigned long i = leaf.begin; i < leaf.end && !chain.held.isSettled(); ++i) {
        const float square = squares[i - leaf.begin];
        if (!chain.held.isWorthAsking(square)) continue;
        if (chain.held.takeIfAhead(leaf.tree[i], square)) chain.index = i + 1;
      }
      results[l] = chain;
    }
  }

  static accumulator join(accumulator left, accumulator right) {
    if (left.held.takeIfAhead(right.held)) left.index = right.index;
    return left;
  }

  // With an index the first tree's winner is where the chain of winners begins.
  static accumulator finish(accumulator total, accumulator partial, reducedPosition at) {
    return at.combination == 0 ? partial : finishedByAhead(total, partial, at);
  }

 protected:
  static accumulator finishedByAhead(accumulator total, accumulator partial, reducedPosition at) {
    if (total.held.takeIfAhead(partial.held)) {
      total.index = partial.index;
      total.combination = at.combination;
    }
    return total;
  }
};

// Without an index the chain begins with the first element, and the first tree's winner has to get ahead of that.
template <class Kind>
struct complexExtremumValueFold : complexExtremumFold<Kind> {
  using accumulator = complexWinner<Kind>;

  static accumulator finish(accumulator total, accumulator partial, reducedPosition at) {
    return complexExtremumFold<Kind>::finishedByAhead(total, partial, at);
  }
};

template <class Kind>
class complexExtremumRows {
 public:
  using source = cplxHalf;
  static constexpr unsigned long widest = 256;

  complexExtremumRows(cplxHalf const* first, unsigned long length) : first_(first) {
    for (unsigned long j = 0; j < length; ++j) {
      held_[j] = heldComplex<Kind>(first[j]);
      combinations_[j] = 0;
    }
  }

  void add(cplxHalf const* elements, unsigned long length, reducedPosition at) {
    float squares[widest];
    squaredLengths_(elements, length, squares);
    for (unsigned long j = 0; j < length; ++j) {
      if (!held_[j].isWorthAsking(squares[j]) || held_[j].isSettled()) continue;
      if (held_[j].takeIfAhead(elements[j], squares[j])) combinations_[j] = at.combination;
    }
  }

  extremumStanding<cplxHalf> result(unsigned long j) const {
    return {held_[j].value(), first_ + j, combinations_[j], 0};
  }

 private:
  cplxHalf const* first_;
  heldComplex<Kind> held_[widest];
  unsigned long combinations_[widest];
  void (*squaredLengths_)(cplxHalf const*, unsigned long, float*) = squaredLengthsInUse();
};

}  // namespace half_utils

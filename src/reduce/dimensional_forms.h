// Reduction along dimensions: which values each output takes in, and in which order. The split of the outputs among
// blocks and threads changes no result, since each output is computed whole in one block.
#pragma once

#include "reduce/alternating_shape.h"
#include "reduce/tree.h"

namespace half_utils {

// One combination of the reduced positions as one output meets it: its number, and where its elements begin in the
// source.
struct reducedPosition {
  unsigned long combination;
  unsigned long offset;
};

// The column form: a tree for each contiguous run, and the trees of one output folded one after the other. Beside what
// a tree asks for (see tree.h) the fold has
//
//   accumulator start(source const* first)    an output's value before its first tree, which begins at *first; called
//                                             for outputs without a tree too
//   accumulator finish(accumulator total, accumulator partial, reducedPosition)
//
// write(output, accumulator) is called once for each output, on any thread.
template <class Fold, class Write>
void reduceColumns(typename Fold::source const* src, alternatingShape const& shape, Write write) {
  using accumulator = typename Fold::accumulator;
  const unsigned long n = shape.runLength();
  forAllBlocks(shape, treesAtOnce(n), [&](outputBlock const& block, reducedWalk& walk) {
    accumulator totals[batchLeaves], partials[batchLeaves];
    for (unsigned long c = 0; c < block.length; ++c) totals[c] = Fold::start(src + block.offset + c * n);
    for (unsigned long k = 0; k < shape.combinations(); ++k) {
      const unsigned long offset = block.offset + walk.offset();
      reduceTrees<Fold>(src + offset, n, block.length, partials);
      for (unsigned long c = 0; c < block.length; ++c)
        totals[c] = Fold::finish(totals[c], partials[c], reducedPosition{k, offset + c * n});
      walk.advance();
    }
    for (unsigned long c = 0; c < block.length; ++c) write(block.first + c, totals[c]);
  });
}

// The row form: each output is one chain over its elements, whatever their number. Neighbouring outputs advance side by
// side, as many as Rows takes:
//
//   widest                                    how many outputs a Rows holds at most
//   Rows(source const* first, unsigned long length)
//                                             their values before the first step, which takes elements from *first on
//   void add(source const* elements, unsigned long length, reducedPosition)
//                                             one step of each chain; the position is that of the first output
//   accumulator result(unsigned long j) const
template <class Rows, class Write>
void reduceRows(typename Rows::source const* src, alternatingShape const& shape, Write write) {
  forAllBlocks(shape, Rows::widest, [&](outputBlock const& block, reducedWalk& walk) {
    Rows rows(src + block.offset, block.length);
    for (unsigned long k = 0; k < shape.combinations(); ++k) {
      const unsigned long offset = block.offset + walk.offset();
      rows.add(src + offset, block.length, reducedPosition{k, offset});
      walk.advance();
    }
    for (unsigned long j = 0; j < block.length; ++j) write(block.first + j, rows.result(j));
  });
}

}  // namespace half_utils

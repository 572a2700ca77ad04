// The tree of a reduction over contiguous elements. Its form follows from the number of elements alone: a range of more
// than 256 elements is cut in the middle, the left half being the shorter one, and each range that is left is one chain
// from its first element to its last. Neither threads nor vector lanes change which value meets which.
//
// What is folded is a class of static members:
//
//   source, accumulator                       element type; what a chain and a join deliver
//   accumulator initial(source const* tree)   where every chain of a tree begins
//   void leaves(leafSpan<source> const* leaves, unsigned count, accumulator* results)
//                                             each leaf's chain from its initial value; a fold is free to run several
//                                             side by side
//   accumulator join(accumulator left, accumulator right)
//
// Optionally elementsPerTask: how many elements are worth a task.
#pragma once

#include "reduce/parallel_tree.h"

namespace half_utils {

inline constexpr unsigned long leafLimit = 256;
inline constexpr unsigned long batchLeaves = 32;
// A subtree of no more elements than these has no more leaves than a batch: halving five times gets below the limit.
inline constexpr unsigned long batchElements = batchLeaves * leafLimit;

// The elements [begin, end) of the tree whose element 0 is *tree.
template <class Source>
struct leafSpan {
  Source const* tree;
  unsigned long begin, end;

  unsigned long length() const { return end - begin; }
};

inline unsigned long middleOf(unsigned long begin, unsigned long end) { return begin + (end - begin) / 2; }

inline unsigned long leavesOf(unsigned long n) { return n <= leafLimit ? 1 : leavesOf(n / 2) + leavesOf(n - n / 2); }

template <class Fold>
inline constexpr unsigned long elementsPerTask = 32768;
template <class Fold>
requires requires { Fold::elementsPerTask; }
inline constexpr unsigned long elementsPerTask<Fold> = Fold::elementsPerTask;

// The leaves of one or several subtrees, run together and then joined one subtree after the other.
template <class Fold>
class leafBatch {
 public:
  using source = typename Fold::source;
  using accumulator = typename Fold::accumulator;

  void add(source const* tree, unsigned long begin, unsigned long end) {
    if (end - begin <= leafLimit) {
      leaves_[count_++] = {tree, begin, end};
      return;
    }
    const unsigned long middle = middleOf(begin, end);
    add(tree, begin, middle);
    add(tree, middle, end);
  }

  void run() { Fold::leaves(leaves_, count_, results_); }

  // The result of the next subtree, which must be the one that was added next.
  accumulator joined(unsigned long n) {
    if (n <= leafLimit) return results_[next_++];
    const accumulator left = joined(n / 2);
    return Fold::join(left, joined(n - n / 2));
  }

 private:
  unsigned count_ = 0, next_ = 0;
  leafSpan<source> leaves_[batchLeaves] = {};
  accumulator results_[batchLeaves];
};

// The subtree over [begin, end), which is not empty.
template <class Fold>
typename Fold::accumulator reducedSubtree(typename Fold::source const* tree, unsigned long begin, unsigned long end) {
  const unsigned long n = end - begin;
  if (n <= batchElements) {
    leafBatch<Fold> batch;
    batch.add(tree, begin, end);
    batch.run();
    return batch.joined(n);
  }
  const unsigned long middle = middleOf(begin, end);
  if (n <= elementsPerTask<Fold>) {
    const auto left = reducedSubtree<Fold>(tree, begin, middle);
    return Fold::join(left, reducedSubtree<Fold>(tree, middle, end));
  }
  typename Fold::accumulator left, right;
  runBoth([&] { left = reducedSubtree<Fold>(tree, begin, middle); },
          [&] { right = reducedSubtree<Fold>(tree, middle, end); });
  return Fold::join(left, right);
}

// The whole tree. Without an element it is its initial value.
template <class Fold>
typename Fold::accumulator reducedTree(typename Fold::source const* tree, unsigned long n) {
  if (n == 0) return Fold::initial(tree);
  if (n <= elementsPerTask<Fold>) return reducedSubtree<Fold>(tree, 0, n);
  typename Fold::accumulator result;
  asForkingTree([&] { result = reducedSubtree<Fold>(tree, 0, n); });
  return result;
}

// Trees of n elements each, one after the other in memory; there are no more of them than treesAtOnce(n).
inline unsigned long treesAtOnce(unsigned long n) {
  return n > batchElements || n == 0 ? batchLeaves : batchLeaves / leavesOf(n);
}

template <class Fold>
void reduceTrees(typename Fold::source const* first, unsigned long n, unsigned long trees,
                 typename Fold::accumulator* results) {
  if (n == 0 || n > batchElements) {
    for (unsigned long t = 0; t < trees; ++t) results[t] = reducedTree<Fold>(first + t * n, n);
    return;
  }
  leafBatch<Fold> batch;
  for (unsigned long t = 0; t < trees; ++t) batch.add(first + t * n, 0, n);
  batch.run();
  for (unsigned long t = 0; t < trees; ++t) results[t] = batch.joined(n);
}

}  // namespace half_utils

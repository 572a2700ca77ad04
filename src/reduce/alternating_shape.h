// The shape of a reduction along dimensions, and the walks over its outputs and over what each of them takes in.
#pragma once

#include <vector>

#include "frame/loops/parallel_ranges.h"

namespace half_utils {

// Sizes in memory order, first dimension fastest, in which kept and reduced dimensions take turns. In the column form
// the first one is reduced and makes one contiguous run, in the row form it is kept. A dimension that is not there
// counts as one of size 1.
class alternatingShape {
 public:
  // The sizes stay the caller's and must outlive the shape.
  alternatingShape(unsigned long ndims, unsigned long const* dims, bool firstReduced);

  // How many outputs there are: the product of the kept sizes.
  unsigned long outputs() const { return outputs_; }
  // How many combinations the reduced positions have, the run of the column form not counted.
  unsigned long combinations() const { return combinations_; }
  // The length of the contiguous runs of the column form; also the step from one of its outputs to the next.
  unsigned long runLength() const { return size(0); }
  // Whether a reduced size is 0, so that no output has an element.
  bool reducesNothing() const { return combinations_ == 0 || (leading_ == 1 && runLength() == 0); }

  // The fastest kept position. The ones after it are by turns reduced and kept.
  unsigned long leading() const { return leading_; }
  unsigned long ndims() const { return ndims_; }
  unsigned long size(unsigned long position) const { return position < ndims_ ? dims_[position] : 1; }
  // Elements from one index of this position to the next.
  unsigned long stride(unsigned long position) const { return position < ndims_ ? strides_[position] : 1; }

 private:
  unsigned long ndims_;
  unsigned long const* dims_;
  unsigned long leading_;
  std::vector<unsigned long> strides_;
  unsigned long outputs_ = 1, combinations_ = 1;
};

// Goes through the combinations of the reduced positions, the fastest one first, and begins again after the last.
class reducedWalk {
 public:
  explicit reducedWalk(alternatingShape const& shape) : shape_(shape), indices_(shape.ndims()) {}

  void advance();
  // Elements from the first combination to the present one.
  unsigned long offset() const { return offset_; }

 private:
  alternatingShape const& shape_;
  std::vector<unsigned long> indices_;
  unsigned long offset_ = 0;
};

// Neighbours along the leading kept position: outputs [first, first + length), and where in the source the first of
// them begins.
struct outputBlock {
  unsigned long first, length, offset;
};

// The walk stands at the first combination when a body gets it, and must be left there again.
using blockBody = bodyView<outputBlock const&, reducedWalk&>;

// The outputs [begin, end) in ascending order, in blocks of at most `widest`, on the calling thread.
void forEachBlock(alternatingShape const& shape, unsigned long begin, unsigned long end, unsigned long widest,
                  blockBody body);

// The same over all outputs. Up to 1024 of them stay on the calling thread, more are cut into ranges of 256 and up.
void forAllBlocks(alternatingShape const& shape, unsigned long widest, blockBody body);

inline constexpr unsigned long serialOutputs = 1024;
inline constexpr unsigned long outputGrain = 256;

}  // namespace half_utils

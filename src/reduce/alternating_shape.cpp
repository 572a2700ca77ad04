#include "reduce/alternating_shape.h"

#include <algorithm>

namespace half_utils {

namespace {

// Where an output begins in the source.
class keptWalk {
 public:
  // To the output with this number; every kept size is above 0 where there is one.
  keptWalk(alternatingShape const& shape, unsigned long output) : shape_(shape), indices_(shape.ndims()) {
    const unsigned long leading = shape.leading();
    index_ = output % shape.size(leading);
    offset_ = index_ * shape.stride(leading);
    unsigned long rest = output / shape.size(leading);
    for (unsigned long p = leading + 2; p < shape.ndims(); p += 2) {
      indices_[p] = rest % shape.size(p);
      rest /= shape.size(p);
      offset_ += indices_[p] * shape.stride(p);
    }
  }

  unsigned long offset() const { return offset_; }
  unsigned long leftInRun() const { return shape_.size(shape_.leading()) - index_; }

  // No further than to the end of the run.
  void advance(unsigned long outputs) {
    const unsigned long leading = shape_.leading();
    index_ += outputs;
    offset_ += outputs * shape_.stride(leading);
    if (index_ < shape_.size(leading)) return;
    offset_ -= index_ * shape_.stride(leading);
    index_ = 0;
    for (unsigned long p = leading + 2; p < shape_.ndims(); p += 2) {
      offset_ += shape_.stride(p);
      if (++indices_[p] < shape_.size(p)) return;
      offset_ -= indices_[p] * shape_.stride(p);
      indices_[p] = 0;
    }
  }

 private:
  alternatingShape const& shape_;
  std::vector<unsigned long> indices_;
  unsigned long index_ = 0;  // along the leading position
  unsigned long offset_ = 0;
};

}  // namespace

alternatingShape::alternatingShape(unsigned long ndims, unsigned long const* dims, bool firstReduced)
    : ndims_(ndims), dims_(dims), leading_(firstReduced ? 1 : 0), strides_(ndims) {
  unsigned long product = 1;
  for (unsigned long p = 0; p < ndims; ++p) {
    strides_[p] = product;
    product *= dims[p];
    if (p < leading_) continue;
    ((p - leading_) % 2 == 0 ? outputs_ : combinations_) *= dims[p];
  }
}

void reducedWalk::advance() {
  for (unsigned long p = shape_.leading() + 1; p < shape_.ndims(); p += 2) {
    offset_ += shape_.stride(p);
    if (++indices_[p] < shape_.size(p)) return;
    offset_ -= indices_[p] * shape_.stride(p);
    indices_[p] = 0;
  }
}

void forEachBlock(alternatingShape const& shape, unsigned long begin, unsigned long end, unsigned long widest,
                  blockBody body) {
  if (begin >= end) return;
  keptWalk kept(shape, begin);
  reducedWalk reduced(shape);
  while (begin < end) {
    const unsigned long length = std::min({widest, kept.leftInRun(), end - begin});
    body({begin, length, kept.offset()}, reduced);
    kept.advance(length);
    begin += length;
  }
}

void forAllBlocks(alternatingShape const& shape, unsigned long widest, blockBody body) {
  const unsigned long outputs = shape.outputs();
  if (outputs <= serialOutputs) return forEachBlock(shape, 0, outputs, widest, body);
  forAffineRanges(outputs, outputGrain,
                  [&](unsigned long begin, unsigned long end) { forEachBlock(shape, begin, end, widest, body); });
}

}  // namespace half_utils

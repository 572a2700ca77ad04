// The pass over products of complex halves: quick for most data, and never slow.
#pragma once

#include <algorithm>
#include <complex>
#include <cstdint>

#include "scalar/complex/product_lanes.h"
#include "scalar/functors/operands.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

// Blocks of plain products; one with a doubtful element is done again with every case looked at. Both loops run in
// vector lanes, and the parts are kept apart until they are stored, without which they would not. A block is read
// before any of it is written: the output may be one of the operands, but not overlap one in another way.
template <class T1, class T2>
ZTHALF_INLINE void complexProductBlocks(T1 a, T2 b, std::complex<fp16binary_t>* c, unsigned long n) {
  constexpr unsigned long blockSize = 64;
  std::uint16_t re[blockSize], im[blockSize];
  auto* out = reinterpret_cast<std::uint16_t*>(c);
  for (unsigned long begin = 0; begin < n; begin += blockSize) {
    const unsigned long size = std::min(blockSize, n - begin);
    std::uint32_t doubt = 0;
    for (unsigned long i = 0; i < size; ++i) {
      const zthalf::productInDoubt product =
          zthalf::plainProductInLanes(laneOperand(a, begin + i), laneOperand(b, begin + i));
      re[i] = product.value.re;
      im[i] = product.value.im;
      doubt |= product.doubt;
    }
    if (doubt != 0) {
      for (unsigned long i = 0; i < size; ++i) {
        const zthalf::complexHalf product =
            zthalf::productInLanes(laneOperand(a, begin + i), laneOperand(b, begin + i));
        re[i] = product.re;
        im[i] = product.im;
      }
    }
    for (unsigned long i = 0; i < size; ++i) {
      out[2 * (begin + i)] = re[i];
      out[2 * (begin + i) + 1] = im[i];
    }
  }
}

}  // namespace half::scalar::emulated

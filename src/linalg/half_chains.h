// Products whose sums are halves: each step of a chain is rounded to half.
#pragma once

#include <cstdint>

#include "linalg/chain_begins.h"
#include "linalg/scratch.h"

namespace zthalf::linalg {

struct halfMatrix {
  std::uint16_t const* data;
  unsigned long leading;
};

// For each of m by n outputs the chain temp = half(temp + f[l + i * k] * b[l + j * leading]), l = 0 ... k - 1, from +0.
// f is a, m by k, copied densely and read again with columns of k elements: the transpose of a dense k by m matrix, and
// another arrangement of a's elements where its leading dimension is not m.
class halfChains {
 public:
  halfChains(unsigned long m, unsigned long n, unsigned long k, halfMatrix a, halfMatrix b);

  // out = half(alpha * temp + begin), without the sum where beta is a zero.
  void run(std::uint16_t alpha, chainBegins const& begins);
  std::uint16_t const* out() const { return out_; }

 private:
  void rearrange();

  unsigned long m_, n_, k_;
  halfMatrix a_, b_;
  scratch memory_;
  float* left_;   // m by k, columns of width() elements: element (i, l) is f[l + i * k]
  float* right_;  // one column of b
  float* sums_;   // one column of outputs
  std::uint16_t* dense_;
  std::uint16_t* out_;
};

}  // namespace zthalf::linalg

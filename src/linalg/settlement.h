// Which NaN an output of a product is, and which infinity where a complex product restores one. The fast kernel does
// not know: it takes what the processor gives. Where a NaN came out, this decides it from the operands.
//
// Elements of ordinary size make finite sums. So all that happens to an output's chain happens at its special indices,
// where an element of the left operand's row or of the right operand's column is a NaN or an infinity: there each part
// of the product is a NaN or an infinity, and so is the chain from the first of them on. The special indices of all
// rows and columns are taken down as bits, and an output looks at the bits of its own two alone.
//
// An output that meets a finite element so large that a sum might overflow is computed anew by its definition.
#pragma once

#include <cstdint>

#include "linalg/chain_begins.h"
#include "linalg/operand.h"
#include "linalg/tiles.h"

namespace zthalf::linalg {

// The indices of a stretch as bits of eight words. Index 8 g + t is bit g of word t, so that a word is a lane; in a
// product without lanes index 32 t + g is, so that words and bits follow the chain.
inline constexpr unsigned wordCount = 8;

// Memory for them: wordCount words for each row and for each column.
struct specialIndices {
  std::uint32_t* ofRows;
  std::uint32_t* ofColumns;
};

// Operands of one stretch, dense, imaginary parts `...Plane` apart.
template <class Base>
struct stretch {
  Base const* a;  // rows by depth
  Base const* b;  // depth by columns
  unsigned long aPlane, bPlane;
  unsigned long rows, columns, depth;
};

// A rectangle of outputs, columns `column` apart, and which one it is in the product of a and b.
template <class Base>
struct outputsOfProduct {
  Base* c;
  unsigned long column, plane;
  unsigned long rows, columns;
  operand<Base> const& a;
  operand<Base> const& b;
  chainBegins begins;  // without lanes
  unsigned long i0, j0, k;
};

// Replaces NaNs among outputs by what they should be, a stretch at a time: of a product with lanes the last one first,
// since the last lane's NaN is what an output keeps; of one without lanes the first one first.
template <class Base, bool isComplex, bool isOneChain>
class settlement {
 public:
  settlement(outputsOfProduct<Base> const& outputs, specialIndices memory) : outputs_(outputs), memory_(memory) {}

  // Marks the NaNs as open. False: there are none. A chain that begins with a NaN is decided.
  bool open();
  // Decides what can be. False: nothing is open any more.
  bool decide(stretch<Base> const& s);
  // After the last stretch: what is still open has met infinities alone.
  void close();

 private:
  static constexpr unsigned parts = isComplex ? 2 : 1;

  bool decideLanes(stretch<Base> const& s, unsigned long i, unsigned long j);
  bool decideChain(stretch<Base> const& s, unsigned long i, unsigned long j);
  Base* partsAt(unsigned long i, unsigned long j) { return outputs_.c + i + j * outputs_.column; }

  outputsOfProduct<Base> outputs_;
  specialIndices memory_;
};

}  // namespace zthalf::linalg

// An operand of an expansion, read in the order of the output block by block.
#pragma once

#include <cstddef>
#include <vector>

#include "elementwise/expansion.h"

namespace half_utils {

inline constexpr unsigned long blockSize = 256;  // elements
inline constexpr std::size_t largestElement = 16;

// Room for the elements of a block, and for writing some bytes more than wanted behind them or as much again.
struct elementBlock {
  static constexpr std::size_t slack = 64;
  alignas(64) std::byte bytes[2 * blockSize * largestElement + slack];
};

// Writes one element n times, n at most a block's size. Bytes of the slack may be written too.
void repeatElement(void const* element, std::size_t size, unsigned long n, elementBlock& to);

// The operand is seen in as few dimensions as tell where its elements stand: neighbours along which it moves on evenly,
// or not at all, are one. So there are few cases: an array that stands in the order of the output as it is; a short one
// that comes again and again; one whose elements, or rows, have to be fetched.
class gatheredOperand {
 public:
  gatheredOperand(void const* array, std::size_t elementSize, shape operand, shape out);

  // To output element k, before the first read.
  void seek(unsigned long k);

  // Where the next n elements stand, and moves on. n is at most a block's size, and the first read's is the largest.
  // The block is at the operand's disposal from its first read to its last.
  void* read(unsigned long n, elementBlock& block);

 private:
  struct dimension {
    unsigned long size, step, index;
  };

  template <class Element>
  void fetch(Element* to, unsigned long n);
  void fetchInto(elementBlock& block, unsigned long n);
  void moveAlong(std::size_t d, unsigned long places);
  std::byte* elementOf(void const* array, unsigned long i) const;

  void const* array_;
  std::size_t elementSize_;
  std::vector<dimension> dimensions_;
  unsigned long offset_ = 0;  // in the array, of the first element along the innermost dimension
  unsigned long period_ = 0;  // of an operand that comes again: outputs from one start to the next
  unsigned long phase_ = 0;   // how many of them are past
  bool isFilled_ = false;     // the block holds a period and what follows
};

}  // namespace half_utils

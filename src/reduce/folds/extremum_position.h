// Where an extremum stands among the elements that it was looked for in, and the numbers that callers get for it.
#pragma once

#include "reduce/alternating_shape.h"

namespace half_utils {

// What is found for one output along dimensions. Positions count from 0.
template <class T>
struct extremumStanding {
  T value;
  T const* origin;            // the output's first element in the source
  unsigned long combination;  // of the reduced positions
  unsigned long along;        // on the run of the column form, otherwise 0
};

// Elements from the first combination of the reduced positions to this one.
inline unsigned long offsetOfCombination(alternatingShape const& shape, unsigned long combination) {
  unsigned long offset = 0;
  for (unsigned long p = shape.leading() + 1; p < shape.ndims(); p += 2) {
    if (p + 2 >= shape.ndims()) return offset + combination * shape.stride(p);
    offset += combination % shape.size(p) * shape.stride(p);
    combination /= shape.size(p);
  }
  return offset;
}

// Counted from 1: in the source, or along the reduced positions together.
template <class T>
double indexOf(extremumStanding<T> const& at, T const* src, alternatingShape const& shape, bool linear) {
  const bool isColumn = shape.leading() == 1;
  const unsigned long before =
      linear ? static_cast<unsigned long>(at.origin - src) + offsetOfCombination(shape, at.combination)
             : at.combination * (isColumn ? shape.runLength() : 1);
  return static_cast<double>(before + at.along + 1);
}

}  // namespace half_utils

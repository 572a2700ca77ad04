// Matrices of patterns for the tests of the routines after BLAS and LAPACK.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/linalg/blas_reference.h"
#include "tests/support/drawn_values.h"
#include "tests/support/expect_bits.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {

using reference::patternArray;

inline half_t* halvesOf(patternArray& array, unsigned long offset = 0) {
  return reinterpret_cast<half_t*>(array.data() + offset);
}

// Numbers of both signs between 2^-4 and 4; at one place in `every` anything, with 0 nowhere; at one in `zeros` a zero.
inline patternArray drawnPatterns(unsigned long count, bitSource& bits, unsigned long every = 0,
                                  unsigned long zeros = 0) {
  patternArray array(count);
  for (std::uint16_t& x : array) {
    x = static_cast<std::uint16_t>(0x2C00 + bits() % 0x1400) | static_cast<std::uint16_t>(bits() % 2 << 15);
    if (zeros != 0 && bits() % zeros == 0) x &= 0x8000;
    if (every != 0 && bits() % every == 0) x = drawer<half_t>::draw(bits).bits;
  }
  return array;
}

inline void expectSamePatterns(patternArray const& actual, patternArray const& expected, std::string const& what) {
  ASSERT_EQ(actual.size(), expected.size());
  bitComparison compare(what);
  for (unsigned long i = 0; i < actual.size(); ++i) {
    compare.check(actual[i], expected[i], static_cast<std::uint16_t>(i));
  }
}

}  // namespace zthalf::testing

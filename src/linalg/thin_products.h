// A matrix of halves times a vector, and a vector times such a matrix: each element of the matrix is used once, so it
// is widened where it is needed and goes nowhere else. The lanes and their order are those of every product.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "core/float_conversion.h"
#include "core/instruction_level.h"
#include "linalg/tiles.h"

namespace zthalf::linalg {

// As many lanes of as many rows stay in the nearest cache.
inline constexpr unsigned long sweptRows = 1024;

// Adds a stretch of a matrix times a vector to c: the matrix's elements (i, l) are at i + l * leading.
struct sweptColumns {
  std::uint16_t const* matrix;
  unsigned long leading;
  unsigned long rows;
  float const* vector;  // depth elements
  unsigned long depth;
  float* lanes;  // laneCount by sweptRows
  float* c;
};

struct sweepPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(sweptColumns const* swept) {
    sweptColumns const s = *swept;
    const unsigned long lanes = std::min(laneCount, s.depth);
    std::memset(s.lanes, 0, lanes * sweptRows * sizeof(float));
    for (unsigned long l = 0; l < s.depth; ++l) {
      std::uint16_t const* const column = s.matrix + l * s.leading;
      float* const lane = s.lanes + l % laneCount * sweptRows;
      const float factor = s.vector[l];
      for (unsigned long i = 0; i < s.rows; ++i) lane[i] += widen<float>(column[i]) * factor;
    }
    for (unsigned long t = 0; t < lanes; ++t) {
      for (unsigned long i = 0; i < s.rows; ++i) s.c[i] = s.lanes[t * sweptRows + i] + s.c[i];
    }
  }
};

// Adds a stretch of a row vector times a matrix to c: the matrix's columns are `leading` apart, each of `depth`
// elements is a chain of eight lanes side by side. The vector has zeros behind its end up to a whole number of lanes.
struct dottedColumns {
  std::uint16_t const* matrix;
  unsigned long leading;
  unsigned long columns;
  float const* vector;
  unsigned long depth;
  float* c;
  unsigned long cStep;
};

struct dotPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(dottedColumns const* dotted) {
    dottedColumns const d = *dotted;
    unsigned long j = 0;
    for (; j + 4 <= d.columns; j += 4) together<4>(d, j);
    for (; j < d.columns; ++j) together<1>(d, j);
  }

 private:
  template <unsigned columns>
  ZTHALF_INLINE static void together(dottedColumns const& d, unsigned long j) {
    float lanes[columns][laneCount] = {};
    const unsigned long whole = d.depth / laneCount * laneCount;
    for (unsigned long l = 0; l < whole; l += laneCount) {
      for (unsigned column = 0; column < columns; ++column) {
        step(lanes[column], d.matrix + (j + column) * d.leading + l, d.vector + l);
      }
    }
    for (unsigned column = 0; column < columns; ++column) {
      if (whole < d.depth) {
        std::uint16_t last[laneCount] = {};
        for (unsigned long l = whole; l < d.depth; ++l) last[l - whole] = d.matrix[(j + column) * d.leading + l];
        step(lanes[column], last, d.vector + whole);
      }
      float& c = d.c[(j + column) * d.cStep];
      for (unsigned t = 0; t < laneCount; ++t) c = lanes[column][t] + c;
    }
  }

  ZTHALF_INLINE static void step(float (&lanes)[laneCount], std::uint16_t const* matrix, float const* vector) {
    for (unsigned t = 0; t < laneCount; ++t) lanes[t] += vector[t] * widen<float>(matrix[t]);
  }
};

}  // namespace zthalf::linalg

// A matrix of any element type, first dimension fastest as the library wants it: each column is contiguous.
#pragma once

#include <cstddef>
#include <vector>

namespace halfscope {

template <class T>
struct matrixOf {
  std::size_t rows = 0;
  std::size_t columns = 0;
  std::vector<T> cells;

  matrixOf() = default;
  matrixOf(std::size_t rows, std::size_t columns) : rows(rows), columns(columns), cells(rows * columns) {}

  T* column(std::size_t j) { return cells.data() + j * rows; }
  T const* column(std::size_t j) const { return cells.data() + j * rows; }
};

using matrix = matrixOf<double>;

}  // namespace halfscope

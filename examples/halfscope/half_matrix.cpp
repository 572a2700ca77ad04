#include "half_matrix.h"

#include <stdexcept>

namespace halfscope {

namespace {

// The library reads its sources only, though it takes them as pointers to writable elements.
template <class T>
T* source(matrixOf<T> const& m) {
  return const_cast<T*>(m.cells.data());
}

template <class T, class U>
void expectSameShape(matrixOf<T> const& a, matrixOf<U> const& b) {
  if (a.rows != b.rows || a.columns != b.columns || a.cells.size() != b.cells.size())
    throw std::logic_error("matrices of different shapes");
}

}  // namespace

void toHalf(matrix const& values, halfMatrix& out) {
  expectSameShape(values, out);
  half_vector::convertToHalf(source(values), out.cells.data(), out.cells.size());
}

void fromHalf(halfMatrix const& halves, matrix& out) {
  expectSameShape(halves, out);
  half_vector::convertFromHalf(source(halves), out.cells.data(), out.cells.size());
}

void plusRow(halfMatrix const& left, halfMatrix const& row, halfMatrix& out) {
  expectSameShape(left, out);
  if (row.rows != 1 || row.columns != left.columns || row.cells.size() != row.columns)
    throw std::logic_error("the row does not have one element for each column");
  const unsigned long dims[] = {left.rows, left.columns};
  const unsigned long rowDims[] = {1, row.columns};
  half_vector::plus(source(left), source(row), out.cells.data(), left.cells.size(), 2, dims, row.cells.size(), 2,
                    rowDims, out.cells.size(), 2, dims);
}

halfMatrix toHalf(matrix const& values) {
  halfMatrix out(values.rows, values.columns);
  toHalf(values, out);
  return out;
}

matrix fromHalf(halfMatrix const& halves) {
  matrix out(halves.rows, halves.columns);
  fromHalf(halves, out);
  return out;
}

halfMatrix plusRow(halfMatrix const& left, halfMatrix const& row) {
  halfMatrix out(left.rows, left.columns);
  plusRow(left, row, out);
  return out;
}

matrix ulpDistance(halfMatrix const& halves, matrix const& exact) {
  expectSameShape(halves, exact);
  matrix out(halves.rows, halves.columns);
  half_vector::ulp(source(halves), source(exact), out.cells.data(), out.cells.size());
  return out;
}

}  // namespace halfscope

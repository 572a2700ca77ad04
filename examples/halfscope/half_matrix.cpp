#include "half_matrix.h"

#include <algorithm>
#include <stdexcept>
#include <type_traits>

namespace halfscope {

namespace {

// The library reads its sources only, though it takes them as pointers to writable elements.
template <class T>
T* source(matrixOf<T> const& m) {
  return const_cast<T*>(m.cells.data());
}

template <class T>
void expectWhole(matrixOf<T> const& m) {
  if (m.cells.size() != m.rows * m.columns) throw std::logic_error("a matrix without its elements");
}

template <class T, class U>
void expectSameShape(matrixOf<T> const& a, matrixOf<U> const& b) {
  expectWhole(a);
  expectWhole(b);
  if (a.rows != b.rows || a.columns != b.columns) throw std::logic_error("matrices of different shapes");
}

// Whether b, of as many elements as out in each dimension or of one, can be repeated to the shape of out.
template <class T, class U>
void expectExpandable(matrixOf<T> const& b, matrixOf<U> const& out) {
  expectWhole(b);
  if ((b.rows != out.rows && b.rows != 1) || (b.columns != out.columns && b.columns != 1))
    throw std::logic_error("a matrix that cannot be repeated to the other one's shape");
}

// A function of half_vector that works with implicit expansion.
template <class A, class B, class Out>
using expanding = void (*)(A*, B*, Out*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                           unsigned long, unsigned long const*, unsigned long, unsigned long, unsigned long const*);

// Either operand may be the one that is repeated, the other one has the shape of out.
template <class A, class B, class Out>
void expand(expanding<A, B, Out> operation, matrixOf<A> const& a, matrixOf<B> const& b, matrixOf<Out>& out) {
  expectWhole(out);
  expectExpandable(a, out);
  expectExpandable(b, out);
  if ((a.rows != out.rows && b.rows != out.rows) || (a.columns != out.columns && b.columns != out.columns))
    throw std::logic_error("a result larger than both matrices");
  const unsigned long dimsA[] = {a.rows, a.columns};
  const unsigned long dimsB[] = {b.rows, b.columns};
  const unsigned long dimsOut[] = {out.rows, out.columns};
  operation(source(a), source(b), out.cells.data(), a.cells.size(), 2, dimsA, b.cells.size(), 2, dimsB,
            out.cells.size(), 2, dimsOut);
}

template <class A, class B>
halfMatrix difference(matrixOf<A> const& left, matrixOf<B> const& right) {
  halfMatrix out(std::max(left.rows, right.rows), std::max(left.columns, right.columns));
  expand<A, B, half_t>(half_vector::minus, left, right, out);
  return out;
}

// All columns at once: the first dimension is reduced, the second one kept.
template <class In, class Out>
void means(matrixOf<In> const& numbers, matrixOf<Out>& out, FloatTypeEnum accumulator, FloatTypeEnum result) {
  expectWhole(numbers);
  expectWhole(out);
  if (out.rows != 1 || out.columns != numbers.columns) throw std::logic_error("a row of another length");
  constexpr bool isComplex = std::is_same_v<In, std::complex<half_t>>;
  unsigned long dims[] = {numbers.rows, numbers.columns};
  half_vector::mean(source(numbers), out.cells.data(), 2, dims, true, isComplex, true, accumulator, result);
}

FloatTypeEnum accumulatorOf(sumsIn type) { return type == sumsIn::half ? FloatTypeHalf : FloatTypeSingle; }

using withIndex = void (*)(void*, void*, double*, unsigned long, unsigned long*, bool, bool, bool, bool);

extremes extremesOf(withIndex operation, halfMatrix const& halves) {
  expectWhole(halves);
  if (halves.rows == 0) throw std::logic_error("the smallest of nothing");
  extremes out{halfMatrix(1, halves.columns), matrix(1, halves.columns)};
  unsigned long dims[] = {halves.rows, halves.columns};
  operation(source(halves), out.values.cells.data(), out.rows.cells.data(), 2, dims, true, true, false, false);
  return out;
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
  if (row.rows != 1 || row.columns != left.columns) throw std::logic_error("not one element for each column");
  expand<half_t, half_t, half_t>(half_vector::plus, left, row, out);
}

void minus(halfMatrix const& left, matrix const& right, halfMatrix& out) {
  expectSameShape(left, out);
  expand<half_t, double, half_t>(half_vector::minus, left, right, out);
}

void columnMeans(halfMatrix const& halves, sumsIn type, halfMatrix& out) {
  means(halves, out, accumulatorOf(type), FloatTypeHalf);
}

void timesColumn(halfMatrix const& left, complexHalfMatrix const& column, complexHalfMatrix& out) {
  expectSameShape(left, out);
  if (column.columns != 1 || column.rows != left.rows) throw std::logic_error("not one element for each row");
  expand<half_t, std::complex<half_t>, std::complex<half_t>>(half_vector::times, left, column, out);
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

complexHalfMatrix toComplex(halfMatrix const& real, halfMatrix const& imaginary) {
  expectSameShape(real, imaginary);
  complexHalfMatrix out(real.rows, real.columns);
  expand<half_t, half_t, std::complex<half_t>>(half_vector::realToComplex, real, imaginary, out);
  return out;
}

halfMatrix magnitudes(complexHalfMatrix const& numbers) {
  expectWhole(numbers);
  halfMatrix out(numbers.rows, numbers.columns);
  half_vector::abs(source(numbers), out.cells.data(), out.cells.size());
  return out;
}

halfMatrix plusRow(halfMatrix const& left, halfMatrix const& row) {
  halfMatrix out(left.rows, left.columns);
  plusRow(left, row, out);
  return out;
}

halfMatrix minus(halfMatrix const& left, halfMatrix const& right) { return difference(left, right); }
halfMatrix minus(halfMatrix const& left, matrix const& right) { return difference(left, right); }
halfMatrix minus(matrix const& left, halfMatrix const& right) { return difference(left, right); }

halfMatrix columnMeans(halfMatrix const& halves, sumsIn type) {
  halfMatrix out(1, halves.columns);
  columnMeans(halves, type, out);
  return out;
}

matrix columnMeansInDouble(halfMatrix const& halves) {
  matrix out(1, halves.columns);
  means(halves, out, FloatTypeDouble, FloatTypeDouble);
  return out;
}

complexHalfMatrix columnMeans(complexHalfMatrix const& numbers, sumsIn type) {
  complexHalfMatrix out(1, numbers.columns);
  means(numbers, out, accumulatorOf(type), FloatTypeHalf);
  return out;
}

extremes columnMinima(halfMatrix const& halves) { return extremesOf(half_vector::minUnaryOpWithIndex, halves); }
extremes columnMaxima(halfMatrix const& halves) { return extremesOf(half_vector::maxUnaryOpWithIndex, halves); }

matrix ulpDistance(halfMatrix const& halves, matrix const& exact) {
  expectSameShape(halves, exact);
  matrix out(halves.rows, halves.columns);
  half_vector::ulp(source(halves), source(exact), out.cells.data(), out.cells.size());
  return out;
}

matrix ulpDistance(matrix const& values, matrix const& exact) {
  expectSameShape(values, exact);
  matrix out(values.rows, values.columns);
  half_vector::ulp(source(values), source(exact), out.cells.data(), out.cells.size());
  return out;
}

}  // namespace halfscope

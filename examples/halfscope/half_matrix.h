// The library's array operations on matrices. The library trusts its arguments, so everything that it would trust is
// made sure of here, and nowhere else in the program.
#pragma once

#include <zthalf/zthalf.h>

#include <complex>

#include "matrix.h"

namespace halfscope {

using halfMatrix = matrixOf<half_t>;
using complexHalfMatrix = matrixOf<std::complex<half_t>>;

halfMatrix toHalf(matrix const& values);
matrix fromHalf(halfMatrix const& halves);
complexHalfMatrix toComplex(halfMatrix const& real, halfMatrix const& imaginary);
halfMatrix magnitudes(complexHalfMatrix const& numbers);

// Every row of an n by m matrix plus the one row of a 1 by m matrix: the library repeats that row n times.
halfMatrix plusRow(halfMatrix const& left, halfMatrix const& row);

// left - right, of an n by m matrix and one that has as many rows or one, and as many columns or one: the library
// repeats what is one. Beside a double it subtracts in double, and rounds the difference to half.
halfMatrix minus(halfMatrix const& left, halfMatrix const& right);
halfMatrix minus(halfMatrix const& left, matrix const& right);
halfMatrix minus(matrix const& left, halfMatrix const& right);

// The mean of each column as a 1 by m matrix, NaNs left out: of halves, with the sum in this type. A mean with double
// sums stays double.
enum class sumsIn { half, single };
halfMatrix columnMeans(halfMatrix const& halves, sumsIn type);
matrix columnMeansInDouble(halfMatrix const& halves);
complexHalfMatrix columnMeans(complexHalfMatrix const& numbers, sumsIn type);

// The smallest or largest element of each column that is not a NaN, and the number of the first row where it stands,
// counted from 1; both 1 by m. There is at least one row.
struct extremes {
  halfMatrix values;
  matrix rows;
};
extremes columnMinima(halfMatrix const& halves);
extremes columnMaxima(halfMatrix const& halves);

// The distance of each pair of elements in units in the last place of half.
matrix ulpDistance(halfMatrix const& halves, matrix const& exact);
matrix ulpDistance(matrix const& values, matrix const& exact);

// Room for the results of the functions below, which measure nothing but the library's work.
void toHalf(matrix const& values, halfMatrix& out);
void fromHalf(halfMatrix const& halves, matrix& out);
void plusRow(halfMatrix const& left, halfMatrix const& row, halfMatrix& out);
void minus(halfMatrix const& left, matrix const& right, halfMatrix& out);
void columnMeans(halfMatrix const& halves, sumsIn type, halfMatrix& out);

// An n by m matrix times a column of n complex numbers, which is repeated m times.
void timesColumn(halfMatrix const& left, complexHalfMatrix const& column, complexHalfMatrix& out);

}  // namespace halfscope

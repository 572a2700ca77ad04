// The library's array operations on matrices. The library trusts its arguments, so everything that it would trust is
// made sure of here, and nowhere else in the program.
#pragma once

#include <zthalf/zthalf.h>

#include "matrix.h"

namespace halfscope {

using halfMatrix = matrixOf<half_t>;

halfMatrix toHalf(matrix const& values);
matrix fromHalf(halfMatrix const& halves);

// Every row of an n by m matrix plus the one row of a 1 by m matrix: the library repeats that row n times.
halfMatrix plusRow(halfMatrix const& left, halfMatrix const& row);

// The distance of each pair of elements in units in the last place of half.
matrix ulpDistance(halfMatrix const& halves, matrix const& exact);

// Room for the results of the functions below, which measure nothing but the library's work.
void toHalf(matrix const& values, halfMatrix& out);
void fromHalf(halfMatrix const& halves, matrix& out);
void plusRow(halfMatrix const& left, halfMatrix const& row, halfMatrix& out);

}  // namespace halfscope

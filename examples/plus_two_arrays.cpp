// Implicit expansion: a column plus a row is a matrix.
#include <zthalf/half_vector.h>

#include <cstdio>

int main() {
  float celsius[] = {24.1f, 26.3f, 25.7f};
  float offset[] = {-25.0f, 273.15f};
  half_t column[3], row[2], sum[6];
  half_vector::convertToHalf(celsius, column, 3);
  half_vector::convertToHalf(offset, row, 2);

  // The sizes of each array, first dimension fastest in memory. Where one side has size 1, its elements repeat.
  unsigned long const dimsColumn[] = {3, 1}, dimsRow[] = {1, 2}, dimsSum[] = {3, 2};
  half_vector::plus(column, row, sum, 3, 2, dimsColumn, 2, 2, dimsRow, 6, 2, dimsSum);

  float result[6];
  half_vector::convertFromHalf(sum, result, 6);
  for (int i = 0; i < 3; ++i) std::printf("%10g %10g\n", result[i], result[i + 3]);
}

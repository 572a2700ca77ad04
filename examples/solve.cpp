// A system of linear equations through a half LU: factorise, solve, and see what the answer is worth.
#include <zthalf/half_scalar.h>
#include <zthalf/half_vector.h>

#include <cmath>
#include <cstdio>
#include <vector>

namespace {

constexpr unsigned long n = 4;

std::vector<half_t> toHalf(std::vector<double> x) {
  std::vector<half_t> result(x.size());
  half_vector::convertToHalf(x.data(), result.data(), x.size());
  return result;
}

std::vector<double> toDouble(std::vector<half_t> x) {
  std::vector<double> result(x.size());
  half_vector::convertFromHalf(x.data(), result.data(), x.size());
  return result;
}

// Solves a x = b for as many right-hand sides as b has columns of n; info tells of a zero pivot.
std::vector<half_t> solve(std::vector<half_t> a, std::vector<half_t> b, int& info) {
  char left[] = "L", lower[] = "L", upper[] = "U", plain[] = "N", unit[] = "U", general[] = "N";
  const half_t one{half_scalar::impl::convertDoubleToHalf(1)};
  const unsigned long columns = b.size() / n;
  unsigned long rows[n];
  half_vector::hgetrf(n, n, a.data(), n, rows, info);  // a is now L below its diagonal, U above
  if (info != 0) return b;
  half_vector::hlaswp(columns, b.data(), n, 1, n, rows, 1);
  half_vector::htrsm(left, lower, plain, unit, n, columns, one, a.data(), n, b.data(), n);
  half_vector::htrsm(left, upper, plain, general, n, columns, one, a.data(), n, b.data(), n);
  return b;
}

}  // namespace

int main() {
  // By columns. The solution in real numbers is 1, -2, 3, 0.5.
  const std::vector<double> a = {4, 1, 0, 2, -1, 5, 1, 0, 0.5, -2, 6, 1, 1, 0, -1, 3}, x = {1, -2, 3, 0.5};
  std::vector<double> b(n, 0.0);
  for (unsigned long j = 0; j < n; ++j)
    for (unsigned long i = 0; i < n; ++i) b[i] += a[i + j * n] * x[j];

  int info = 0;
  const std::vector<half_t> solution = solve(toHalf(a), toHalf(b), info);
  const std::vector<double> found = toDouble(solution);
  double residual = 0;
  for (unsigned long i = 0; i < n; ++i) {
    double rest = b[i];
    for (unsigned long j = 0; j < n; ++j) rest -= a[i + j * n] * found[j];
    residual = std::fmax(residual, std::fabs(rest));
  }
  std::printf("info %d, solution %g %g %g %g\n", info, found[0], found[1], found[2], found[3]);
  std::printf("largest residual %.3g\n", residual);

  std::vector<double> singular = a;
  for (unsigned long i = 0; i < n; ++i) singular[i + 2 * n] = 0;
  solve(toHalf(singular), toHalf(b), info);
  std::printf("with a column of zeros: info %d\n", info);
}

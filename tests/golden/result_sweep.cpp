// Prints a hash of the results of every function over fixed inputs, one line for each. What it prints is the same at
// every instruction level, with every compiler, on every processor; the .hash files beside this source hold it.
//
// usage: result_sweep entries|scalars|operators
#include "tests/golden/sweep.h"
#include "tests/support/level.h"
#include "zthalf/half_t.h"

namespace zthalf::golden {

// Generated: one call for each.
void sweepEntries();
void sweepScalars();

namespace {

void sweepOperators() {
  using T = half_t;
  sweepScalar<T>("+x", [](T x) { return +x; });
  sweepScalar<T>("-x", [](T x) { return -x; });
  sweepScalar<T>("++x", [](T x) { return ++x; });
  sweepScalar<T>("--x", [](T x) { return --x; });
  sweepScalar<T>("x++", [](T x) { return x++; });
  sweepScalar<T>("x--", [](T x) { return x--; });
  sweepScalar<T, T>("a+b", [](T a, T b) { return a + b; });
  sweepScalar<T, T>("a-b", [](T a, T b) { return a - b; });
  sweepScalar<T, T>("a*b", [](T a, T b) { return a * b; });
  sweepScalar<T, T>("a/b", [](T a, T b) { return a / b; });
  sweepScalar<T, T>("a+=b", [](T a, T b) { return a += b; });
  sweepScalar<T, T>("a-=b", [](T a, T b) { return a -= b; });
  sweepScalar<T, T>("a*=b", [](T a, T b) { return a *= b; });
  sweepScalar<T, T>("a/=b", [](T a, T b) { return a /= b; });
  sweepScalar<T, T>("a==b", [](T a, T b) { return a == b; });
  sweepScalar<T, T>("a!=b", [](T a, T b) { return a != b; });
  sweepScalar<T, T>("a<b", [](T a, T b) { return a < b; });
  sweepScalar<T, T>("a<=b", [](T a, T b) { return a <= b; });
  sweepScalar<T, T>("a>b", [](T a, T b) { return a > b; });
  sweepScalar<T, T>("a>=b", [](T a, T b) { return a >= b; });

  using Z = std::complex<half_t>;
  sweepScalar<Z>("-z", [](Z z) { return -z; });
  sweepScalar<Z, Z>("z+w", [](Z z, Z w) { return z + w; });
  sweepScalar<Z, Z>("z-w", [](Z z, Z w) { return z - w; });
  sweepScalar<Z, Z>("z*w", [](Z z, Z w) { return z * w; });
  sweepScalar<Z, Z>("z/w", [](Z z, Z w) { return z / w; });
  sweepScalar<Z, Z>("z==w", [](Z z, Z w) { return z == w; });
  sweepScalar<Z, Z>("z!=w", [](Z z, Z w) { return z != w; });
  sweepScalar<Z, Z>("z<w", [](Z z, Z w) { return z < w; });
  sweepScalar<Z, Z>("z<=w", [](Z z, Z w) { return z <= w; });
  sweepScalar<Z, Z>("z>w", [](Z z, Z w) { return z > w; });
  sweepScalar<Z, Z>("z>=w", [](Z z, Z w) { return z >= w; });
}

}  // namespace

}  // namespace zthalf::golden

int main(int argc, char** argv) {
  const std::string_view what = argc == 2 ? argv[1] : "";
  zthalf::testing::takeLevelFromEnvironment();
  if (what == "entries") {
    zthalf::golden::sweepEntries();
  } else if (what == "scalars") {
    zthalf::golden::sweepScalars();
  } else if (what == "operators") {
    zthalf::golden::sweepOperators();
  } else {
    std::fprintf(stderr, "usage: result_sweep entries|scalars|operators\n");
    return 2;
  }
  return 0;
}

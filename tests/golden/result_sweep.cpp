// Prints a hash of the results of every function over fixed inputs, one line for each. What it prints is the same at
// every instruction level, with every compiler, on every processor; the .hash files beside this source hold it.
//
// usage: result_sweep entries|scalars|operators [underflow] [flushed] [watched]
//
//   underflow   over inputs around underflow, whose hashes are not committed
//   flushed     calls and their tasks run where subnormal floats are flushed to zero
//   watched     a * after the hash of a function that met a subnormal float
#include "tests/golden/sweep.h"
#include "tests/support/flushed_threads.h"
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

bool sweepGroup(std::string_view group) {
  if (group == "entries") {
    sweepEntries();
  } else if (group == "scalars") {
    sweepScalars();
  } else if (group == "operators") {
    sweepOperators();
  } else {
    return false;
  }
  return true;
}

}  // namespace

}  // namespace zthalf::golden

int main(int argc, char** argv) {
  using namespace zthalf;
  bool known = argc > 1;
  for (int i = 2; i < argc; ++i) {
    const std::string_view option = argv[i];
    if (option == "underflow") {
      golden::nearUnderflow = true;
    } else if (option == "flushed") {
      golden::callsAreFlushed = true;
    } else if (option == "watched") {
      golden::callsAreWatched = true;
    } else {
      known = false;
    }
  }
  testing::takeLevelFromEnvironment();
  const auto sweep = [&] { known = known && golden::sweepGroup(argv[1]); };
  if (golden::callsAreFlushed) {
    testing::onFlushingThreads(sweep);
  } else {
    sweep();
  }
  if (!known) std::fprintf(stderr, "usage: result_sweep entries|scalars|operators [underflow] [flushed] [watched]\n");
  return known ? 0 : 2;
}

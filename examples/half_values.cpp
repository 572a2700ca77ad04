// Single values: half_t is a number with operators, and its pattern is there to look at.
#include <zthalf/half_scalar.h>

#include <cstdio>

namespace {

half_t toHalf(double x) { return half_t{half_scalar::impl::convertDoubleToHalf(x)}; }
double toDouble(half_t x) { return half_scalar::impl::convertHalfToDouble(x.bits); }

}  // namespace

int main() {
  const half_t third = toHalf(1.0) / toHalf(3.0);
  std::printf("1/3 is %.10f, %.3f units in the last place away\n", toDouble(third), half_scalar::ulp(third, 1.0 / 3.0));
  std::printf("its neighbours are %.10f apart\n", toDouble(half_scalar::eps(third)));

  // Beyond 2048 not every whole number is a half: counting stops.
  half_t counter = toHalf(2046.0);
  for (int i = 0; i < 5; ++i) ++counter;
  std::printf("2046 and five times one more is %g\n", toDouble(counter));

  const half_t large = toHalf(65504.0);
  const half_t infinity = large + large;
  const half_t nan = infinity - infinity;
  std::printf("65504 + 65504 is %s, and that minus itself is %s\n",
              half_scalar::isinf(infinity) ? "infinity" : "a number",
              half_scalar::isnan(nan) ? "not a number" : "a number");
}

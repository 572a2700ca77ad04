// An array to half precision and back.
#include <zthalf/half_vector.h>

#include <cstdio>

int main() {
  double values[] = {1.0, 0.1, 2049.0, 65519.0, 65520.0, 1e-8};
  constexpr unsigned long count = sizeof values / sizeof values[0];

  half_t halves[count];
  half_vector::convertToHalf(values, halves, count);  // nearest, ties to even; too large becomes infinity

  double back[count];
  half_vector::convertFromHalf(halves, back, count);  // exact

  std::printf("     double   pattern       as half\n");
  for (unsigned long i = 0; i < count; ++i)
    std::printf("%11g    0x%04X   %11.9g\n", values[i], static_cast<unsigned>(halves[i].bits), back[i]);
}

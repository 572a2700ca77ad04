// ulpFcn over all 36 pairs of element types, element by element, against the scalar functions.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <limits>

#include "tests/host/support/provider.h"
#include "tests/support/expect_bits.h"
#include "tests/support/reference.h"
#include "zthalf/half_scalar.h"
#include "zthalf/host.h"
#include "zthalf/host_functions.h"

namespace zthalf {
namespace {

using namespace testing::provider;

// One part of an element, and which class it is of.
struct part {
  vqClassID id;
  double value;        // exact
  std::uint16_t bits;  // of a half
};

double distanceOf(part a, part b) {
  const half_t first{a.bits}, second{b.bits};
  if (a.id == vqHalfClass && b.id == vqHalfClass) return half_scalar::ulp(first, second);
  if (a.id == vqHalfClass) return half_scalar::ulp(first, b.value);
  if (b.id == vqHalfClass) return half_scalar::ulp(a.value, second);
  // Two wider ones: the unit and the infinities are those of the halves that they round to.
  const auto half = [](part p) { return half_t{half_scalar::impl::convertDoubleToHalf(p.value)}; };
  if (std::isnan(a.value) || std::isnan(b.value)) return std::isnan(a.value) && std::isnan(b.value) ? 0 : INFINITY;
  if (half_scalar::isinf(half(a)) || half_scalar::isinf(half(b))) return half_scalar::ulp(half(a), half(b));
  if (a.value == 0 && b.value == 0) return std::signbit(a.value) == std::signbit(b.value) ? 0.0 : 0.5;
  const double unit = [&] {
    const double smaller = std::min(std::fabs(reference::widenedToDouble(half(a).bits)),
                                    std::fabs(reference::widenedToDouble(half(b).bits)));
    return smaller < 0x1p-14 ? 0x1p-24 : std::ldexp(1.0, std::ilogb(smaller) - 10);
  }();
  return std::fabs(a.value - b.value) / unit;
}

struct kind {
  vqClassID id;
  bool complex;
};
constexpr kind kinds[] = {{vqHalfClass, false}, {vqSingleClass, false}, {vqDoubleClass, false},
                          {vqHalfClass, true},  {vqSingleClass, true},  {vqDoubleClass, true}};

const std::vector<double> values{0.0,     -0.0,    1.0,      1.0009765625, -1.0,    0.3,     65504,
                                 65519.9, 65520,   1e6,      -65504,       0x1p-24, 0x1p-14, 0x1p-26,
                                 2.5,     -2047.5, INFINITY, -INFINITY,    NAN,     1e300,   5e-324};

// An array with n elements, whose parts walk through the values in a way of its own; and the parts as they were stored.
struct operand {
  operand(kind of, unsigned long n, unsigned long step)
      : complex(of.complex),
        array(of.id == vqHalfClass ? half::createHalfMatrix(n, 1, of.complex)
                                   : newNumeric({n, 1}, of.id, of.complex ? vqComplex : vqReal)) {
    for (unsigned long i = 0; i < n * (complex ? 2 : 1); ++i) {
      const double value = values[(i * step + i / values.size()) % values.size()];
      part stored{of.id, value, 0};
      if (of.id == vqHalfClass) {
        stored.bits = half_scalar::impl::convertDoubleToHalf(value);
        elementsOf<half_t>(array)[i] = {stored.bits};
      } else if (of.id == vqSingleClass) {
        elementsOf<float>(array)[i] = static_cast<float>(value);
        stored.value = static_cast<float>(value);
      } else {
        elementsOf<double>(array)[i] = value;
      }
      parts.push_back(stored);
    }
  }

  part at(unsigned long i, bool imaginary) const {
    if (complex) return parts[2 * i + imaginary];
    return imaginary ? part{parts[i].id, 0.0, 0} : parts[i];
  }

  bool complex;
  held array;
  std::vector<part> parts;
};

TEST(UlpFcn, MeasuresEveryPairOfElementTypes) {
  testing::bitComparison compare("ulpFcn");
  constexpr unsigned long n = 400;
  for (kind const& first : kinds)
    for (kind const& second : kinds) {
      const operand a(first, n, 1), b(second, n, 5);
      vqArray_tag const* const inputs[] = {a.array, b.array};
      vqArray_tag* output = nullptr;
      ulpFcn(1, &output, 2, const_cast<vqArray_tag const**>(inputs));
      const held out(output);
      for (unsigned long i = 0; i < n; ++i) {
        double expected = distanceOf(a.at(i, false), b.at(i, false));
        if (a.complex || b.complex) expected = std::max(expected, distanceOf(a.at(i, true), b.at(i, true)));
        compare.check(elementsOf<double>(out)[i], expected, static_cast<int>(first.id), static_cast<int>(second.id),
                      static_cast<int>(i));
      }
    }
}

}  // namespace
}  // namespace zthalf

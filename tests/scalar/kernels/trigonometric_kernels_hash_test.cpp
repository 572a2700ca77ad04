// The trigonometric and hyperbolic kernels at full width, held by hashes that are the same with every compiler and on
// every processor.
#include <gtest/gtest.h>

#include <ostream>

#include "scalar/kernels/asin_acos_single.h"
#include "scalar/kernels/asinh_acosh_single.h"
#include "scalar/kernels/atan_single.h"
#include "scalar/kernels/atanh_single.h"
#include "scalar/kernels/exp_single.h"
#include "scalar/kernels/rem_pio2_single.h"
#include "scalar/kernels/sin_cos_single.h"
#include "scalar/kernels/sinh_cosh_single.h"
#include "scalar/kernels/sinpi_cospi_single.h"
#include "scalar/kernels/tan_single.h"
#include "scalar/kernels/tanh_single.h"
#include "tests/scalar/kernels/float_cases.h"
#include "tests/support/function_hash.h"

namespace zthalf::testing {
namespace {

constexpr char const* file = "kernels_trigonometric.hash";

using result = std::uint64_t (*)(float);

template <float (*kernel)(float)>
std::uint64_t resultOf(float x) {
  return bitsIn(kernel(x));
}

// The reduction is asked above pi/4 only.
std::uint64_t reductionOf(float x) {
  if (std::abs(x) <= 0.7853982f) return 0;
  const qsl_scalar::reducedAngle y = qsl_scalar::remPio2Single(x);
  return scrambled(static_cast<std::uint32_t>(y.n)) + (std::uint64_t{bitsIn(y.upper)} << 32 | bitsIn(y.lower));
}

struct Kernel {
  char const* name;
  result of;
};

void PrintTo(Kernel const& k, std::ostream* out) { *out << k.name; }

void expectGoldenOnFloats(Kernel const& k, std::uint64_t stride) {
  const std::uint64_t count = floatsAt(stride);
  expectGolden(file, k.name, count, hashOf(count, [&](std::uint64_t i) { return k.of(floatAt(i, stride)); }));
}

class KernelHash : public ::testing::TestWithParam<Kernel> {};

// Every float is compared with the kernel's steps, in its own test.
TEST_P(KernelHash, IsGoldenOnAStrideOfFloats) { expectGoldenOnFloats(GetParam(), slowStride); }

const auto kernels = ::testing::Values(
    Kernel{"remPio2Single", reductionOf}, Kernel{"sinSingle", resultOf<qsl_scalar::sinSingle>},
    Kernel{"cosSingle", resultOf<qsl_scalar::cosSingle>}, Kernel{"tanSingle", resultOf<qsl_scalar::tanSingle>},
    Kernel{"sinpiSingle", resultOf<qsl_scalar::sinpiSingle>}, Kernel{"cospiSingle", resultOf<qsl_scalar::cospiSingle>},
    Kernel{"asinSingle", resultOf<qsl_scalar::asinSingle>}, Kernel{"acosSingle", resultOf<qsl_scalar::acosSingle>},
    Kernel{"atanSingle", resultOf<qsl_scalar::atanSingle>}, Kernel{"expSingle", resultOf<qsl_scalar::expSingle>},
    Kernel{"sinhSingle", resultOf<qsl_scalar::sinhSingle>}, Kernel{"coshSingle", resultOf<qsl_scalar::coshSingle>},
    Kernel{"tanhSingle", resultOf<qsl_scalar::tanhSingle>}, Kernel{"asinhSingle", resultOf<qsl_scalar::asinhSingle>},
    Kernel{"acoshSingle", resultOf<qsl_scalar::acoshSingle>}, Kernel{"atanhSingle", resultOf<qsl_scalar::atanhSingle>});
constexpr auto nameOf = [](auto const& info) { return info.param.name; };

INSTANTIATE_TEST_SUITE_P(Kernels, KernelHash, kernels, nameOf);

}  // namespace
}  // namespace zthalf::testing

// The kernels of two arguments at full width, held by hashes that are the same with every compiler and on every
// processor.
#include <gtest/gtest.h>

#include "scalar/kernels/atan2_double.h"
#include "scalar/kernels/atan2_single.h"
#include "scalar/kernels/atan_double.h"
#include "scalar/kernels/hypot_double.h"
#include "scalar/kernels/hypot_single.h"
#include "scalar/kernels/mod.h"
#include "scalar/kernels/pow_double.h"
#include "scalar/kernels/pow_single_lanes.h"
#include "tests/scalar/kernels/pair_operands.h"
#include "tests/scalar/kernels/power_operands.h"

namespace zthalf::testing {
namespace {

// The bits of the result for pair number i.
using numberedResult = std::uint64_t (*)(std::uint64_t i);

template <auto kernel>
std::uint64_t onFloats(std::uint64_t i) {
  const operandPair<float> p = pairAt<float>(i);
  return std::bit_cast<std::uint32_t>(kernel(p.first, p.second));
}

template <auto kernel>
std::uint64_t onDoubles(std::uint64_t i) {
  const operandPair<double> p = pairAt<double>(i);
  return std::bit_cast<std::uint64_t>(kernel(p.first, p.second));
}

std::uint64_t atanOnDoubles(std::uint64_t i) {
  return std::bit_cast<std::uint64_t>(qsl_scalar::atanDouble(pairAt<double>(i).first));
}

std::uint64_t powOnDoubles(std::uint64_t i) {
  const operandPair<double> p = powerPairAt(i);
  return std::bit_cast<std::uint64_t>(qsl_scalar::powDouble(p.first, p.second));
}

std::uint64_t powInLanesOnFloats(std::uint64_t i) {
  const powerOperands p = powerOperandsAt(i);
  return std::bit_cast<std::uint32_t>(qsl_scalar::powSingleInLanes(p.x, p.y));
}

struct Kernel {
  char const* name;
  numberedResult result;
};

void PrintTo(Kernel const& k, std::ostream* out) { *out << k.name; }

class TwoArgumentKernelHash : public ::testing::TestWithParam<Kernel> {};
class LongTwoArgumentKernelHash : public ::testing::TestWithParam<Kernel> {};

void expectGoldenPairs(Kernel const& k, std::uint64_t count) {
  expectGolden("kernels_two_argument.hash", k.name, count, hashOf(count, k.result));
}

TEST_P(TwoArgumentKernelHash, IsGolden) { expectGoldenPairs(GetParam(), 1000000); }
TEST_P(LongTwoArgumentKernelHash, IsGoldenOnTenTimesAsMany) { expectGoldenPairs(GetParam(), 10000000); }

const auto kernels = ::testing::Values(
    Kernel{"hypotSingle", onFloats<qsl_scalar::hypotSingle>}, Kernel{"hypotDouble", onDoubles<qsl_scalar::hypotDouble>},
    Kernel{"atan2Single", onFloats<qsl_scalar::atan2Single>}, Kernel{"atan2Double", onDoubles<qsl_scalar::atan2Double>},
    Kernel{"atanDouble", atanOnDoubles}, Kernel{"modSingle", onFloats<qsl_scalar::modSingle>},
    Kernel{"modDouble", onDoubles<qsl_scalar::modDouble>}, Kernel{"powDouble", powOnDoubles},
    Kernel{"powSingleInLanes", powInLanesOnFloats});
constexpr auto nameOf = [](auto const& info) { return info.param.name; };

INSTANTIATE_TEST_SUITE_P(Kernels, TwoArgumentKernelHash, kernels, nameOf);
INSTANTIATE_TEST_SUITE_P(Kernels, LongTwoArgumentKernelHash, kernels, nameOf);

}  // namespace
}  // namespace zthalf::testing

// The exponential and logarithmic kernels at full width, held by hashes that are the same with every compiler and on
// every processor.
#include <gtest/gtest.h>

#include "scalar/kernels/expm1_single.h"
#include "scalar/kernels/log1p_single.h"
#include "scalar/kernels/log_single.h"
#include "scalar/kernels/pow_single.h"
#include "scalar/kernels/scalbn_single.h"
#include "tests/scalar/kernels/power_operands.h"
#include "tests/support/function_hash.h"

namespace zthalf::testing {
namespace {

void expectGoldenOnFloats(char const* name, float (*kernel)(float), std::uint64_t stride) {
  const std::uint64_t count = floatsAt(stride);
  const std::uint64_t hash = hashOf(count, [=](std::uint64_t i) { return bitsIn(kernel(floatAt(i, stride))); });
  expectGolden("kernels_single.hash", name, count, hash);
}

// logSingle is always inlined and has no address of its own.
float logKernel(float x) { return qsl_scalar::logSingle(x); }

TEST(SingleKernels, LogSingleIsGolden) { expectGoldenOnFloats("logSingle", logKernel, quickStride); }
TEST(SingleKernels, Log1pSingleIsGolden) { expectGoldenOnFloats("log1pSingle", qsl_scalar::log1pSingle, quickStride); }
TEST(SingleKernels, Expm1SingleIsGolden) { expectGoldenOnFloats("expm1Single", qsl_scalar::expm1Single, quickStride); }

TEST(LongSingleKernels, LogSingleIsGoldenOnEveryFloat) { expectGoldenOnFloats("logSingle", logKernel, 1); }
TEST(LongSingleKernels, Log1pSingleIsGoldenOnEveryFloat) {
  expectGoldenOnFloats("log1pSingle", qsl_scalar::log1pSingle, 1);
}
TEST(LongSingleKernels, Expm1SingleIsGoldenOnEveryFloat) {
  expectGoldenOnFloats("expm1Single", qsl_scalar::expm1Single, 1);
}

TEST(SingleKernels, PowSingleIsGolden) {
  constexpr std::uint64_t count = 1u << 21;
  expectGolden("kernels_single.hash", "powSingle", count, hashOf(count, [](std::uint64_t i) {
                 const powerOperands p = powerOperandsAt(i);
                 return bitsIn(qsl_scalar::powSingle(p.x, p.y));
               }));
}

TEST(SingleKernels, ScalbnSingleIsGolden) {
  const std::uint64_t count = floatsAt(quickStride);
  expectGolden("kernels_single.hash", "scalbnSingle", count, hashOf(count, [](std::uint64_t i) {
                 const auto n = static_cast<std::int32_t>(scrambled(i) % 640) - 320;
                 return bitsIn(qsl_scalar::scalbnSingle(floatAt(i, quickStride), n));
               }));
}

}  // namespace
}  // namespace zthalf::testing

// Bit work on arrays: values by name. All values, counts and overlaps are in unary_entries_test.cpp.
#include <gtest/gtest.h>

#include <complex>
#include <cstdint>
#include <vector>

#include "tests/support/one_value.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using complexHalf = std::complex<half_t>;
using testing::expectEverywhere;

complexHalf complexOf(std::uint16_t real, std::uint16_t imaginary) { return {half_t{real}, half_t{imaginary}}; }

using realOperation = void (*)(half_t*, half_t*, unsigned long);
using complexOperation = void (*)(complexHalf*, complexHalf*, unsigned long);

void expectReal(realOperation operation, std::uint16_t input, std::uint16_t expected) {
  expectEverywhere<half_t, half_t>(operation, {input}, {expected});
}

TEST(Uminus, FlipsTheSignOfANaNToo) {
  expectReal(&half_vector::uminus, 0x7E00, 0xFE00);
  expectReal(&half_vector::uminus, 0x0000, 0x8000);
  expectReal(&half_vector::uminus, 0xFC01, 0x7C01);
}

TEST(Uminus, NeverGivesAMinusZeroAsImaginaryPart) {
  const complexOperation uminus = &half_vector::uminus;
  expectEverywhere(uminus, complexOf(0x3C00, 0x8000), complexOf(0xBC00, 0x0000));
  expectEverywhere(uminus, complexOf(0x3C00, 0x0000), complexOf(0xBC00, 0x0000));
  expectEverywhere(uminus, complexOf(0x0000, 0x3C00), complexOf(0x8000, 0xBC00));
  expectEverywhere(uminus, complexOf(0x0000, 0x0000), complexOf(0x8000, 0x0000));
}

TEST(Conj, KeepsAZeroImaginaryPartPositive) {
  const complexOperation conj = &half_vector::conj;
  expectEverywhere(conj, complexOf(0x3C00, 0x0000), complexOf(0x3C00, 0x0000));
  expectEverywhere(conj, complexOf(0x3C00, 0x8000), complexOf(0x3C00, 0x0000));
  expectEverywhere(conj, complexOf(0xFE01, 0x7C01), complexOf(0xFE01, 0xFC01));
}

TEST(Abs, ClearsTheSignOfANaNToo) {
  expectReal(&half_vector::abs, 0xFE01, 0x7E01);
  expectReal(&half_vector::abs, 0x8000, 0x0000);
}

TEST(Sign, IsPlusZeroForZerosAndANaNForItself) {
  expectReal(&half_vector::sign, 0x8000, 0x0000);
  expectReal(&half_vector::sign, 0x0000, 0x0000);
  expectReal(&half_vector::sign, 0xFC00, 0xBC00);
  expectReal(&half_vector::sign, 0x7C00, 0x3C00);
  expectReal(&half_vector::sign, 0x8001, 0xBC00);
  expectReal(&half_vector::sign, 0x7E01, 0x7E01);
  expectReal(&half_vector::sign, 0xFC01, 0xFC01);
}

TEST(RealAndImag, AreTheParts) {
  expectEverywhere<complexHalf, half_t>(&half_vector::real, complexOf(0x7C01, 0x8000), half_t{0x7C01});
  expectEverywhere<complexHalf, half_t>(&half_vector::imag, complexOf(0x7C01, 0x8000), half_t{0x8000});
}

TEST(RealToComplex, KeepsANaNAndAddsPlusZero) {
  expectEverywhere<half_t, complexHalf>(&half_vector::realToComplex, half_t{0xFE01}, complexOf(0xFE01, 0x0000));
  expectEverywhere<half_t, complexHalf>(&half_vector::realToComplex, half_t{0x8000}, complexOf(0x8000, 0x0000));
}

TEST(Classification, JudgesBothPartsOfAComplexElement) {
  const complexHalf notANumberBelow = complexOf(0x3C00, 0x7E00);
  expectEverywhere<complexHalf, bool>(&half_vector::isfinite, notANumberBelow, false);
  expectEverywhere<complexHalf, bool>(&half_vector::isnan, notANumberBelow, true);
  expectEverywhere<complexHalf, bool>(&half_vector::isinf, notANumberBelow, false);
  const complexHalf infiniteAbove = complexOf(0xFC00, 0x0001);
  expectEverywhere<complexHalf, bool>(&half_vector::isfinite, infiniteAbove, false);
  expectEverywhere<complexHalf, bool>(&half_vector::isnan, infiniteAbove, false);
  expectEverywhere<complexHalf, bool>(&half_vector::isinf, infiniteAbove, true);
}

TEST(Uminus, TwoBytesAheadOfItsSourceSeesItsOwnResults) {
  for (const unsigned long n : {1UL, 2UL, 31UL, 32UL, 33UL, 1000UL}) {
    std::vector<half_t> data(n + 1, half_t{0x1234});
    data[0] = {0x4567};
    half_vector::uminus(data.data(), data.data() + 1, n);
    for (unsigned long i = 0; i <= n; ++i) EXPECT_EQ(data[i].bits, i % 2 != 0 ? 0xC567 : 0x4567) << i << " of " << n;
  }
}

TEST(Uminus, TwoBytesBehindItsSourceSeesTheOldValues) {
  for (const unsigned long n : {1UL, 2UL, 31UL, 32UL, 33UL, 1000UL}) {
    std::vector<half_t> data(n + 1);
    for (unsigned long i = 0; i <= n; ++i) data[i] = {static_cast<std::uint16_t>(i)};
    half_vector::uminus(data.data() + 1, data.data(), n);
    for (unsigned long i = 0; i < n; ++i) EXPECT_EQ(data[i].bits, (i + 1) | 0x8000) << i << " of " << n;
    EXPECT_EQ(data[n].bits, n);
  }
}

TEST(BitwiseUnary, WorkInPlace) {
  std::vector<half_t> data(1000);
  for (unsigned long i = 0; i < data.size(); ++i) data[i] = {static_cast<std::uint16_t>(i * 65)};
  auto negated = data, magnitudes = data;
  half_vector::uminus(negated.data(), negated.data(), negated.size());
  half_vector::abs(magnitudes.data(), magnitudes.data(), magnitudes.size());
  for (unsigned long i = 0; i < data.size(); ++i) {
    EXPECT_EQ(negated[i].bits, data[i].bits ^ 0x8000);
    EXPECT_EQ(magnitudes[i].bits, data[i].bits & 0x7FFF);
  }
}

}  // namespace
}  // namespace zthalf

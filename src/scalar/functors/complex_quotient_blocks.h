// The pass over quotients of halves with a complex operand: in vector lanes, but for the pairs that are left.
#pragma once

#include <algorithm>
#include <complex>
#include <cstdint>

#include "core/instruction_level.h"
#include "scalar/complex/quotient_nan_signs.h"
#include "scalar/functors/operands.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

// Lanes work on whole blocks, so that no loop needs a second form for elements that do not fill its vectors.
inline constexpr unsigned long quotientBlock = 64;

// Whole blocks: first the quotients, then the signs of NaNs if there are any, then the pairs that are left. A block is
// read before any of it is written. As in products, parts are kept apart until they are stored.
template <class A, class B>
struct quotientBlocksPass {
  static constexpr bool isWide = true;

  ZTHALF_INLINE static void run(A* a, B* b, element::CplxHalf* c, unsigned long blocks) {
    for (unsigned long block = 0; block < blocks; ++block)
      one(a + block * quotientBlock, b + block * quotientBlock, c + block * quotientBlock);
  }

 private:
  ZTHALF_INLINE static void one(A* a, B* b, element::CplxHalf* c) {
    std::uint16_t re[quotientBlock], im[quotientBlock], isLeft[quotientBlock];
    std::uint32_t anyLeft = 0, anyNaN = 0;  // words wider than the masks: clang gives up on narrow ones
    for (unsigned long i = 0; i < quotientBlock; ++i) {
      const zthalf::quotientInLanes quotient = zthalf::plainQuotientInLanes(laneOperand(a, i), laneOperand(b, i));
      re[i] = quotient.value.re;
      im[i] = quotient.value.im;
      isLeft[i] = quotient.isLeft;
      anyLeft |= quotient.isLeft;
      anyNaN |= zthalf::pattern::nanMask(quotient.value.re) | zthalf::pattern::nanMask(quotient.value.im);
    }
    const auto keep = [&](unsigned long i, zthalf::complexHalf quotient) {
      re[i] = quotient.re;
      im[i] = quotient.im;
    };
    if (anyNaN != 0) {
      for (unsigned long i = 0; i < quotientBlock; ++i)
        keep(i, zthalf::withNaNSigns({re[i], im[i]}, laneOperand(a, i), laneOperand(b, i)));
    }
    if (anyLeft != 0) {
      for (unsigned long i = 0; i < quotientBlock; ++i) {
        if (isLeft[i] != 0) keep(i, zthalf::quotientOfHalves(laneOperand(a, i), laneOperand(b, i)));
      }
    }
    auto* out = reinterpret_cast<std::uint16_t*>(c);
    for (unsigned long i = 0; i < quotientBlock; ++i) {
      out[2 * i] = re[i];
      out[2 * i + 1] = im[i];
    }
  }
};

template <class A, class B>
void quotientsOneByOne(A* a, B* b, element::CplxHalf* c, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i)
    c[i] = asElement(zthalf::quotientOfHalves(plainOperand(a[i]), plainOperand(b[i])));
}

// The output may be one of the operands, but not overlap one in another way. So few are divided one by one, which costs
// less than a block; more at the end in a block that zeros fill up.
template <class A, class B>
void complexQuotientBlocks(A* a, B* b, element::CplxHalf* c, unsigned long n) {
  constexpr unsigned long few = 16;
  if (n <= few) return quotientsOneByOne(a, b, c, n);
  const auto pass = zthalf::leveled<quotientBlocksPass<A, B>, A*, B*, element::CplxHalf*, unsigned long>::chosen();
  const unsigned long blocks = n / quotientBlock, done = blocks * quotientBlock, rest = n - done;
  if (blocks > 0) pass(a, b, c, blocks);
  if (rest <= few) return quotientsOneByOne(a + done, b + done, c + done, rest);
  A lastA[quotientBlock] = {};
  B lastB[quotientBlock] = {};
  element::CplxHalf lastC[quotientBlock];
  std::copy_n(a + done, rest, lastA);
  std::copy_n(b + done, rest, lastB);
  pass(lastA, lastB, lastC, 1);
  std::copy_n(lastC, rest, c + done);
}

}  // namespace half::scalar::emulated

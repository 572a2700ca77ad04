// Questions about a whole array: the scan ends at the first element that answers them.
#include <array>
#include <bit>

#include "frame/loops/early_exit_loop.h"
#include "zthalf/half_ops.h"

namespace half {

namespace {

using templates::emulated::halfUnarySimpleReduceWithEarlyExit;

constexpr unsigned long scanThreshold = 2048;  // from 2049 elements on the scan is parallel
constexpr unsigned long scanGrain = 256;

// A complex element as one word. Which half of the word the real part is depends on the machine's order of bytes, so
// masks are made of parts. The arrays are only aligned for their parts, hence packed.
struct [[gnu::packed]] complexElement {
  std::uint32_t word;
};

constexpr std::uint32_t wordOf(std::uint16_t re, std::uint16_t im) {
  return std::bit_cast<std::uint32_t>(std::array{re, im});
}
constexpr std::uint32_t imaginaryMagnitude = wordOf(0, 0x7FFF);

struct imaginaryPartIsNotZero {
  ZTHALF_INLINE bool operator()(complexElement z) const { return (z.word & imaginaryMagnitude) != 0; }
};

struct isNotFinite {
  ZTHALF_INLINE bool operator()(fp16binary_t x) const { return (x.bits & 0x7C00u) == 0x7C00u; }
  ZTHALF_INLINE bool operator()(complexElement z) const {
    return ((z.word & 0x7C00u) == 0x7C00u) | ((z.word & 0x7C000000u) == 0x7C000000u);
  }
};

}  // namespace

bool isImagZero(std::complex<unsigned short>* src, unsigned long n) {
  return halfUnarySimpleReduceWithEarlyExit(reinterpret_cast<complexElement*>(src), n, imaginaryPartIsNotZero{},
                                            scanThreshold, scanGrain);
}

template <>
bool isWholeArrayFinite(fp16binary_t* src, unsigned long n) {
  return halfUnarySimpleReduceWithEarlyExit(src, n, isNotFinite{}, scanThreshold, scanGrain);
}

template <>
bool isWholeArrayFinite(std::complex<fp16binary_t>* src, unsigned long n) {
  return halfUnarySimpleReduceWithEarlyExit(reinterpret_cast<complexElement*>(src), n, isNotFinite{}, scanThreshold,
                                            scanGrain);
}

}  // namespace half

// The arrays that are measured: their place in memory and what stands in them.
#pragma once

#include <complex>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <random>
#include <type_traits>

#include "zthalf/half_scalar.h"
#include "zthalf/half_t.h"

namespace bench {

enum class content {
  plain,       // normal halves of both signs over some binades around 1, or numbers that round to such halves
  subnormals,  // every other element is, or rounds to, a subnormal half
  nans,        // every other element is a NaN
};

inline std::string nameOf(content kind) {
  return kind == content::plain ? "plain" : kind == content::subnormals ? "subnormals" : "nans";
}

// n elements that begin `shift` elements behind an address the widest vectors like. Arrays of one call start at
// different distances from a page, as arrays of a real program do.
template <class T>
class array {
 public:
  explicit array(unsigned long n, unsigned long shift = 0) {
    static unsigned long made = 0;
    const unsigned long distance = 64 * (5 * (made++ % 11) + 1);
    const unsigned long bytes = (distance + (n + shift) * sizeof(T) + 4095) / 4096 * 4096;
    block_.reset(static_cast<unsigned char*>(std::aligned_alloc(4096, bytes)), [](void* p) { std::free(p); });
    for (unsigned long i = 0; i < bytes; ++i) block_.get()[i] = 0;
    data_ = reinterpret_cast<T*>(block_.get() + distance) + shift;
  }
  T* data() const { return data_; }

 private:
  std::shared_ptr<unsigned char> block_;  // shared with the calls that use the array
  T* data_;
};

class randomElements {
 public:
  template <class T>
  T next(content kind, unsigned long i) {
    if constexpr (std::is_same_v<T, half_t>) {
      return {patternOf(kind, i)};
    } else if constexpr (std::is_same_v<T, std::complex<half_t>>) {
      return {half_t{patternOf(kind, i)}, half_t{patternOf(kind, i + 1)}};
    } else if constexpr (std::is_floating_point_v<T>) {
      // Not a half itself, so that there is something to round.
      const double half = half_scalar::impl::convertHalfToDouble(patternOf(kind, i));
      return static_cast<T>(half * (1 + static_cast<double>(generator_() % 1024) / 1048576));
    } else if constexpr (std::is_same_v<T, bool>) {
      return generator_() % 2 != 0;
    } else {
      return static_cast<T>(static_cast<std::int64_t>(generator_() % 4001) - (std::is_signed_v<T> ? 2000 : 0));
    }
  }

 private:
  std::uint16_t patternOf(content kind, unsigned long i) {
    const auto random = static_cast<std::uint16_t>(generator_());
    const auto sign = static_cast<std::uint16_t>(random & 0x8000u);
    const auto fraction = static_cast<std::uint16_t>(random & 0x03FFu);
    if (kind == content::subnormals && i % 2 == 0) return sign | fraction;
    if (kind == content::nans && i % 2 == 0) return sign | 0x7E00 | fraction;
    const auto field = static_cast<std::uint16_t>(11 + (random >> 10) % 8);
    return sign | static_cast<std::uint16_t>(field << 10) | fraction;
  }

  std::minstd_rand generator_{20240229};
};

template <class T>
array<T> filled(unsigned long n, content kind = content::plain, unsigned long shift = 0) {
  array<T> made(n, shift);
  randomElements random;
  for (unsigned long i = 0; i < n; ++i) made.data()[i] = random.next<T>(kind, i);
  return made;
}

}  // namespace bench

// An operand of a product, whatever its elements are: read column by column into numbers of the working type, real and
// imaginary parts apart.
#pragma once

#include <complex>
#include <cstdint>
#include <type_traits>

#include "core/float_conversion.h"
#include "core/instruction_level.h"
#include "core/nan_policy.h"
#include "linalg/chunks.h"
#include "linalg/scaled_half.h"
#include "zthalf/half_t.h"

namespace zthalf::linalg {

template <class T>
inline constexpr bool isComplexElement = false;
template <class T>
inline constexpr bool isComplexElement<std::complex<T>> = true;

// What an element is made of, as it is stored: a half is its pattern.
template <class T>
struct storedPart {
  using type = T;
};
template <>
struct storedPart<fp16binary_t> {
  using type = std::uint16_t;
};
template <class T>
struct storedPart<std::complex<T>> : storedPart<T> {};

template <class Base, class Stored>
ZTHALF_INLINE Base asNumber(Stored x) {
  if constexpr (std::is_same_v<Stored, std::uint16_t>) {
    return widen<Base>(x);
  } else if constexpr (std::is_same_v<Base, Stored>) {
    return x;
  } else {
    return asDouble(x);
  }
}

// n elements, all of them or of a complex array the parts of either kind. Of a real array im is left alone.
template <class Base, class Element>
struct readPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(void const* src, unsigned long n, Base* re, Base* im) {
    auto const* from = static_cast<typename storedPart<Element>::type const*>(src);
    if constexpr (isComplexElement<Element>) {
      forEachChunk<2>(from, n, [=](auto const* parts, unsigned long at) {
        Base real[chunkSize], imaginary[chunkSize];
        for (unsigned long i = 0; i < chunkSize; ++i) {
          real[i] = asNumber<Base>(parts[2 * i]);
          imaginary[i] = asNumber<Base>(parts[2 * i + 1]);
        }
        keepWholeChunk(re + at, real);
        keepWholeChunk(im + at, imaginary);
      });
    } else if constexpr (std::is_same_v<Base, Element>) {
      std::memcpy(re, from, n * sizeof(Base));
    } else {
      forEachChunk<1>(from, n, [=](auto const* numbers, unsigned long at) {
        Base real[chunkSize];
        for (unsigned long i = 0; i < chunkSize; ++i) real[i] = asNumber<Base>(numbers[i]);
        keepWholeChunk(re + at, real);
      });
    }
  }
};

// n halves times a half, rounded to half.
template <class Base>
struct scaledReadPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(std::uint16_t const* x, unsigned long n, std::uint16_t factor, Base* to) {
    forEachChunk<1>(x, n, [=](std::uint16_t const* halves, unsigned long at) {
      Base scaled[chunkSize];
      for (unsigned long i = 0; i < chunkSize; ++i) scaled[i] = widen<Base>(scaledHalf(factor, halves[i]));
      keepWholeChunk(to + at, scaled);
    });
  }
};

// A matrix in memory, columns `leading` elements apart.
template <class Base>
class operand {
 public:
  template <class Element>
  operand(Element const* data, unsigned long leading)
      : data_(reinterpret_cast<char const*>(data)),
        elementSize_(sizeof(Element)),
        leading_(leading),
        isReal_(!isComplexElement<Element>),
        isHalves_(std::is_same_v<Element, fp16binary_t>),
        read_(leveled<readPass<Base, Element>, void const*, unsigned long, Base*, Base*>::chosen()) {}

  // Halves times the half `factor`, each product rounded to half.
  operand(fp16binary_t const* data, unsigned long leading, std::uint16_t factor) requires std::is_same_v<Base, float>
      : operand(data, leading) {
    factor_ = factor;
    scaled_ = leveled<scaledReadPass<Base>, std::uint16_t const*, unsigned long, std::uint16_t, Base*>::chosen();
  }

  // Rows i to i + rows - 1 of columns l to l + columns - 1, one column after the other without a gap. im is null in a
  // real product; in a complex one a real operand has imaginary parts of +0.
  // Behind the last column re and im have room up to the next whole chunk of a column.
  void read(unsigned long i, unsigned long rows, unsigned long l, unsigned long columns, Base* re, Base* im) const;

  // Element (i, l) in memory, where the elements are halves as they are; otherwise null.
  std::uint16_t const* halfAt(unsigned long i, unsigned long l) const {
    return isHalves_ && scaled_ == nullptr ? static_cast<std::uint16_t const*>(at(i, l)) : nullptr;
  }

 private:
  void readRun(void const* src, unsigned long n, Base* re, Base* im) const {
    if (scaled_ == nullptr) return read_(src, n, re, im);
    scaled_(static_cast<std::uint16_t const*>(src), n, factor_, re);
  }
  void const* at(unsigned long i, unsigned long l) const { return data_ + (i + l * leading_) * elementSize_; }

  char const* data_;
  unsigned long elementSize_;
  unsigned long leading_;
  bool isReal_;
  bool isHalves_;
  void (*read_)(void const*, unsigned long, Base*, Base*);
  std::uint16_t factor_ = 0;
  void (*scaled_)(std::uint16_t const*, unsigned long, std::uint16_t, Base*) = nullptr;  // null: as they are
};

}  // namespace zthalf::linalg

// The entries of sum, prod and mean as data, read from the entry list, and their calls on patterns.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/reduce/reference_reduction.h"
#include "tests/support/drawn_values.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_ptr.h"

namespace zthalf::testing {

using patternVector = std::vector<std::uint16_t>;
using sizeVector = std::vector<unsigned long>;
using resultVector = std::vector<reference::resultBits>;

template <class T>
struct partOf {
  using type = T;
};
template <>
struct partOf<fp16binary_t> {
  using type = half_t;
};
template <class T>
struct partOf<std::complex<T>> : partOf<T> {};

template <class T>
inline constexpr bool isComplexType = false;
template <class T>
inline constexpr bool isComplexType<std::complex<T>> = true;

inline std::uint64_t bitsOfPart(fp16binary_t x) { return x.bits; }
inline std::uint64_t bitsOfPart(double x) { return std::bit_cast<std::uint64_t>(x); }
template <class T>
reference::resultBits bitsOfResult(T x) {
  return {bitsOfPart(x), 0};
}
template <class T>
reference::resultBits bitsOfResult(std::complex<T> z) {
  return {bitsOfPart(z.real()), bitsOfPart(z.imag())};
}

inline reference::reductionKind kindOf(std::string_view function, bool isComplex) {
  using reference::folding;
  const folding op = function.starts_with("sum")    ? folding::sum
                     : function.starts_with("prod") ? folding::prod
                                                    : folding::mean;
  return {op, function.ends_with("OmitNaN"), isComplex};
}

// One entry that reduces a whole array, and what the reference makes of it.
struct wholeRow {
  std::string name;
  reference::reductionKind kind;
  reference::resultBits (*ours)(patternVector const&, unsigned long n);
  reference::resultBits (*expected)(reference::reductionKind, patternVector const&, unsigned long n);

  int patternsPerElement() const { return kind.isComplex ? 2 : 1; }

  void check(patternVector const& x, unsigned long n, std::string const& where = "") const {
    const auto result = ours(x, n), wanted = expected(kind, x, n);
    EXPECT_EQ(result, wanted) << name << " of " << n << " elements " << where << std::hex << ": " << result.re << ", "
                              << result.im << " instead of " << wanted.re << ", " << wanted.im;
  }
};

// One entry that reduces along dimensions.
struct alongRow {
  std::string name;
  reference::reductionKind kind;
  resultVector (*ours)(patternVector const&, sizeVector, bool firstReduced);
  resultVector (*expected)(reference::reductionKind, patternVector const&, sizeVector const&, bool firstReduced);

  int patternsPerElement() const { return kind.isComplex ? 2 : 1; }

  void check(patternVector const& x, sizeVector const& dims, bool firstReduced, std::string const& where = "") const {
    EXPECT_TRUE(ours(x, dims, firstReduced) == expected(kind, x, dims, firstReduced))
        << name << ::testing::PrintToString(dims) << (firstReduced ? " columns " : " rows ") << where;
  }
};

template <auto& entry, class In, class Out, class Accumulator>
wholeRow wholeRowOf(char const* name, char const* function) {
  return {name, kindOf(function, isComplexType<In>),
          [](patternVector const& x, unsigned long n) {
            Out result{};
            entry(reinterpret_cast<In*>(const_cast<std::uint16_t*>(x.data())), &result, n);
            return bitsOfResult(result);
          },
          [](reference::reductionKind kind, patternVector const& x, unsigned long n) {
            return reference::reduction<typename partOf<Accumulator>::type>(kind, x).whole(n);
          }};
}

// What lies behind the last output must stay as it is.
template <auto& entry, class In, class Out, class Accumulator>
alongRow alongRowOf(char const* name, char const* function) {
  return {name, kindOf(function, isComplexType<In>),
          [](patternVector const& x, sizeVector dims, bool firstReduced) {
            unsigned long outputs = 1;
            for (std::size_t d = firstReduced ? 1 : 0; d < dims.size(); d += 2) outputs *= dims[d];
            std::vector<Out> results(outputs + 1);
            const auto sentinel = bitsOfResult(results.back());
            entry(reinterpret_cast<In*>(const_cast<std::uint16_t*>(x.data())), results.data(), dims.size(), dims.data(),
                  firstReduced);
            EXPECT_EQ(bitsOfResult(results.back()), sentinel);
            resultVector bits;
            for (unsigned long k = 0; k < outputs; ++k) bits.push_back(bitsOfResult(results[k]));
            return bits;
          },
          [](reference::reductionKind kind, patternVector const& x, sizeVector const& dims, bool firstReduced) {
            return reference::reduction<typename partOf<Accumulator>::type>(kind, x).along(dims, firstReduced);
          }};
}

#define ZTHALF_WHOLE_ROW(entry, facade, function, In, Out, Accumulator)                                       \
  wholeRowOf<half_ptr::entry##Ptr, half::element::In, half::element::Out, half::element::Accumulator>(#entry, \
                                                                                                      #function),
#define ZTHALF_ALONG_ROW(entry, facade, function, In, Out, Accumulator)                                       \
  alongRowOf<half_ptr::entry##Ptr, half::element::In, half::element::Out, half::element::Accumulator>(#entry, \
                                                                                                      #function),
inline std::vector<wholeRow> const& wholeRows() {
  static const std::vector<wholeRow> rows = {ZTHALF_SIMPLE_REDUCTION_ENTRIES(ZTHALF_WHOLE_ROW)
                                                 ZTHALF_SIMPLE_OMITNAN_REDUCTION_ENTRIES(ZTHALF_WHOLE_ROW)};
  return rows;
}
inline std::vector<alongRow> const& alongRows() {
  static const std::vector<alongRow> rows = {ZTHALF_REDUCTION_ENTRIES(ZTHALF_ALONG_ROW)};
  return rows;
}
#undef ZTHALF_WHOLE_ROW
#undef ZTHALF_ALONG_ROW

// Patterns of a kind, the same in every run.
enum class content {
  plain,    // numbers around 1: products stay in range for a while
  anything  // every pattern, with many infinities, NaNs, zeros and subnormals
};

inline patternVector drawn(unsigned long count, content kind, unsigned seed = 1) {
  bitSource bits(seed);
  patternVector x(count);
  for (auto& pattern : x) {
    if (kind == content::anything) {
      pattern = drawer<half_t>::draw(bits).bits;
    } else {
      pattern = static_cast<std::uint16_t>(0x3B00 + bits() % 0x200 + (bits() % 2 << 15));
    }
  }
  return x;
}

}  // namespace zthalf::testing

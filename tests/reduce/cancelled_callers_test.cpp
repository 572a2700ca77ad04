// Every reduction that uses threads, in task groups that are cancelled around it.
#include <gtest/gtest.h>

#include "tests/reduce/reduction_rows.h"
#include "tests/support/caller_groups.h"
#include "tests/support/expect_bits.h"
#include "tests/support/extremum_arrays.h"
#include "tests/support/shapes.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

TEST(CancelledCallers, GetSumsProductsAndMeansOfWholeArrays) {
  const unsigned long n = 150'001;
  const patternVector x = drawn(2 * n, content::plain);
  for (auto const& row : wholeRows()) expectUndisturbed(row.name, [&] { return row.ours(x, n); });
}

// More outputs than one thread takes, and few outputs that are tall.
TEST(CancelledCallers, GetSumsProductsAndMeansAlongDimensions) {
  for (auto const& dims : std::vector<sizeVector>{{5, 1400, 3}, {1400, 5, 2}, {70'000, 3}}) {
    const patternVector x = drawn(2 * countOf(dims), content::plain);
    for (auto const& row : alongRows()) {
      for (const bool firstReduced : {true, false})
        expectUndisturbed(
            row.name, [&] { return row.ours(x, dims, firstReduced); }, 3);
    }
  }
}

// What one call of min or max writes.
template <class T>
struct extrema {
  std::vector<T> values;
  std::vector<double> index;

  explicit extrema(unsigned long outputs) : values(outputs), index(outputs) {}
  bool operator==(extrema const& other) const {
    return index == other.index && std::equal(values.begin(), values.end(), other.values.begin(),
                                              [](T a, T b) { return bitsIn(a) == bitsIn(b); });
  }
};

// Every entry of min and max over the whole array, of real or complex elements.
template <class T>
void expectWholeExtremaUndisturbed(std::vector<T> src) {
  forEachExtremumEntry([&](std::string const& name, auto entry, auto function) {
    using kind = decltype(entry);
    constexpr bool isPlain = std::is_same_v<decltype(function), typename kind::whole>;
    constexpr bool isIndexed = std::is_same_v<decltype(function), typename kind::indexedWhole>;
    if constexpr (std::is_same_v<typename kind::element, T> && (isPlain || isIndexed)) {
      expectUndisturbed(name, [&] {
        extrema<T> result(1);
        auto const to = kind::stored(result.values.data());
        if constexpr (isPlain) function(kind::stored(src.data()), to, src.size());
        if constexpr (isIndexed) function(kind::stored(src.data()), to, result.index.data(), src.size());
        return result;
      });
    }
  });
}

TEST(CancelledCallers, GetExtremaOfWholeArrays) {
  bitSource bits(61);
  expectWholeExtremaUndisturbed(drawnArray<half_t>((1 << 18) + 1, filling::descending, bits));
  expectWholeExtremaUndisturbed(drawnArray<half_t>(1'500'001, filling::ties, bits));
  expectWholeExtremaUndisturbed(drawnArray<std::complex<half_t>>(100'003, filling::equalLengths, bits));
}

template <class T>
void expectExtremaAlongUndisturbed(sizeList dims, filling filledWith) {
  bitSource bits(62);
  auto src = drawnArray<T>(countOf(dims), filledWith, bits);
  const auto check = [&](std::string const& name, auto entry, auto function, bool firstReduced) {
    using kind = decltype(entry);
    constexpr bool isPlain = std::is_same_v<decltype(function), typename kind::along>;
    constexpr bool isIndexed = std::is_same_v<decltype(function), typename kind::indexedAlong>;
    if constexpr (std::is_same_v<typename kind::element, T> && (isPlain || isIndexed)) {
      const auto call = [&] {
        extrema<T> result(countOf(dims));
        auto const to = kind::stored(result.values.data());
        auto const from = kind::stored(src.data());
        if constexpr (isPlain) function(from, to, dims.size(), dims.data(), firstReduced);
        if constexpr (isIndexed) function(from, to, result.index.data(), dims.size(), dims.data(), firstReduced, true);
        return result;
      };
      expectUndisturbed(name, call, 3);
    }
  };
  forEachExtremumEntry([&](std::string const& name, auto entry, auto function) {
    for (const bool firstReduced : {true, false}) check(name, entry, function, firstReduced);
  });
}

TEST(CancelledCallers, GetExtremaAlongDimensions) {
  for (sizeList const& dims : {sizeList{5, 1400, 3}, sizeList{1400, 5, 2}}) {
    expectExtremaAlongUndisturbed<half_t>(dims, filling::ties);
    expectExtremaAlongUndisturbed<std::complex<half_t>>(dims, filling::equalLengths);
  }
  expectExtremaAlongUndisturbed<half_t>({300'000, 2}, filling::descending);
  expectExtremaAlongUndisturbed<std::complex<half_t>>({40'000, 2}, filling::equalLengths);
}

}  // namespace
}  // namespace zthalf

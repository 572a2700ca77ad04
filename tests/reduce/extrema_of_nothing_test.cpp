// min and max along dimensions where one of them has size 0, so that the array has no element.
#include <gtest/gtest.h>

#include "tests/support/expect_bits.h"
#include "tests/support/extremum_arrays.h"
#include "tests/support/loops.h"
#include "tests/support/shapes.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using steps::extremumForm;
using steps::extremumFormNamed;

bool omitsNaN(extremumForm form) { return form == extremumForm::minOmitNaN || form == extremumForm::maxOmitNaN; }

// What every element takes the place of, or ties with: written down, not computed.
template <class T>
T expectedOf(extremumForm form);
template <>
half_t expectedOf(extremumForm form) {
  if (omitsNaN(form)) return {0x7E00};
  return {form == extremumForm::min ? std::uint16_t{0x7C00} : std::uint16_t{0xFC00}};
}
template <>
std::complex<half_t> expectedOf(extremumForm form) {
  if (omitsNaN(form)) return {half_t{0x7E00}, half_t{0}};
  return {half_t{form == extremumForm::min ? std::uint16_t{0xFC00} : std::uint16_t{0}}, half_t{0}};
}

unsigned long outputsOf(sizeList const& dims, bool firstReduced) {
  unsigned long outputs = 1;
  for (std::size_t d = firstReduced ? 1 : 0; d < dims.size(); d += 2) outputs *= dims[d];
  return outputs;
}

// So that a result out of unset memory is not by chance what was there before.
[[gnu::noinline]] void leaveOnTheStack(unsigned char pattern) {
  volatile unsigned char bytes[16384];
  for (auto& byte : bytes) byte = pattern;
}

constexpr std::uint16_t untouched = 0x5EED;

// The source is a page that may not be touched.
template <class T, class Call>
void expectNothing(std::string const& what, extremumForm form, unsigned long outputs, bool isIndexed, Call call) {
  static const fencedMemory fence;
  T* const source = reinterpret_cast<T*>(fence.at(true, 0));
  for (const unsigned char pattern : {0x00, 0x3C, 0xFF}) {
    std::vector<half_t> memory((outputs + 1) * sizeof(T) / sizeof(half_t), half_t{untouched});
    T* const results = reinterpret_cast<T*>(memory.data());
    std::vector<double> index(outputs + 1, -1);
    leaveOnTheStack(pattern);
    call(source, results, index.data());
    for (unsigned long o = 0; o < outputs; ++o) {
      ASSERT_EQ(bitsIn(results[o]), bitsIn(expectedOf<T>(form))) << what << ", output " << o;
      ASSERT_EQ(bitsIn(index[o]), bitsIn(isIndexed ? 0.0 : -1.0)) << what << ", output " << o;
    }
    ASSERT_EQ(memory.back().bits, untouched) << what;
    ASSERT_EQ(index.back(), -1) << what;
  }
}

void checkShape(sizeList dims, bool firstReduced) {
  forEachExtremumEntry([&](std::string const& name, auto entry, auto function) {
    using kind = decltype(entry);
    using T = typename kind::element;
    constexpr bool isIndexed = std::is_same_v<decltype(function), typename kind::indexedAlong>;
    constexpr bool isAlong = isIndexed || std::is_same_v<decltype(function), typename kind::along>;
    if constexpr (isAlong) {
      if (::testing::Test::HasFatalFailure()) return;
      std::string what = name + (firstReduced ? " of columns" : " of rows");
      for (const unsigned long size : dims) (what += ' ') += std::to_string(size);
      for (const bool linear : {true, false}) {
        expectNothing<T>(what, extremumFormNamed(name), outputsOf(dims, firstReduced), isIndexed,
                         [&](T* src, T* dst, double* index) {
                           auto const from = kind::stored(src), to = kind::stored(dst);
                           if constexpr (isIndexed) {
                             function(from, to, index, dims.size(), dims.data(), firstReduced, linear);
                           } else {
                             function(from, to, dims.size(), dims.data(), firstReduced);
                           }
                         });
      }
    }
  });
}

// All shapes of up to five dimensions with a size of 0, also those without an output.
TEST(ExtremaOfNothing, ReadNothingAndAreWhatAnyElementReplaces) {
  const unsigned long sizes[] = {0, 1, 3};
  unsigned long shapes = 0;
  for (unsigned ndims = 1; ndims <= 5; ++ndims) {
    unsigned long combinations = 1;
    for (unsigned d = 0; d < ndims; ++d) combinations *= std::size(sizes);
    for (unsigned long c = 0; c < combinations; ++c) {
      sizeList dims;
      for (unsigned long d = 0, rest = c; d < ndims; ++d, rest /= std::size(sizes))
        dims.push_back(sizes[rest % std::size(sizes)]);
      if (countOf(dims) != 0) continue;
      ++shapes;
      if (ndims > 1) checkShape(dims, true);
      checkShape(dims, false);
      if (HasFatalFailure()) return;
    }
  }
  EXPECT_EQ(shapes, 1u + 5 + 19 + 65 + 211);
}

// More outputs than one thread takes.
TEST(ExtremaOfNothing, AreTheSameForManyOutputs) {
  checkShape({0, 3000}, true);
  checkShape({3, 3000, 0}, true);
  checkShape({3000, 0}, false);
}

// The rule behind the values: put before any one element, they change nothing.
template <class T, class Draw>
void checkIsReplaced(unsigned long count, Draw drawnFor) {
  forEachExtremumEntry([&](std::string const& name, auto entry, auto function) {
    using kind = decltype(entry);
    if constexpr (std::is_same_v<typename kind::element, T> &&
                  std::is_same_v<decltype(function), typename kind::along>) {
      const extremumForm form = extremumFormNamed(name);
      bitComparison comparison(name);
      for (unsigned long i = 0; i < count; ++i) {
        T pair[2] = {expectedOf<T>(form), drawnFor(form, i)}, both{}, alone{};
        unsigned long two[] = {2, 1}, one[] = {1, 1};
        function(kind::stored(pair), kind::stored(&both), 2, two, true);
        function(kind::stored(pair + 1), kind::stored(&alone), 2, one, true);
        comparison.check(both, alone, pair[1]);
      }
    }
  });
}

TEST(ExtremaOfNothing, GiveWayToEveryElement) {
  checkIsReplaced<half_t>(65536, [](extremumForm, unsigned long i) { return half_t{static_cast<std::uint16_t>(i)}; });
}

// Without minus zeros, which tie with zeros, and NaNs where they are omitted, of which the first one is kept.
TEST(ExtremaOfNothing, GiveWayToComplexElements) {
  bitSource bits(71);
  const auto part = [&](extremumForm form) {
    const auto x = static_cast<std::uint16_t>(bits() % 3 == 0 ? 0x7C00 | (bits() & 0x8000) : bits());
    const bool isNaN = (x & 0x7FFF) > 0x7C00;
    return half_t{x == 0x8000 || (isNaN && omitsNaN(form)) ? std::uint16_t{0} : x};
  };
  checkIsReplaced<std::complex<half_t>>(20000, [&](extremumForm form, unsigned long) {
    const half_t real = part(form);
    return std::complex<half_t>(real, part(form));
  });
}

}  // namespace
}  // namespace zthalf

// min and max of whole arrays through every entry, against the tree written out.
#include <gtest/gtest.h>

#include "tests/support/expect_bits.h"
#include "tests/support/extremum_arrays.h"
#include "tests/support/extremum_reference.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using namespace zthalf::testing::steps;

// Both forms of one kind of element, each by its entry.
template <class Stored>
struct wholeEntries {
  using element = typename extremumEntry<Stored>::element;
  extremumForm form;
  typename extremumEntry<Stored>::whole value;
  typename extremumEntry<Stored>::indexedWhole indexed;
};

template <class Stored>
std::vector<wholeEntries<Stored>> allWholeEntries() {
  std::vector<wholeEntries<Stored>> all;
  for (const extremumForm form : allExtremumForms) all.push_back({form, nullptr, nullptr});
  forEachExtremumEntry([&](std::string const& name, auto kind, auto function) {
    if constexpr (std::is_same_v<decltype(kind), extremumEntry<Stored>>) {
      for (auto& one : all) {
        if (one.form != extremumFormNamed(name)) continue;
        if constexpr (std::is_same_v<decltype(function), decltype(one.value)>) one.value = function;
        if constexpr (std::is_same_v<decltype(function), decltype(one.indexed)>) one.indexed = function;
      }
    }
  });
  return all;
}

template <class Stored, class T>
void expectTree(wholeEntries<Stored> const& of, std::vector<T> array, std::string const& what) {
  using Acc = decltype(accumulated(T{}));
  std::vector<Acc> wideArray;
  for (T const& x : array) wideArray.push_back(accumulated(x));
  const auto indexed = indexedTree(of.form, wideArray);
  const T value = castOut(valueTree(of.form, wideArray, 0, array.size(), wideArray[0]));
  T results[2] = {array[0], array[0]};
  double index = -1;
  of.value(extremumEntry<Stored>::stored(array.data()), extremumEntry<Stored>::stored(&results[0]), array.size());
  of.indexed(extremumEntry<Stored>::stored(array.data()), extremumEntry<Stored>::stored(&results[1]), &index,
             array.size());
  ASSERT_EQ(bitsIn(results[0]), bitsIn(value)) << nameOf(of.form) << " of " << array.size() << ", " << what;
  ASSERT_EQ(bitsIn(results[1]), bitsIn(castOut(indexed.value)))
      << nameOf(of.form) << " of " << array.size() << ", " << what;
  ASSERT_EQ(index, indexed.index) << nameOf(of.form) << " of " << array.size() << ", " << what;
}

template <class Stored>
void checkCounts(unsigned seed) {
  using T = typename wholeEntries<Stored>::element;
  bitSource bits(seed);
  for (auto const& of : allWholeEntries<Stored>()) {
    ASSERT_TRUE(of.value != nullptr && of.indexed != nullptr);
    for (unsigned long n = 1; n <= 1100; ++n) {
      const filling kind = allFillings[(n + seed) % std::size(allFillings)];
      expectTree(of, drawnArray<T>(n, kind, bits), "filling " + std::to_string(static_cast<int>(kind)));
      if (::testing::Test::HasFatalFailure()) return;
    }
  }
}

TEST(ExtremaOfRealArrays, AreTheTreesAtEveryCount) {
  for (unsigned seed = 0; seed < std::size(allFillings); ++seed) checkCounts<fp16binary_t>(seed);
}
TEST(ExtremaOfComplexArrays, AreTheTreesAtEveryCount) {
  for (unsigned seed = 0; seed < 4; ++seed) checkCounts<std::complex<fp16binary_t>>(seed);
}

// Two special elements among ordinary ones, at the ends of the tree's leaves and beside them.
template <class Stored>
void checkBoundaries(std::vector<std::vector<typename wholeEntries<Stored>::element>> const& pairs,
                     typename wholeEntries<Stored>::element ordinary) {
  for (auto const& of : allWholeEntries<Stored>()) {
    for (const unsigned long n : {513UL, 1000UL}) {
      std::vector<unsigned long> places;
      for (const unsigned long edge :
           n == 513 ? std::vector{0UL, 256UL, 384UL, 513UL} : std::vector{0UL, 250UL, 500UL, 750UL, 1000UL})
        for (const unsigned long place : {edge - 1, edge, edge + 1})
          if (place < n) places.push_back(place);
      for (auto const& pair : pairs) {
        for (const unsigned long first : places) {
          for (const unsigned long second : places) {
            std::vector<typename wholeEntries<Stored>::element> array(n, ordinary);
            array[first] = pair[0];
            array[second] = pair[1];
            expectTree(of, array, "special at " + std::to_string(first) + " and " + std::to_string(second));
            if (::testing::Test::HasFatalFailure()) return;
          }
        }
      }
    }
  }
}

TEST(ExtremaOfRealArrays, AreTheTreesWithSpecialElementsAtTheEdgesOfLeaves) {
  std::vector<std::vector<half_t>> pairs;
  const std::uint16_t special[] = {0x7E00, 0xFC01, 0x7C00, 0xFC00, 0x0000, 0x8000, 0x3C00, 0xBC00};
  for (const std::uint16_t p : special)
    for (const std::uint16_t q : special) pairs.push_back({{p}, {q}});
  checkBoundaries<fp16binary_t>(pairs, half_t{0x3C00});
  checkBoundaries<fp16binary_t>(pairs, half_t{0x7E00});
}

TEST(ExtremaOfComplexArrays, AreTheTreesWithSpecialElementsAtTheEdgesOfLeaves) {
  using cplx = std::complex<half_t>;
  const cplx special[] = {{half_t{0x7E00}, half_t{0}},
                          {half_t{0x7C00}, half_t{0xFC01}},
                          {half_t{0x7C00}, half_t{0x3C00}},
                          {half_t{0}, half_t{0x8000}},
                          {half_t{0xBC00}, half_t{0x8000}}};
  std::vector<std::vector<cplx>> pairs;
  for (cplx const& p : special)
    for (cplx const& q : special) pairs.push_back({p, q});
  checkBoundaries<std::complex<fp16binary_t>>(pairs, {half_t{0x3C00}, half_t{0}});
}

// Beyond the sizes at which the work is divided among threads.
template <class Stored>
void checkLarge(std::vector<unsigned long> const& counts) {
  using T = typename wholeEntries<Stored>::element;
  bitSource bits(221);
  for (const unsigned long n : counts) {
    const auto ties = drawnArray<T>(n, filling::ties, bits);
    auto plain = drawnArray<T>(n, filling::descending, bits);
    auto nans = drawnArray<T>(n, filling::allNaN, bits);
    nans[n * 2 / 3] = plain[n * 5 / 7] = ties[0];
    for (auto const& of : allWholeEntries<Stored>()) {
      for (const int workers : {1, 2, 3, 16}) {
        onThreads(workers, [&] {
          expectTree(of, ties, "ties");
          expectTree(of, plain, "descending");
          expectTree(of, nans, "NaNs");
        });
        if (::testing::Test::HasFatalFailure()) return;
      }
    }
  }
}

TEST(ExtremaOfRealArrays, AreTheTreesOnAnyNumberOfThreads) {
  checkLarge<fp16binary_t>({32768, 262144, 262145, 700001, 1048577});
}
TEST(ExtremaOfComplexArrays, AreTheTreesOnAnyNumberOfThreads) {
  checkLarge<std::complex<fp16binary_t>>({32769, 65536, 100003});
}

template <class Stored>
void checkEmpty(typename wholeEntries<Stored>::element first) {
  for (auto const& of : allWholeEntries<Stored>()) {
    auto source = first;
    typename wholeEntries<Stored>::element result{};
    double index = -1;
    of.indexed(extremumEntry<Stored>::stored(&source), extremumEntry<Stored>::stored(&result), &index, 0);
    EXPECT_EQ(bitsIn(result), bitsIn(first));
    EXPECT_EQ(bitsIn(index), bitsIn(0.0));
  }
}

TEST(ExtremaOfEmptyArrays, AreTheElementThatWouldBeTheFirstWithIndexNought) {
  checkEmpty<fp16binary_t>(half_t{0x4248});
  checkEmpty<std::complex<fp16binary_t>>({half_t{0x4248}, half_t{0x8000}});
}

}  // namespace
}  // namespace zthalf

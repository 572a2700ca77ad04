// min and max along dimensions through every entry, against plain chains over each output's elements.
#include <gtest/gtest.h>

#include "tests/support/expect_bits.h"
#include "tests/support/extremum_arrays.h"
#include "tests/support/extremum_reference.h"
#include "tests/support/shapes.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using namespace zthalf::testing::steps;

std::string textOf(std::string const& name, sizeList const& dims, bool firstReduced) {
  std::string text = name;
  text += firstReduced ? " of columns" : " of rows";
  for (const unsigned long size : dims) (text += ' ') += std::to_string(size);
  return text;
}

template <class Stored, class T>
void expectChains(std::string const& name, extremumEntry<Stored>, typename extremumEntry<Stored>::along function,
                  std::vector<T>& src, sizeList dims, bool firstReduced) {
  const auto slices = slicesOf(src, dims, firstReduced);
  std::vector<T> dst(slices.size() + 1, T{});
  function(extremumEntry<Stored>::stored(src.data()), extremumEntry<Stored>::stored(dst.data()), dims.size(),
           dims.data(), firstReduced);
  for (unsigned long o = 0; o < slices.size(); ++o) {
    const auto expected = firstReduced ? valueOfColumns(extremumFormNamed(name), slices[o], dims[0])
                                       : valueOfRows(extremumFormNamed(name), slices[o]);
    ASSERT_EQ(bitsIn(dst[o]), bitsIn(castOut(expected))) << textOf(name, dims, firstReduced) << ", output " << o;
  }
  ASSERT_EQ(bitsIn(dst.back()), bitsIn(T{}));
}

template <class Stored, class T>
void expectChains(std::string const& name, extremumEntry<Stored>, typename extremumEntry<Stored>::indexedAlong function,
                  std::vector<T>& src, sizeList dims, bool firstReduced) {
  const auto slices = slicesOf(src, dims, firstReduced);
  for (const bool linear : {false, true}) {
    std::vector<T> dst(slices.size() + 1, T{});
    std::vector<double> index(slices.size() + 1, -1);
    function(extremumEntry<Stored>::stored(src.data()), extremumEntry<Stored>::stored(dst.data()), index.data(),
             dims.size(), dims.data(), firstReduced, linear);
    for (unsigned long o = 0; o < slices.size(); ++o) {
      const auto expected = firstReduced ? indexedColumns(extremumFormNamed(name), slices[o], dims[0], linear)
                                         : indexedRows(extremumFormNamed(name), slices[o], linear);
      ASSERT_EQ(bitsIn(dst[o]), bitsIn(castOut(expected.value)))
          << textOf(name, dims, firstReduced) << ", output " << o;
      ASSERT_EQ(index[o], expected.index)
          << textOf(name, dims, firstReduced) << ", output " << o << ", linear " << linear;
    }
    ASSERT_EQ(bitsIn(dst.back()), bitsIn(T{}));
    ASSERT_EQ(index.back(), -1.0);
  }
}

template <class T>
void checkShape(sizeList const& dims, filling kind, bitSource& bits,
                std::initializer_list<bool> firstReducedOrNot = {true, false}) {
  auto src = drawnArray<T>(countOf(dims), kind, bits);
  forEachExtremumEntry([&](std::string const& name, auto entry, auto function) {
    using kind = decltype(entry);
    constexpr bool isAlong = std::is_same_v<decltype(function), typename kind::along> ||
                             std::is_same_v<decltype(function), typename kind::indexedAlong>;
    if constexpr (isAlong && std::is_same_v<typename kind::element, T>) {
      for (const bool firstReduced : firstReducedOrNot) {
        if (!::testing::Test::HasFatalFailure()) expectChains(name, entry, function, src, dims, firstReduced);
      }
    }
  });
}

template <class T>
void checkRandomShapes(unsigned repetitions, unsigned seed) {
  bitSource bits(seed);
  for (unsigned i = 0; i < repetitions; ++i) {
    sizeList dims(1 + bits() % 6);
    for (unsigned long& size : dims) size = 1 + bits() % 7;
    if (i % 4 == 0) dims[bits() % dims.size()] = 1 + bits() % 40;
    checkShape<T>(dims, allFillings[i % std::size(allFillings)], bits);
    if (::testing::Test::HasFatalFailure()) return;
  }
}

TEST(ExtremaAlongDimensions, OfRandomShapes) {
  checkRandomShapes<half_t>(150, 231);
  checkRandomShapes<std::complex<half_t>>(70, 232);
}

// Runs longer than leaves, stretches and lanes; more outputs than a block, and than stay on one thread.
TEST(ExtremaAlongDimensions, OfLargeShapes) {
  bitSource bits(233);
  const std::vector<sizeList> shapes = {{513, 9},     {9, 513},       {24, 40},    {25, 40},    {1025, 3},
                                        {3, 1025},    {1, 2500},      {2500, 1},   {2048, 5},   {4097, 3},
                                        {33, 2, 33},  {2, 300, 2, 3}, {300, 2, 3}, {7, 11, 13}, {1030, 2, 3, 2},
                                        {1, 1, 1, 5}, {2100, 2, 4},   {8200, 3}};
  for (const filling kind :
       {filling::anything, filling::ties, filling::nearlyAllNaN, filling::allNaN, filling::equalLengths}) {
    for (auto const& dims : shapes) {
      checkShape<half_t>(dims, kind, bits);
      if (countOf(dims) < 10000 && kind != filling::anything) checkShape<std::complex<half_t>>(dims, kind, bits);
      if (::testing::Test::HasFatalFailure()) return;
    }
  }
}

// Columns that are each looked through by several threads.
TEST(ExtremaAlongDimensions, OfColumnsThatFork) {
  bitSource bits(236);
  for (const filling kind : {filling::ties, filling::ascending, filling::nearlyAllNaN, filling::allNaN}) {
    checkShape<half_t>({600'000, 2}, kind, bits, {true});
    checkShape<half_t>({(1 << 18) + 1, 1, 3}, kind, bits, {true});
    if (::testing::Test::HasFatalFailure()) return;
  }
}

// More steps than a 16-bit number counts.
TEST(ExtremaAlongDimensions, OfVeryLongRows) {
  bitSource bits(234);
  for (sizeList const& dims : {sizeList{3, 65536}, sizeList{3, 65537}, sizeList{2, 70000, 2, 2}}) {
    for (const filling kind : {filling::descending, filling::ties, filling::allNaN, filling::nearlyAllNaN}) {
      checkShape<half_t>(dims, kind, bits, {false});
      if (::testing::Test::HasFatalFailure()) return;
    }
  }
}

TEST(ExtremaAlongDimensions, DoNotDependOnTheThreads) {
  for (const int workers : {1, 2, 5, 16}) {
    onThreads(workers, [] {
      bitSource bits(235);
      for (sizeList const& dims : {sizeList{3, 5000}, sizeList{5000, 3}, sizeList{70, 2000}, sizeList{40, 3, 50, 2}}) {
        checkShape<half_t>(dims, filling::ties, bits);
        if (countOf(dims) < 20000) checkShape<std::complex<half_t>>(dims, filling::equalLengths, bits);
      }
    });
    if (::testing::Test::HasFatalFailure()) return;
  }
}

TEST(ExtremaAlongDimensions, WriteNothingWithoutAnOutput) {
  forEachExtremumEntry([](char const*, auto entry, auto function) {
    using kind = decltype(entry);
    sizeList rows = {0, 5}, columns = {5, 0};
    if constexpr (std::is_same_v<decltype(function), typename kind::along>) {
      function(nullptr, nullptr, 2, rows.data(), false);
      function(nullptr, nullptr, 2, columns.data(), true);
    } else if constexpr (std::is_same_v<decltype(function), typename kind::indexedAlong>) {
      function(nullptr, nullptr, nullptr, 2, rows.data(), false, true);
      function(nullptr, nullptr, nullptr, 2, columns.data(), true, false);
    }
  });
}

}  // namespace
}  // namespace zthalf

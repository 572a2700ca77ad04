// Scans of whole arrays: the template behind them, and the questions asked with it.
#include <gtest/gtest.h>

#include <complex>
#include <vector>

#include "frame/loops/early_exit_loop.h"
#include "tests/support/drawn_values.h"
#include "tests/support/threads.h"
#include "tests/support/unary_rows.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using half::templates::emulated::halfUnarySimpleReduceWithEarlyExit;

struct isBad {
  ZTHALF_INLINE bool operator()(unsigned short x) const { return x == 0xBAD; }
};

constexpr unsigned long sizesAroundTheThreshold[] = {2047, 2048, 2049, 2050};

TEST(ReduceWithEarlyExit, FindsTheBadElementAtEveryPosition) {
  onEachThreadCount([](int threads) {
    for (const unsigned long n : sizesAroundTheThreshold) {
      std::vector<unsigned short> data(n + 2, 7);
      data.front() = data.back() = 0xBAD;  // outside of the array
      unsigned short* const array = data.data() + 1;
      EXPECT_TRUE(halfUnarySimpleReduceWithEarlyExit(array, n, isBad{}, 2048, 256));
      for (unsigned long bad = 0; bad < n; ++bad) {
        array[bad] = 0xBAD;
        EXPECT_FALSE(halfUnarySimpleReduceWithEarlyExit(array, n, isBad{}, 2048, 256))
            << bad << " of " << n << " on " << threads << " threads";
        array[bad] = 7;
      }
      if (HasFailure()) return;
    }
  });
}

TEST(ReduceWithEarlyExit, TakesItsThresholdAndGrainFromTheCaller) {
  std::vector<unsigned short> data(1000, 7);
  for (const unsigned long threshold : {0UL, 1UL, 999UL, 1000UL}) {
    for (const unsigned long grain : {1UL, 7UL, 256UL, 5000UL}) {
      for (const unsigned long n : {0UL, 1UL, 2UL, 999UL, 1000UL}) {
        EXPECT_TRUE(halfUnarySimpleReduceWithEarlyExit(data.data(), n, isBad{}, threshold, grain));
        if (n == 0) continue;
        data[n - 1] = 0xBAD;
        EXPECT_FALSE(halfUnarySimpleReduceWithEarlyExit(data.data(), n, isBad{}, threshold, grain));
        data[n - 1] = 7;
      }
    }
  }
}

threadWitness witness;

struct witnessPred {
  bool operator()(unsigned short x) const {
    witness.called();
    return x == 0xBAD;
  }
};

TEST(ReduceWithEarlyExit, StaysOnTheCallingThreadUpToTheThreshold) {
  std::vector<unsigned short> data(100'000, 7);
  onThreads(4, [&] {
    witness.expectOnlyThisThread();
    EXPECT_TRUE(halfUnarySimpleReduceWithEarlyExit(data.data(), data.size(), witnessPred{}, data.size(), 256));
    EXPECT_GE(witness.calls(), data.size());
    EXPECT_EQ(witness.strangers(), 0u);
  });
}

TEST(ReduceWithEarlyExit, EndsSoonAfterAnEarlyBadElement) {
  std::vector<unsigned short> data(1'000'000, 7);
  data[5] = 0xBAD;
  for (const unsigned long threshold : {2048UL, -1UL}) {
    onThreads(1, [&] {
      witness.expectOnlyThisThread();
      EXPECT_FALSE(halfUnarySimpleReduceWithEarlyExit(data.data(), data.size(), witnessPred{}, threshold, 256));
      EXPECT_LE(witness.calls(), half::templates::emulated::scanBlock);
    });
  }
}

// The three questions as functions of (array of halves, count in elements), and what makes an element bad.
std::complex<unsigned short>* bare(std::complex<half_t>* array) {
  return reinterpret_cast<std::complex<unsigned short>*>(array);
}

template <class T>
struct question {
  char const* name;
  bool (*ask)(T* array, unsigned long n);
  bool (*isBadElement)(T);
};

bool isNotFinite(half_t x) { return (x.bits >> 10 & 31) == 31; }
bool isNotFinite(std::complex<half_t> z) { return isNotFinite(z.real()) || isNotFinite(z.imag()); }
bool hasImaginaryPart(std::complex<half_t> z) { return z.imag().bits != 0x0000 && z.imag().bits != 0x8000; }

const question<half_t> realQuestions[] = {
    {"isWholeArrayFinite", [](half_t* x, unsigned long n) { return half::isWholeArrayFinite(stored(x), n); },
     [](half_t x) { return isNotFinite(x); }}};

const question<std::complex<half_t>> complexQuestions[] = {
    {"isWholeArrayFinite",
     [](std::complex<half_t>* z, unsigned long n) { return half::isWholeArrayFinite(stored(z), n); },
     [](std::complex<half_t> z) { return isNotFinite(z); }},
    {"half_vector::isImagZero", [](std::complex<half_t>* z, unsigned long n) { return half_vector::isImagZero(z, n); },
     &hasImaginaryPart},
    {"isImagZeroPtr", [](std::complex<half_t>* z, unsigned long n) { return half_ptr::isImagZeroPtr(bare(z), n); },
     &hasImaginaryPart},
    {"half::isImagZero", [](std::complex<half_t>* z, unsigned long n) { return half::isImagZero(bare(z), n); },
     &hasImaginaryPart}};

// Every pattern, in either part, alone and at the end of an array of 40 and of one that is scanned in parallel.
template <class T>
void checkEveryPattern(question<T> const& asked, T (*elementOf)(half_t), T good) {
  std::vector<T> shorter(40, good), longer(2100, good);
  for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
    T element = elementOf(half_t{static_cast<std::uint16_t>(p)});
    const bool expected = !asked.isBadElement(element);
    EXPECT_EQ(asked.ask(&element, 1), expected) << asked.name << " of " << std::hex << p;
    shorter.back() = element;
    EXPECT_EQ(asked.ask(shorter.data(), shorter.size()), expected) << asked.name << " of " << std::hex << p;
    if (p % 61 != 0 && (p & 0x3FF) > 1) continue;
    longer.back() = element;
    EXPECT_EQ(asked.ask(longer.data(), longer.size()), expected) << asked.name << " of " << std::hex << p;
    if (::testing::Test::HasFailure()) return;
  }
}

TEST(WholeArrayQueries, JudgeEveryPattern) {
  for (auto const& asked : realQuestions) {
    checkEveryPattern<half_t>(
        asked, [](half_t x) { return x; }, half_t{0x3C00});
  }
  for (auto const& asked : complexQuestions) {
    const std::complex<half_t> good(half_t{0xBC00}, half_t{0x8000});
    checkEveryPattern<std::complex<half_t>>(
        asked, [](half_t x) { return std::complex<half_t>(x, half_t{0}); }, good);
    checkEveryPattern<std::complex<half_t>>(
        asked, [](half_t x) { return std::complex<half_t>(half_t{0}, x); }, good);
    checkEveryPattern<std::complex<half_t>>(
        asked, [](half_t x) { return std::complex<half_t>(half_t{0x7BFF}, x); }, good);
  }
}

// Every position, or for what runs in parallel again and again every 37th one and the last ones.
std::vector<unsigned long> positions(unsigned long n, bool all) {
  std::vector<unsigned long> chosen;
  for (unsigned long at = 0; at < n; at += all ? 1 : 37) chosen.push_back(at);
  for (unsigned long at = n - std::min(n, 3UL); at < n; ++at) chosen.push_back(at);
  return chosen;
}

// The one bad element at each position, with bad elements right outside of the array, at addresses of 0 and 2 mod 4.
template <class T>
void checkPositions(question<T> const& asked, T good, T bad, bool all) {
  for (const unsigned long n : {1UL, 16UL, 511UL, 513UL, 2047UL, 2048UL, 2049UL, 2050UL, 5000UL}) {
    std::vector<half_t> memory((n + 3) * sizeof(T) / sizeof(half_t));
    for (const std::size_t shift : {0, 1}) {
      T* const array = reinterpret_cast<T*>(memory.data() + shift) + 1;
      std::fill(array, array + n, good);
      array[-1] = array[n] = bad;
      EXPECT_TRUE(asked.ask(array, n)) << asked.name << " of " << n;
      for (const unsigned long at : positions(n, all)) {
        array[at] = bad;
        EXPECT_FALSE(asked.ask(array, n)) << asked.name << ", element " << at << " of " << n << ", shift " << shift;
        array[at] = good;
      }
      if (::testing::Test::HasFailure()) return;
    }
  }
}

TEST(WholeArrayQueries, FindTheBadElementAtEveryPosition) {
  onEachThreadCount([](int threads) {
    for (auto const& asked : realQuestions) checkPositions(asked, half_t{0x7BFF}, half_t{0xFC00}, threads == 1);
    for (auto const& asked : complexQuestions) {
      const std::complex<half_t> good(half_t{0x0001}, half_t{0x8000});
      checkPositions(asked, good, {half_t{0x0001}, half_t{0xFE01}}, threads == 1);
    }
  });
}

TEST(WholeArrayQueries, AreTrueForAnEmptyArray) {
  for (auto const& asked : realQuestions) EXPECT_TRUE(asked.ask(nullptr, 0)) << asked.name;
  for (auto const& asked : complexQuestions) EXPECT_TRUE(asked.ask(nullptr, 0)) << asked.name;
}

TEST(IsImagZero, TakesMinusZeroForZeroAndANaNForNone) {
  std::complex<half_t> minusZero(half_t{0x3C00}, half_t{0x8000}), notANumber(half_t{0x3C00}, half_t{0x7E00});
  EXPECT_TRUE(half_vector::isImagZero(&minusZero, 1));
  EXPECT_FALSE(half_vector::isImagZero(&notANumber, 1));
}

}  // namespace
}  // namespace zthalf

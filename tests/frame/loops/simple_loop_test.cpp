// The loops under simple operations as templates, over functors of the tests' own.
#include "frame/loops/simple_loop.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "scalar/functors/cast_functor.h"
#include "scalar/functors/sign_and_class_functors.h"
#include "scalar/functors/spacing_functors.h"
#include "tests/support/loops.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

static_assert(!half_utils::forks(0) && !half_utils::forks(1UL << 32));
static_assert(!half_utils::forks((1UL << 63) - 1), "2^63 - 1 elements stay on the calling thread");
static_assert(half_utils::forks(1UL << 63) && half_utils::forks(-1UL));

// The grains are the operations' own; the gate is theirs in common.
namespace functor = half::scalar::emulated;

// Results that depend on every bit, so that an element mistaken for another one shows.
template <class Out>
struct scrambleFtor {
  static constexpr unsigned long grain = 64;
  template <class In>
  ZTHALF_INLINE Out operator()(In x) const {
    const std::uint64_t product = (static_cast<std::uint64_t>(x) + 0x9E37) * 0xBF58476D1CE4E5B9u;
    return static_cast<Out>(product >> (64 - 8 * sizeof(Out)));
  }
};

template <class Out>
struct splitFtor {
  static constexpr unsigned long grain = 64;
  template <class In>
  ZTHALF_INLINE void operator()(In x, Out& first, Out& second) const {
    first = scrambleFtor<Out>{}(x);
    second = static_cast<Out>(first ^ static_cast<Out>(x) ^ 0x35);
  }
};

template <class In, class Out>
void checkSimpleLoop() {
  checkLoop<In, Out>(
      [](In* src, Out* dst, unsigned long n) { half_utils::unaryOpSimpleLoop(src, dst, n, scrambleFtor<Out>{}); },
      scrambleFtor<Out>{});
}

TEST(UnaryOpSimpleLoop, IsTheAscendingPassForEveryPairOfSizes) {
  using u8 = unsigned char;
  using u16 = unsigned short;
  using u32 = unsigned int;
  using u64 = unsigned long long;
  checkSimpleLoop<u8, u8>(), checkSimpleLoop<u8, u16>(), checkSimpleLoop<u8, u32>(), checkSimpleLoop<u8, u64>();
  checkSimpleLoop<u16, u8>(), checkSimpleLoop<u16, u16>(), checkSimpleLoop<u16, u32>(), checkSimpleLoop<u16, u64>();
  checkSimpleLoop<u32, u8>(), checkSimpleLoop<u32, u16>(), checkSimpleLoop<u32, u32>(), checkSimpleLoop<u32, u64>();
  checkSimpleLoop<u64, u8>(), checkSimpleLoop<u64, u16>(), checkSimpleLoop<u64, u32>(), checkSimpleLoop<u64, u64>();
}

template <class In, class Out>
bool ascendWithTwoOutputs(std::byte* src, std::byte* first, std::byte* second, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) {
    Out one, two;
    splitFtor<Out>{}(load<In>(src + i * sizeof(In)), one, two);
    store(first + i * sizeof(Out), one);
    store(second + i * sizeof(Out), two);
  }
  return true;
}

// Both outputs at every place around the source, each while the other one is far away, and all three apart.
template <class In, class Out>
void checkTwoOutputs() {
  constexpr std::size_t unit = std::max(alignof(In), alignof(Out));
  constexpr std::size_t reach = 40 * std::max(sizeof(In), sizeof(Out));
  constexpr std::size_t middle = roundedUp(reach + stage::alignment);
  constexpr std::size_t away = roundedUp(2 * middle + mostCount * std::max(sizeof(In), sizeof(Out)));
  constexpr std::size_t end = roundedUp(away + mostCount * sizeof(Out) + stage::alignment);
  stage on(end + roundedUp(mostCount * sizeof(Out)) + stage::alignment, 21);
  bitSource bits(22);
  drawInto<In>(on.initial() + middle, mostCount, bits);
  const auto check = [&](std::size_t first, std::size_t second, unsigned long n) {
    EXPECT_TRUE(on.agrees(
        [&](std::byte* bytes) {
          half_utils::twoOutSimpleLoop(arrayAt<In>(bytes + middle), arrayAt<Out>(bytes + first),
                                       arrayAt<Out>(bytes + second), n, splitFtor<Out>{});
          return true;
        },
        [&](std::byte* bytes) {
          return ascendWithTwoOutputs<In, Out>(bytes + middle, bytes + first, bytes + second, n);
        }))
        << n << " elements, source at " << middle << ", outputs at " << first << " and " << second;
  };
  for (const std::size_t shift : misalignments) {
    for (unsigned long n = 0; n <= mostCount; ++n) check(away + shift * alignof(Out), end + shift * alignof(Out), n);
  }
  for (std::size_t moved = middle - reach; moved <= middle + reach; moved += unit) {
    for (const unsigned long n : {1UL, 5UL, 40UL, 64UL, mostCount}) {
      check(moved, away, n);
      check(away, moved, n);
    }
    if (::testing::Test::HasFailure()) return;
  }
}

TEST(TwoOutSimpleLoop, IsTheAscendingPass) {
  checkTwoOutputs<unsigned short, unsigned short>();
  checkTwoOutputs<unsigned int, unsigned short>();
  checkTwoOutputs<unsigned short, unsigned int>();
}

constexpr unsigned long parallelCounts[] = {0, 1, 63, 64, 65, 1000, 100'003};

TEST(UnaryOpParallel, GivesTheBitsOfTheSerialLoopOnAnyNumberOfThreads) {
  for (const unsigned long n : parallelCounts) {
    std::vector<unsigned short> source(n);
    for (unsigned long i = 0; i < n; ++i) source[i] = static_cast<unsigned short>(i * 40503u);
    std::vector<unsigned int> serial(n + 2, 0xA5A5A5A5);
    half_utils::unaryOpSimpleLoop(source.data(), serial.data() + 1, n, scrambleFtor<unsigned int>{});
    onEachThreadCount([&](int threads) {
      std::vector<unsigned int> parallel(n + 2, 0xA5A5A5A5);
      half_utils::unaryOpParallel(source.data(), parallel.data() + 1, n, scrambleFtor<unsigned int>{});
      EXPECT_EQ(parallel, serial) << n << " elements on " << threads << " threads";
    });
  }
}

TEST(TwoOutParallel, GivesTheBitsOfTheSerialLoopOnAnyNumberOfThreads) {
  for (const unsigned long n : parallelCounts) {
    std::vector<unsigned short> source(n);
    for (unsigned long i = 0; i < n; ++i) source[i] = static_cast<unsigned short>(i * 40503u);
    std::vector<unsigned int> first(n + 1, 1), second(n + 1, 2);
    half_utils::twoOutSimpleLoop(source.data(), first.data(), second.data(), n, splitFtor<unsigned int>{});
    onEachThreadCount([&](int threads) {
      std::vector<unsigned int> one(n + 1, 1), two(n + 1, 2);
      half_utils::twoOutParallel(source.data(), one.data(), two.data(), n, splitFtor<unsigned int>{});
      EXPECT_TRUE(one == first && two == second) << n << " elements on " << threads << " threads";
    });
  }
}

// No functor of the library throws; what the loops do with an exception is promised all the same.
struct refusingFtor {
  static constexpr unsigned long grain = 16;
  int operator()(int x) const { return x == 4321 ? throw std::domain_error("4321") : x; }
  void operator()(int x, int& first, int& second) const { first = second = (*this)(x); }
};

TEST(SimpleLoops, LetAnExceptionOfTheFunctorOut) {
  std::vector<int> source(10'000), first(10'000), second(10'000);
  for (int i = 0; i < 10'000; ++i) source[static_cast<std::size_t>(i)] = i;
  const unsigned long n = source.size();
  int* const in = source.data();
  EXPECT_THROW(half_utils::unaryOpSimpleLoop(in, first.data(), n, refusingFtor{}), std::domain_error);
  EXPECT_THROW(half_utils::twoOutSimpleLoop(in, first.data(), second.data(), n, refusingFtor{}), std::domain_error);
  onEachThreadCount([&](int) {
    EXPECT_THROW(half_utils::unaryOpParallel(in, first.data(), n, refusingFtor{}), std::domain_error);
    EXPECT_THROW(half_utils::twoOutParallel(in, first.data(), second.data(), n, refusingFtor{}), std::domain_error);
  });
}

threadWitness witness;

struct witnessFtor {
  static constexpr unsigned long grain = 256;
  unsigned short operator()(unsigned short x) const {
    witness.called();
    return x;
  }
  void operator()(unsigned short x, unsigned short& first, unsigned short& second) const {
    first = second = (*this)(x);
  }
};

TEST(SimpleLoops, RunAMillionElementsOnTheCallingThread) {
  constexpr unsigned long million = 1'000'000;
  std::vector<unsigned short> source(million, 1), first(million), second(million);
  onThreads(4, [&] {
    witness.expectOnlyThisThread();
    half_utils::unaryOpSimpleLoop(source.data(), first.data(), million, witnessFtor{});
    EXPECT_EQ(witness.calls(), million);
    half_utils::twoOutSimpleLoop(source.data(), first.data(), second.data(), million, witnessFtor{});
    EXPECT_EQ(witness.calls(), 2 * million);
    EXPECT_EQ(witness.strangers(), 0u);
  });
}

}  // namespace
}  // namespace zthalf

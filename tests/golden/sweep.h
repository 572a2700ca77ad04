// Runs a function over its fixed inputs and prints one line: its name, the number of results, a hash of their bits.
// There is one sweep for each shape of a table entry, found by the entry's type.
#pragma once

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/golden/inputs.h"
#include "tests/support/flushed.h"

namespace zthalf::golden {

// How the functions are called. Their inputs are made in the ordinary environment always.
inline bool callsAreFlushed = false;
inline bool callsAreWatched = false;
inline bool metSubnormals = false;  // a watched call did

template <class Function, class... Args>
decltype(auto) called(Function function, Args... args) {
  const testing::flushedScope environment(callsAreFlushed);
  const testing::subnormalWatch watch(callsAreWatched ? &metSubnormals : nullptr);
  return function(args...);
}

// What a number of type T is made of: of numbers in one piece.
template <class T>
struct pieceOf {
  using type = T;
};
template <class T>
struct pieceOf<std::complex<T>> {
  using type = T;
};

// FNV-1a over the bytes of the results, those of each number from the lowest to the highest on every machine.
class resultHash {
 public:
  template <class T>
  void add(T const* results, std::size_t n) {
    static_assert(std::is_trivially_copyable_v<T>);
    constexpr std::size_t flip = std::endian::native == std::endian::little ? 0 : sizeof(typename pieceOf<T>::type) - 1;
    auto const* const bytes = reinterpret_cast<unsigned char const*>(results);
    for (std::size_t i = 0; i < n * sizeof(T); ++i) hash_ = (hash_ ^ bytes[i ^ flip]) * 0x100000001B3u;
    count_ += n;
  }
  template <class T>
  void add(T result) {
    add(&result, 1);
  }

  void print(std::string_view name) const {
    char const* const mark = std::exchange(metSubnormals, false) ? "*" : "";
    std::printf("%-60.*s %8llu %016llx%s\n", static_cast<int>(name.size()), name.data(), count_, hash_, mark);
  }

 private:
  unsigned long long hash_ = 0xCBF29CE484222325u;
  unsigned long long count_ = 0;
};

// An argument as the function takes it: logical arrays are bytes here.
template <class T>
T* as(storage<T>* array) {
  return reinterpret_cast<T*>(array);
}

// At most this many notable values of each operand meet in a grid; around underflow, all do.
inline constexpr std::size_t gridSide = 48;
inline constexpr std::size_t underflowGridSide = 256;

template <class T>
auto gridOf() {
  const auto all = inputs<T>::notable();
  const std::size_t side = nearUnderflow ? underflowGridSide : gridSide;
  const std::size_t step = (all.size() + side - 1) / side;
  std::vector<storage<T>> some;
  for (std::size_t i = 0; i < all.size(); i += step) some.push_back(all[i]);
  return some;
}

// The i-th operand of a meeting in no visible order; the multiplier is another one for each operand.
template <class T>
std::vector<storage<T>> meetingOf(std::size_t count, std::size_t multiplier) {
  const auto all = inputs<T>::sweep();
  std::vector<storage<T>> some(count);
  for (std::size_t i = 0; i < count; ++i) some[i] = all[(i * multiplier + i / all.size()) % all.size()];
  return some;
}

inline constexpr std::size_t meetings = 1 << 15;

// One array in, one out.
template <class In, class Out>
void sweep(std::string_view name, void (*entry)(In*, Out*, unsigned long)) {
  auto src = inputs<In>::sweep();
  std::vector<storage<Out>> dst(src.size());
  called(entry, as<In>(src.data()), as<Out>(dst.data()), src.size());
  resultHash hash;
  hash.add(dst.data(), dst.size());
  hash.print(name);
}

// The stopping form: each element by itself, and then those that do not stop in one array.
template <class In, class Out>
void sweep(std::string_view name, bool (*entry)(In*, Out*, unsigned long)) {
  auto src = inputs<In>::sweep();
  std::vector<storage<In>> passing;
  resultHash hash;
  for (auto& x : src) {
    storage<Out> result{};
    const bool done = called(entry, as<In>(&x), as<Out>(&result), 1);
    hash.add(result);
    hash.add(done);
    if (done) passing.push_back(x);
  }
  std::vector<storage<Out>> dst(passing.size());
  hash.add(called(entry, as<In>(passing.data()), as<Out>(dst.data()), passing.size()));
  hash.add(dst.data(), dst.size());
  hash.print(name);
}

// A question about an array: asked of each element, and of all of them.
template <class In>
void sweep(std::string_view name, bool (*entry)(In*, unsigned long)) {
  auto src = inputs<In>::sweep();
  resultHash hash;
  for (auto& x : src) hash.add(called(entry, as<In>(&x), 1));
  hash.add(called(entry, as<In>(src.data()), src.size()));
  hash.print(name);
}

// One array in, two out.
template <class In, class Out>
void sweepTwoOutputs(std::string_view name, void (*entry)(In*, Out*, Out*, unsigned long)) {
  auto src = inputs<In>::sweep();
  std::vector<storage<Out>> first(src.size()), second(src.size());
  called(entry, as<In>(src.data()), as<Out>(first.data()), as<Out>(second.data()), src.size());
  resultHash hash;
  hash.add(first.data(), first.size());
  hash.add(second.data(), second.size());
  hash.print(name);
}

// Two arrays of one size without shapes.
template <class Left, class Right, class Out>
void sweep(std::string_view name, void (*entry)(Left*, Right*, Out*, unsigned long)) {
  auto a = meetingOf<Left>(meetings, 1);
  auto b = meetingOf<Right>(meetings, 25173);
  std::vector<storage<Out>> c(meetings);
  called(entry, as<Left>(a.data()), as<Right>(b.data()), as<Out>(c.data()), meetings);
  resultHash hash;
  hash.add(c.data(), c.size());
  hash.print(name);
}

using sizes = unsigned long const*;

template <class Result, class Left, class Right, class Out>
using expandingBinary = Result (*)(Left*, Right*, Out*, unsigned long, unsigned long, sizes, unsigned long,
                                   unsigned long, sizes, unsigned long, unsigned long, sizes);

// Two arrays that meet by implicit expansion: element by element, then grids of notable values in which the left
// operand stays for a run, and in which the right one does.
template <class Result, class Left, class Right, class Out>
void sweep(std::string_view name, expandingBinary<Result, Left, Right, Out> entry) {
  resultHash hash;
  const auto meet = [&](std::vector<storage<Left>> a, std::vector<storage<Right>> b, sizes dimsA, sizes dimsB) {
    const unsigned long dimsC[] = {std::max(dimsA[0], dimsB[0]), std::max(dimsA[1], dimsB[1])};
    std::vector<storage<Out>> c(dimsC[0] * dimsC[1]);
    const auto call = [&] {
      return called(entry, as<Left>(a.data()), as<Right>(b.data()), as<Out>(c.data()), a.size(), 2, dimsA, b.size(), 2,
                    dimsB, c.size(), 2, dimsC);
    };
    if constexpr (std::is_void_v<Result>) {
      call();
    } else {
      hash.add(call());
    }
    hash.add(c.data(), c.size());
  };
  const unsigned long flat[] = {meetings, 1};
  meet(meetingOf<Left>(meetings, 1), meetingOf<Right>(meetings, 25173), flat, flat);
  const auto a = gridOf<Left>();
  const auto b = gridOf<Right>();
  const unsigned long columnA[] = {a.size(), 1}, rowA[] = {1, a.size()};
  const unsigned long columnB[] = {b.size(), 1}, rowB[] = {1, b.size()};
  meet(a, b, columnA, rowB);
  meet(a, b, rowA, columnB);
  hash.print(name);
}

// The inputs all of whose parts are such numbers.
template <class In, class Test>
std::vector<storage<In>> inputsOf(Test isWanted) {
  std::vector<storage<In>> some;
  for (storage<In> const& element : inputs<In>::sweep()) {
    std::uint16_t parts[sizeof(In) / sizeof(std::uint16_t)];
    std::memcpy(parts, &element, sizeof parts);
    if (std::all_of(std::begin(parts), std::end(parts), isWanted)) some.push_back(element);
  }
  return some;
}

// Between 1/2 and 2: chains of them stay in the range of half for a while.
inline bool isModerate(std::uint16_t p) { return (p & 0x7800) == 0x3800; }

// What is reduced: moderate numbers, or waves down to underflow and back, and at every so many places anything. With 1
// there is nothing else, with 0 nothing but numbers.
template <class In>
std::vector<storage<In>> reductionData(std::size_t count, std::size_t every) {
  static const auto all = inputs<In>::sweep();
  static const auto down = inputsOf<In>(nearUnderflow ? isStepDown : isModerate);
  static const auto up = nearUnderflow ? inputsOf<In>(isStepUp) : down;
  constexpr std::size_t many = sizeof(In) > sizeof(half_t) ? complexStepsInDouble : stepsInDouble;
  std::vector<storage<In>> some(count);
  for (std::size_t i = 0; i < count; ++i) {
    auto const& numbers = goesDown(i, every > 1 ? many : stepsInSingle) ? down : up;
    auto const& from = every != 0 && i % every == every - 1 ? all : numbers;
    some[i] = from[(i * 25173 + i / from.size()) % from.size()];
  }
  return some;
}

inline constexpr std::size_t densities[] = {0, 1, 97, 1500};

// Whole arrays: all pairs of notable values, and counts around the lengths of leaves and where a tree forks.
template <class In, class Call>
void sweepWholeReductions(Call call) {
  const auto notable = gridOf<In>();
  for (auto const& first : notable) {
    for (auto const& second : notable) call(std::vector<storage<In>>{first, second});
  }
  for (const std::size_t count : {1, 7, 128, 255, 256, 257, 300, 513, 1000, 4111, 40001}) {
    for (const std::size_t every : densities) call(reductionData<In>(count, every));
  }
}

// Shapes of alternating dimensions, reduced in both forms; each output has elements.
template <class In, class Call>
void sweepReductionsAlongDimensions(Call call) {
  const std::vector<unsigned long> shapes[] = {{300, 40},    {40, 300},       {5, 1100}, {1100, 5},
                                               {3, 4, 5, 6}, {2, 3, 2, 3, 4}, {9000, 2}};
  for (std::vector<unsigned long> dims : shapes) {
    unsigned long count = 1;
    for (const unsigned long size : dims) count *= size;
    for (const std::size_t every : densities) {
      for (const bool firstReduced : {true, false}) {
        unsigned long outputs = 1;
        for (std::size_t d = firstReduced ? 1 : 0; d < dims.size(); d += 2) outputs *= dims[d];
        call(reductionData<In>(count, every), dims, firstReduced, outputs);
      }
    }
  }
}

template <class In, class Out>
void sweepReduction(std::string_view name, void (*entry)(In*, Out*, unsigned long)) {
  resultHash hash;
  sweepWholeReductions<In>([&](std::vector<storage<In>> src) {
    storage<Out> result{};
    called(entry, as<In>(src.data()), as<Out>(&result), src.size());
    hash.add(result);
  });
  hash.print(name);
}

template <class In, class Out>
void sweepReduction(std::string_view name, void (*entry)(In*, Out*, unsigned long, unsigned long*, bool)) {
  resultHash hash;
  sweepReductionsAlongDimensions<In>(
      [&](std::vector<storage<In>> src, std::vector<unsigned long>& dims, bool firstReduced, unsigned long outputs) {
        std::vector<storage<Out>> results(outputs);
        called(entry, as<In>(src.data()), as<Out>(results.data()), dims.size(), dims.data(), firstReduced);
        hash.add(results.data(), results.size());
      });
  hash.print(name);
}

// The same with the places of the results.
template <class In, class Out>
void sweepReduction(std::string_view name, void (*entry)(In*, Out*, double*, unsigned long)) {
  resultHash hash;
  sweepWholeReductions<In>([&](std::vector<storage<In>> src) {
    storage<Out> result{};
    double index = 0;
    called(entry, as<In>(src.data()), as<Out>(&result), &index, src.size());
    hash.add(result);
    hash.add(index);
  });
  hash.print(name);
}

template <class In, class Out>
void sweepReduction(std::string_view name,
                    void (*entry)(In*, Out*, double*, unsigned long, unsigned long*, bool, bool)) {
  resultHash hash;
  sweepReductionsAlongDimensions<In>(
      [&](std::vector<storage<In>> src, std::vector<unsigned long>& dims, bool firstReduced, unsigned long outputs) {
        for (const bool linear : {false, true}) {
          std::vector<storage<Out>> results(outputs);
          std::vector<double> indices(outputs);
          called(entry, as<In>(src.data()), as<Out>(results.data()), indices.data(), dims.size(), dims.data(),
                 firstReduced, linear);
          hash.add(results.data(), results.size());
          hash.add(indices.data(), indices.size());
        }
      });
  hash.print(name);
}

template <class A, class B, class C, class Out>
using expandingTernary = void (*)(A*, B*, C*, Out*, unsigned long, unsigned long, sizes, unsigned long, unsigned long,
                                  sizes, unsigned long, unsigned long, sizes, unsigned long, unsigned long, sizes);

// Three arrays that meet by implicit expansion: element by element, and a box of notable values in which each operand
// has a dimension of its own.
template <class A, class B, class C, class Out>
void sweep(std::string_view name, expandingTernary<A, B, C, Out> entry) {
  resultHash hash;
  const auto meet = [&](std::vector<storage<A>> a, std::vector<storage<B>> b, std::vector<storage<C>> c, sizes dimsA,
                        sizes dimsB, sizes dimsC, sizes dimsOut) {
    std::vector<storage<Out>> d(dimsOut[0] * dimsOut[1] * dimsOut[2]);
    called(entry, as<A>(a.data()), as<B>(b.data()), as<C>(c.data()), as<Out>(d.data()), a.size(), 3, dimsA, b.size(), 3,
           dimsB, c.size(), 3, dimsC, d.size(), 3, dimsOut);
    hash.add(d.data(), d.size());
  };
  const unsigned long flat[] = {meetings, 1, 1};
  meet(meetingOf<A>(meetings, 1), meetingOf<B>(meetings, 25173), meetingOf<C>(meetings, 25173ul * 25173ul), flat, flat,
       flat, flat);
  const auto a = gridOf<A>();
  const auto b = gridOf<B>();
  const auto c = gridOf<C>();
  const unsigned long first[] = {a.size(), 1, 1}, second[] = {1, b.size(), 1}, third[] = {1, 1, c.size()};
  const unsigned long box[] = {a.size(), b.size(), c.size()};
  meet(a, b, c, first, second, third, box);
  hash.print(name);
}

// All points of a grid, one call for each: the operands' lists of values, first operand fastest.
template <class... Args, class Visit>
void forEachPoint(std::tuple<std::vector<storage<Args>>...> const& lists, Visit visit) {
  const std::size_t points = std::apply([](auto const&... list) { return (list.size() * ...); }, lists);
  for (std::size_t i = 0; i < points; ++i) {
    std::size_t rest = i;
    const auto digit = [&rest](auto const& list) {
      auto const& value = list[rest % list.size()];
      rest /= list.size();
      return value;
    };
    std::apply([&](auto const&... list) { std::apply(visit, std::tuple{static_cast<Args>(digit(list))...}); }, lists);
  }
}

// A function of single values: over the sweep of its one argument, or over meetings and grids of two or three.
template <class... Args, class Function>
void sweepScalar(std::string_view name, Function f) {
  resultHash hash;
  if constexpr (sizeof...(Args) == 1) {
    for (auto const& x : inputs<Args...>::sweep()) hash.add(called(f, static_cast<Args>(x)...));
  } else {
    std::size_t multiplier = 1;
    const auto met = std::tuple{meetingOf<Args>(meetings, std::exchange(multiplier, multiplier * 25173))...};
    for (std::size_t i = 0; i < meetings; ++i)
      hash.add(std::apply([&](auto const&... list) { return called(f, static_cast<Args>(list[i])...); }, met));
    forEachPoint<Args...>(std::tuple{gridOf<Args>()...}, [&](Args... x) { hash.add(called(f, x...)); });
  }
  hash.print(name);
}

}  // namespace zthalf::golden

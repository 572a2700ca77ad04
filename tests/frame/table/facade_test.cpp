// The facade hands every call to its entry of the table, arguments and result unchanged.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <tuple>
#include <type_traits>
#include <utility>

#include "tests/support/selected_entries.h"
#include "tests/support/table_entries.h"

namespace zthalf {
namespace {

using testing::forEachFacadeFunction;
using testing::replacedEntry;
using testing::wordOf;

// Stands in for the implementation behind an entry: notes what it is called with, and answers as told.
template <class Function>
struct spy;

template <class Result, class... Args>
struct spy<Result(Args...)> {
  using words = std::array<std::uint64_t, sizeof...(Args)>;

  static Result record(Args... args) {
    seen = {wordOf(args)...};
    ++calls;
    if constexpr (!std::is_void_v<Result>) return answer;
  }

  static inline words seen;
  static inline unsigned calls = 0;
  static inline std::conditional_t<std::is_void_v<Result>, int, Result> answer{};
};

// Arguments that nobody can mistake for each other; nothing stands behind the addresses.
template <class T>
T distinct(std::size_t position) {
  const std::uint64_t word = 0x0123'4500'0000 + (position + 1) * 0x1'0010;
  if constexpr (std::is_pointer_v<T>) {
    return reinterpret_cast<T>(word);
  } else {
    return static_cast<T>(word);
  }
}

template <class Function, class Result, class... Args>
void expectForwarded(char const* name, Function*& entry, Result (*facade)(Args...)) {
  using listener = spy<Function>;
  const replacedEntry swap(entry, &listener::record);
  const auto call = [&]<std::size_t... Positions>(std::index_sequence<Positions...>) {
    const std::tuple<Args...> args{distinct<Args>(Positions)...};
    const unsigned callsBefore = listener::calls;
    if constexpr (std::is_void_v<Result>) {
      std::apply(facade, args);
    } else {
      EXPECT_EQ(std::apply(facade, args), listener::answer) << name;
    }
    EXPECT_EQ(listener::calls, callsBefore + 1) << name;
    EXPECT_EQ(listener::seen, (typename listener::words{wordOf(std::get<Positions>(args))...})) << name;
  };
  for (const bool answer : {false, true}) {
    listener::answer = answer;
    call(std::index_sequence_for<Args...>());
  }
}

TEST(Facade, HandsEveryArgumentAndTheResultThrough) {
  forEachFacadeFunction([](char const* name, auto& entry, auto facade) { expectForwarded(name, entry, facade); });
}

TEST(Facade, FollowsAReplacedEntryAndItsRestoration) {
  half_t x{0x3C00}, result{};
  {
    const replacedEntry swap(half_ptr::uminusPtr, half_ptr::absPtr);
    x = {0xBC01};
    half_vector::uminus(&x, &result, 1);
    EXPECT_EQ(result.bits, 0x3C01);
    half_vector::abs(&x, &result, 1);
    EXPECT_EQ(result.bits, 0x3C01);
  }
  x = {0x3C00};
  half_vector::uminus(&x, &result, 1);
  EXPECT_EQ(result.bits, 0xBC00);
}

}  // namespace
}  // namespace zthalf

// Which entries of the table a call reaches, and with which arguments.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/support/table_entries.h"

namespace zthalf::testing {

template <class T>
std::uint64_t wordOf(T const* address) {
  return reinterpret_cast<std::uintptr_t>(address);
}
template <class T>
requires std::is_integral_v<T> std::uint64_t wordOf(T value) { return value; }

struct reachedEntry {
  std::string name;
  std::vector<std::uint64_t> arguments;

  bool operator==(reachedEntry const&) const = default;
  friend std::ostream& operator<<(std::ostream& out, reachedEntry const& reached) {
    out << reached.name << '(';
    for (const std::uint64_t argument : reached.arguments) out << ' ' << argument;
    return out << " )";
  }
};
using reachedEntries = std::vector<reachedEntry>;

template <class... Args>
reachedEntries only(std::string const& name, Args... args) {
  return {{name, {wordOf(args)...}}};
}

inline reachedEntries reached;

// Stands in for an entry: takes note of its calls and does nothing. Name is a callable type, one for each entry.
template <class Name, class Function>
struct noteTaker;
template <class Name, class Result, class... Args>
struct noteTaker<Name, Result(Args...)> {
  static Result call(Args... args) {
    reached.push_back({Name{}(), {wordOf(args)...}});
    return Result();
  }
};

// While it lives every entry takes notes.
class allEntriesListen {
 public:
  allEntriesListen() {
#define ZTHALF_ROW(entry, signature, ...) \
  half_ptr::entry##Ptr = &noteTaker<decltype([] { return #entry; }), signature>::call;
    ZTHALF_TABLE
#undef ZTHALF_ROW
  }
  ~allEntriesListen() {
    namespace element = half::element;
#define ZTHALF_ROW(entry, signature, ...) half_ptr::entry##Ptr = &half::__VA_ARGS__;
    ZTHALF_TABLE
#undef ZTHALF_ROW
  }
  allEntriesListen(allEntriesListen const&) = delete;
  allEntriesListen& operator=(allEntriesListen const&) = delete;
};

template <class Call>
reachedEntries entriesReachedBy(Call call) {
  const allEntriesListen listening;
  reached.clear();
  call();
  return reached;
}

}  // namespace zthalf::testing

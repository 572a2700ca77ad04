// Which entries of the table a call reaches, and with which arguments.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

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

// While it lives every entry takes note of its calls and does nothing else.
class allEntriesListen {
 public:
  allEntriesListen();
  ~allEntriesListen();
  allEntriesListen(allEntriesListen const&) = delete;
  allEntriesListen& operator=(allEntriesListen const&) = delete;

  static inline reachedEntries reached;
};

template <class Call>
reachedEntries entriesReachedBy(Call call) {
  const allEntriesListen listening;
  allEntriesListen::reached.clear();
  call();
  return allEntriesListen::reached;
}

}  // namespace zthalf::testing

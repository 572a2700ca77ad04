// How many different numbers there are in a column.
#pragma once

#include <cstdint>
#include <vector>

namespace halfscope {

// A set of bit patterns in a table of slots, each at the first free place from where its pattern points to. Faster than
// sorting, and the slots are used again for the next column.
class distinctCounter {
 public:
  // NaNs do not count; the two zeros are one number.
  long long count(std::vector<double> const& values);

 private:
  bool insert(std::uint64_t pattern);
  void grow();

  std::vector<std::uint64_t> slots_;
  int shift_ = 0;
};

}  // namespace halfscope

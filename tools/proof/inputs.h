// The numbers that the proof computes with: patterns of halves, the same on every machine.
#pragma once

#include <cstdint>
#include <vector>

namespace proof {

inline constexpr unsigned long sumCount = 1000003, pairCount = 1 << 20, patternCount = 1 << 16;

class generator {
 public:
  std::uint16_t operator()() {
    state_ = state_ * 6364136223846793005u + 1442695040888963407u;
    return static_cast<std::uint16_t>(state_ >> 48);
  }

 private:
  std::uint64_t state_ = 1;
};

struct inputs {
  std::vector<std::uint16_t> addends;      // positive, 2^-11 to 2^-4
  std::vector<std::uint16_t> left, right;  // any pattern: infinities, NaNs of both signs and subnormals among them
  std::vector<std::uint16_t> every;        // 0x0000 to 0xFFFF
  std::vector<std::uint16_t> z, w;         // complex, real and imaginary parts in turn: 2^-3 to 2^5, both signs
};

inline inputs makeInputs() {
  generator next;
  inputs made;
  const auto fill = [&](std::vector<std::uint16_t>& numbers, unsigned long count, auto draw) {
    for (unsigned long i = 0; i < count; ++i) numbers.push_back(static_cast<std::uint16_t>(draw()));
  };
  fill(made.addends, sumCount, [&] { return 0x1000 + next() % 0x1C00; });
  fill(made.left, pairCount, [&] { return next(); });
  fill(made.right, pairCount, [&] { return next(); });
  fill(made.every, patternCount, [&, pattern = 0]() mutable { return pattern++; });
  const auto moderate = [&] { return (next() & 0x8000) | (0x3000 + next() % 0x2000); };
  fill(made.z, 2 * pairCount, moderate);
  fill(made.w, 2 * pairCount, moderate);
  return made;
}

}  // namespace proof

// A hash of a kernel's results over a fixed set of operands, compared with a line of a file under tests/golden: name,
// number of results, hash. Half results are too coarse to see a kernel change; these are not.
#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/support/sweep.h"

namespace zthalf::testing {

// One step of splitmix64.
inline std::uint64_t scrambled(std::uint64_t x) {
  x += 0x9E3779B97F4A7C15u;
  x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9u;
  x = (x ^ (x >> 27)) * 0x94D049BB133111EBu;
  return x ^ (x >> 31);
}

// The sum of scrambled (operand number, result) pairs: independent of the order, so that threads may share the work.
// result(i) gives the bits of the result for operand number i.
template <class Result>
std::uint64_t hashOf(std::uint64_t count, Result result) {
  std::atomic<std::uint64_t> total{0};
  inBlocks(count, [&](std::uint64_t first, std::uint64_t end) {
    std::uint64_t sum = 0;
    for (std::uint64_t i = first; i < end; ++i) {
      sum += scrambled(scrambled(i) ^ static_cast<std::uint64_t>(result(i)));
    }
    total += sum;
  });
  return total;
}

// Expects the line 'name count hash' in the golden file. The failure prints the line as it would have to be.
inline void expectGolden(std::string const& file, std::string const& name, std::uint64_t count, std::uint64_t hash) {
  std::ostringstream wanted;
  wanted << name << ' ' << count << ' ' << std::hex << hash;
  std::ifstream golden(std::string(ZTHALF_GOLDEN_DIRECTORY) + "/" + file);
  std::string line, found = "no line for " + name + " in " + file;
  while (std::getline(golden, line)) {
    std::istringstream words(line);
    std::string lineName;
    std::uint64_t lineCount = 0;
    words >> lineName >> lineCount;
    if (lineName == name && lineCount == count) found = line;
  }
  EXPECT_EQ(found, wanted.str());
}

}  // namespace zthalf::testing

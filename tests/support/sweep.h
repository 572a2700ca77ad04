// Long sweeps over numbered operands, on all processors.
#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <bit>
#include <cstdint>
#include <thread>
#include <vector>

#include "tests/support/expect_bits.h"

namespace zthalf::testing {

// One step of splitmix64.
inline std::uint64_t scrambled(std::uint64_t x) {
  x += 0x9E3779B97F4A7C15u;
  x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9u;
  x = (x ^ (x >> 27)) * 0x94D049BB133111EBu;
  return x ^ (x >> 31);
}

// work(first, end) on blocks of [0, count), each of them once.
template <class Work>
void inBlocks(std::uint64_t count, Work work) {
  constexpr std::uint64_t block = 1u << 16;
  std::atomic<std::uint64_t> next{0};
  const auto run = [&] {
    for (std::uint64_t first = next.fetch_add(block); first < count; first = next.fetch_add(block)) {
      work(first, count - first < block ? count : first + block);
    }
  };
  std::vector<std::thread> threads;
  for (unsigned t = 1; t < std::thread::hardware_concurrency(); ++t) threads.emplace_back(run);
  run();
  for (std::thread& t : threads) t.join();
}

// How often a stride of floats is met: pattern i * stride for i below this.
inline constexpr std::uint64_t allFloats = std::uint64_t{1} << 32;
inline constexpr std::uint64_t quickStride = 1021;  // a prime: all fractions come about
inline std::uint64_t floatsAt(std::uint64_t stride) { return (allFloats + stride - 1) / stride; }
inline float floatAt(std::uint64_t i, std::uint64_t stride) {
  return std::bit_cast<float>(static_cast<std::uint32_t>(i * stride));
}

// Compares two functions of a float by their bits on every stride-th pattern.
template <class Result, class Expected>
void expectSameOnFloats(std::uint64_t stride, Result result, Expected expected) {
  std::atomic<std::uint64_t> differences{0};
  std::atomic<std::uint32_t> example{0};
  inBlocks(floatsAt(stride), [&](std::uint64_t first, std::uint64_t end) {
    for (std::uint64_t i = first; i < end; ++i) {
      const float x = floatAt(i, stride);
      if (bitsIn(result(x)) == bitsIn(expected(x))) continue;
      ++differences;
      example = bitsIn(x);
    }
  });
  const float x = std::bit_cast<float>(example.load());
  EXPECT_EQ(differences, 0u) << "one of them at " << hex(x) << ": " << hex(result(x)) << ", expected "
                             << hex(expected(x));
}

}  // namespace zthalf::testing

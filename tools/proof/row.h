// What one run of the proof found, and the line that reports it to tools/proof/proof.py.
#pragma once

#include <cstdint>
#include <cstdio>
#include <vector>

namespace proof {

#if defined(__aarch64__)
inline constexpr char processor[] = "ARM64";
#elif defined(__powerpc64__)
inline constexpr char processor[] = "POWER";
#elif defined(__s390x__)
inline constexpr char processor[] = "s390x";
#elif defined(__x86_64__)
inline constexpr char processor[] = "x86-64";
#else
#error "no name for this architecture"
#endif

inline constexpr unsigned threadCounts[] = {1, 2, 8};

// A polynomial in the patterns, modulo 2^64: one that a peer without loops of its own can compute from powers.
inline std::uint64_t hashOf(std::vector<std::uint16_t> const& patterns) {
  std::uint64_t hash = 0;
  for (const std::uint16_t pattern : patterns) hash = hash * 0x9E3779B97F4A7C15u + pattern + 1;
  return hash;
}

struct results {
  std::uint16_t sums[3];  // with half, single and double accumulators
  std::vector<std::uint16_t> products, exponentials, complexProducts;
};

// Tab-separated: who, compiled for what, threads, three patterns, three hashes.
inline void report(char const* who, char const* set, unsigned threads, results const& found) {
  std::printf("%s\t%s %s\t%u", who, processor, set, threads);
  for (const std::uint16_t sum : found.sums) std::printf("\t%04X", sum);
  for (auto* column : {&found.products, &found.exponentials, &found.complexProducts})
    std::printf("\t%016llx", static_cast<unsigned long long>(hashOf(*column)));
  std::printf("\n");
}

}  // namespace proof

// The array form of a unary half function against its scalar form: counts around every width and threshold,
// misalignment, in place, overlap, and what must not be written.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/half_cases.h"

namespace zthalf::testing {

using arrayFunction = void (*)(half_t*, half_t*, unsigned long);

inline constexpr half_t sentinel{0x5A5A};

// n different patterns, beginning anywhere; an odd step goes through all of them.
inline std::vector<half_t> patternsFrom(std::uint32_t first, std::size_t n) {
  std::vector<half_t> patterns(n);
  for (std::size_t i = 0; i < n; ++i) patterns[i] = {static_cast<std::uint16_t>((first + i) * 40503u)};
  return patterns;
}

// Counts around vector widths, blocks and the two table thresholds.
inline std::vector<unsigned long> interestingArrayCounts() {
  std::vector<unsigned long> counts;
  for (unsigned long n = 0; n <= 67; ++n) counts.push_back(n);
  for (const unsigned long n : {127, 128, 129, 511, 512, 513, 1000, 32767, 32768, 32769, 65536}) counts.push_back(n);
  return counts;
}

class arrayForm {
 public:
  arrayForm(std::string name, arrayFunction array, halfFunction scalar)
      : name_(std::move(name)), array_(array), scalar_(scalar) {}

  // Every pattern, in pieces of one size after the other: each size takes another pass.
  void expectEveryPattern() const {
    for (const unsigned long piece : {50ul, 1000ul, 65536ul}) {
      bitComparison compare(name_ + " in pieces of " + std::to_string(piece));
      std::vector<half_t> source = patternsFrom(0, 65536), result(65536, sentinel);
      for (unsigned long i = 0; i < 65536; i += piece) {
        array_(source.data() + i, result.data() + i, std::min(piece, 65536 - i));
      }
      for (std::size_t i = 0; i < 65536; ++i) compare.check(result[i], scalar_(source[i]), source[i]);
    }
  }

  // At three misalignments of each operand, with nothing written outside.
  void expectEveryCount() const {
    bitComparison compare(name_ + " by counts");
    array_(nullptr, nullptr, 0);  // an empty array may come with null pointers
    for (const unsigned long n : interestingArrayCounts()) {
      for (const std::size_t shift : {0u, 1u, 3u}) {
        std::vector<half_t> source = patternsFrom(static_cast<std::uint32_t>(n), n + shift);
        std::vector<half_t> result(n + 2 * shift + 2, sentinel);
        array_(source.data() + shift, result.data() + 2 * shift + 1, n);
        for (std::size_t i = 0; i < result.size(); ++i) {
          const std::size_t element = i - (2 * shift + 1);
          const bool inside = i > 2 * shift && element < n;
          compare.check(result[i], inside ? scalar_(source[shift + element]) : sentinel, static_cast<std::uint32_t>(i));
        }
      }
    }
  }

  // Source and destination in one buffer at every distance of up to 40 elements: an ascending pass, element by element.
  void expectAscendingOverlap() const {
    bitComparison compare(name_ + " overlapping");
    for (const unsigned long n : {90ul, 300ul, 33000ul}) {
      const int step = n > 1000 ? 13 : 1;
      for (int distance = -40; distance <= 40; distance += step) {
        std::vector<half_t> buffer = patternsFrom(7, n + 80);
        std::vector<half_t> expected = buffer;
        for (unsigned long i = 0; i < n; ++i) expected[40 + distance + i] = scalar_(expected[40 + i]);
        array_(buffer.data() + 40, buffer.data() + 40 + distance, n);
        for (std::size_t i = 0; i < buffer.size(); ++i) compare.check(buffer[i], expected[i], distance);
      }
    }
  }

  void expectAll() const {
    expectEveryPattern();
    expectEveryCount();
    expectAscendingOverlap();
  }

 private:
  std::string name_;
  arrayFunction array_;
  halfFunction scalar_;
};

using stoppingFunction = bool (*)(half_t*, half_t*, unsigned long);

class stoppingForm {
 public:
  stoppingForm(std::string name, stoppingFunction array, halfFunction scalar, bool (*stops)(half_t))
      : name_(std::move(name)), array_(array), scalar_(scalar), stops_(stops) {}

  // Alone in its array, an element either stops the loop and leaves its place untouched, or is done.
  void expectEveryPattern() const {
    bitComparison report(name_ + " report"), result(name_ + " result");
    for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
      half_t x{static_cast<std::uint16_t>(p)}, y = sentinel;
      const bool done = array_(&x, &y, 1);
      report.check(done, !stops_(x), x);
      result.check(y, stops_(x) ? sentinel : scalar_(x), x);
    }
  }

  // The first stopping element at any interesting place, another one behind it: what stands before it is finished and
  // the rest is as it was, apart, in place and overlapping.
  void expectPrefix() const {
    bitComparison compare(name_ + " prefix");
    for (const unsigned long n : {1ul, 40ul, 127ul, 128ul, 600ul, 1100ul, 33000ul}) {
      for (const unsigned long place : {0ul, 1ul, 39ul, 126ul, 127ul, 511ul, 512ul, 513ul, 1024ul, n - 1, n}) {
        if (place > n) continue;
        for (const int distance : {50000, 0, 1, -1, 7}) check(compare, n, place, distance);
      }
    }
  }

  void expectAll() const {
    expectEveryPattern();
    expectPrefix();
  }

 private:
  void check(bitComparison& compare, unsigned long n, unsigned long place, int distance) const {
    const std::size_t first = 8;
    std::vector<half_t> buffer = patternsFrom(3, 2 * first + n + static_cast<std::size_t>(std::max(distance, 0)));
    for (unsigned long i = 0; i < n; ++i) {
      if (stops_(buffer[first + i])) {  // in [0.5, 1): inside every domain there is
        buffer[first + i].bits = static_cast<std::uint16_t>(0x3800 | (buffer[first + i].bits & 0x03FF));
      }
    }
    if (place < n) buffer[first + place] = half_t{0xC900};  // -10: outside every domain there is
    if (place + 20 < n) buffer[first + place + 20] = half_t{0xC900};

    std::vector<half_t> expected = buffer;
    bool done = true;
    for (unsigned long i = 0; i < n && done; ++i) {
      const half_t x = expected[first + i];
      done = !stops_(x);
      if (done) expected[first + static_cast<std::size_t>(distance) + i] = scalar_(x);
    }
    const bool reported = array_(buffer.data() + first, buffer.data() + first + distance, n);
    compare.check(reported, done, static_cast<std::uint32_t>(n), static_cast<std::uint32_t>(place), distance);
    for (std::size_t i = 0; i < buffer.size(); ++i)
      compare.check(buffer[i], expected[i], static_cast<std::uint32_t>(i));
  }

  std::string name_;
  stoppingFunction array_;
  halfFunction scalar_;
  bool (*stops_)(half_t);
};

}  // namespace zthalf::testing

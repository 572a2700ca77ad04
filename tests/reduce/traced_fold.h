// A fold whose result tells the whole order of its steps: no two orders have the same one, in all likelihood.
#pragma once

#include <cstdint>

#include "reduce/dimensional_forms.h"

namespace zthalf::testing {

using trace = std::uint64_t;

inline trace mixed(trace a, trace b, trace kind) {
  trace x = (a * 0x9E3779B97F4A7C15u + (b ^ kind)) * 0xBF58476D1CE4E5B9u;
  x ^= x >> 29;
  return x * 0x94D049BB133111EBu + kind;
}

inline trace stepped(trace a, std::uint32_t element) { return mixed(a, element, 1); }
inline trace joined(trace a, trace b) { return mixed(a, b, 2); }
inline trace finished(trace a, trace b) { return mixed(a, b, 3); }

struct tracedFold {
  using source = std::uint32_t;
  using accumulator = trace;

  static trace initial(source const*) { return 17; }
  static trace start(source const*) { return 17; }
  static void leaves(half_utils::leafSpan<source> const* leaves, unsigned count, trace* results) {
    for (unsigned i = 0; i < count; ++i) {
      results[i] = 17;
      for (unsigned long e = leaves[i].begin; e < leaves[i].end; ++e)
        results[i] = stepped(results[i], leaves[i].tree[e]);
    }
  }
  static trace join(trace left, trace right) { return joined(left, right); }
  static trace finish(trace total, trace partial, half_utils::reducedPosition at) {
    return finished(mixed(total, at.combination, at.offset), partial);
  }
};

struct tracedRows {
  using source = std::uint32_t;
  static constexpr unsigned long widest = 8;

  tracedRows(source const*, unsigned long length) {
    for (unsigned long j = 0; j < length; ++j) values[j] = 17;
  }
  void add(source const* elements, unsigned long length, half_utils::reducedPosition at) {
    for (unsigned long j = 0; j < length; ++j)
      values[j] = stepped(mixed(values[j], at.combination, at.offset + j), elements[j]);
  }
  trace result(unsigned long j) const { return values[j]; }

  trace values[widest];
};

}  // namespace zthalf::testing

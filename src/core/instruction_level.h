// Instruction levels: one source, compiled for several sets of instructions; a level changes speed, never a bit.
//
// A pass is a type with a static, always inlined run(). leveled<Pass, Args...> compiles it once for each level and
// chosen() gives the version for the level in use. A pass whose member isWide is false gains nothing from width, and is
// compiled for the base level alone. A pass that is written in vectors has run<bytes>() instead, and is told the size of
// the level's registers. The attribute is an instruction list and not a processor's name, so that helpers compiled for
// the base level can be merged into a wide pass by both compilers.
#pragma once

#include <atomic>
#include <cstdint>

#include "core/bits.h"

#if defined(__x86_64__)
#define ZTHALF_HAS_LEVELS 1
#define ZTHALF_TARGET_V3 __attribute__((target("avx2,bmi,bmi2,popcnt")))
#if defined(__clang__)
#define ZTHALF_TARGET_V4 \
  __attribute__((target("avx2,bmi,bmi2,popcnt,avx512f,avx512bw,avx512cd,avx512dq,avx512vl"), min_vector_width(512)))
#else
#define ZTHALF_TARGET_V4                                                         \
  __attribute__((                                                                \
      target("avx2,bmi,bmi2,popcnt,avx512f,avx512bw,avx512cd,avx512dq,avx512vl," \
             "prefer-vector-width=512")))
#endif
#else
#define ZTHALF_HAS_LEVELS 0
#endif

namespace zthalf {

enum class instructionLevel : std::uint8_t {
  undecided,
  base,  // what every processor of the architecture has
  v3,    // x86-64 with 256-bit vectors (AVX2, BMI)
  v4,    // x86-64 with 512-bit vectors (AVX-512 F, BW, CD, DQ, VL)
};

// The highest level that the processor and its operating system support.
instructionLevel supportedLevel();

// From now on passes run at the given level, which the processor must support. For tests and benchmarks.
void forceLevel(instructionLevel level);

// The level in use. Threads that find it undecided at the same time all store the same value.
extern std::atomic<instructionLevel> levelInUse;
instructionLevel decideLevel();

inline instructionLevel currentLevel() {
  const instructionLevel level = levelInUse.load(std::memory_order_relaxed);
  return level != instructionLevel::undecided ? level : decideLevel();
}

// Whether the passes over a functor are compiled for every level: yes, unless its member baseOnly says otherwise.
template <class Ftor>
inline constexpr bool earnsLevels = !requires {
  requires Ftor::baseOnly;
};

// The same for one combination of element types: its member template baseOnlyFor<Elements...> may say otherwise too.
template <class Ftor, class... Elements>
inline constexpr bool earnsLevelsFor = earnsLevels<Ftor> && !requires {
  requires Ftor::template baseOnlyFor<Elements...>;
};

template <class Pass, class... Args>
struct leveled {
  using function = void (*)(Args...);

  static void base(Args... args) { runWith<16>(args...); }
#if ZTHALF_HAS_LEVELS
  ZTHALF_TARGET_V3 static void v3(Args... args) { runWith<32>(args...); }
  ZTHALF_TARGET_V4 static void v4(Args... args) { runWith<64>(args...); }
#endif

  static function chosen() {
#if ZTHALF_HAS_LEVELS
    if constexpr (Pass::isWide) {
      switch (currentLevel()) {
        case instructionLevel::v4:
          return &v4;
        case instructionLevel::v3:
          return &v3;
        default:
          break;
      }
    }
#endif
    return &base;
  }

 private:
  template <unsigned bytes>
  ZTHALF_INLINE static void runWith(Args... args) {
    if constexpr (requires { Pass::template run<bytes>(args...); }) {
      Pass::template run<bytes>(args...);
    } else {
      Pass::run(args...);
    }
  }
};

}  // namespace zthalf

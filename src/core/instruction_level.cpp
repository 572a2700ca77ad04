#include "core/instruction_level.h"

namespace zthalf {

std::atomic<instructionLevel> levelInUse{instructionLevel::undecided};

instructionLevel supportedLevel() {
#if ZTHALF_HAS_LEVELS
  __builtin_cpu_init();
  const bool v3 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2") &&
                  __builtin_cpu_supports("popcnt");
  const bool v4 = v3 && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                  __builtin_cpu_supports("avx512cd") && __builtin_cpu_supports("avx512dq") &&
                  __builtin_cpu_supports("avx512vl");
  return v4 ? instructionLevel::v4 : v3 ? instructionLevel::v3 : instructionLevel::base;
#else
  return instructionLevel::base;
#endif
}

void forceLevel(instructionLevel level) { levelInUse.store(level, std::memory_order_relaxed); }

instructionLevel decideLevel() {
  const instructionLevel level = supportedLevel();
  forceLevel(level);
  return level;
}

}  // namespace zthalf

// The instruction level that a test program runs at: the one that ZTHALF_TEST_LEVEL names (base, v3, v4 or supported,
// the default).
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

#include "core/instruction_level.h"

namespace zthalf::testing {

inline constexpr int skipped = 77;  // the exit status of a test that cannot be tried here

inline instructionLevel levelNamed(std::string const& name) {
  if (name == "base") return instructionLevel::base;
  if (name == "v3") return instructionLevel::v3;
  if (name == "v4") return instructionLevel::v4;
  if (name == "supported") return supportedLevel();
  std::fprintf(stderr, "ZTHALF_TEST_LEVEL is '%s'; expected base, v3, v4 or supported\n", name.c_str());
  std::exit(2);
}

// Ends the program as skipped where the processor lacks the level.
inline void takeLevelFromEnvironment() {
  char const* const wanted = std::getenv("ZTHALF_TEST_LEVEL");
  const instructionLevel level = levelNamed(wanted != nullptr ? wanted : "supported");
  if (level > supportedLevel()) {
    std::printf("this processor does not have level %s\n", wanted);
    std::exit(skipped);
  }
  forceLevel(level);
}

}  // namespace zthalf::testing

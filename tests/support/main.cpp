// Runs the tests at the instruction level that ZTHALF_TEST_LEVEL names (base, v3, v4 or supported, the default).
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "core/instruction_level.h"

namespace {

constexpr int skipped = 77;

zthalf::instructionLevel levelNamed(std::string const& name) {
  using zthalf::instructionLevel;
  if (name == "base") return instructionLevel::base;
  if (name == "v3") return instructionLevel::v3;
  if (name == "v4") return instructionLevel::v4;
  if (name == "supported") return zthalf::supportedLevel();
  std::fprintf(stderr, "ZTHALF_TEST_LEVEL is '%s'; expected base, v3, v4 or supported\n", name.c_str());
  std::exit(2);
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  char const* const wanted = std::getenv("ZTHALF_TEST_LEVEL");
  const zthalf::instructionLevel level = levelNamed(wanted != nullptr ? wanted : "supported");
  if (level > zthalf::supportedLevel()) {
    std::printf("this processor does not have level %s\n", wanted);
    return skipped;
  }
  zthalf::forceLevel(level);
  return RUN_ALL_TESTS();
}

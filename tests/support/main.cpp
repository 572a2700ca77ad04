// Runs the tests at the instruction level that the environment names.
#include <gtest/gtest.h>

#include "tests/support/level.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  zthalf::testing::takeLevelFromEnvironment();
  return RUN_ALL_TESTS();
}

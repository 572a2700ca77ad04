#include "core/instruction_level.h"

#include <gtest/gtest.h>

namespace zthalf {
namespace {

struct widePass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(int const* source, int* target) { *target = *source + 1; }
};

struct narrowPass {
  static constexpr bool isWide = false;
  ZTHALF_INLINE static void run(int const* source, int* target) { *target = *source + 2; }
};

using wide = leveled<widePass, int const*, int*>;
using narrowOnly = leveled<narrowPass, int const*, int*>;

struct plainFtor {};
struct wideFtor {
  static constexpr bool baseOnly = false;
};
struct baseFtor {
  static constexpr bool baseOnly = true;
};

// Every test leaves the level as it found it.
class InstructionLevel : public ::testing::Test {
 protected:
  void TearDown() override { forceLevel(found_); }

 private:
  instructionLevel found_ = currentLevel();
};

int resultOf(void (*pass)(int const*, int*)) {
  const int source = 40;
  int target = 0;
  pass(&source, &target);
  return target;
}

TEST_F(InstructionLevel, IsDecidedByTheProcessorWhereUndecided) {
  forceLevel(instructionLevel::undecided);
  EXPECT_EQ(currentLevel(), supportedLevel());
  EXPECT_EQ(levelInUse.load(), supportedLevel()) << "the decision is kept";
  EXPECT_NE(supportedLevel(), instructionLevel::undecided);
}

TEST_F(InstructionLevel, IsTheForcedOne) {
  forceLevel(instructionLevel::base);
  EXPECT_EQ(currentLevel(), instructionLevel::base);
  EXPECT_EQ(decideLevel(), supportedLevel());
  EXPECT_EQ(currentLevel(), supportedLevel());
}

TEST_F(InstructionLevel, ChoosesThePassOfTheLevel) {
  forceLevel(instructionLevel::base);
  EXPECT_EQ(wide::chosen(), &wide::base);
#if ZTHALF_HAS_LEVELS
  forceLevel(instructionLevel::v3);
  EXPECT_EQ(wide::chosen(), &wide::v3);
  forceLevel(instructionLevel::v4);
  EXPECT_EQ(wide::chosen(), &wide::v4);
#endif
}

TEST_F(InstructionLevel, ChoosesTheBaseForAPassThatIsNotWide) {
  for (const auto level : {instructionLevel::base, instructionLevel::v3, instructionLevel::v4}) {
    forceLevel(level);
    EXPECT_EQ(narrowOnly::chosen(), &narrowOnly::base);
  }
  EXPECT_EQ(resultOf(narrowOnly::chosen()), 42);
}

TEST_F(InstructionLevel, EverySupportedLevelRunsThePass) {
  for (const auto level : {instructionLevel::base, instructionLevel::v3, instructionLevel::v4}) {
    if (level > supportedLevel()) break;
    forceLevel(level);
    EXPECT_EQ(resultOf(wide::chosen()), 41);
  }
}

TEST(EarnsLevels, UnlessTheFunctorSaysOtherwise) {
  EXPECT_TRUE(earnsLevels<plainFtor>);
  EXPECT_TRUE(earnsLevels<wideFtor>);
  EXPECT_FALSE(earnsLevels<baseFtor>);
}

}  // namespace
}  // namespace zthalf

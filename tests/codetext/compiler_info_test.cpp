// The description of a code-generation target.
#include <gtest/gtest.h>

#include "zthalf/codetext.h"

namespace {

using half::CompilerInfo;
using half::NativeTargetHalfType;

TEST(NativeTargetHalfType, HasNothingButTheCastByDefault) {
  const NativeTargetHalfType target;
  EXPECT_FALSE(target.getNativeTargetHalfSupport());
  EXPECT_TRUE(target.getNativeHalfToDoubleCastSupport());
  EXPECT_FALSE(target.getNativeHalfNonFiniteLiteralsSupport());
  EXPECT_EQ(target.getNativeHalfIdentifier(), "");
  EXPECT_EQ(target.getNativeHalfLiteralSuffix(), "");
  EXPECT_EQ(target.getNativeHalfCustomHeaders(), "");
}

TEST(NativeTargetHalfType, KeepsWhatItIsGiven) {
  for (const bool cast : {false, true})
    for (const bool nonFinite : {false, true}) {
      const NativeTargetHalfType target("_Float16", "F16", "<arm_fp16.h>", cast, nonFinite);
      EXPECT_TRUE(target.getNativeTargetHalfSupport());
      EXPECT_EQ(target.getNativeHalfIdentifier(), "_Float16");
      EXPECT_EQ(target.getNativeHalfLiteralSuffix(), "F16");
      EXPECT_EQ(target.getNativeHalfCustomHeaders(), "<arm_fp16.h>");
      EXPECT_EQ(target.getNativeHalfToDoubleCastSupport(), cast);
      EXPECT_EQ(target.getNativeHalfNonFiniteLiteralsSupport(), nonFinite);
    }
}

TEST(NativeTargetHalfType, IsSupportedByItsNameAlone) {
  EXPECT_FALSE(NativeTargetHalfType("", "F16", "<h>", true, true).getNativeTargetHalfSupport());
  EXPECT_TRUE(NativeTargetHalfType("x", "", "", false, false).getNativeTargetHalfSupport());
}

TEST(NativeTargetHalfType, StaysSupportedWhenItsNameGoes) {
  NativeTargetHalfType target;
  target.setNativeHalfIdentifier("");
  EXPECT_FALSE(target.getNativeTargetHalfSupport());
  target.setNativeHalfIdentifier("x");
  EXPECT_TRUE(target.getNativeTargetHalfSupport());
  EXPECT_EQ(target.getNativeHalfIdentifier(), "x");
  target.setNativeHalfIdentifier("");
  EXPECT_TRUE(target.getNativeTargetHalfSupport());
  EXPECT_EQ(target.getNativeHalfIdentifier(), "");
}

TEST(NativeTargetHalfType, SettersAssign) {
  NativeTargetHalfType target("x", "a", "b", true, true);
  target.setNativeHalfLiteralSuffix("H");
  target.setNativeHalfCustomHeaders("<half>");
  target.setNativeHalfToDoubleCast(false);
  EXPECT_EQ(target.getNativeHalfLiteralSuffix(), "H");
  EXPECT_EQ(target.getNativeHalfCustomHeaders(), "<half>");
  EXPECT_FALSE(target.getNativeHalfToDoubleCastSupport());
  target.setNativeHalfLiteralSuffix("");
  target.setNativeHalfToDoubleCast(true);
  EXPECT_EQ(target.getNativeHalfLiteralSuffix(), "");
  EXPECT_TRUE(target.getNativeHalfToDoubleCastSupport());
}

// Each argument shows in its own accessor and in no other.
TEST(CompilerInfo, TakesItsArgumentsInTheirOrder) {
  const auto target = std::make_shared<NativeTargetHalfType>();
  for (unsigned bits = 0; bits < 64; ++bits) {
    const auto bit = [&](unsigned i) { return (bits >> i & 1) != 0; };
    const CompilerInfo info(bit(0), bit(1), bit(2), bit(3), bit(4), target, bit(5));
    EXPECT_EQ(info.isCPP(), bit(0));
    EXPECT_EQ(info.isGPU(), bit(1));
    EXPECT_EQ(info.isInitializer(), bit(2));
    EXPECT_EQ(info.isRGL(), bit(3));
    EXPECT_EQ(info.supportNonFiniteLiterals(), bit(4));
    EXPECT_EQ(info.isHBX(), bit(5));
    EXPECT_EQ(info.getHalfTargetInfo(), target);
  }
}

TEST(CompilerInfo, SharesItsTarget) {
  const auto target = std::make_shared<NativeTargetHalfType>();
  const CompilerInfo info(true, false, false, false, false, target, false);
  CompilerInfo copy(info);
  EXPECT_EQ(target.use_count(), 3);
  EXPECT_EQ(copy.getHalfTargetInfo().get(), target.get());
  copy.getHalfTargetInfo()->setNativeHalfIdentifier("x");
  EXPECT_TRUE(info.getHalfTargetInfo()->getNativeTargetHalfSupport());
  copy.setInitializer(true);  // the copy's alone
  EXPECT_TRUE(copy.isInitializer());
  EXPECT_FALSE(info.isInitializer());
  copy.setInitializer(false);
  EXPECT_FALSE(copy.isInitializer());
}

TEST(CompilerInfo, NamesTheEmitterByTheFirstConditionThatHolds) {
  for (unsigned bits = 0; bits < 128; ++bits) {
    const auto bit = [&](unsigned i) { return (bits >> i & 1) != 0; };
    const auto target = std::make_shared<NativeTargetHalfType>(bit(6) ? "x" : "", "", "", true, false);
    const CompilerInfo info(bit(0), bit(1), bit(2), bit(3), bit(4), target, bit(5));
    const int expected = bit(1) && !bit(2) ? 2 : bit(6) ? 3 : bit(0) ? 1 : 0;
    EXPECT_EQ(info.getCodeTargetForStringConversion(), expected) << bits;
  }
}

TEST(CompilerInfo, PrefersGpuTextToTheTargetsOwnTypeUnlessItInitializes) {
  const auto target = std::make_shared<NativeTargetHalfType>("x", "", "", true, false);
  CompilerInfo info(false, true, false, false, false, target, false);
  EXPECT_EQ(info.getCodeTargetForStringConversion(), 2);
  info.setInitializer(true);
  EXPECT_EQ(info.getCodeTargetForStringConversion(), 3);
}

}  // namespace

// Warnings of the embedded host: each message once, with the number of times that it came.
#include "host/api/warnings.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "zthalf/host/embedded.h"

namespace zthalf::host {
namespace {

using resource_core::BaseMsgID;

std::string printed() {
  ::testing::internal::CaptureStderr();
  printWarnings();
  return ::testing::internal::GetCapturedStderr();
}

TEST(Warnings, ArePrintedOnceWithTheirNumber) {
  EXPECT_EQ(printed(), "");
  warnOfIgnoredImaginaryPart();
  EXPECT_EQ(printed(),
            "Warning: The imaginary part of the second operand is ignored. (half:error:ignoredImagPart, 1 time)\n");
  ::testing::internal::CaptureStderr();
  for (int i = 0; i < 1000000; ++i) warnOfIgnoredImaginaryPart();
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
  vqWarningMsgId(BaseMsgID(u"other", u"what\u00e9ver"));
  warnOfIgnoredImaginaryPart();
  EXPECT_EQ(
      printed(),
      "Warning: The imaginary part of the second operand is ignored. (half:error:ignoredImagPart, 1000001 times)\n"
      "Warning: (other:what?ver, 1 time)\n");
  EXPECT_EQ(printed(), "");
}

TEST(Warnings, OfSeveralThreadsAreCountedTogether) {
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t)
    threads.emplace_back([] {
      for (int i = 0; i < 1000; ++i) warnOfIgnoredImaginaryPart();
    });
  for (std::thread& one : threads) one.join();
  EXPECT_NE(printed().find("4000 times"), std::string::npos);
}

int taken = 0;

TEST(Warnings, GoToTheSinkOfTheProgram) {
  const auto sink = [](BaseMsgID const& id, char const* text) {
    EXPECT_EQ(id.key(), u"ignoredImagPart");
    EXPECT_STREQ(text, "The imaginary part of the second operand is ignored.");
    ++taken;
  };
  EXPECT_EQ(setWarningSink(sink), nullptr);
  for (int i = 0; i < 3; ++i) warnOfIgnoredImaginaryPart();
  EXPECT_EQ(setWarningSink(nullptr), static_cast<warningSink>(sink));
  EXPECT_EQ(taken, 3);
  EXPECT_EQ(printed(), "");
}

TEST(WarningsDeathTest, ArePrintedWhenTheProcessEnds) {
  EXPECT_EXIT(
      {
        for (int i = 0; i < 5; ++i) warnOfIgnoredImaginaryPart();
        std::exit(0);
      },
      ::testing::ExitedWithCode(0), "half:error:ignoredImagPart, 5 times");
}

}  // namespace
}  // namespace zthalf::host

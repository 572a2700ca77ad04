// The version is told alike by the headers, the library and the build.
#include "zthalf/version.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(version, the_library_tells_the_version_of_its_headers) { EXPECT_EQ(zthalf_version(), ZTHALF_VERSION); }

TEST(version, the_text_is_what_the_build_reads) { EXPECT_STREQ(ZTHALF_VERSION_STRING, PROJECT_VERSION); }

TEST(version, the_number_and_the_text_agree) {
  const std::string text = std::to_string(ZTHALF_VERSION / 10000) + "." + std::to_string(ZTHALF_VERSION / 100 % 100) +
                           "." + std::to_string(ZTHALF_VERSION % 100);
  EXPECT_EQ(text, ZTHALF_VERSION_STRING);
}

#if ZTHALF_VERSION < 100
#error "the version cannot be compared by the preprocessor"
#endif

}  // namespace

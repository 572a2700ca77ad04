// How errors and the warning reach the host, and what a program can catch.
#include "host/errors.h"

#include <gtest/gtest.h>

#include <exception>

#include "host/api/warnings.h"
#include "tests/host/support/provider.h"

namespace zthalf {
namespace {

using namespace testing::provider;
using foundation::core::except::IException;
using foundation::core::except::IMsgIDException;
using foundation::core::except::IUserException;
using half::error::exceptionOf;

void const* handed = nullptr;
std::string identifier;

void take(IUserException const& error) {
  handed = dynamic_cast<void const*>(&error);
  identifier = dynamic_cast<IMsgIDException const&>(error).error_id();
}

class Errors : public ::testing::Test {
 protected:
  void SetUp() override {
    handed = nullptr;
    identifier.clear();
    setOnError(take);
  }
  void TearDown() override { setOnError(nullptr); }
};

template <class Tag>
void expectRaised(char16_t const* key, std::string const& expected) {
  handed = nullptr;
  try {
    raise<Tag>(key);
  } catch (exceptionOf<Tag> const& error) {
    EXPECT_EQ(identifier, expected);
    EXPECT_EQ(error.error_id(), expected);
    EXPECT_EQ(error.message_id().catalogue(), u"half:error");
    EXPECT_EQ(error.message_id().key(), key);
    EXPECT_NE(handed, nullptr) << "the host was not asked";
    EXPECT_NE(handed, dynamic_cast<void const*>(&error)) << "what is thrown is no copy";
    IException const& asHosts = error;
    std::exception const& asStandard = error;
    EXPECT_STREQ(asHosts.what(), asStandard.what());
    EXPECT_STRNE(asHosts.what(), "");
    EXPECT_EQ(dynamic_cast<IMsgIDException const*>(&asStandard), &error);
  }
}

TEST_F(Errors, AreHandedToTheHostAndThenThrownAsTheirOwnType) {
  using namespace half::error;
  expectRaised<HalfPrecisionNotAvailable>(u"HalfPrecisionNotAvailable", "half:error:HalfPrecisionNotAvailable");
  expectRaised<PropInvalidDataType>(u"PropInvalidDataType", "half:error:PropInvalidDataType");
  expectRaised<dimagree>(u"dimagree", "half:error:dimagree");
}

TEST_F(Errors, AreToldApartByTypeAndKnownByBothBases) {
  using namespace half::error;
  const auto raiseOne = [] { raise<dimagree>(u"dimagree"); };
  EXPECT_THROW(raiseOne(), exceptionOf<dimagree>);
  EXPECT_THROW(raiseOne(), IMsgIDException);
  EXPECT_THROW(raiseOne(), std::exception);
  try {
    raiseOne();
  } catch (exceptionOf<PropInvalidDataType> const&) {
    ADD_FAILURE() << "another error's type";
  } catch (IUserException const& error) {
    EXPECT_STRNE(error.what(), "");
  }
  static_assert(std::is_base_of_v<IMsgIDException, exceptionOf<dimagree>>);
  static_assert(std::is_base_of_v<std::exception, exceptionOf<dimagree>>);
  static_assert(
      std::is_same_v<exceptionOf<dimagree>, foundation::core::except::Exception<dimagree, std::exception, void>>);
  static_assert(std::is_empty_v<dimagree> && std::is_empty_v<PropInvalidDataType>);
}

// A host that leaves the call in its own manner.
TEST_F(Errors, LetTheHostLeaveInItsOwnManner) {
  struct hostsManner {};
  setOnError([](IUserException const&) { throw hostsManner(); });
  EXPECT_THROW(raise<half::error::dimagree>(u"dimagree"), hostsManner);
}

std::vector<std::string> warned;

TEST(Warning, ReachesTheHostOnceForEachCall) {
  warned.clear();
  setOnWarning([](resource_core::BaseMsgID const& id, char const* text) {
    warned.push_back(IMsgIDException::get_error_id(id));
    EXPECT_STRNE(text, "");
  });
  for (int i = 0; i < 3; ++i) warnOfIgnoredImaginaryPart();
  setOnWarning(nullptr);
  EXPECT_EQ(warned, std::vector<std::string>(3, "half:error:ignoredImagPart"));
}

}  // namespace
}  // namespace zthalf

// Errors of the embedded host: their texts, the handler, wrong numbers of arguments.
#include "host/errors.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "zthalf/host/embedded.h"

namespace zthalf::host {
namespace {

using foundation::core::except::IMsgIDException;
using foundation::core::except::IUserException;
using half::error::exceptionOf;

template <class Tag>
std::string textOf(char16_t const* key, char16_t const* catalogue = u"half:error") {
  return exceptionOf<Tag>(resource_core::BaseMsgID(catalogue, key)).what();
}

TEST(Messages, AreThereForEveryKeyAndDiffer) {
  using namespace half::error;
  const std::set<std::string> texts{textOf<HalfPrecisionNotAvailable>(u"HalfPrecisionNotAvailable"),
                                    textOf<PropInvalidDataType>(u"PropInvalidDataType"), textOf<dimagree>(u"dimagree")};
  EXPECT_EQ(texts.size(), 3u);
  for (std::string const& text : texts) {
    EXPECT_EQ(text.back(), '.');
    EXPECT_EQ(text.find(':'), std::string::npos) << "an identifier in place of a text";
  }
}

TEST(Messages, OfUnknownIdentifiersAreTheIdentifiers) {
  EXPECT_EQ(textOf<half::error::dimagree>(u"unknown"), "half:error:unknown");
  EXPECT_EQ(textOf<half::error::dimagree>(u"dimagree", u"other:catalogue"), "other:catalogue:dimagree");
}

// An exception of the host's that has no identifier.
TEST(Messages, OfOtherExceptionsAreNotEmpty) {
  const IUserException plain;
  EXPECT_STRNE(plain.what(), "");
}

int seen = 0;

TEST(ErrorHandler, SeesEveryErrorAndIsReplaced) {
  const errorHandler count = [](IUserException const&) { ++seen; };
  EXPECT_EQ(setErrorHandler(count), nullptr);
  const auto raiseOne = [] { raise<half::error::dimagree>(u"dimagree"); };
  EXPECT_THROW(raiseOne(), exceptionOf<half::error::dimagree>);
  EXPECT_EQ(seen, 1);
  EXPECT_EQ(setErrorHandler(nullptr), count);
  EXPECT_THROW(raiseOne(), exceptionOf<half::error::dimagree>);
  EXPECT_EQ(seen, 1);
}

TEST(ArgumentCountErrors, SayWhatIsWrong) {
  const auto expect = [](void (*raise)(), argumentCount wrong) {
    try {
      raise();
      ADD_FAILURE() << "it came back";
    } catch (argumentCountError const& error) {
      EXPECT_EQ(error.what_is_wrong(), wrong);
      EXPECT_STRNE(error.what(), "");
    }
  };
  expect(matrix::detail::error_maxlhs, argumentCount::tooManyOutputs);
  expect(matrix::detail::error_maxrhs, argumentCount::tooManyInputs);
  expect(matrix::detail::error_minrhs, argumentCount::tooFewInputs);
}

}  // namespace
}  // namespace zthalf::host

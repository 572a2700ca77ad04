// How errors and warnings reach a host: message identifiers, the host's exception classes, and what it does with them.
#pragma once

#include <string>
#include <utility>

#include "zthalf/detail/export.h"

namespace resource_core {

/// Names a message by the catalogue that it is in and its key there.
class BaseMsgID {
 public:
  BaseMsgID(char16_t const* catalogue, char16_t const* key) : catalogue_(catalogue), key_(key) {}

  std::u16string const& catalogue() const noexcept { return catalogue_; }
  std::u16string const& key() const noexcept { return key_; }

 private:
  std::u16string catalogue_, key_;
};

}  // namespace resource_core

namespace foundation::core::except {

/// What a host throws and catches.
class ZTHALF_API IException {
 public:
  IException() = default;
  IException(IException const&) = default;
  IException& operator=(IException const&) = default;
  virtual ~IException();

  /// The message, in the words of the host's catalogue.
  virtual char const* what() const noexcept;
};

/// One that a user of the host may see.
class ZTHALF_API IUserException : public IException {
 public:
  IUserException() = default;
  IUserException(IUserException const&) = default;
  IUserException& operator=(IUserException const&) = default;
  ~IUserException() override;
};

/// One that has a message identifier.
class ZTHALF_API IMsgIDException : public IUserException {
 public:
  IMsgIDException() = default;
  IMsgIDException(IMsgIDException const&) = default;
  IMsgIDException& operator=(IMsgIDException const&) = default;
  ~IMsgIDException() override;

  virtual resource_core::BaseMsgID const& message_id() const noexcept = 0;
  /// The identifier as text, such as "half:error:dimagree".
  virtual std::string const& error_id() const noexcept = 0;

  /// That text of any identifier.
  static std::string get_error_id(resource_core::BaseMsgID const& id);
};

/// An error of its own type: Tag tells it from all others, Standard is the standard class that it is caught as too.
template <class Tag, class Standard, class>
class ZTHALF_API Exception : public IMsgIDException, public Standard {
 public:
  explicit Exception(resource_core::BaseMsgID id) : id_(std::move(id)), errorID_(get_error_id(id_)) {}

  resource_core::BaseMsgID const& message_id() const noexcept override { return id_; }
  std::string const& error_id() const noexcept override { return errorID_; }
  /// The host's message, through either base.
  char const* what() const noexcept override { return IException::what(); }

 private:
  resource_core::BaseMsgID id_;
  std::string errorID_;
};

}  // namespace foundation::core::except

namespace matrix::detail {

/// The host's errors for too many outputs, too many inputs, too few inputs.
[[noreturn]] ZTHALF_API void error_maxlhs();
[[noreturn]] ZTHALF_API void error_maxrhs();
[[noreturn]] ZTHALF_API void error_minrhs();

/// Takes an error to the host, which leaves the call in its own manner. Where it returns, the error is thrown.
ZTHALF_API void do_legacy_vq_error(foundation::core::except::IUserException const& error);

}  // namespace matrix::detail

/// Brings up the host's warning with this identifier.
ZTHALF_API void vqWarningMsgId(resource_core::BaseMsgID const& id);

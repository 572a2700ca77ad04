// Errors of the embedded host: texts, the handler that a program may set, and wrong numbers of arguments.
#include <atomic>

#include "host/embedded/messages.h"
#include "zthalf/host/embedded.h"
#include "zthalf/host/exceptions.h"

namespace zthalf::embedded {

namespace {

std::atomic<host::errorHandler> handler{nullptr};

char const* textOf(host::argumentCount what) {
  switch (what) {
    case host::argumentCount::tooManyOutputs:
      return "Too many outputs are asked for.";
    case host::argumentCount::tooManyInputs:
      return "There are too many inputs.";
    default:
      return "There are too few inputs.";
  }
}

}  // namespace

}  // namespace zthalf::embedded

namespace zthalf::host {

errorHandler setErrorHandler(errorHandler handler) { return embedded::handler.exchange(handler); }

argumentCountError::argumentCountError(argumentCount what)
    : std::invalid_argument(embedded::textOf(what)), wrong_(what) {}
argumentCountError::~argumentCountError() = default;

}  // namespace zthalf::host

namespace foundation::core::except {

IException::~IException() = default;
IUserException::~IUserException() = default;
IMsgIDException::~IMsgIDException() = default;

// A message that the catalogue does not have is told by its identifier.
char const* IException::what() const noexcept {
  auto const* const named = dynamic_cast<IMsgIDException const*>(this);
  if (named == nullptr) return "An error without a message.";
  char const* const text = zthalf::embedded::messageOf(named->message_id());
  return text != nullptr ? text : named->error_id().c_str();
}

std::string IMsgIDException::get_error_id(resource_core::BaseMsgID const& id) {
  return zthalf::embedded::identifierOf(id);
}

}  // namespace foundation::core::except

namespace matrix::detail {

using zthalf::host::argumentCount;
using zthalf::host::argumentCountError;

void error_maxlhs() { throw argumentCountError(argumentCount::tooManyOutputs); }
void error_maxrhs() { throw argumentCountError(argumentCount::tooManyInputs); }
void error_minrhs() { throw argumentCountError(argumentCount::tooFewInputs); }

void do_legacy_vq_error(foundation::core::except::IUserException const& error) {
  if (auto* const handler = zthalf::embedded::handler.load()) handler(error);
}

}  // namespace matrix::detail

// The second host's exceptions.
#include "zthalf/host/exceptions.h"

namespace foundation::core::except {

IException::~IException() = default;
IUserException::~IUserException() = default;
IMsgIDException::~IMsgIDException() = default;

char const* IException::what() const noexcept { return "an error of the second host"; }

std::string IMsgIDException::get_error_id(resource_core::BaseMsgID const& id) {
  const std::u16string text = id.catalogue() + u":" + id.key();
  return std::string(text.begin(), text.end());
}

}  // namespace foundation::core::except

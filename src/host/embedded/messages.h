// The catalogue of messages of the embedded host.
#pragma once

#include <string>

#include "zthalf/host/exceptions.h"

namespace zthalf::embedded {

// The message with this identifier; null where there is none.
char const* messageOf(resource_core::BaseMsgID const& id) noexcept;
// The identifier as text, its parts joined by a colon.
std::string identifierOf(resource_core::BaseMsgID const& id);

}  // namespace zthalf::embedded

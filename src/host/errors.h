// How this library raises an error at the host.
#pragma once

#include "zthalf/host_errors.h"

namespace zthalf {

// The host is told first and leaves the call in its own manner; the error is thrown only where it comes back.
template <class Tag>
[[noreturn, gnu::cold, gnu::noinline]] void raise(char16_t const* key) {
  const half::error::exceptionOf<Tag> error(resource_core::BaseMsgID(u"half:error", key));
  matrix::detail::do_legacy_vq_error(error);
  throw error;
}

}  // namespace zthalf

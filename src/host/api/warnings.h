// The one warning that this library has, for any layer: it asks nothing of the others.
#pragma once

#include "zthalf/host/exceptions.h"

namespace zthalf {

// An operation of two arguments looks only at the real part of a complex one. Once for each element, whatever the
// imaginary part is; the host makes of it what it likes, and may throw.
inline void warnOfIgnoredImaginaryPart() {
  vqWarningMsgId(resource_core::BaseMsgID(u"half:error", u"ignoredImagPart"));
}

}  // namespace zthalf

// Marks for a host that loads and unloads the library.
#pragma once

#include "zthalf/detail/export.h"

/// Both may be called any number of times, on any thread, or never: the table is complete as soon as the library is
/// loaded, and no operation's result depends on these calls. Neither allocates, frees or fails. They are exported under
/// their plain C name, and under the C++ name too for a caller that declares them without `extern "C"`.
extern "C" {

/// Sets half_ptr::initialized.
ZTHALF_API void VLInitialize_half();

/// Notes that the host is done with the library. half_ptr::initialized stays as it is.
ZTHALF_API void VLTerminate_half();
}

// What a call has made and may leave behind, by thread.
#pragma once

#include "host/embedded/host_array.h"

namespace zthalf::embedded {

// Entered in the innermost zthalf::host::temporaries of the calling thread, if there is one.
void addTemporaryArray(hostArray& array);
void addTemporaryBuffer(bufferHead& buffer);

}  // namespace zthalf::embedded

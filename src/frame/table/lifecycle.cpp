#include "zthalf/lifecycle.h"

#include "zthalf/half_ptr.h"

namespace half_ptr {

// Plain bytes, written without synchronisation: every writer stores the same value.
unsigned char initialized = 0;

bool isInitialized() { return initialized != 0; }

int CPU_Dispatch(int) {
  initialized = 1;
  return 0;
}

}  // namespace half_ptr

namespace {
unsigned char terminated = 0;
}

void VLInitialize_half() {
  if (half_ptr::initialized == 0) half_ptr::initialized = 1;
}

void VLTerminate_half() {
  if (terminated == 0) terminated = 1;
}

// The same functions under the names that a C++ declaration gives them.
extern "C" {
ZTHALF_API void initializeUnderCxxName() __asm__("_Z17VLInitialize_halfv") __attribute__((alias("VLInitialize_half")));
ZTHALF_API void terminateUnderCxxName() __asm__("_Z16VLTerminate_halfv") __attribute__((alias("VLTerminate_half")));
}

/* A caller in C, which declares the two functions by itself, and asks for the version with the header that C can read. */
#include <zthalf/version.h>

extern void VLInitialize_half(void);
extern void VLTerminate_half(void);

void initialize_from_c(void) { VLInitialize_half(); }
int version_from_c(void) { return zthalf_version(); }
void terminate_from_c(void) { VLTerminate_half(); }

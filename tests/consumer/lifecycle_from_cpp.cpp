// A caller in C++ that declares the two functions without extern "C", and so links to their C++ names.
void VLInitialize_half();
void VLTerminate_half();

void initializeFromCpp() { VLInitialize_half(); }
void terminateFromCpp() { VLTerminate_half(); }

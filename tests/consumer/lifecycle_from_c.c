/* A caller in C, which declares the two functions by itself. */
extern void VLInitialize_half(void);
extern void VLTerminate_half(void);

void initialize_from_c(void) { VLInitialize_half(); }
void terminate_from_c(void) { VLTerminate_half(); }

# Cross build for 64-bit ARM; what it builds runs here under user-mode emulation. Debian packages:
# g++-aarch64-linux-gnu qemu-user-static libtbb-dev:arm64 googletest
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
# Programs run with the loader and the C library that oneTBB's package brings. The cross compiler's own copies under
# /usr/aarch64-linux-gnu serve to link: a loader of one and a C library of the other hang in the first thread created.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64-static)

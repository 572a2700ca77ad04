# Cross build for 64-bit ARM; what it builds runs here under user-mode emulation. Debian packages:
# g++-aarch64-linux-gnu qemu-user-static libtbb-dev:arm64 googletest
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64-static;-L;/usr/aarch64-linux-gnu;-E;LD_LIBRARY_PATH=/usr/lib/aarch64-linux-gnu:/usr/aarch64-linux-gnu/lib)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)

# Cross build for 64-bit POWER, little-endian; what it builds runs here under user-mode emulation. Debian packages:
# g++-powerpc64le-linux-gnu qemu-user-static libtbb-dev:ppc64el googletest
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ppc64le)
set(CMAKE_CXX_COMPILER powerpc64le-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE powerpc64le-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-ppc64le-static)  # as in aarch64.cmake

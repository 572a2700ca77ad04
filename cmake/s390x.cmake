# Cross build for s390x, big-endian; what it builds runs here under user-mode emulation. Debian packages:
# g++-s390x-linux-gnu qemu-user-static libtbb-dev:s390x googletest
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR s390x)
set(CMAKE_CXX_COMPILER s390x-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE s390x-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-s390x-static)  # as in aarch64.cmake

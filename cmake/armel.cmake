# The second leg of the tests: Linux on a 32-bit ARM without floating-point unit, run by qemu. Pointers and alignments are
# those of the device, so the record layouts are the real ones. Plain char is unsigned here, unlike on the device: no code
# may depend on it.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR armv4t)
set(CMAKE_C_COMPILER arm-linux-gnueabi-gcc)
set(CMAKE_CXX_COMPILER arm-linux-gnueabi-g++)
set(CMAKE_C_FLAGS_INIT "-march=armv4t -marm -mfloat-abi=soft")
set(CMAKE_CXX_FLAGS_INIT "${CMAKE_C_FLAGS_INIT} -Wno-psabi")
# A processor without VFP: a floating-point instruction would end the program. (The distribution's C library needs v5TE.)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm -cpu pxa250 -L /usr/arm-linux-gnueabi)
set(CMAKE_FIND_ROOT_PATH /usr/arm-linux-gnueabi)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

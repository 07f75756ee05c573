# Toolchain of the device: Windows CE on an ARM without floating-point unit. The bare-metal compiler of the distribution
# makes an ELF image, ce/link turns it into the DLL. ARMv4T in ARM mode runs on every such processor and has none of the
# instructions (LDRD, STRD) that trust an 8-byte aligned stack, which the platform does not keep.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_C_COMPILER arm-none-eabi-gcc)
set(CMAKE_CXX_COMPILER arm-none-eabi-g++)
set(CMAKE_ASM_COMPILER arm-none-eabi-gcc)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)  # nothing can be linked before the DLL's own glue is there

set(BARHATCH_CE ON)
# 0x1C0 (ARM) is what every ARM kernel loads; 0x1C2 (THUMB, used for ARMV4I) marks the same code for kernels of that name.
set(BARHATCH_CE_MACHINE 0x1c0 CACHE STRING "machine type in the DLL's header: 0x1c0 or 0x1c2")

set(architecture "-march=armv4t -marm -mfloat-abi=soft")
# The platform's types: char is signed, wchar_t has 16 bits, enumerations have 32.
set(types "-fsigned-char -fshort-wchar -fno-short-enums")
set(sections "-ffunction-sections -fdata-sections -fno-common -fno-asynchronous-unwind-tables -fno-unwind-tables")
# The compiler must not turn a call of the runtime into one that the runtime may not have (fprintf into fwrite).
set(calls "-fno-builtin-printf -fno-builtin-fprintf -fno-builtin-sprintf")
set(CMAKE_C_FLAGS_INIT "${architecture} ${types} ${sections} ${calls}")
# The platform's operator new returns null when there is no memory (-fcheck-new).
set(CMAKE_CXX_FLAGS_INIT "${CMAKE_C_FLAGS_INIT} -fno-exceptions -fno-rtti -fno-threadsafe-statics -fno-sized-deallocation -fcheck-new -Wno-psabi")
set(CMAKE_ASM_FLAGS_INIT "${architecture}")
set(CMAKE_CXX_FLAGS_RELEASE_INIT "-O2 -g -DNDEBUG")

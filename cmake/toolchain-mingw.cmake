# Cross compiling for Windows with MinGW-w64, in its flavour with standard threads:
#   cmake --preset dev -B build/windows --toolchain cmake/toolchain-mingw.cmake \
#         -DVERMANTO_PROGRAM=OFF -DVERMANTO_TESTS=OFF
# VERMANTO_WINDOWS_PROCESSOR is x86_64 or i686. The program must have the width of the link library that it is to load.

set(VERMANTO_WINDOWS_PROCESSOR x86_64 CACHE STRING "Processor of the Windows machine: x86_64 or i686")
# The checks of the compiler are projects of their own, and read this file too.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VERMANTO_WINDOWS_PROCESSOR)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${VERMANTO_WINDOWS_PROCESSOR})
set(_triple ${VERMANTO_WINDOWS_PROCESSOR}-w64-mingw32)
set(CMAKE_CXX_COMPILER ${_triple}-g++-posix)
set(CMAKE_RC_COMPILER ${_triple}-windres)

# The compiler's own libraries go into what is built, so that nothing of the compiler has to be handed out beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)

# Libraries and headers are those of the target, programs those of the machine that builds. Whoever has further
# libraries for the target, Qt among them, names their folder in CMAKE_PREFIX_PATH.
list(APPEND CMAKE_FIND_ROOT_PATH /usr/${_triple} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Where wine is there, CMake runs what it built with it.
find_program(VERMANTO_WINE wine)
if(VERMANTO_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${VERMANTO_WINE})
endif()

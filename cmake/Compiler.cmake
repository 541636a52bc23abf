# Warnings are errors everywhere; the sanitizers, the compiler cache and the quick linker are used where they are.

add_library(vermanto_warnings INTERFACE)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_compile_options(vermanto_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Werror
    -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
    -Wcast-qual -Wformat=2 -Wimplicit-fallthrough)
  # Where several files are compiled as one, a local name may well be one that another file has for itself.
  if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(vermanto_warnings INTERFACE -Wshadow=local)
  elseif(NOT CMAKE_UNITY_BUILD)
    target_compile_options(vermanto_warnings INTERFACE -Wshadow)
  endif()
  # GCC 12 takes std::string's own copying for an overlap when it optimises fully (its bug 105329); 13 does not.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(vermanto_warnings INTERFACE -Wno-restrict)
    # The same, once the library's headers come precompiled (its bug 105651); the second one in tests and releases only.
    target_compile_options(vermanto_warnings INTERFACE -Wno-array-bounds $<$<CONFIG:Release>:-Wno-stringop-overflow>)
    set(VERMANTO_TEST_WARNINGS -Wno-stringop-overflow)
  endif()
elseif(MSVC)
  target_compile_options(vermanto_warnings INTERFACE /W4 /WX /permissive- /utf-8)
endif()

if(VERMANTO_SANITIZE)
  add_compile_options(-fsanitize=${VERMANTO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${VERMANTO_SANITIZE})
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # It takes precompiled headers only where it is told not to be strict about their times and about macros.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE_PROGRAM})
endif()

if(UNIX)
  find_program(MOLD_PROGRAM mold)
  if(MOLD_PROGRAM)
    add_link_options(-fuse-ld=mold)
  endif()
endif()

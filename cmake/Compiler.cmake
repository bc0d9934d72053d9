set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # What ccache asks for before it keeps what is compiled with precompiled headers. None of our sources asks the time.
  set(CMAKE_CXX_COMPILER_LAUNCHER /usr/bin/env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion)
# Warnings are errors with the compiler that the program is built with; clang builds only the fuzz targets.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # -Wrestrict of g++ 12 accuses std::string's own assignment of a literal.
  add_compile_options(-Werror -Wno-restrict)
endif()

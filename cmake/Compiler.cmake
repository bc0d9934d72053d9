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
  # ccache requires these before it caches compilations with precompiled headers. No source uses the time macros.
  set(CMAKE_CXX_COMPILER_LAUNCHER /usr/bin/env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion)
# Warnings are errors with g++, which builds the program; clang builds only the fuzz targets.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # In g++ 12, -Wrestrict warns wrongly about assigning a literal to std::string.
  add_compile_options(-Werror -Wno-restrict)
endif()

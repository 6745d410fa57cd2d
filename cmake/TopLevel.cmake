# What only this project's own builds have.
option(TALVO_BUILD_TESTS "Build the tests" ON)
option(TALVO_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(TALVO_BUILD_FUZZERS "Build the fuzz targets (clang)" OFF)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

set(TALVO_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor -Werror)
include(Hardening)

if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_HOST_SYSTEM_PROCESSOR STREQUAL x86_64)
    include(I386Packages)
endif()

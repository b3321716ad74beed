option(VESK_BUILD_TESTS "Build the tests" ON)
option(VESK_BUILD_SKETCHER "Build the drawing program" ON)
option(VESK_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
option(VESK_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(VESK_FUZZ "Build the programs of tests/Fuzz (clang only)" OFF)
option(VESK_PACKAGES "Prepare Debian packages; see scripts/package" OFF)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# Libraries export only what their headers mark for export, so that they can be unloaded and replaced.
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release)
endif()

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

include(GNUInstallDirs)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

find_program(VESK_CCACHE ccache)
if(VESK_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${VESK_CCACHE}")
endif()

# Cross-building for 64-bit Windows from Linux with the MinGW-w64 toolchain
# (Debian: g++-mingw-w64-x86-64). The POSIX-threads flavour of the compiler
# is taken when present, as its libstdc++ has std::thread and std::mutex.
#
#   cmake -S . -B build-win -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-x86_64.cmake
#
# Tests run under Wine through cmake/wine-run.sh (Debian: wine64).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(MAPCFG_MINGW_TRIPLE x86_64-w64-mingw32)
find_program(CMAKE_C_COMPILER NAMES ${MAPCFG_MINGW_TRIPLE}-gcc-posix ${MAPCFG_MINGW_TRIPLE}-gcc REQUIRED)
find_program(CMAKE_CXX_COMPILER NAMES ${MAPCFG_MINGW_TRIPLE}-g++-posix ${MAPCFG_MINGW_TRIPLE}-g++ REQUIRED)
find_program(CMAKE_RC_COMPILER NAMES ${MAPCFG_MINGW_TRIPLE}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${MAPCFG_MINGW_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Programs built here run under Wine, with the compiler's runtime DLLs on
# Wine's search path.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine-run.sh)

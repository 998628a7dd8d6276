# Windows code built here with mingw-w64 (the -posix compilers: C++ threads); its programs run under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(ORY_MINGW x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ORY_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ORY_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${ORY_MINGW}-windres)
set(CMAKE_AR ${ORY_MINGW}-gcc-ar-posix CACHE FILEPATH "")
set(CMAKE_RANLIB ${ORY_MINGW}-gcc-ranlib-posix CACHE FILEPATH "")

# What the caller names as a prefix is searched as it stands.
set(CMAKE_FIND_ROOT_PATH /usr/${ORY_MINGW} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The wrapper gives Wine a home inside the build tree and the folders of the compiler's own DLLs.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine)

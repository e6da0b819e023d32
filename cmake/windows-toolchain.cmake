# Builds for Windows on Debian: mingw-w64 with POSIX threads, as std::thread needs them, and a Qt for Windows in the
# folder that the environment names (VELDRIN_QT_WINDOWS). Qt's own tools are the host's.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# The folder is kept, so that a build that configures itself anew needs no environment.
set(VELDRIN_QT_WINDOWS "$ENV{VELDRIN_QT_WINDOWS}" CACHE PATH "The folder of Qt for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VELDRIN_QT_WINDOWS)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 "${VELDRIN_QT_WINDOWS}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR "/usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake")
set(Qt6_DIR "${VELDRIN_QT_WINDOWS}/lib/cmake/Qt6")

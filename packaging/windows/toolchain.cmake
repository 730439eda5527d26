# SPDX-License-Identifier: GPL-3.0-or-later
# Builds for 64-bit Windows with Debian's cross compiler. The libraries for Windows are where the
# variable ODMIENNIK_WINDOWS_LIBRARIES of the environment says (packaging/windows/build_libraries).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(tools /usr/bin/x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${tools}-gcc-posix)
set(CMAKE_CXX_COMPILER ${tools}-g++-posix)
set(CMAKE_RC_COMPILER ${tools}-windres)
set(CMAKE_AR ${tools}-gcc-ar-posix CACHE FILEPATH "")
set(CMAKE_RANLIB ${tools}-gcc-ranlib-posix CACHE FILEPATH "")

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
if(NOT "$ENV{ODMIENNIK_WINDOWS_LIBRARIES}" STREQUAL "")
  list(PREPEND CMAKE_FIND_ROOT_PATH $ENV{ODMIENNIK_WINDOWS_LIBRARIES})
endif()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# What makes Qt's sources into code runs here and is this system's own Qt.
set(QT_HOST_PATH /usr CACHE PATH "")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH "")

# The compiler's own libraries go into the program: no other file is needed to start it.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")

# The build asks test programs which tests they have.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine)

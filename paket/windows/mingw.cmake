# Cross-compiling for 64-bit Windows with Debian's g++-mingw-w64-x86-64-posix. Everything found comes from the folder
# of our own libraries (ZRW_WINDOWS, see bibliotheken.sh), nothing from the system that builds.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZRW_WINDOWS)
if(NOT ZRW_WINDOWS)
  if(DEFINED ENV{ZRW_WINDOWS})
    set(ZRW_WINDOWS $ENV{ZRW_WINDOWS})
  elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(ZRW_WINDOWS $ENV{XDG_CACHE_HOME}/zarwik-windows)
  else()
    set(ZRW_WINDOWS $ENV{HOME}/.cache/zarwik-windows)
  endif()
endif()
set(CMAKE_FIND_ROOT_PATH ${ZRW_WINDOWS}/wurzel ${ZRW_WINDOWS}/qt /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# What is built runs here under wine.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine)

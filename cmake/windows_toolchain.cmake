# Builds for 64-bit Windows with Debian's MinGW. tools/windows/libraries copies this file into the folder
# that the libraries for Windows are installed into, and finds them beside it.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The compilers whose std::thread is made with POSIX threads; those with -win32 have none.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Programs are Linux's, everything else is Windows'.
set(CMAKE_FIND_ROOT_PATH ${CMAKE_CURRENT_LIST_DIR} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${CMAKE_CURRENT_LIST_DIR}/lib/pkgconfig)

# The program is one file: no library of the compiler's lies beside it.
set(OPENSSL_USE_STATIC_LIBS ON)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

# Builds for 64-bit Windows on Debian, and runs there what was built: under Wine, in a Windows of this build
# folder's own, without a display. Programs need nothing beside themselves.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The compiler whose standard library has threads, which std::filesystem and GoogleTest ask for.
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

# Libraries and headers are Windows's own, programs that help to build are not.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The package of the 64-bit loader puts it on no search path. The parts of Wine for menus, .NET and HTML are
# not wanted: they would make entries in the user's menu, or ask whether to fetch something.
find_program(TESSALOOM_WINE wine64 PATHS /usr/lib/wine REQUIRED)
set(CMAKE_CROSSCOMPILING_EMULATOR
  ${CMAKE_COMMAND} -E env --unset=DISPLAY WINEPREFIX=${CMAKE_BINARY_DIR}/wine WINEDEBUG=-all
  "WINEDLLOVERRIDES=winemenubuilder.exe,mscoree,mshtml=d" ${TESSALOOM_WINE})

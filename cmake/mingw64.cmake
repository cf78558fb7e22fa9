# Cross-building for 64-bit Windows with the compilers of Debian. AMBERTASK_WINDOWS_ROOTS: folders with libraries for it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(target x86_64-w64-mingw32)
# std::thread needs the variant with posix threads.
set(CMAKE_C_COMPILER ${target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)

# Two builds make the same bytes.
foreach(kind IN ITEMS EXE MODULE SHARED)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT -Wl,--no-insert-timestamp)
endforeach()

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES AMBERTASK_WINDOWS_ROOTS)
set(CMAKE_FIND_ROOT_PATH /usr/${target} ${AMBERTASK_WINDOWS_ROOTS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Cross build for 64-bit Windows with the posix-thread flavour of mingw-w64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(ZEM_MINGW_PREFIX x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ZEM_MINGW_PREFIX}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ZEM_MINGW_PREFIX}-g++-posix)
set(CMAKE_RC_COMPILER ${ZEM_MINGW_PREFIX}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${ZEM_MINGW_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

# Tests and tools run under Wine through the launcher of this tree.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/wine-run)

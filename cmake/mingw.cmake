# Windows with MinGW-w64: what both word sizes share. The posix thread variant is the one with
# the threads of the standard library; everything of the runtime is linked in, so that a binary
# asks for system libraries only.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${DOCHTML_MINGW_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${DOCHTML_MINGW_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${DOCHTML_MINGW_TRIPLE}-windres)
set(CMAKE_AR ${DOCHTML_MINGW_TRIPLE}-gcc-ar-posix)
set(CMAKE_RANLIB ${DOCHTML_MINGW_TRIPLE}-gcc-ranlib-posix)
set(DOCHTML_WIDL ${DOCHTML_MINGW_TRIPLE}-widl)
set(DOCHTML_OBJDUMP ${DOCHTML_MINGW_TRIPLE}-objdump)

# Without the time of the build, so that the same sources make the same bytes.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-static")

set(CMAKE_FIND_ROOT_PATH /usr/${DOCHTML_MINGW_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Programs run under Wine, in a prefix of the build's own.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/run-wine.sh ${CMAKE_BINARY_DIR}/wine)

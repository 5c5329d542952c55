# 32-bit Windows with MinGW-w64, on a Debian machine.
set(DOCHTML_MINGW_TRIPLE i686-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)

# Cross compiler for 32-bit Windows.
set(CMAKE_SYSTEM_PROCESSOR X86)
set(mingw i686-w64-mingw32)
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")

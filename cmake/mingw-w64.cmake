# Cross build for 64-bit Windows with Debian's MinGW-w64; tests run under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Address randomisation off where the personality can be set: see kes_fixed_layout in
# tools/setup.sh.
execute_process(COMMAND setarch -R true RESULT_VARIABLE kes_setarch ERROR_QUIET)
if(kes_setarch EQUAL 0)
  set(CMAKE_CROSSCOMPILING_EMULATOR setarch;-R;wine)
else()
  set(CMAKE_CROSSCOMPILING_EMULATOR wine)
endif()

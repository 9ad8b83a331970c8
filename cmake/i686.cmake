# 32-bit Linux on i686, with Debian's g++-i686-linux-gnu.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_COMPILER i686-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER i686-linux-gnu-g++)
# Programs run natively on x86-64 with the 32-bit libraries of the compiler, or in an emulator if the kernel runs only
# 64-bit programs.
set(CMAKE_EXE_LINKER_FLAGS_INIT
  "-Wl,--dynamic-linker=/usr/i686-linux-gnu/lib/ld-linux.so.2 -Wl,-rpath,/usr/i686-linux-gnu/lib")
execute_process(COMMAND /usr/i686-linux-gnu/lib/ld-linux.so.2 --version RESULT_VARIABLE fails OUTPUT_QUIET ERROR_QUIET)
if(NOT fails EQUAL 0)
  set(CMAKE_CROSSCOMPILING_EMULATOR qemu-i386)
endif()
set(CMAKE_FIND_ROOT_PATH /usr/i686-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

# Cross build for Windows: KESTREL_WINDOWS_ARCH is x86_64 (the default) or i686.  tools/windows-libraries builds the
# libraries of the target and says where they are.
set(CMAKE_SYSTEM_NAME Windows)
if(NOT KESTREL_WINDOWS_ARCH)
  set(KESTREL_WINDOWS_ARCH x86_64)
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KESTREL_WINDOWS_ARCH KESTREL_WINDOWS_LIBRARIES)
set(CMAKE_SYSTEM_PROCESSOR ${KESTREL_WINDOWS_ARCH})

set(target ${KESTREL_WINDOWS_ARCH}-w64-mingw32)
# The variant with POSIX threads: the other one has no std::mutex.
set(CMAKE_C_COMPILER ${target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)

set(CMAKE_FIND_ROOT_PATH ${KESTREL_WINDOWS_LIBRARIES} /usr/${target})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
if(KESTREL_WINDOWS_LIBRARIES)
  set(wxWidgets_CONFIG_EXECUTABLE ${KESTREL_WINDOWS_LIBRARIES}/bin/wx-config)
endif()

# Toolchain file: programs for Windows by Debian's g++-mingw-w64-x86-64-posix, with the libraries that
# tools/windows/build-deps has built, all linked statically: a program needs the system's DLLs only.
# The variable PLINKETT_WINDOWS_DEPS (of CMake, else of the environment) names their folder.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)
# Without the time in it a program is the same whenever it is linked.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")

if(NOT PLINKETT_WINDOWS_DEPS)
  if(DEFINED ENV{PLINKETT_WINDOWS_DEPS})
    set(PLINKETT_WINDOWS_DEPS $ENV{PLINKETT_WINDOWS_DEPS})
  else()
    get_filename_component(PLINKETT_WINDOWS_DEPS ${CMAKE_CURRENT_LIST_DIR}/../out/deps-windows ABSOLUTE)
  endif()
  set(PLINKETT_WINDOWS_DEPS ${PLINKETT_WINDOWS_DEPS} CACHE PATH "What build-deps has built")
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES PLINKETT_WINDOWS_DEPS)

# Libraries and headers are those for Windows, programs those of this machine.
set(CMAKE_FIND_ROOT_PATH ${PLINKETT_WINDOWS_DEPS} /usr/${triple})
set(CMAKE_PREFIX_PATH ${PLINKETT_WINDOWS_DEPS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${PLINKETT_WINDOWS_DEPS}/lib/pkgconfig:/usr/${triple}/lib/pkgconfig)
set(ENV{PKG_CONFIG_PATH} "")
set(Qt5LinguistTools_DIR /usr/lib/x86_64-linux-gnu/cmake/Qt5LinguistTools)

set(PLINKETT_QT_TRANSLATIONS /usr/share/qt5/translations)

# Qt and libtiff do not tell that they need zlib; it stands behind everything that does.
set(CMAKE_CXX_STANDARD_LIBRARIES
    "-l:libz.a -lkernel32 -luser32 -lgdi32 -lwinspool -lshell32 -lole32 -loleaut32 -luuid -lcomdlg32 -ladvapi32")

# The DLL would be found first.
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libgomp.a
                OUTPUT_VARIABLE OpenMP_gomp_LIBRARY OUTPUT_STRIP_TRAILING_WHITESPACE)
set(OpenMP_gomp_LIBRARY ${OpenMP_gomp_LIBRARY} CACHE FILEPATH "GNU OpenMP, static")

# Tests run under Wine.
get_filename_component(emulator ${CMAKE_CURRENT_LIST_DIR}/../tools/windows/under-wine ABSOLUTE)
set(CMAKE_CROSSCOMPILING_EMULATOR ${emulator})

# The warnings that all of our code is built with.
add_library(plinkett_warnings INTERFACE)
target_compile_options(plinkett_warnings INTERFACE
  $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                 -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wno-format-nonliteral>
  $<$<CXX_COMPILER_ID:MSVC>:/W4 /utf-8>)

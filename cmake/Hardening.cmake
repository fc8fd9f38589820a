# The protection of compiler, linker and system against overwritten memory: checked copies, a guard on
# the stack, programs that lie elsewhere each time, and tables of the loader that are read-only before
# the first line of ours runs. For the programs that authors use (preset release).
option(PLINKETT_HARDENED "Build with protection against overwritten memory" OFF)

add_library(plinkett_hardening INTERFACE)
if(UNIX)
  target_compile_options(plinkett_hardening INTERFACE
    -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fPIE)
  target_link_options(plinkett_hardening INTERFACE -pie -Wl,-z,relro -Wl,-z,now)
endif()

if(PLINKETT_HARDENED)
  link_libraries(plinkett_hardening)
endif()

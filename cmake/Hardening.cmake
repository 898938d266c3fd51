# What makes faults in memory end a program instead of being of use to somebody: a place in memory
# that can't be guessed, tables of addresses that can't be written, guarded stacks, checked calls of
# the C library, and no code on the stack.
include(CheckPIESupported)
include(CheckCXXSourceCompiles)
check_pie_supported()

add_compile_options(-fstack-protector-strong)
add_link_options(LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)

# The checked calls need an optimizing compiler, and sanitizers have checks of their own.
check_cxx_source_compiles("#ifdef _FORTIFY_SOURCE\n#error\n#endif\nint main() {}"
                          VORLANE_NOT_FORTIFIED)
if(VORLANE_NOT_FORTIFIED AND NOT VORLANE_SANITIZE)
  add_compile_options($<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=3>)
endif()

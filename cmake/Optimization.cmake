# A release runs on any processor of its architecture; the kernels choose when they run what they
# use of the one at hand (src/foundation/Processor_level.h). VORLANE_NATIVE compiles everything for
# the processor of this machine. Floating-point operations are never fused: results have to be the
# same on every machine.
option(VORLANE_NATIVE "Compile a release for the processor of this machine only" OFF)
add_compile_options(-ffp-contract=off)
if(VORLANE_NATIVE AND NOT VORLANE_SANITIZE AND CMAKE_BUILD_TYPE STREQUAL "Release")
  include(CheckCXXCompilerFlag)
  check_cxx_compiler_flag(-march=native VORLANE_HAS_NATIVE)
  if(VORLANE_HAS_NATIVE)
    add_compile_options(-march=native)
  endif()
endif()

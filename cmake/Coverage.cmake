# Counters of what runs, for scripts that tell how much of the code the tests reach. Needs clang:
# its counters are written by each process at its end, into a file of its own, so that tests which
# kill a process lose that one's counts only.
option(VORLANE_COVERAGE "Count which code runs (needs clang)" OFF)
if(VORLANE_COVERAGE)
  add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
endif()

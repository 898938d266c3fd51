# cmake -DOBJDUMP=... -DPROGRAM=... -P Processor_levels.cmake: fails if a program for any x86-64
# processor holds instructions that only some have anywhere but in the versions of kernels that are
# made for these (Run_bit_count, Run_wide), or if g++ has put none into these.
execute_process(COMMAND ${OBJDUMP} -d --no-show-raw-insn ${PROGRAM} OUTPUT_VARIABLE code
                COMMAND_ERROR_IS_FATAL ANY)
set(newer "\t(v[a-z0-9]+ [^\n]*%[xyz]mm|(popcnt|lzcnt|andn|bzhi|shlx|shrx|sarx|mulx|rorx|pdep|pext) )")
string(REPLACE ";" ":" code "${code}")
string(REGEX REPLACE "\n\n" ";" functions "${code}")
set(versions 0)
foreach(function IN LISTS functions)
  if(function MATCHES "${newer}")
    string(REGEX MATCH "<[^>]+>:" name "${function}")
    if(NOT name MATCHES "Run_bit_count|Run_wide")
      message(FATAL_ERROR "${name} does not run on every processor: ${CMAKE_MATCH_1}")
    endif()
    math(EXPR versions "${versions} + 1")
  endif()
endforeach()
if(versions EQUAL 0)
  message(FATAL_ERROR "no kernel uses what newer processors offer")
endif()

# cmake -DNM=... -DENGINE=LIBRARY -DHELPERS=OBJECT -P Same_names.cmake: fails if the helpers of the
# tests have an inline function under the name of a function of the engine. Linked together, one of
# the two would take the place of the other without a word.
cmake_minimum_required(VERSION 3.25)

function(symbols out file types)
  execute_process(COMMAND ${NM} --defined-only --format=posix ${file}
                  OUTPUT_VARIABLE lines COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "_Z[^\n ]+ [${types}] " lines "${lines}")
  list(TRANSFORM lines REPLACE " .*" "")
  set(${out} ${lines} PARENT_SCOPE)
endfunction()

symbols(strong ${ENGINE} TDBR)
symbols(weak ${HELPERS} WVu)
if(NOT weak MATCHES "Linked_groups")
  message(FATAL_ERROR "the helpers are not there")
endif()
foreach(name IN LISTS weak)
  if(name IN_LIST strong)
    message(SEND_ERROR "the tests define ${name} too")
  endif()
endforeach()

# cmake -DNM=... -DLIBRARY=... -P Exports.cmake: fails unless the library exports the Java entries
# and nothing else, and leaves no destructors for the end of the process.
execute_process(COMMAND ${NM} -D --defined-only --format=just-symbols ${LIBRARY}
                OUTPUT_VARIABLE exports COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" exports "${exports}")
list(TRANSFORM exports REPLACE "^Java_zumo_community_" "")
list(SORT exports)
set(entries cliques close exactCliqueCount names next open openLinks readProgress report stop)
list(TRANSFORM entries PREPEND "Analysis_")
foreach(entry Find_1coms Read_1error_1message Read_1state_1report Reset_1stop_1process Stop_1at_1once
              Stop_1process failureKind findAndLoadComs loadComs setJobs)
  list(APPEND entries ExternalCalls_${entry})
endforeach()
foreach(entry close finish gather isGathered levels levelsLeft open plan search searchLeft stop)
  list(APPEND entries Parts_${entry})
endforeach()
if(NOT exports STREQUAL entries)
  message(FATAL_ERROR "exported: ${exports}")
endif()

execute_process(COMMAND ${NM} -D --undefined-only --format=just-symbols ${LIBRARY}
                OUTPUT_VARIABLE imports COMMAND_ERROR_IS_FATAL ANY)
if(imports MATCHES "__cxa_atexit")
  message(FATAL_ERROR "variables are destroyed while threads may use them")
endif()

# cmake -DNM=... -DLIBRARY=... -DC_LIBRARY=... -DC_HEADER=... -P Exports.cmake: fails unless the shared
# libraries export what the public headers declare, and nothing of what lies behind them.
execute_process(COMMAND ${NM} -DC --defined-only --format=just-symbols ${LIBRARY}
                OUTPUT_VARIABLE exports COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE ";" "," exports "${exports}")
string(REGEX MATCHALL "[^\n]+" exports "${exports}")
foreach(name "vorlane::Find(" "vorlane::Network::Builder::Add(" "typeinfo for vorlane::Error")
  string(FIND "${exports}" "${name}" place)
  if(place EQUAL -1)
    message(SEND_ERROR "not exported: ${name}")
  endif()
endforeach()
list(FILTER exports EXCLUDE REGEX
     "^(vorlane::[A-Z]|(typeinfo|typeinfo name|vtable) for vorlane::Error@|VORLANE_1)")
if(exports)
  message(SEND_ERROR "exported: ${exports}")
endif()

execute_process(COMMAND ${NM} -D --defined-only --format=just-symbols ${C_LIBRARY}
                OUTPUT_VARIABLE exports COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "vorlane[a-z_]+" exports "${exports}")
file(READ ${C_HEADER} header)
string(REGEX REPLACE "/\\*[^*]*\\*/" "" header "${header}")
string(REGEX MATCHALL "vorlane[a-z_]+\\(" declared "${header}")
list(TRANSFORM declared REPLACE "\\(" "")
list(REMOVE_DUPLICATES declared)
list(SORT declared)
list(SORT exports)
if(NOT exports STREQUAL declared)
  message(SEND_ERROR "exported: ${exports}; declared: ${declared}")
endif()

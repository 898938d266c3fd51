# cmake -DSOURCE=... -DBINARY=... -DGENERATOR=... -DCOMPILER=... -P check.cmake: configures the
# project here, compiles its own code, and looks at how which code is compiled.
file(REMOVE_RECURSE ${BINARY})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE}/tests/package -B ${BINARY} -G ${GENERATOR}
                        -DCMAKE_CXX_COMPILER=${COMPILER} -DVORLANE_SOURCE=${SOURCE}
                COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BINARY} --target consumer_code
                COMMAND_ERROR_IS_FATAL ANY)

file(STRINGS ${BINARY}/compile_commands.json commands REGEX "\"command\":" ENCODING UTF-8)
foreach(command IN LISTS commands)
  if(command MATCHES "consumer")
    set(options_of_ours -O -W -f -D_)
  elseif(command MATCHES " -O3 ")
    set(options_of_ours -Werror)
  else()
    message(SEND_ERROR "slow: ${command}")
  endif()
  foreach(option IN LISTS options_of_ours)
    if(command MATCHES " ${option}")
      message(SEND_ERROR "${option} has no place in ${command}")
    endif()
  endforeach()
endforeach()

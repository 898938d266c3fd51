# cmake -DREADELF=... -DBINARY=... -P Hardening.cmake: fails unless the program or shared library is
# hardened in each of these ways.
execute_process(COMMAND ${READELF} --wide --file-header --program-headers --dynamic --dyn-syms
                        ${BINARY}
                OUTPUT_VARIABLE facts COMMAND_ERROR_IS_FATAL ANY)

function(expect what pattern)
  if(NOT facts MATCHES "${pattern}")
    message(SEND_ERROR "${BINARY}: no ${what}")
  endif()
endfunction()

expect("place of its own choice" "Type: +DYN ")
expect("tables that can't be written" "GNU_RELRO")
expect("binding at the start" "FLAGS_1\\) +Flags: [^\n]*NOW")
expect("stack without code" "GNU_STACK[^\n]* RW ")
expect("guarded stack" "__stack_chk_fail")
expect("checked calls of the C library" "UND __[a-z]+_chk")

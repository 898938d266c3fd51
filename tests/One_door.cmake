# cmake -DNM=... -DENGINE=LIBRARY -P One_door.cmake: fails if any unit of the engine but File_system
# calls the system, or the standard library, for a file or a directory. What is done to
# a path as a text is no such call.
cmake_minimum_required(VERSION 3.25)
set(calls open openat creat fopen fdopen freopen read readv pread readlink write writev pwrite close
          fsync fdatasync sync syncfs stat fstat lstat fstatat statx statvfs fstatvfs access
          faccessat mkdir mkdirat mkstemp mkdtemp rename renameat remove unlink unlinkat rmdir link
          symlink opendir fdopendir readdir closedir scandir nftw glob mmap munmap truncate ftruncate
          getcwd chdir realpath chmod fchmod)
set(touching "absolute|canonical|copy|create|current|director|equivalent|exists|size|permi|read"
             "remove|rename|space|status|symlink|temp|write")
list(JOIN touching "|" touching)
set(library "^_ZN?K?St10filesystem[^ ]*(${touching})" "^_ZN?K?St[0-9]*basic_[io]?f(ilebuf|stream)")

execute_process(COMMAND ${NM} --undefined-only --format=posix ${ENGINE}
                OUTPUT_VARIABLE lines COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "[" ":" lines "${lines}")  # brackets would hold list items together
string(REPLACE "]" "" lines "${lines}")
string(REGEX MATCHALL "[^\n]+" lines "${lines}")
set(found)
foreach(line IN LISTS lines)
  if(line MATCHES ":(.*):$")
    set(unit ${CMAKE_MATCH_1})
    continue()
  endif()
  string(REGEX REPLACE "(@| ).*" "" name "${line}")
  string(REGEX REPLACE "^__|_chk$|_2$|64$" "" call "${name}")
  foreach(form IN LISTS library)
    if(name MATCHES "${form}")
      list(APPEND calls ${call})
    endif()
  endforeach()
  if(call IN_LIST calls)
    list(APPEND found ${unit})
    if(NOT unit MATCHES "^File_system\\.")
      message(SEND_ERROR "${unit} calls ${name}")
    endif()
  endif()
endforeach()
if(NOT found)
  message(FATAL_ERROR "the door is not there")
endif()

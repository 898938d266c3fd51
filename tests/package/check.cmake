# cmake -DSOURCE=... -DBINARY=... -DGENERATOR=... -DCOMPILER=... [-DBUILD=...] -P check.cmake: takes
# the project as others do and looks at what they get. With BUILD, a build folder, what is installed
# from there into a prefix of its own: by find_package and pkg-config; without, the sources: by
# add_subdirectory and FetchContent, whose own code is compiled.
file(REMOVE_RECURSE ${BINARY})
file(STRINGS ${SOURCE}/include/vorlane/version.h version REGEX "^#define VORLANE_VERSION \"")
string(REGEX REPLACE ".*\"(.*)\"" "\\1" version "${version}")

function(run)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output COMMAND_ECHO STDOUT ECHO_OUTPUT_VARIABLE
                  COMMAND_ERROR_IS_FATAL ANY)
  set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect_answer)
  run(${ARGN})
  if(NOT output STREQUAL "${version}: 1 community\n")
    message(SEND_ERROR "${ARGN} printed: ${output}")
  endif()
endfunction()

function(configure how compiler)
  run(${CMAKE_COMMAND} -S ${SOURCE}/tests/package -B ${BINARY}/${how} -G ${GENERATOR} -DHOW=${how}
      -DCMAKE_CXX_COMPILER=${compiler} -DVORLANE_SOURCE=${SOURCE} -DCMAKE_PREFIX_PATH=${BINARY}/to)
endfunction()

function(check_installed)
  run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${BINARY}/from)
  file(RENAME ${BINARY}/from ${BINARY}/to)  # an installation can be moved
  set(compilers ${COMPILER})
  find_program(clang clang++)
  if(clang)
    list(APPEND compilers ${clang})
  endif()
  foreach(compiler IN LISTS compilers)
    file(REMOVE_RECURSE ${BINARY}/find_package)
    configure(find_package ${compiler})
    run(${CMAKE_COMMAND} --build ${BINARY}/find_package)
    expect_answer(${BINARY}/find_package/consumer)
    expect_answer(${BINARY}/find_package/consumer_static)
    expect_answer(${BINARY}/find_package/consumer_c)
  endforeach()

  # What the README shows: its project, with its first program.
  file(COPY_FILE ${BUILD}/examples/readme_file.cpp ${BUILD}/examples/readme_package/communities.cpp)
  run(${CMAKE_COMMAND} -S ${BUILD}/examples/readme_package -B ${BINARY}/readme -G ${GENERATOR}
      -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_PREFIX_PATH=${BINARY}/to)
  run(${CMAKE_COMMAND} --build ${BINARY}/readme)

  file(GLOB_RECURSE pc ${BINARY}/to/*/vorlane.pc)
  cmake_path(GET pc PARENT_PATH pc_dir)
  set(ENV{PKG_CONFIG_PATH} ${pc_dir})
  find_program(pkg_config pkg-config)
  if(pkg_config)
    run(${pkg_config} --cflags --libs vorlane)
    separate_arguments(flags UNIX_COMMAND "${output}")
    cmake_path(GET pc_dir PARENT_PATH lib_dir)
    run(${COMPILER} -std=c++20 ${SOURCE}/tests/package/consumer.cpp ${flags} -Wl,-rpath,${lib_dir}
        -o ${BINARY}/consumer)
    expect_answer(${BINARY}/consumer)
    run(${pkg_config} --static --cflags --libs vorlane)
    string(REPLACE "-lvorlane" "-l:libvorlane.a" output "${output}")
    separate_arguments(flags UNIX_COMMAND "${output}")
    run(${COMPILER} -std=c++20 ${SOURCE}/tests/package/consumer.cpp ${flags}
        -o ${BINARY}/consumer_of_archive)
    expect_answer(${BINARY}/consumer_of_archive)
    run(${pkg_config} --cflags --libs vorlane_c)
    separate_arguments(flags UNIX_COMMAND "${output}")
    run(cc -std=c99 ${SOURCE}/tests/package/consumer.c ${flags} -Wl,-rpath,${lib_dir}
        -o ${BINARY}/consumer_c)
    expect_answer(${BINARY}/consumer_c)
  else()
    message("pkg-config is not here, so it was not tried")
  endif()
  foreach(file bin/vorlane share/man/man1/vorlane.1 include/vorlane/vorlane.h include/vorlane_c.h)
    if(NOT EXISTS ${BINARY}/to/${file})
      message(SEND_ERROR "${file} is not installed")
    endif()
  endforeach()
endfunction()

# The including project's own code is compiled as it likes, the library's is fast.
function(check_commands how)
  file(STRINGS ${BINARY}/${how}/compile_commands.json commands REGEX "\"command\":" ENCODING UTF-8)
  foreach(command IN LISTS commands)
    if(command MATCHES "consumer.cpp")
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
endfunction()

if(DEFINED BUILD)
  check_installed()
  return()
endif()
foreach(how IN ITEMS add_subdirectory FetchContent)
  configure(${how} ${COMPILER})
  check_commands(${how})
  run(${CMAKE_COMMAND} --build ${BINARY}/${how} --target consumer_code)
endforeach()

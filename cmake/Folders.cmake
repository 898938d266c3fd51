# One object library per folder of src/, rooms inside it included. The objects of a folder and of all folders above it make
# a trial program: if a folder uses one that stands below it, that program does not link.

set(VORLANE_FOLDERS "" CACHE INTERNAL "folders declared so far, from the ground up")

# The objects of a folder and of all that it may use.
function(vorlane_objects out name)
  set(objects)
  foreach(folder IN LISTS VORLANE_USED_BY_${name} ITEMS ${name})
    list(APPEND objects $<TARGET_OBJECTS:folder_${folder}>)
  endforeach()
  set(${out} ${objects} PARENT_SCOPE)
endfunction()

# What the objects of a folder, and of all that it may use, are linked with.
function(vorlane_libraries out name)
  set(libraries Threads::Threads)
  foreach(folder IN LISTS VORLANE_USED_BY_${name} ITEMS ${name})
    list(APPEND libraries ${VORLANE_LIBRARIES_OF_${folder}})
  endforeach()
  set(${out} ${libraries} PARENT_SCOPE)
endfunction()

# vorlane_folder(NAME [BESIDE FOLDER...] [IN DIRECTORY] [LINKED LIBRARY...]): it may use the folders
# declared before, but for those that it stands beside. A directory of the project other than
# src/NAME has to be told, and libraries that it needs.
function(vorlane_folder name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "IN" "BESIDE;LINKED")
  if(NOT arg_IN)
    set(arg_IN src/${name})
  endif()
  set(used ${VORLANE_FOLDERS})
  if(arg_BESIDE)
    list(REMOVE_ITEM used ${arg_BESIDE})
  endif()
  set(VORLANE_USED_BY_${name} ${used} CACHE INTERNAL "")
  set(VORLANE_LIBRARIES_OF_${name} ${arg_LINKED} CACHE INTERNAL "")

  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${arg_IN}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$|/module/")
  add_library(folder_${name} OBJECT ${sources})
  target_include_directories(folder_${name} PUBLIC ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/src
                             ${PROJECT_SOURCE_DIR})
  target_link_libraries(folder_${name} PRIVATE ${arg_LINKED})

  set(VORLANE_FOLDERS ${VORLANE_FOLDERS} ${name} CACHE INTERNAL "")
  # Whether they link is the same in every build; those of the checks have enough to do.
  if(NOT PROJECT_IS_TOP_LEVEL OR VORLANE_SANITIZE OR VORLANE_COVERAGE)
    return()
  endif()
  vorlane_objects(objects ${name})
  file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/layers/${name}.cpp CONTENT "int main() {}\n")
  vorlane_libraries(libraries ${name})
  add_executable(layer_${name} ${PROJECT_BINARY_DIR}/layers/${name}.cpp ${objects})
  target_link_libraries(layer_${name} PRIVATE ${libraries})
  set_target_properties(layer_${name} PROPERTIES
                        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/layers)
endfunction()

# vorlane_library(NAME STATIC|SHARED TOP): libvorlane of the folder TOP and those that it uses. Who
# links it sees the public headers; a shared one exports nothing but what they declare.
function(vorlane_library name kind top)
  vorlane_objects(objects ${top})
  add_library(${name} ${kind} ${objects})
  target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
                                            $<INSTALL_INTERFACE:include>)
  target_compile_features(${name} PUBLIC cxx_std_20)
  vorlane_libraries(libraries ${top})
  target_link_libraries(${name} PUBLIC Threads::Threads PRIVATE ${libraries})
  set_target_properties(${name} PROPERTIES OUTPUT_NAME vorlane VERSION ${PROJECT_VERSION}
                                           SOVERSION ${PROJECT_VERSION_MAJOR})
  if(kind STREQUAL SHARED)
    set(exports ${PROJECT_SOURCE_DIR}/src/face/exports.map)
    set_target_properties(${name} PROPERTIES LINK_DEPENDS ${exports}
                                             LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
    target_link_options(${name} PRIVATE LINKER:--version-script=${exports} LINKER:--no-undefined)
  endif()
endfunction()

# The operations of the command line, for programs that take the same switches.
function(vorlane_cli_library name)
  add_library(${name} STATIC $<TARGET_OBJECTS:folder_cli>)
  target_link_libraries(${name} PUBLIC vorlane_engine Threads::Threads)
endfunction()

function(vorlane_program name)
  add_executable(${name} ${PROJECT_SOURCE_DIR}/src/cli/main.cpp)
  target_link_libraries(${name} PRIVATE vorlane_cli)
endfunction()

# A shared library for Java to load: native/module/ has what only it needs, and exports.map there
# names its exports. Lasting variables would keep counters from being written.
function(vorlane_java_library name)
  set(module ${PROJECT_SOURCE_DIR}/bindings/java/native/module)
  add_library(${name} MODULE $<TARGET_OBJECTS:folder_java>)
  if(NOT VORLANE_COVERAGE)
    target_sources(${name} PRIVATE ${module}/Lasting_variables.cpp)
  endif()
  target_link_libraries(${name} PRIVATE vorlane_engine Threads::Threads)
  target_link_options(${name} PRIVATE LINKER:--version-script=${module}/exports.map
                      LINKER:--no-undefined)
  set_target_properties(${name} PROPERTIES LINK_DEPENDS ${module}/exports.map
                        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
endfunction()

# The shared library for C, which exports nothing but what its header declares and needs no other of
# ours. It stays loaded once it is: threads may still hold what it has for each of them.
function(vorlane_c_library name)
  set(exports ${PROJECT_SOURCE_DIR}/bindings/c/exports.map)
  add_library(${name} SHARED $<TARGET_OBJECTS:folder_c>)
  target_include_directories(${name} INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/bindings/c>
                                               $<INSTALL_INTERFACE:include>)
  target_link_libraries(${name} PRIVATE vorlane_engine Threads::Threads)
  target_link_options(${name} PRIVATE LINKER:--version-script=${exports} LINKER:--no-undefined
                      LINKER:-z,nodelete)
  set_target_properties(${name} PROPERTIES LINK_DEPENDS ${exports} VERSION ${PROJECT_VERSION}
                        SOVERSION ${VORLANE_ABI_VERSION}
                        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
endfunction()

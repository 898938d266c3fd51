# One object library per folder of src/. The objects of a folder and of all folders above it make
# a trial program: if a folder uses one that stands below it, that program does not link.

set(VORLANE_FOLDERS "" CACHE INTERNAL "folders declared so far, from the ground up")

function(vorlane_objects out)
  set(objects)
  foreach(folder IN LISTS VORLANE_FOLDERS)
    list(APPEND objects $<TARGET_OBJECTS:folder_${folder}>)
  endforeach()
  set(${out} ${objects} PARENT_SCOPE)
endfunction()

function(vorlane_folder name)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${name}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(folder_${name} OBJECT ${sources})
  target_include_directories(folder_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_compile_definitions(folder_${name} PRIVATE VORLANE_VERSION="${PROJECT_VERSION}")

  set(VORLANE_FOLDERS ${VORLANE_FOLDERS} ${name} CACHE INTERNAL "")
  vorlane_objects(objects)
  file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/layers/${name}.cpp CONTENT "int main() {}\n")
  add_executable(layer_${name} ${PROJECT_BINARY_DIR}/layers/${name}.cpp ${objects})
  set_target_properties(layer_${name} PROPERTIES
                        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/layers)
endfunction()

function(vorlane_static_library name)
  vorlane_objects(objects)
  add_library(${name} STATIC ${objects})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
endfunction()

function(vorlane_program name)
  add_executable(${name} ${PROJECT_SOURCE_DIR}/src/cli/main.cpp $<TARGET_OBJECTS:folder_cli>)
  target_link_libraries(${name} PRIVATE vorlane_engine Threads::Threads)
endfunction()

# cmake -DSOURCE=... -P Architecture.cmake: fails unless docs/architecture.md names every unit of src/,
# bindings/ and packaging/, in backquotes.
cmake_minimum_required(VERSION 3.25)
file(READ ${SOURCE}/docs/architecture.md map)
file(GLOB_RECURSE files ${SOURCE}/src/*/*.h ${SOURCE}/src/*/*.cpp ${SOURCE}/bindings/java/native/*.h
     ${SOURCE}/bindings/java/native/*.cpp ${SOURCE}/bindings/java/src/*.java
     ${SOURCE}/bindings/c/src/*.h ${SOURCE}/bindings/c/src/*.cpp ${SOURCE}/packaging/*.cpp)
foreach(file IN LISTS files)
  cmake_path(GET file STEM LAST_ONLY unit)
  string(FIND "${map}" "`${unit}`" place)
  if(place EQUAL -1)
    message(SEND_ERROR "docs/architecture.md does not name ${unit}")
  endif()
endforeach()
if(NOT files)
  message(FATAL_ERROR "no units found")
endif()

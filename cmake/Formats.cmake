# The libraries by which compressed files and GraphML are read. Where one is missing, or switched
# off, its files are refused with a word on that.
option(VORLANE_ZLIB "Read gzip files where zlib is at hand" ON)
option(VORLANE_ZSTD "Read zstd files where libzstd is at hand" ON)
option(VORLANE_EXPAT "Read GraphML files where expat is at hand" ON)

# A project around this one links them too, with the static library.
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)
list(APPEND CMAKE_MODULE_PATH ${PROJECT_SOURCE_DIR}/cmake)

# A wheel is carried to machines that may lack them.
if(SKBUILD)
  list(PREPEND CMAKE_FIND_LIBRARY_SUFFIXES .a)
endif()

# vorlane_format_library(NAME PACKAGE TARGET LINKED): what is found is noted for the folder of
# formats, for CMake's other projects (the package) and for pkg-config (the option of a linker).
set(VORLANE_FORMAT_LIBRARIES)
set(VORLANE_FORMAT_DEFINITIONS)
set(VORLANE_PACKAGES)
set(VORLANE_LINKED)
macro(vorlane_format_library name package target linked)
  if(VORLANE_${name})
    find_package(${package} QUIET)
  endif()
  if(VORLANE_${name} AND TARGET ${target})
    list(APPEND VORLANE_FORMAT_LIBRARIES ${target})
    list(APPEND VORLANE_FORMAT_DEFINITIONS VORLANE_${name})
    list(APPEND VORLANE_PACKAGES ${package})
    string(APPEND VORLANE_LINKED " ${linked}")
  else()
    message(STATUS "Vorlane is built without ${package}")
  endif()
endmacro()

vorlane_format_library(ZLIB ZLIB ZLIB::ZLIB -lz)
vorlane_format_library(ZSTD Zstd Zstd::Zstd -lzstd)
vorlane_format_library(EXPAT EXPAT EXPAT::EXPAT -lexpat)

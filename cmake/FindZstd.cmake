# Finds libzstd, as the target Zstd::Zstd.
find_path(Zstd_INCLUDE_DIR zstd.h)
find_library(Zstd_LIBRARY zstd)
mark_as_advanced(Zstd_INCLUDE_DIR Zstd_LIBRARY)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Zstd REQUIRED_VARS Zstd_LIBRARY Zstd_INCLUDE_DIR)
if(Zstd_FOUND AND NOT TARGET Zstd::Zstd)
  add_library(Zstd::Zstd UNKNOWN IMPORTED)
  set_target_properties(Zstd::Zstd PROPERTIES IMPORTED_LOCATION ${Zstd_LIBRARY}
                                              INTERFACE_INCLUDE_DIRECTORIES ${Zstd_INCLUDE_DIR})
endif()

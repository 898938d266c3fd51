# The page of `vorlane report`, as web/build makes it, becomes a source file. Its data are packed
# where zlib is at hand, and stored otherwise.
set(VORLANE_PAGE_LIBRARIES)
set(VORLANE_PAGE_DEFINITIONS)
if("VORLANE_ZLIB" IN_LIST VORLANE_FORMAT_DEFINITIONS)
  set(VORLANE_PAGE_LIBRARIES ZLIB::ZLIB)
  set(VORLANE_PAGE_DEFINITIONS VORLANE_ZLIB)
endif()

# vorlane_page(TARGET): adds that source file.
function(vorlane_page target)
  set(page ${PROJECT_SOURCE_DIR}/web/page.html)
  set(source ${PROJECT_BINARY_DIR}/page/Page_template.cpp)
  add_custom_command(
    OUTPUT ${source}
    COMMAND ${CMAKE_COMMAND} -DPAGE=${page} -DSOURCE=${source}
            -P ${PROJECT_SOURCE_DIR}/cmake/Page_source.cmake
    DEPENDS ${page} ${PROJECT_SOURCE_DIR}/cmake/Page_source.cmake)
  target_sources(${target} PRIVATE ${source})
endfunction()

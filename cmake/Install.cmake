# What cmake --install puts where: program, libraries, public headers, what CMake and pkg-config need
# to find them, manual page and completions, and for Java the jar and its native library.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set_target_properties(vorlane_shared PROPERTIES EXPORT_NAME vorlane)
set_target_properties(vorlane_library PROPERTIES EXPORT_NAME vorlane_static)
install(TARGETS vorlane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS vorlane_shared vorlane_library vorlane_c EXPORT vorlane_targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/vorlane DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES ${PROJECT_SOURCE_DIR}/bindings/c/vorlane_c.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vorlane)
install(EXPORT vorlane_targets NAMESPACE vorlane:: DESTINATION ${config_dir})
configure_package_config_file(${PROJECT_SOURCE_DIR}/packaging/vorlaneConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/packaging/vorlaneConfig.cmake
                              INSTALL_DESTINATION ${config_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/packaging/vorlaneConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/packaging/vorlaneConfig.cmake
              ${PROJECT_BINARY_DIR}/packaging/vorlaneConfigVersion.cmake
              ${PROJECT_SOURCE_DIR}/cmake/FindZstd.cmake
        DESTINATION ${config_dir})

# The path from the file to the prefix, so that an installation can be moved.
file(RELATIVE_PATH prefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
foreach(library IN ITEMS vorlane vorlane_c)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/${library}.pc.in
                 ${PROJECT_BINARY_DIR}/packaging/${library}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/packaging/${library}.pc
          DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()

set(documents ${PROJECT_BINARY_DIR}/packaging)
install(FILES ${documents}/vorlane.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${documents}/vorlane.bash RENAME vorlane
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${documents}/_vorlane DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
install(FILES ${documents}/vorlane.fish
        DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/README.md
              ${PROJECT_SOURCE_DIR}/docs/file-formats.md ${PROJECT_SOURCE_DIR}/docs/inputs.md
              ${PROJECT_SOURCE_DIR}/docs/tutorial.md ${PROJECT_SOURCE_DIR}/docs/page.md
              ${PROJECT_SOURCE_DIR}/docs/python.md ${PROJECT_SOURCE_DIR}/docs/parts.md
              ${PROJECT_SOURCE_DIR}/docs/parts-format.md ${PROJECT_SOURCE_DIR}/docs/clusters.md
              ${PROJECT_SOURCE_DIR}/docs/scaling.md
              ${PROJECT_SOURCE_DIR}/docs/choir.html
        DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/schemas DESTINATION ${CMAKE_INSTALL_DOCDIR})

# The two stand in one folder, where the jar looks for its library.
if(TARGET vorlane_java)
  set(java_dir ${CMAKE_INSTALL_LIBDIR}/vorlane)
  install(TARGETS vorlane_java LIBRARY DESTINATION ${java_dir})
  get_target_property(jar vorlane_jar JAR_FILE)
  install(FILES ${jar} ${PROJECT_BINARY_DIR}/vorlane.pom DESTINATION ${java_dir})
endif()

if(VORLANE_SANITIZE)
  add_compile_options(-fsanitize=${VORLANE_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  # What g++ takes for unset there, it doesn't in a plain build.
  add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  add_compile_definitions(VORLANE_SANITIZED)
  add_link_options(-fsanitize=${VORLANE_SANITIZE})
endif()

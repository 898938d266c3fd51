if(VORLANE_SANITIZE)
  add_compile_options(-fsanitize=${VORLANE_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_compile_definitions(VORLANE_SANITIZED)
  add_link_options(-fsanitize=${VORLANE_SANITIZE})
endif()

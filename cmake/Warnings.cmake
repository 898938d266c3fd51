add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor)
if(PROJECT_IS_TOP_LEVEL)
  add_compile_options(-Werror)
endif()

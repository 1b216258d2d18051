# One set of warnings for every target of the project.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow)
if(KQ_WERROR)
  add_compile_options(-Werror)
endif()

# Sanitizers for the whole build, tests included.
if(NOT ORDAVEL_SANIFICA STREQUAL "")
  add_compile_options(-fsanitize=${ORDAVEL_SANIFICA} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${ORDAVEL_SANIFICA})
endif()

# ccache, where it is present and nothing else was asked for.
find_program(ORDAVEL_CCACHE ccache)
mark_as_advanced(ORDAVEL_CCACHE)
if(ORDAVEL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ORDAVEL_CCACHE})
endif()

# ccache, where it is present and nothing else was asked for.
find_program(ORDAVEL_CCACHE ccache)
mark_as_advanced(ORDAVEL_CCACHE)
if(ORDAVEL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Precompiled headers are cached only when their definitions and the times of files may be taken on trust.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${ORDAVEL_CCACHE})
endif()

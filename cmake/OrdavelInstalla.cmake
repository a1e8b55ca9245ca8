# What a host gets: the shared library, its headers, and find_package(Ordavel).
include(CMakePackageConfigHelpers)

set(posto ${CMAKE_INSTALL_LIBDIR}/cmake/Ordavel)
install(TARGETS ordavel EXPORT OrdavelTargets FILE_SET HEADERS)
install(EXPORT OrdavelTargets NAMESPACE Ordavel:: DESTINATION ${posto})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/OrdavelConfig.cmake.in
  ${PROJECT_BINARY_DIR}/OrdavelConfig.cmake INSTALL_DESTINATION ${posto})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/OrdavelConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/OrdavelConfig.cmake ${PROJECT_BINARY_DIR}/OrdavelConfigVersion.cmake
  DESTINATION ${posto})
if(ORDAVEL_CLI)
  install(TARGETS ordavel_programma)
endif()
# Beside the library, where it looks for them.
if(ORDAVEL_ESTERNI)
  install(TARGETS trvrdcol TorvanSvilSist LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
endif()

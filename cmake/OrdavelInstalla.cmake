# What is installed: the shared libraries with their headers and find_package(Ordavel), the programs, and what a
# desktop wants to know of them. Two parts: "programma" for who uses it, "sviluppo" for who builds a host.
include(CMakePackageConfigHelpers)

set(posto ${CMAKE_INSTALL_LIBDIR}/cmake/Ordavel)

# ordavel_installa_libreria(<target> <export set>): the library for its users, its headers and name link for hosts.
function(ordavel_installa_libreria bersaglio insieme)
  install(TARGETS ${bersaglio} EXPORT ${insieme}
    LIBRARY COMPONENT programma NAMELINK_COMPONENT sviluppo
    FILE_SET HEADERS COMPONENT sviluppo)
  install(EXPORT ${insieme} NAMESPACE Ordavel:: DESTINATION ${posto} COMPONENT sviluppo)
endfunction()

ordavel_installa_libreria(ordavel OrdavelTargets)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/OrdavelConfig.cmake.in
  ${PROJECT_BINARY_DIR}/OrdavelConfig.cmake INSTALL_DESTINATION ${posto})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/OrdavelConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/OrdavelConfig.cmake ${PROJECT_BINARY_DIR}/OrdavelConfigVersion.cmake
  DESTINATION ${posto} COMPONENT sviluppo)
if(ORDAVEL_CLI)
  install(TARGETS ordavel_programma COMPONENT programma)
endif()
# Beside the library, where it looks for them.
if(ORDAVEL_ESTERNI)
  install(TARGETS trvrdcol TorvanSvilSist LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT programma)
endif()

if(ORDAVEL_QT)
  # A set of its own: a host without a face needs no Qt.
  ordavel_installa_libreria(ordavel_qt OrdavelQtTargets)
  install(TARGETS ordavel_desktop COMPONENT programma)
  install(TARGETS ordavel_designer LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/qt6/plugins/designer COMPONENT sviluppo)
  set(impacca ${PROJECT_SOURCE_DIR}/packaging)
  install(FILES ${impacca}/ordavel.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT programma)
  install(FILES ${impacca}/it.ordavel.Ordavel.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT programma)
  install(FILES ${impacca}/ordavel.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT programma)
  install(FILES ${impacca}/ordavel.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT programma)
endif()

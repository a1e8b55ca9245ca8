# The Debian packages: the program with its libraries, and what a host is built with. See attrezzi/pacchetto.sh.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ordavel)
set(CPACK_PACKAGE_VENDOR Ordavel)
set(CPACK_PACKAGE_CONTACT "Ordavel <ordavel@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_COMPONENTS_ALL programma sviluppo)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
# The libraries of one package are needed by files of the other, and only the build knows them.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src ${PROJECT_BINARY_DIR}/src/qt)

set(CPACK_COMPONENT_PROGRAMMA_DESCRIPTION "Conditioned systems for the Italian lottery games:
 the window, the command line, and the libraries that both are made of.")
set(CPACK_DEBIAN_PROGRAMMA_PACKAGE_NAME ordavel)
set(CPACK_DEBIAN_PROGRAMMA_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PROGRAMMA_PACKAGE_RECOMMENDS qt6-translations-l10n)

set(CPACK_COMPONENT_SVILUPPO_DESCRIPTION "Headers, CMake package and Designer plugin of Ordavel:
 for programs that have the component on a form of their own.")
set(CPACK_DEBIAN_SVILUPPO_PACKAGE_NAME ordavel-dev)
set(CPACK_DEBIAN_SVILUPPO_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_SVILUPPO_PACKAGE_DEPENDS "ordavel (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_SVILUPPO_PACKAGE_SUGGESTS "qt6-base-dev, qt6-svg-dev, designer-qt6")

include(CPack)

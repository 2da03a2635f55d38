# Debian packages: the runtime library, the -dev package (headers, static libraries, CMake package)
# and the programs with their desktop entry. Built by scripts/package.sh.
# Named after the shared library's soname (libtrovane_embed.so.0), as Debian names library packages.
set(TROVANE_DEB_RUNTIME libtrovane-embed0)
set(TROVANE_DEB_DEV libtrovanecommon-dev)
set(TROVANE_DEB_PROGRAMS trovane-dialog)

# Every Debian package carries its copyright file and a compressed changelog.
set(changelog ${PROJECT_BINARY_DIR}/packaging/changelog)
string(TIMESTAMP TROVANE_DEB_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
foreach(component runtime dev programs)
    string(TOUPPER ${component} upper)
    set(package ${TROVANE_DEB_${upper}})
    file(WRITE ${PROJECT_BINARY_DIR}/packaging/${package}/changelog
"${package} (${PROJECT_VERSION}) unstable; urgency=medium

  * Release ${PROJECT_VERSION}; see CHANGELOG.md of the source.

 -- TrovaneCommon maintainers <trovane@example.org>  ${TROVANE_DEB_DATE}
")
    execute_process(COMMAND gzip -n -9 -f ${PROJECT_BINARY_DIR}/packaging/${package}/changelog)
    install(FILES ${PROJECT_BINARY_DIR}/packaging/${package}/changelog.gz ${PROJECT_SOURCE_DIR}/packaging/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component})
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/packaging/trovane-dialog.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT programs)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME trovanecommon)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "TrovaneCommon maintainers <trovane@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Operator panels for a SCADA control dialog")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime dev programs)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${TROVANE_DEB_RUNTIME})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
file(WRITE ${PROJECT_BINARY_DIR}/packaging/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/packaging/triggers)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "Operator panels for a SCADA control dialog - runtime\n The shared library with the C entry points and the alarm panel's LED icons.")
set(CPACK_DEBIAN_DEV_PACKAGE_NAME ${TROVANE_DEB_DEV})
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${TROVANE_DEB_RUNTIME} (= ${PROJECT_VERSION}), qt6-base-dev")
set(CPACK_COMPONENT_DEV_DESCRIPTION "Operator panels for a SCADA control dialog - development files\n Headers, static libraries and the CMake package (find_package(TrovaneCommon)).")
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_NAME ${TROVANE_DEB_PROGRAMS})
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_DEPENDS "${TROVANE_DEB_RUNTIME} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_PROGRAMS_DESCRIPTION "Operator panels for a SCADA control dialog - programs\n The control dialog trovane-dialog on the built-in demo server\n and the server console trovane-vexl.")
include(CPack)

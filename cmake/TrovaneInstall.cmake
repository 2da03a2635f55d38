# Installation of the library: headers under include/trovane/<folder>/ (the source layout, so that
# "core/variant.h" works the same inside and outside this tree), libraries and their CMake package.
include(GNUInstallDirs)
include(GenerateExportHeader)

set(TROVANE_INCLUDE_ROOT ${CMAKE_INSTALL_INCLUDEDIR}/trovane)
set(TROVANE_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/TrovaneCommon)
# The programs with the files they look for beside themselves (language folders); bin holds links.
set(TROVANE_APP_DIR ${CMAKE_INSTALL_LIBDIR}/trovane)

# trovane_install_program(<target> <component>): the program into TROVANE_APP_DIR, a link in bin.
function(trovane_install_program target component)
    install(TARGETS ${target} RUNTIME DESTINATION ${TROVANE_APP_DIR} COMPONENT ${component})
    file(RELATIVE_PATH target_path /${CMAKE_INSTALL_BINDIR} /${TROVANE_APP_DIR}/${target})
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/bin-links)
    file(CREATE_LINK ${target_path} ${CMAKE_CURRENT_BINARY_DIR}/bin-links/${target} SYMBOLIC)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/bin-links/${target} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${component})
endfunction()

# trovane_install_library(<target> EXPORT_NAME <name> [EXPORT_SET <set>] HEADERS <header>...)
# Call after the target's target_link_libraries. Headers are paths relative to the calling folder.
function(trovane_install_library target)
    cmake_parse_arguments(ARG "" "EXPORT_NAME;EXPORT_SET" "HEADERS" ${ARGN})
    if(NOT ARG_EXPORT_SET)
        set(ARG_EXPORT_SET TrovaneCommonTargets)
    endif()
    # Only what the public headers declare (between core/api_begin.h and core/api_end.h) is exported.
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${ARG_EXPORT_NAME}
        CXX_VISIBILITY_PRESET hidden
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    # The warning flags and header-only dependencies are needed to build this tree, never by a
    # consumer; a static library would otherwise name them in its exported link interface.
    get_target_property(interface ${target} INTERFACE_LINK_LIBRARIES)
    if(interface)
        list(REMOVE_ITEM interface "$<LINK_ONLY:trovane_warnings>" "$<LINK_ONLY:nlohmann_json::nlohmann_json>")
        set_target_properties(${target} PROPERTIES INTERFACE_LINK_LIBRARIES "${interface}")
    endif()
    install(TARGETS ${target} EXPORT ${ARG_EXPORT_SET}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    foreach(header IN LISTS ARG_HEADERS)
        get_filename_component(subfolder ${header} DIRECTORY)
        install(FILES ${header} DESTINATION ${TROVANE_INCLUDE_ROOT}/${folder}/${subfolder} COMPONENT dev)
    endforeach()
endfunction()

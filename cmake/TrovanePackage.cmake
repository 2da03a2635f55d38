# The aggregate target and the CMake package files (TrovaneCommonConfig.cmake and its version file).
include(CMakePackageConfigHelpers)

add_library(trovane_everything INTERFACE)
set_target_properties(trovane_everything PROPERTIES EXPORT_NAME TrovaneCommon)
foreach(library core platform common indication alarms blocking tagout substitution operatorplace opcounter
                dialup sim factory)
    if(TARGET trovane_${library})
        target_link_libraries(trovane_everything INTERFACE Trovane::${library})
    endif()
endforeach()
if(TARGET trovane_qt)
    target_link_libraries(trovane_everything INTERFACE $<BUILD_INTERFACE:Trovane::qt>)
endif()
add_library(Trovane::TrovaneCommon ALIAS trovane_everything)
install(TARGETS trovane_everything EXPORT TrovaneCommonTargets)

install(EXPORT TrovaneCommonTargets NAMESPACE Trovane:: DESTINATION ${TROVANE_CMAKE_DIR} COMPONENT dev)
if(TARGET trovane_qt)
    install(EXPORT TrovaneCommonQtTargets NAMESPACE Trovane:: DESTINATION ${TROVANE_CMAKE_DIR} COMPONENT dev)
endif()
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/TrovaneCommonConfig.cmake.in
    ${PROJECT_BINARY_DIR}/TrovaneCommonConfig.cmake INSTALL_DESTINATION ${TROVANE_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TrovaneCommonConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TrovaneCommonConfig.cmake ${PROJECT_BINARY_DIR}/TrovaneCommonConfigVersion.cmake
    DESTINATION ${TROVANE_CMAKE_DIR} COMPONENT dev)

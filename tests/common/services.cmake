# Start information, placement, the error dialog, the panel lifecycle and late-bound members.
trovane_add_test(common_services_test
    SOURCES
        ${CMAKE_CURRENT_LIST_DIR}/common_functions_members_test.cpp
        ${CMAKE_CURRENT_LIST_DIR}/error_dlg_test.cpp
        ${CMAKE_CURRENT_LIST_DIR}/panel_lifecycle_test.cpp
        ${CMAKE_CURRENT_LIST_DIR}/placement_test.cpp
        ${CMAKE_CURRENT_LIST_DIR}/start_info_test.cpp
    LIBS Trovane::common
)

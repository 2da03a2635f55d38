# The headless controls, late binding, the connection adapter, local files and trace routing.
trovane_add_test(platform_tests
    SOURCES
        ${CMAKE_CURRENT_SOURCE_DIR}/controls/check_box_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/controls/combo_box_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/controls/command_button_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/controls/form_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/controls/list_view_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/controls/option_button_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/controls/tab_strip_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/controls/text_box_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/controls/timer_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/connection_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/files_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/late_bound_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/trace_test.cpp
    LIBS Trovane::platform)

# The simulated server: database, scenario, procedures, connection and console, against the demo.
trovane_add_test(sim_server_tests
    SOURCES
        ${CMAKE_CURRENT_LIST_DIR}/console_test.cpp
        ${CMAKE_CURRENT_LIST_DIR}/item_path_test.cpp
        ${CMAKE_CURRENT_LIST_DIR}/scenario_test.cpp
        ${CMAKE_CURRENT_LIST_DIR}/server_commands_test.cpp
        ${CMAKE_CURRENT_LIST_DIR}/subscription_test.cpp
        ${CMAKE_CURRENT_LIST_DIR}/tagout_commands_test.cpp
    LIBS Trovane::sim Trovane::vexl_console
)

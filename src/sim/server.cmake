# The process database, the server procedures, the connection and the demo scenario.
list(APPEND TROVANE_SIM_SOURCES
    ${CMAKE_CURRENT_LIST_DIR}/alarm_list_procedure.cpp
    ${CMAKE_CURRENT_LIST_DIR}/alarm_state.cpp
    ${CMAKE_CURRENT_LIST_DIR}/attribute_catalog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/blocking_procedure.cpp
    ${CMAKE_CURRENT_LIST_DIR}/control_procedure.cpp
    ${CMAKE_CURRENT_LIST_DIR}/item_path.cpp
    ${CMAKE_CURRENT_LIST_DIR}/procedure_arguments.cpp
    ${CMAKE_CURRENT_LIST_DIR}/process_database.cpp
    ${CMAKE_CURRENT_LIST_DIR}/scenario.cpp
    ${CMAKE_CURRENT_LIST_DIR}/server_functions.cpp
    ${CMAKE_CURRENT_LIST_DIR}/server_procedures.cpp
    ${CMAKE_CURRENT_LIST_DIR}/simulated_connection.cpp
    ${CMAKE_CURRENT_LIST_DIR}/simulated_server.cpp
    ${CMAKE_CURRENT_LIST_DIR}/tagout_action_procedure.cpp
    ${CMAKE_CURRENT_LIST_DIR}/tagout_class_requests.cpp
    ${CMAKE_CURRENT_LIST_DIR}/tagout_functions.cpp
    ${CMAKE_CURRENT_LIST_DIR}/tagout_procedure.cpp
    ${CMAKE_CURRENT_LIST_DIR}/tagout_store.cpp
    ${CMAKE_CURRENT_BINARY_DIR}/demo_scenario_text.cpp
)

# The demo scenario is compiled in from its JSON file, so the server needs no file at run time.
file(READ ${CMAKE_CURRENT_LIST_DIR}/demo_scenario.json TROVANE_DEMO_SCENARIO)
file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/demo_scenario_text.cpp @ONLY CONTENT
"// Generated from src/sim/demo_scenario.json at configure time.
#include \"sim/scenario.h\"

namespace trovane::sim {

const std::string& DemoScenarioText() {
    static const std::string text = R\"scenario(@TROVANE_DEMO_SCENARIO@)scenario\";
    return text;
}

}  // namespace trovane::sim
")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/demo_scenario.json)

# The connection is a platform object and scenarios are JSON; linked once the library exists.
find_package(nlohmann_json 3 REQUIRED)
cmake_language(DEFER CALL target_link_libraries trovane_sim PUBLIC Trovane::platform PRIVATE nlohmann_json::nlohmann_json)

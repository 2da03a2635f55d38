trovane_add_test(sim_interpreter_tests
    SOURCES
        ${CMAKE_CURRENT_LIST_DIR}/transcript_test.cpp
        ${CMAKE_CURRENT_LIST_DIR}/vexl_interpreter_test.cpp
        ${CMAKE_CURRENT_LIST_DIR}/vexl_values_test.cpp
    LIBS Trovane::sim
)
target_compile_definitions(sim_interpreter_tests PRIVATE
    TROVANE_SIM_TRANSCRIPTS="${CMAKE_CURRENT_LIST_DIR}/transcripts")

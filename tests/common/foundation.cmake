# The command channel and value lists of CommonFunctions.
trovane_add_test(common_foundation_tests
    SOURCES
        ${CMAKE_CURRENT_SOURCE_DIR}/command_channel_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/value_lists_test.cpp
    LIBS Trovane::common)

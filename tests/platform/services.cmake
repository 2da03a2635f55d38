# Private-profile reading, the colour scheme and the headless window system.
trovane_add_test(platform_services_test
    SOURCES ${CMAKE_CURRENT_LIST_DIR}/services_test.cpp
    LIBS Trovane::platform
)

# Portable window system, colour scheme and initialisation-file reading.
list(APPEND TROVANE_PLATFORM_SOURCES
    color_scheme.cpp
    headless_window_system.cpp
    private_profile.cpp
)

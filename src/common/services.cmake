# Start information and configuration, placement, the error dialog and the panel lifecycle.
list(APPEND TROVANE_COMMON_SOURCES
    common_functions_members.cpp
    cst.cpp
    error_dlg.cpp
    ini_file.cpp
    mb_icon.cpp
    panel_captions.cpp
    panel_charset.cpp
    panel_items.cpp
    panel_subscription.cpp
    placement.cpp
    show_error.cpp
    start_info.cpp
)

# The headless controls and the form that holds them.
list(APPEND TROVANE_PLATFORM_SOURCES
    controls/check_box.cpp
    controls/combo_box.cpp
    controls/control.cpp
    controls/control_collection.cpp
    controls/form.cpp
    controls/image_list.cpp
    controls/list_item.cpp
    controls/list_view.cpp
    controls/menu.cpp
    controls/option_button.cpp
    controls/tab_strip.cpp
    controls/text_box.cpp
    controls/timer.cpp
    controls/widget.cpp
)

# The binding of the headless controls to widgets.
list(APPEND TROVANE_QT_SOURCES
    binding_factory.cpp
    button_bindings.cpp
    choice_bindings.cpp
    control_binding.cpp
    form_view.cpp
    key_codes.cpp
    list_view_binding.cpp
    picture_pixmap.cpp
    static_bindings.cpp
    text_box_binding.cpp
)

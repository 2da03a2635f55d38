# Language files: portable-executable string tables read without the Windows API.
list(APPEND TROVANE_PLATFORM_SOURCES
    language_ids.cpp
    pe_image.cpp
    pe_resource_files.cpp
    pe_string_table.cpp
    utf16.cpp
)

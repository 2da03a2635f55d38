# Texts: language files, the built-in string table and the shared dialog hook of MakeCleanup.
list(APPEND TROVANE_COMMON_SOURCES
    builtin_texts.cpp
    shared_dialog.cpp
    texts.cpp
)

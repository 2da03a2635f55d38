# Texts: the lookup rules of CommonFunctions and the built-in table. One test reads a real language
# file built by tests/platform/resources.cmake.
trovane_add_test(common_texts_test
    SOURCES
        ${CMAKE_CURRENT_SOURCE_DIR}/texts_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/builtin_texts_test.cpp
    LIBS Trovane::common)
get_property(TROVANE_LANGUAGE_FILE_OUTPUTS GLOBAL PROPERTY TROVANE_LANGUAGE_FILES)
set(TROVANE_PE64_ENGLISH ${PROJECT_BINARY_DIR}/tests/language_files/pe64/EN/Trovane2_EN.dll)
target_compile_definitions(common_texts_test PRIVATE
    TROVANE_LANGUAGE_FILES_DIR="${PROJECT_BINARY_DIR}/tests/language_files"
    $<$<IN_LIST:${TROVANE_PE64_ENGLISH},${TROVANE_LANGUAGE_FILE_OUTPUTS}>:TROVANE_HAVE_LANGUAGE_FILES>)
if(TARGET trovane_language_files)
    add_dependencies(common_texts_test trovane_language_files)
endif()

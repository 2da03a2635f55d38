# Language file reading. The language files are built at test time from the .rc sources in
# tests/data/resources with the MinGW resource compiler and linker: a 64-bit and a 32-bit file of
# the same texts, and a 64-bit file with several languages. `-c 65001` reads the sources as UTF-8;
# `-e 0` leaves the libraries without an entry point, so that loading them never runs code.
set(TROVANE_LANGUAGE_FILES_DIR ${PROJECT_BINARY_DIR}/tests/language_files)
set(TROVANE_RESOURCE_SOURCES_DIR ${PROJECT_SOURCE_DIR}/tests/data/resources)

find_program(TROVANE_WINDRES_64 x86_64-w64-mingw32-windres)
find_program(TROVANE_LD_64 x86_64-w64-mingw32-ld)
find_program(TROVANE_WINDRES_32 i686-w64-mingw32-windres)
find_program(TROVANE_LD_32 i686-w64-mingw32-ld)

# trovane_language_file(<output relative to the files dir> <rc source> <windres> <ld>)
function(trovane_language_file output source windres ld)
    set(out ${TROVANE_LANGUAGE_FILES_DIR}/${output})
    get_filename_component(out_dir ${out} DIRECTORY)
    set(object ${out}.o)
    add_custom_command(OUTPUT ${out}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${out_dir}
        COMMAND ${windres} --preprocessor=cat -c 65001 -i ${TROVANE_RESOURCE_SOURCES_DIR}/${source} -o ${object}
        COMMAND ${ld} --dll -e 0 -nostdlib -s -o ${out} ${object}
        DEPENDS ${TROVANE_RESOURCE_SOURCES_DIR}/${source}
        COMMENT "Building language file ${output}"
        VERBATIM)
    set_property(GLOBAL APPEND PROPERTY TROVANE_LANGUAGE_FILES ${out})
endfunction()

# Without the tools (scripts/deps.sh installs them) the tests on real files are skipped.
set(TROVANE_HAVE_LANGUAGE_FILES OFF)
set(TROVANE_HAVE_LANGUAGE_FILES_32 OFF)
if(TROVANE_WINDRES_64 AND TROVANE_LD_64)
    set(TROVANE_HAVE_LANGUAGE_FILES ON)
    trovane_language_file(pe64/EN/Trovane2_EN.dll texts_en.rc ${TROVANE_WINDRES_64} ${TROVANE_LD_64})
    trovane_language_file(multi/two_languages.dll two_languages.rc ${TROVANE_WINDRES_64} ${TROVANE_LD_64})
endif()
if(TROVANE_WINDRES_32 AND TROVANE_LD_32)
    set(TROVANE_HAVE_LANGUAGE_FILES_32 ON)
    trovane_language_file(pe32/EN/Trovane2_EN.dll texts_en.rc ${TROVANE_WINDRES_32} ${TROVANE_LD_32})
endif()
get_property(TROVANE_LANGUAGE_FILE_OUTPUTS GLOBAL PROPERTY TROVANE_LANGUAGE_FILES)
add_custom_target(trovane_language_files DEPENDS ${TROVANE_LANGUAGE_FILE_OUTPUTS})

trovane_add_test(platform_resources_test
    SOURCES
        ${CMAKE_CURRENT_SOURCE_DIR}/utf16_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/pe_string_table_test.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/pe_resource_files_test.cpp
    LIBS Trovane::platform)
target_compile_definitions(platform_resources_test PRIVATE
    TROVANE_LANGUAGE_FILES_DIR="${TROVANE_LANGUAGE_FILES_DIR}"
    $<$<BOOL:${TROVANE_HAVE_LANGUAGE_FILES}>:TROVANE_HAVE_LANGUAGE_FILES>
    $<$<BOOL:${TROVANE_HAVE_LANGUAGE_FILES_32}>:TROVANE_HAVE_LANGUAGE_FILES_32>)
add_dependencies(platform_resources_test trovane_language_files)

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
        ${CMAKE_CURRENT_SOURCE_DIR}/load_string_oracle_test.cpp
    LIBS Trovane::platform)
target_compile_definitions(platform_resources_test PRIVATE
    TROVANE_LANGUAGE_FILES_DIR="${TROVANE_LANGUAGE_FILES_DIR}"
    $<$<BOOL:${TROVANE_HAVE_LANGUAGE_FILES}>:TROVANE_HAVE_LANGUAGE_FILES>
    $<$<BOOL:${TROVANE_HAVE_LANGUAGE_FILES_32}>:TROVANE_HAVE_LANGUAGE_FILES_32>)
add_dependencies(platform_resources_test trovane_language_files)

# Optional independent oracle: a console program that asks the platform's own loader (under wine)
# for every text of the real language files, compared with our reader. Needs clang, the MinGW
# dlltool and linker, and wine; skipped when any is missing.
find_program(TROVANE_CLANG NAMES clang clang-14)
find_program(TROVANE_DLLTOOL_64 x86_64-w64-mingw32-dlltool)
find_program(TROVANE_WINE NAMES wine64 wine PATHS /usr/lib/wine)
set(TROVANE_ORACLE_SOURCES ${TROVANE_RESOURCE_SOURCES_DIR}/oracle)
set(TROVANE_ORACLE ${TROVANE_LANGUAGE_FILES_DIR}/oracle/load_string_oracle.exe)
set(TROVANE_HAVE_ORACLE OFF)
if(TROVANE_HAVE_LANGUAGE_FILES AND TROVANE_CLANG AND TROVANE_DLLTOOL_64 AND TROVANE_WINE)
    set(TROVANE_HAVE_ORACLE ON)
    set(oracle_dir ${TROVANE_LANGUAGE_FILES_DIR}/oracle)
    add_custom_command(OUTPUT ${TROVANE_ORACLE}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${oracle_dir}
        COMMAND ${TROVANE_DLLTOOL_64} -d ${TROVANE_ORACLE_SOURCES}/kernel32.def -l ${oracle_dir}/libkernel32.a
        COMMAND ${TROVANE_DLLTOOL_64} -d ${TROVANE_ORACLE_SOURCES}/user32.def -l ${oracle_dir}/libuser32.a
        COMMAND ${TROVANE_CLANG} --target=x86_64-w64-windows-gnu -ffreestanding -fno-stack-protector -O1
                -c ${TROVANE_ORACLE_SOURCES}/load_string_oracle.c -o ${oracle_dir}/load_string_oracle.o
        COMMAND ${TROVANE_LD_64} -e Start --subsystem console -o ${TROVANE_ORACLE}
                ${oracle_dir}/load_string_oracle.o ${oracle_dir}/libkernel32.a ${oracle_dir}/libuser32.a
        DEPENDS ${TROVANE_ORACLE_SOURCES}/load_string_oracle.c ${TROVANE_ORACLE_SOURCES}/kernel32.def
                ${TROVANE_ORACLE_SOURCES}/user32.def
        COMMENT "Building the language file oracle"
        VERBATIM)
    add_custom_target(trovane_language_file_oracle DEPENDS ${TROVANE_ORACLE})
    add_dependencies(platform_resources_test trovane_language_file_oracle)
else()
    message(STATUS "clang, dlltool or wine not found: the language file oracle test is skipped")
endif()
target_compile_definitions(platform_resources_test PRIVATE
    TROVANE_ORACLE="${TROVANE_ORACLE}" TROVANE_WINE="${TROVANE_WINE}"
    TROVANE_WINE_PREFIX="${PROJECT_BINARY_DIR}/tests/wineprefix"
    $<$<BOOL:${TROVANE_HAVE_ORACLE}>:TROVANE_HAVE_ORACLE>)

# Language files: string tables compiled from .rc sources into resource-only libraries with the MinGW
# resource compiler and linker. `-c 65001` reads the sources as UTF-8; `--preprocessor=cat` needs no C
# preprocessor (so the sources carry no comments); `-e 0` leaves the libraries without an entry
# point, so that loading them never runs code.
#
# Included by every folder that builds or reads language files (the variables below are set in each
# includer's scope); the product's files are built once, into
# TROVANE_LANGUAGES_DIR/<code>/Trovane2_<code>.dll, by the target trovane_languages.
include(GNUInstallDirs)

find_program(TROVANE_WINDRES_64 x86_64-w64-mingw32-windres)
find_program(TROVANE_LD_64 x86_64-w64-mingw32-ld)
find_program(TROVANE_WINDRES_32 i686-w64-mingw32-windres)
find_program(TROVANE_LD_32 i686-w64-mingw32-ld)

# trovane_language_file(<output file> <rc source> <windres> <ld> [PROPERTY <global list>])
# Both paths absolute; the output is appended to the global property given (default
# TROVANE_LANGUAGE_FILES), so that a custom target can depend on all of them.
function(trovane_language_file out source windres ld)
    cmake_parse_arguments(ARG "" "PROPERTY" "" ${ARGN})
    if(NOT ARG_PROPERTY)
        set(ARG_PROPERTY TROVANE_LANGUAGE_FILES)
    endif()
    get_filename_component(out_dir ${out} DIRECTORY)
    get_filename_component(out_name ${out} NAME)
    # The object file stays out of the output directory, which is copied whole beside executables.
    file(RELATIVE_PATH relative ${PROJECT_BINARY_DIR} ${out})
    set(object ${PROJECT_BINARY_DIR}/CMakeFiles/trovane_language_objects/${relative}.o)
    get_filename_component(object_dir ${object} DIRECTORY)
    add_custom_command(OUTPUT ${out}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${out_dir} ${object_dir}
        COMMAND ${windres} --preprocessor=cat -c 65001 -i ${source} -o ${object}
        COMMAND ${ld} --dll -e 0 -nostdlib -s -o ${out} ${object}
        DEPENDS ${source}
        COMMENT "Building language file ${out_name}"
        VERBATIM)
    set_property(GLOBAL APPEND PROPERTY ${ARG_PROPERTY} ${out})
endfunction()

# The product's languages, from assets/languages/Trovane2_<code>.rc. Without the tools the build goes
# on without them, and every text then comes from the built-in table.
set(TROVANE_LANGUAGES EN DE)
set(TROVANE_LANGUAGES_DIR ${PROJECT_BINARY_DIR}/languages)
set(TROVANE_HAVE_PRODUCT_LANGUAGES OFF)
if(TARGET trovane_languages)
    set(TROVANE_HAVE_PRODUCT_LANGUAGES ON)
elseif(TROVANE_WINDRES_64 AND TROVANE_LD_64)
    set(TROVANE_HAVE_PRODUCT_LANGUAGES ON)
    foreach(code IN LISTS TROVANE_LANGUAGES)
        trovane_language_file(${TROVANE_LANGUAGES_DIR}/${code}/Trovane2_${code}.dll
            ${PROJECT_SOURCE_DIR}/assets/languages/Trovane2_${code}.rc
            ${TROVANE_WINDRES_64} ${TROVANE_LD_64} PROPERTY TROVANE_PRODUCT_LANGUAGE_FILES)
    endforeach()
    get_property(product_language_files GLOBAL PROPERTY TROVANE_PRODUCT_LANGUAGE_FILES)
    add_custom_target(trovane_languages DEPENDS ${product_language_files})
else()
    message(STATUS "MinGW windres or ld not found: the language files (${TROVANE_LANGUAGES}) are not built")
endif()

# SPDX-License-Identifier: BSD-3-Clause
# sorrel_catalogue(ROWS): the rows of catalogue.h as a list of "Vexa::Class|include/path|objectName", from the header
# itself: a small program that includes it is made and run when the build is configured.

set(SORREL_CATALOGUE_FOLDER "${CMAKE_CURRENT_LIST_DIR}")

function(sorrel_catalogue rows_variable)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
        "${SORREL_CATALOGUE_FOLDER}/catalogue.h" "${SORREL_CATALOGUE_FOLDER}/listcatalogue.cpp")
    set(CMAKE_CXX_STANDARD 17)
    set(CMAKE_CXX_STANDARD_REQUIRED ON)
    # Otherwise the first answer would stay whatever becomes of the header.
    unset(catalogue_ran CACHE)
    unset(catalogue_compiled CACHE)
    try_run(catalogue_ran catalogue_compiled "${CMAKE_CURRENT_BINARY_DIR}/catalogue"
        "${SORREL_CATALOGUE_FOLDER}/listcatalogue.cpp"
        COMPILE_OUTPUT_VARIABLE compile_output RUN_OUTPUT_VARIABLE lines)
    if(NOT catalogue_compiled OR NOT catalogue_ran EQUAL 0)
        message(FATAL_ERROR "The catalogue of the controls cannot be read:\n${compile_output}${lines}")
    endif()
    string(STRIP "${lines}" lines)
    string(REPLACE "\n" ";" rows "${lines}")
    set(${rows_variable} "${rows}" PARENT_SCOPE)
endfunction()

# SPDX-License-Identifier: BSD-3-Clause
# A program outside of this project: what its forms hold in Designer it has too, compiled by uic and loaded by QUiLoader.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${SCRATCH}")
set(ENV{DESTDIR} "${SCRATCH}/root")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
unset(ENV{DESTDIR})
set(ENV{QT_QPA_PLATFORM} offscreen)
file(MAKE_DIRECTORY "${SCRATCH}/home")
file(CHMOD "${SCRATCH}/home" DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
set(ENV{XDG_RUNTIME_DIR} "${SCRATCH}/home")
cmake_path(ABSOLUTE_PATH PLUGINS BASE_DIRECTORY "${PREFIX}")

function(build_program form)
    execute_process(COMMAND ${CMAKE_COMMAND} -S "${SOURCE}/examples/program" -B "${SCRATCH}/build" -G "${GENERATOR}"
            "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Werror" "-DFORM=${form}"
            "-DSorrel_DIR=${SCRATCH}/root${PREFIX}/${LIBDIR}/cmake/Sorrel"
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${CMAKE_COMMAND} --build "${SCRATCH}/build" OUTPUT_VARIABLE output RESULT_VARIABLE failed)
    if(failed)
        message(FATAL_ERROR "${form} does not compile:\n${output}")
    endif()
endfunction()

# expect_dump(EXPECTED FOLDER [OPTION ...]): what the program prints when it runs in FOLDER, and no word besides.
function(expect_dump expected folder)
    execute_process(COMMAND "${SCRATCH}/build/program" --dump ${ARGN} WORKING_DIRECTORY "${folder}"
        OUTPUT_FILE "${SCRATCH}/dump.txt" ERROR_VARIABLE errors RESULT_VARIABLE result)
    if(NOT result EQUAL 0 OR errors)
        message(SEND_ERROR "program ${ARGN} ended with ${result}: ${errors}")
    endif()
    execute_process(COMMAND diff -u "${expected}" "${SCRATCH}/dump.txt" OUTPUT_VARIABLE difference RESULT_VARIABLE differs)
    if(differs)
        message(SEND_ERROR "program ${ARGN} does not have what Designer has:\n${difference}")
    endif()
endfunction()

set(folder "${BUILD}/tests/program")
set(plugins --plugins "${SCRATCH}/root${PLUGINS}/designer")
build_program("${folder}/form.ui")
expect_dump("${folder}/expected.txt" "${folder}")
expect_dump("${folder}/expected.txt" "${folder}" --ui form.ui ${plugins})

# Texts and tool tips in lists are translated, and nothing else in lists.
set(catalogue "${SCRATCH}/form.ts")
execute_process(COMMAND ${LUPDATE} -silent "${folder}/form.ui" -ts "${catalogue}" COMMAND_ERROR_IS_FATAL ANY)
file(READ "${catalogue}" text)
string(REGEX REPLACE "<source>([^<]*)</source>[^<]*<translation type=\"unfinished\"></translation>"
    "<source>\\1</source><translation>in German: \\1</translation>" text "${text}")
file(WRITE "${catalogue}" "${text}")
execute_process(COMMAND ${LRELEASE} -silent "${catalogue}" -qm "${SCRATCH}/form.qm" COMMAND_ERROR_IS_FATAL ANY)
set(translation --translation "${SCRATCH}/form.qm")
execute_process(COMMAND "${SCRATCH}/build/program" --dump ${translation} WORKING_DIRECTORY "${folder}"
    OUTPUT_FILE "${SCRATCH}/translated.txt" COMMAND_ERROR_IS_FATAL ANY)
function(expect_translated count lists)
    file(STRINGS "${SCRATCH}/translated.txt" lines ENCODING UTF-8 REGEX "^[A-Za-z]+\\.(${lists}) .*\"in German: ")
    list(LENGTH lines found)
    if(NOT found EQUAL count)
        message(SEND_ERROR "${found} lists are translated, not ${count}: ${lines}")
    endif()
endfunction()
expect_translated(18 "textList|itemTextList|toolTips|items|pages")
expect_translated(0 "iconList|dataList|actionList")
expect_dump("${SCRATCH}/translated.txt" "${folder}" --ui form.ui ${plugins} ${translation})

# Its own form.
set(folder "${SOURCE}/examples/program")
build_program("${folder}/panel.ui")
execute_process(COMMAND "${SCRATCH}/build/program" --dump OUTPUT_FILE "${SCRATCH}/panel.txt" COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS "${SCRATCH}/panel.txt" lines REGEX "section\\.cut|view\\.top|This side")
list(LENGTH lines count)
if(NOT count EQUAL 3)
    message(SEND_ERROR "the program's own form has only: ${lines}")
endif()
expect_dump("${SCRATCH}/panel.txt" "${SCRATCH}/root${PLUGINS}" --ui "${folder}/panel.ui" --plugins designer)

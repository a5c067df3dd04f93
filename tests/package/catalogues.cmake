# SPDX-License-Identifier: BSD-3-Clause
# The catalogues have every text of the sources, translated, and none besides.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${SCRATCH}")
file(GLOB catalogues "${SOURCE}/translations/*.ts")
foreach(catalogue IN LISTS catalogues)
    get_filename_component(name "${catalogue}" NAME)
    file(COPY "${catalogue}" DESTINATION "${SCRATCH}")
    execute_process(COMMAND ${LUPDATE} -silent -no-obsolete -locations none "${SOURCE}/plugin" -ts "${SCRATCH}/${name}"
        COMMAND_ERROR_IS_FATAL ANY)
    file(READ "${catalogue}" kept)
    file(READ "${SCRATCH}/${name}" updated)
    if(NOT kept STREQUAL updated)
        message(SEND_ERROR "${name} does not have the texts of the sources: build the target update-translations")
    endif()
    if(kept MATCHES "type=\"unfinished\"|<translation></translation>")
        message(SEND_ERROR "${name} is not complete")
    endif()
endforeach()
list(LENGTH catalogues count)
if(NOT count EQUAL 2)
    message(SEND_ERROR "${count} catalogues found")
endif()

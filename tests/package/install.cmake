# SPDX-License-Identifier: BSD-3-Clause
# What `cmake --install` puts where, and that none of it knows the folders in which it was built.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${SCRATCH}")
set(ENV{DESTDIR} "${SCRATCH}")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
unset(ENV{DESTDIR})

foreach(file
        "${PLUGINS}/designer/libSorrelPlugin.so"
        "${TRANSLATIONS}/sorrelplugin_de.qm"
        "${TRANSLATIONS}/sorrelplugin_zh_CN.qm"
        "${PREFIX}/${LIBDIR}/libSorrel.so"
        "${BINS}/templates/Dialog_with_Drawback_Boxes.ui"
        "${BINS}/templates/Form_with_Three_Pages.ui"
        "${BINS}/templates/Options_Page.ui"
        "${PREFIX}/bin/sorrel-form"
        "${PREFIX}/share/doc/sorrel-designer-plugin/copyright"
        "${PREFIX}/share/doc/libsorrel0/copyright"
        "${PREFIX}/share/man/man1/sorrel-form.1.gz"
        "${PREFIX}/share/bash-completion/completions/sorrel-form"
        "${PREFIX}/${LIBDIR}/cmake/Sorrel/SorrelConfig.cmake"
        "${PREFIX}/${LIBDIR}/cmake/SorrelPlugin/SorrelPluginConfig.cmake"
        "${PREFIX}/include/nui/Sorrel/SrComboBox.h"
        "${PREFIX}/include/nui/Sorrel/template/SrOptionRadios.h")
    if(NOT EXISTS "${SCRATCH}${file}")
        message(SEND_ERROR "not installed: ${file}")
    endif()
endforeach()

file(GLOB_RECURSE installed LIST_DIRECTORIES FALSE "${SCRATCH}/*")
foreach(file IN LISTS installed)
    # Debug information names the sources; it is stripped from what is packaged.
    execute_process(COMMAND objcopy --strip-debug "${file}" "${SCRATCH}.stripped" ERROR_QUIET RESULT_VARIABLE failed)
    if(failed)
        file(COPY_FILE "${file}" "${SCRATCH}.stripped")
    endif()
    file(STRINGS "${SCRATCH}.stripped" lines REGEX "${SOURCE}")
    if(lines)
        message(SEND_ERROR "${file} names a folder of the build: ${lines}")
    endif()
endforeach()
file(REMOVE "${SCRATCH}.stripped")

# The installed plugin finds the installed library, without the build folder's help.
execute_process(COMMAND readelf -d "${SCRATCH}${PLUGINS}/designer/libSorrelPlugin.so" OUTPUT_VARIABLE dynamic
    COMMAND_ERROR_IS_FATAL ANY)
if(NOT dynamic MATCHES "RUNPATH[^\n]*${PREFIX}/${LIBDIR}")
    message(SEND_ERROR "the installed plugin does not look in ${PREFIX}/${LIBDIR}:\n${dynamic}")
endif()

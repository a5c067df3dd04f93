# SPDX-License-Identifier: BSD-3-Clause
# The target sorrel-conformance: the report on the control library of this build.
if(TARGET Sorrel)
    set(library_package "$<TARGET_PROPERTY:Sorrel,BINARY_DIR>")
else()
    set(library_package "${Sorrel_DIR}")
endif()
add_custom_target(sorrel-conformance
    COMMAND ${CMAKE_COMMAND} --log-level=NOTICE -S "${CMAKE_CURRENT_LIST_DIR}" -B "${PROJECT_BINARY_DIR}/conformance"
        -G "${CMAKE_GENERATOR}" "-DSorrel_DIR=${library_package}" "-DQt5_DIR=${Qt5_DIR}"
        "-DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}" "-DCMAKE_PREFIX_PATH=${CMAKE_PREFIX_PATH}"
    VERBATIM USES_TERMINAL)
if(TARGET Sorrel)
    add_dependencies(sorrel-conformance Sorrel)
endif()

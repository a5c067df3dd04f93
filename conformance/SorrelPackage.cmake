# SPDX-License-Identifier: BSD-3-Clause
# The user's own control library: the CMake package in the folder Sorrel_DIR. It defines the target Sorrel::Sorrel
# and the variable Sorrel_HEADER_EXTENSION, the extension of its headers with the dot.
set(sorrel_folder "${Sorrel_DIR}") # find_package() changes it
if(NOT EXISTS "${sorrel_folder}/SorrelConfig.cmake" AND NOT EXISTS "${sorrel_folder}/sorrel-config.cmake")
    message(FATAL_ERROR "Sorrel_DIR is the folder of the control library's SorrelConfig.cmake; there is none in ${sorrel_folder}. docs/use-your-sorrel.md has one to begin with.")
endif()
find_package(Sorrel CONFIG REQUIRED PATHS "${sorrel_folder}" NO_DEFAULT_PATH)
if(NOT TARGET Sorrel::Sorrel)
    message(FATAL_ERROR "The package ${Sorrel_DIR} defines no target Sorrel::Sorrel.")
endif()
if(NOT DEFINED Sorrel_HEADER_EXTENSION)
    message(FATAL_ERROR "The package ${Sorrel_DIR} does not set Sorrel_HEADER_EXTENSION, the extension of its headers (such as .h).")
endif()
if(NOT Sorrel_HEADER_EXTENSION MATCHES "^(\\.[A-Za-z+]+)?$")
    message(FATAL_ERROR "The package ${Sorrel_DIR} sets Sorrel_HEADER_EXTENSION to \"${Sorrel_HEADER_EXTENSION}\"; it begins with a dot, such as .h, or is empty.")
endif()

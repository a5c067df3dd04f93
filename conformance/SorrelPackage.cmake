# SPDX-License-Identifier: BSD-3-Clause
# The user's own control library: the CMake package in the folder Sorrel_DIR. It defines the target Sorrel::Sorrel
# and the variable Sorrel_HEADER_EXTENSION, the extension of its headers with the dot.
find_package(Sorrel CONFIG REQUIRED PATHS "${Sorrel_DIR}" NO_DEFAULT_PATH)
if(NOT TARGET Sorrel::Sorrel)
    message(FATAL_ERROR "The package ${Sorrel_DIR} defines no target Sorrel::Sorrel.")
endif()
if(NOT DEFINED Sorrel_HEADER_EXTENSION)
    message(FATAL_ERROR "The package ${Sorrel_DIR} does not set Sorrel_HEADER_EXTENSION, the extension of its headers (such as .h).")
endif()

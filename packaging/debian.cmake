# SPDX-License-Identifier: BSD-3-Clause
# The Debian packages, made by `./dev package`: the plugin; and where it is built against the stand-in, that library and
# what is needed to build against it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "SorrelPlugin")
# Whoever makes packages says so in the way of Debian's tools.
set(maintainer "SorrelPlugin authors <authors@sorrelplugin.invalid>")
if(DEFINED ENV{DEBEMAIL})
    set(maintainer "$ENV{DEBFULLNAME} <$ENV{DEBEMAIL}>")
endif()
set(CPACK_PACKAGE_CONTACT "${maintainer}")
set(CPACK_OUTPUT_FILE_PREFIX "${PROJECT_SOURCE_DIR}/dist")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Sorrel controls for Qt Designer")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL plugin)
if(TARGET Sorrel)
    list(APPEND CPACK_COMPONENTS_ALL standin standin-dev)
    set(CPACK_COMPONENT_PLUGIN_DEPENDS standin)
    set(CPACK_COMPONENT_STANDIN-DEV_DEPENDS standin)
    get_target_property(library_folder Sorrel BINARY_DIR)
else()
    # A library that no package has is left to its user to install.
    get_target_property(library_folder Sorrel::Sorrel LOCATION)
    get_filename_component(library_folder ${library_folder} DIRECTORY)
endif()
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${library_folder}")

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

# Plugin and library use classes of Designer's library that are not promised to stay.
string(REGEX MATCH "^5\\.([0-9]+)" qt "${Qt5Core_VERSION}")
math(EXPR next_minor "${CMAKE_MATCH_1} + 1")
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt5designer5 (>= ${qt}), libqt5designer5 (<< 5.${next_minor})")

set(CPACK_DEBIAN_PLUGIN_PACKAGE_NAME sorrel-designer-plugin)
set(CPACK_COMPONENT_PLUGIN_DESCRIPTION
    "The controls of the Sorrel user-interface library in Qt Designer's widget box,
with editors for their items, button grids and boxes.")
set(CPACK_DEBIAN_PLUGIN_PACKAGE_RECOMMENDS qttools5-dev-tools) # Designer itself

# Named after the name that programs load it by, as Debian does it.
set(CPACK_DEBIAN_STANDIN_PACKAGE_NAME libsorrel0)
set(CPACK_DEBIAN_STANDIN_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_STANDIN_DESCRIPTION
    "A stand-in for the Sorrel user-interface library, with its class names and
properties: what programs need to run.")
set(CPACK_DEBIAN_STANDIN-DEV_PACKAGE_NAME libsorrel-dev)
set(CPACK_DEBIAN_STANDIN-DEV_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_STANDIN-DEV_PACKAGE_SUGGESTS qtbase5-dev) # what the CMake package asks for
set(CPACK_COMPONENT_STANDIN-DEV_DESCRIPTION
    "A stand-in for the Sorrel user-interface library, with its class names, include
paths and properties: headers and CMake package.")

# What Debian's tools ask of a library: which package brings it, and that the loader looks for it.
set(control ${CMAKE_CURRENT_BINARY_DIR}/packaging)
file(WRITE ${control}/shlibs "libSorrel 0 libsorrel0 (>= ${PROJECT_VERSION})\n")
file(WRITE ${control}/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_STANDIN_PACKAGE_CONTROL_EXTRA "${control}/shlibs;${control}/triggers")
set(CPACK_DEBIAN_STANDIN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# Licence and history, where Debian looks for those of a package. The date is that of the sources.
execute_process(COMMAND git -C ${PROJECT_SOURCE_DIR} log -1 --format=%cD OUTPUT_VARIABLE date ERROR_QUIET
    OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT date)
    set(date "Thu, 01 Jan 1970 00:00:00 +0000")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog ${control}/changelog @ONLY)
if(GZIP)
    execute_process(COMMAND ${GZIP} -9nf ${control}/changelog)
    # CPack calls ldconfig in scripts of the package's own, which the trigger makes needless and which do no harm.
    if(TARGET Sorrel)
        install(FILES ${CMAKE_CURRENT_LIST_DIR}/libsorrel0.lintian DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides
            RENAME libsorrel0 COMPONENT standin)
    endif()
    foreach(component IN LISTS CPACK_COMPONENTS_ALL)
        string(TOUPPER ${component} name)
        install(FILES ${CMAKE_CURRENT_LIST_DIR}/copyright ${control}/changelog.gz
            DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_DEBIAN_${name}_PACKAGE_NAME} COMPONENT ${component})
    endforeach()
endif()

include(CPack)

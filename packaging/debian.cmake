# SPDX-License-Identifier: BSD-3-Clause
# The Debian packages, made by `./dev package`: the plugin, and the stand-in where the plugin is built against it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "SorrelPlugin")
set(CPACK_PACKAGE_CONTACT "SorrelPlugin developers <sorrelplugin@localhost>")
set(CPACK_OUTPUT_FILE_PREFIX "${PROJECT_SOURCE_DIR}/dist")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Sorrel controls for Qt Designer")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL plugin)
if(TARGET Sorrel)
    list(APPEND CPACK_COMPONENTS_ALL standin)
    set(CPACK_COMPONENT_PLUGIN_DEPENDS standin)
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
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

# Both use classes of Designer's library that are not promised to stay.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt5designer5 (>= 5.15), libqt5designer5 (<< 5.16)")

set(CPACK_DEBIAN_PLUGIN_PACKAGE_NAME sorrel-designer-plugin)
set(CPACK_COMPONENT_PLUGIN_DESCRIPTION
    "The controls of the Sorrel user-interface library in Qt Designer's widget box,
with editors for their items, button grids and boxes.")
set(CPACK_DEBIAN_PLUGIN_PACKAGE_RECOMMENDS qttools5-dev-tools) # Designer itself

set(CPACK_DEBIAN_STANDIN_PACKAGE_NAME sorrel-standin)
set(CPACK_COMPONENT_STANDIN_DESCRIPTION
    "A stand-in for the Sorrel user-interface library, with its class names, include
paths and properties; headers and CMake package included.")
set(CPACK_DEBIAN_STANDIN_PACKAGE_SUGGESTS qtbase5-dev) # what the CMake package asks for

# The licence, where Debian looks for that of a package.
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} name)
    install(FILES ${CMAKE_CURRENT_LIST_DIR}/copyright
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_DEBIAN_${name}_PACKAGE_NAME} COMPONENT ${component})
endforeach()

include(CPack)

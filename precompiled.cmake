# SPDX-License-Identifier: BSD-3-Clause
# Qt's headers are half of what the compiler has to do here: they are compiled once for the tests, which are not
# optimized, and once for all else. Not with CMAKE_DISABLE_PRECOMPILE_HEADERS, as the preset "werror" has it, where a
# missing #include would not be noticed, nor with a compiler cache, which finds nothing again that was built with them.
if(CMAKE_VERSION VERSION_LESS 3.18 OR CMAKE_DISABLE_PRECOMPILE_HEADERS OR CMAKE_CXX_COMPILER_LAUNCHER OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    return()
endif()

# sorrel_precompile(TARGET HEADER ...): has a target that is compiled as others are compile the headers for them.
function(sorrel_precompile target)
    file(CONFIGURE OUTPUT precompiled.cpp CONTENT "")
    add_library(${target} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/precompiled.cpp)
    set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    target_include_directories(${target} SYSTEM PRIVATE ${Qt5Designer_PRIVATE_INCLUDE_DIRS})
    target_link_libraries(${target} PRIVATE project_options Qt5::Designer)
    target_precompile_headers(${target} PRIVATE
        <QtDesigner/QDesignerFormEditorInterface>
        <QtWidgets/QApplication>
        <QtWidgets/QComboBox>
        <QtWidgets/QDialog>
        <QtWidgets/QLineEdit>
        <QtWidgets/QListWidget>
        <QtWidgets/QTableWidget>
        <QtWidgets/QToolButton>
        <QtWidgets/QTreeView>
        <QtWidgets/QUndoStack>
        <private/formwindowbase_p.h>
        <private/qdesigner_utils_p.h>
        <algorithm>
        <functional>
        <memory>
        ${ARGN})
endfunction()

sorrel_precompile(precompiled)
foreach(target IN ITEMS Sorrel SorrelPropertyEditor SorrelEditing SorrelExtensions SorrelPlugin DesignerHost
        FloorPlugin bench embed sorrel-form)
    if(TARGET ${target})
        target_precompile_headers(${target} REUSE_FROM precompiled)
    endif()
endforeach()

if(BUILD_TESTING)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Test)
    sorrel_precompile(precompiled_tests <QtTest/QtTest>)
    target_link_libraries(precompiled_tests PRIVATE Qt5::Test)
    target_compile_options(precompiled_tests PRIVATE -O0)
    foreach(target IN ITEMS TestSupport hunt)
        if(TARGET ${target})
            target_precompile_headers(${target} REUSE_FROM precompiled_tests)
        endif()
    endforeach()
    set(folders tests/unit tests/plugin tests/host)
    if(TARGET Sorrel)
        list(APPEND folders standin/tests)
    endif()
    foreach(folder IN LISTS folders)
        get_property(tests DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
        list(FILTER tests INCLUDE REGEX "^(tst_|(Host|Pane)Tests$)")
        foreach(test IN LISTS tests)
            target_precompile_headers(${test} REUSE_FROM precompiled_tests)
            # Of most tests there is nothing in it, for which the headers would be loaded.
            if(test MATCHES "^tst_")
                get_property(binary TARGET ${test} PROPERTY BINARY_DIR)
                set_source_files_properties(${binary}/${test}_autogen/mocs_compilation.cpp
                    TARGET_DIRECTORY ${test} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
            endif()
        endforeach()
    endforeach()
endif()

# SPDX-License-Identifier: BSD-3-Clause
# The installed stand-in as somebody else's control library: with another header extension, and with a fault of every
# kind that is looked for.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${SCRATCH}")
foreach(component standin standin-dev)
    execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" --component ${component} --prefix "${SCRATCH}/hpp"
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# Its headers become .hpp, in their names and where they include each other.
file(GLOB_RECURSE headers "${SCRATCH}/hpp/include/*.h")
foreach(header IN LISTS headers)
    file(READ "${header}" text)
    string(REGEX REPLACE "(<nui/Sorrel/[A-Za-z/]+)\\.h>" "\\1.hpp>" text "${text}")
    file(REMOVE "${header}")
    file(WRITE "${header}pp" "${text}")
endforeach()
set(config "${LIBDIR}/cmake/Sorrel/SorrelConfig.cmake")
file(READ "${SCRATCH}/hpp/${config}" text)
string(REPLACE "\".h\"" "\".hpp\"" text "${text}")
file(WRITE "${SCRATCH}/hpp/${config}" "${text}")

function(expect_report name expected_result)
    execute_process(COMMAND ${CMAKE_COMMAND} -S "${SOURCE}/conformance" -B "${SCRATCH}/build-${name}" -G "${GENERATOR}"
            "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DSorrel_DIR=${SCRATCH}/${name}/${LIBDIR}/cmake/Sorrel"
        OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
    if(NOT result EQUAL expected_result)
        message(SEND_ERROR "${name}: ended with ${result}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect_text text)
    string(FIND "${output}" "${text}" at)
    if(at EQUAL -1)
        message(SEND_ERROR "not found:\n${text}\nin:\n${output}")
    endif()
endfunction()

function(replace_in file from to)
    file(READ "${file}" text)
    string(REPLACE "${from}" "${to}" changed "${text}")
    if(changed STREQUAL text)
        message(SEND_ERROR "${file} has no: ${from}")
    endif()
    file(WRITE "${file}" "${changed}")
endfunction()

expect_report(hpp 0)
expect_text("Nothing is missing")

file(COPY "${SCRATCH}/hpp/" DESTINATION "${SCRATCH}/broken")
set(folder "${SCRATCH}/broken/include/nui/Sorrel")
# For the compiler: two setters and a constructor are not declared, a class has another base.
replace_in("${folder}/SrMatrixButtons.hpp" "MatrixCheckBoxes : public AbstractMatrixOptions"
    "MatrixCheckBoxes : public QWidget")
replace_in("${folder}/SrComboBox.hpp" "void setActionList(" "void changeActionList(")
replace_in("${folder}/SrMatrixPopButtons.hpp" "void setColumn(" "void changeColumn(")
replace_in("${folder}/SrColorPanel.hpp" "explicit ColorPanel(QWidget *parent = nullptr, Qt::WindowFlags flags = {})"
    "explicit ColorPanel(QWidget *parent = nullptr)")
file(REMOVE "${folder}/SrFormBuilder.hpp")
# For the linker: declared in a way that the library does not have.
replace_in("${folder}/SrDrawbackBoxGroup.hpp" "void removePage(int index)" "void removePage(long index)")
# For the running program: a class without Q_OBJECT, a signal, a slot and a property under another name.
file(READ "${folder}/Template/SrAngle.hpp" text)
string(REPLACE "Q_OBJECT" "" text "${text}")
file(WRITE "${folder}/Template/SrAngle.hpp" "${text}")
file(GLOB library "${SCRATCH}/broken/${LIBDIR}/libSorrel.so.*.*.*")
execute_process(COMMAND sed -z -i "s/^pageTitleChanged$/pageTitleChangex/;s/^updateGeomtries$/updateGeomtriex/;s/^functionName$/functionNamx/"
    "${library}" COMMAND_ERROR_IS_FATAL ANY)

expect_report(broken 1)
expect_text("lacks 15 of the ")
expect_text("  Vexa::Angle                   (the class)           class Vexa::Angle : public QWidget, with Q_OBJECT, in <nui/Sorrel/Template/SrAngle.hpp>\n")
expect_text("  Vexa::MatrixCheckBoxes        (the class)           class Vexa::MatrixCheckBoxes : public Vexa::AbstractMatrixOptions, with Q_OBJECT, in <nui/Sorrel/SrMatrixButtons.hpp>\n")
expect_text("  Vexa::ColorPanel              (constructor)         Vexa::ColorPanel(QWidget *, Qt::WindowFlags)\n")
expect_text("  Vexa::ComboBox                setActionList         void setActionList(const QStringList &)\n")
expect_text("  Vexa::DrawbackBoxGroup        removePage            void removePage(int)\n")
expect_text("  Vexa::DrawbackBoxGroup        pageTitleChanged      signal pageTitleChanged(QString)\n")
expect_text("  Vexa::OptionButtons           updateGeomtries       slot updateGeomtries()\n")
expect_text("  Vexa::OptionRadios            updateGeomtries       slot updateGeomtries()\n")
expect_text("  Vexa::AbstractMatrixOptions   updateGeomtries       slot updateGeomtries()\n")
expect_text("  Vexa::MatrixPopButtons        updateGeomtries       slot updateGeomtries()\n")
expect_text("  Vexa::Form                    functionName          property functionName\n")
expect_text("  Vexa::FormBuilder             (the class)           class Vexa::FormBuilder in <nui/Sorrel/SrFormBuilder.hpp>\n")
expect_text("  Vexa::FormBuilder             saveExtraInfo         static void saveExtraInfo(DomWidget *, QWidget *, void *)\n")
expect_text("  Vexa::MatrixPopButtons        setColumn             void setColumn(unsigned int)\n")

# A header extension that is not the library's.
replace_in("${SCRATCH}/broken/${config}" "\".hpp\"" "\".hxx\"")
expect_report(broken 1)
expect_text("is the header extension \".hxx\" right?")

# Whatever the plugin links from the control library stands in the list of what is checked.
file(READ "${SOURCE}/conformance/operations.txt" operations)
file(READ "${SOURCE}/plugin/catalogue.h" catalogue)
execute_process(COMMAND nm -D -C --undefined-only "${PLUGIN}" OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "U Vexa::[A-Za-z]+::[A-Za-z]+\\(" calls "${symbols}")
list(LENGTH calls count)
if(count LESS 45)
    message(SEND_ERROR "only ${count} calls of the control library found in ${PLUGIN}")
endif()
foreach(call IN LISTS calls)
    string(REGEX REPLACE "U (Vexa::([A-Za-z]+))::([A-Za-z]+)\\(" "\\1;\\2;\\3" call "${call}")
    list(GET call 0 class)
    list(GET call 1 short_class)
    list(GET call 2 operation)
    if(short_class STREQUAL operation)
        set(wanted "class ${class} [^\n]+\nconstructor")
    else()
        set(wanted "\nfunction [^\n]*[ *]${operation}\\(")
    endif()
    if(short_class STREQUAL operation AND catalogue MATCHES "\"${class}\"")
        continue() # every control of the catalogue is made so
    endif()
    if(NOT operations MATCHES "${wanted}")
        message(SEND_ERROR "the plugin calls ${class}::${operation}, which operations.txt does not list")
    endif()
endforeach()

# SPDX-License-Identifier: LGPL-2.1-or-later
# What all targets share: the Qt major, the language, warnings, sanitizers and where things are put.

# What differs between the majors of Qt. KIRV_QT_MAJOR 4 builds the library alone, in the C++ that Qt 4.8 allows.
if(NOT KIRV_QT_MAJOR MATCHES "^[456]$")
    message(FATAL_ERROR "KIRV_QT_MAJOR is ${KIRV_QT_MAJOR}; it must be 5 or 6, or 4 for the library alone")
endif()
set(KIRV_QT Qt${KIRV_QT_MAJOR})
set(KIRV_LIBRARY_STANDARD 11)
set(KIRV_WARNINGS -Wall -Wextra)
# Newer compilers warn of the macros of Qt 4 and of what its moc generates.
if(KIRV_WARNINGS_ARE_ERRORS AND NOT KIRV_QT_MAJOR EQUAL 4)
    list(APPEND KIRV_WARNINGS -Werror)
endif()
if(KIRV_QT_MAJOR EQUAL 4)
    find_package(Qt4 4.8 REQUIRED COMPONENTS QtCore QtGui)
    # As it is called since Qt 5. Qt 4 has no module of this name.
    add_library(Qt4::Widgets INTERFACE IMPORTED)
    target_link_libraries(Qt4::Widgets INTERFACE Qt4::QtGui Qt4::QtCore)
else()
    find_package(${KIRV_QT} REQUIRED COMPONENTS Core Gui Widgets)
    if(KIRV_BUILD_CLIENT)
        find_package(${KIRV_QT} REQUIRED COMPONENTS Sql UiTools Network Xml DBus)
        find_package(${KIRV_QT}Keychain QUIET)
        if(NOT TARGET ${KIRV_QT}Keychain::${KIRV_QT}Keychain)
            string(TOLOWER "${KIRV_QT}" qt)
            message(FATAL_ERROR "QtKeychain for ${KIRV_QT} is missing, through which passwords go to the desktop's \
keyring. On Debian it is in the package qtkeychain-${qt}-dev.")
        endif()
    endif()
    if(KIRV_BUILD_TESTS)
        find_package(${KIRV_QT} REQUIRED COMPONENTS Test)
    endif()
endif()
if(KIRV_QT_MAJOR EQUAL 6)
    set(KIRV_LIBRARY_STANDARD 17) # the library is C++11, Qt 6 itself needs more
endif()

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
# The version of the plug-in interface, as its header has it.
file(STRINGS "${PROJECT_SOURCE_DIR}/core/protocol/kirv_protocol_plugin.h" api_line
    REGEX "^#define KIRV_PROTOCOL_PLUGIN_API [0-9]+$")
string(REGEX MATCH "[0-9]+$" KIRV_PROTOCOL_PLUGIN_API "${api_line}")
if(NOT KIRV_PROTOCOL_PLUGIN_API)
    message(FATAL_ERROR "core/protocol/kirv_protocol_plugin.h does not define KIRV_PROTOCOL_PLUGIN_API as a number")
endif()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/core/protocol/kirv_protocol_plugin.h")
set(KIRV_PROTOCOL_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib/kirv/protocols")

# What runs the compilers, and its options.
set(KIRV_COMPILE "${PROJECT_SOURCE_DIR}/cmake/compile")
if(KIRV_USE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(KIRV_CCACHE ccache)
    if(KIRV_CCACHE)
        list(APPEND KIRV_COMPILE -c "${KIRV_CCACHE}")
        set(CMAKE_CXX_COMPILER_LAUNCHER ${KIRV_COMPILE})
    endif()
endif()

# What most sources include. Headers of whole modules would cost each source more than they save: gcc instantiates anew
# what the functions in them use.
set(KIRV_COMMON_HEADERS <algorithm> <functional> <memory> <optional> <utility>
    <QCoreApplication> <QDateTime> <QDir> <QFile> <QHash> <QList> <QMap> <QObject> <QPointer> <QSet> <QString>
    <QStringList> <QTimer> <QVariant>)
set(KIRV_COMMON_WIDGET_HEADERS ${KIRV_COMMON_HEADERS}
    <QApplication> <QDialog> <QHBoxLayout> <QLabel> <QLineEdit> <QPushButton> <QTreeWidget> <QVBoxLayout> <QWidget>)

# kirv_precompile(TARGET HEADERS...): compiles HEADERS once for all sources of TARGET, which takes most of the time of each.
# Only for who builds everything again and again: it hides that a source does not include what it needs.
function(kirv_precompile target)
    if(NOT KIRV_PRECOMPILE_HEADERS)
        return()
    endif()
    target_precompile_headers(${target} PRIVATE ${ARGN})
endfunction()

# kirv_find_libraries_in(TARGET FOLDERS...): what is installed of TARGET finds the project's libraries in these folders,
# which are relative to its own. Who packages it can say otherwise by CMAKE_INSTALL_RPATH and CMAKE_SKIP_INSTALL_RPATH.
function(kirv_find_libraries_in target)
    if(NOT DEFINED CMAKE_INSTALL_RPATH)
        list(TRANSFORM ARGN PREPEND "$ORIGIN/")
        set_target_properties(${target} PROPERTIES INSTALL_RPATH "${ARGN}")
    endif()
endfunction()

# Linked privately by every target of ours.
add_library(kirv_build_options INTERFACE)
target_include_directories(kirv_build_options INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(kirv_build_options INTERFACE ${KIRV_WARNINGS})
target_compile_definitions(kirv_build_options INTERFACE QT_DEPRECATED_WARNINGS)
# Not the programs that only test (KIRV_IS_TEST), which take half of the time of a build otherwise.
set(sanitized "$<NOT:$<BOOL:$<TARGET_PROPERTY:KIRV_IS_TEST>>>")
if(KIRV_SANITIZE)
    target_compile_options(kirv_build_options INTERFACE
        "$<${sanitized}:-fsanitize=address,undefined;-fno-sanitize-recover=undefined;-fno-omit-frame-pointer>")
    # It would export the type of each function.
    target_compile_options(kirv_build_options INTERFACE
        "$<$<AND:${sanitized},$<CXX_COMPILER_ID:Clang>>:-fno-sanitize=function>")
    target_link_options(kirv_build_options INTERFACE -fsanitize=address,undefined)
    target_compile_definitions(kirv_build_options INTERFACE KIRV_SANITIZED)
endif()
if(KIRV_FUZZ)
    target_compile_options(kirv_build_options INTERFACE "$<${sanitized}:-fsanitize=fuzzer-no-link>")
endif()

# kirv_add_protocol_library(NAME SOURCES...): what a protocol consists of without its plug-in class, as a static library
# that tests link against, too.
function(kirv_add_protocol_library name)
    add_library(${name} STATIC ${ARGN})
    target_link_libraries(${name} PRIVATE kirv_build_options PUBLIC kirv_protocol)
    set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()

# kirv_add_protocol(NAME [OUTPUT folder] SOURCES...): a protocol plug-in, loaded at run time. One with a folder of
# its own stays out of the client: it is neither loaded from the protocols' folder nor installed.
function(kirv_add_protocol name)
    cmake_parse_arguments(arg "" "OUTPUT" "" ${ARGN})
    add_library(${name} MODULE ${arg_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PRIVATE kirv_build_options kirv_protocol)
    set_target_properties(${name} PROPERTIES
        PREFIX "" CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
        LIBRARY_OUTPUT_DIRECTORY "${KIRV_PROTOCOL_OUTPUT_DIRECTORY}")
    kirv_find_libraries_in(${name} ../..)
    if(arg_OUTPUT)
        set_target_properties(${name} PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${arg_OUTPUT}")
        return()
    endif()
    install(TARGETS ${name} LIBRARY DESTINATION "${KIRV_PROTOCOL_INSTALL_DIRECTORY}")
    set_property(GLOBAL APPEND PROPERTY KIRV_CLIENT_PROTOCOLS ${name})
endfunction()

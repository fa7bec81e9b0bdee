# SPDX-License-Identifier: LGPL-2.1-or-later
# The target api_reference, where Doxygen is installed: what the headers say that are installed for developers, as HTML in
# the folder api_reference of the build. A warning ends it with an error.
find_package(Doxygen QUIET)
if(NOT DOXYGEN_FOUND)
    return()
endif()

get_property(rooms GLOBAL PROPERTY KIRV_INSTALLED_ROOMS)
list(APPEND rooms contract_check)
list(REMOVE_DUPLICATES rooms)
set(main_page "${PROJECT_SOURCE_DIR}/docs/api-reference.md")

set(DOXYGEN_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/api_reference")
set(DOXYGEN_HTML_OUTPUT .)
set(DOXYGEN_FILE_PATTERNS *.h)
set(DOXYGEN_EXCLUDE_PATTERNS *_p.h)
set(DOXYGEN_STRIP_FROM_PATH "${PROJECT_SOURCE_DIR}")
set(DOXYGEN_STRIP_FROM_INC_PATH "${PROJECT_SOURCE_DIR}")
set(DOXYGEN_USE_MDFILE_AS_MAINPAGE "${main_page}")
# A comment begins with its sentence in short.
set(DOXYGEN_JAVADOC_AUTOBRIEF YES)
set(DOXYGEN_HAVE_DOT NO)
set(DOXYGEN_QUIET YES)
set(DOXYGEN_WARN_AS_ERROR FAIL_ON_WARNINGS)
# Macros that are no part of what they stand in.
set(DOXYGEN_MACRO_EXPANSION YES)
set(DOXYGEN_EXPAND_ONLY_PREDEF YES)
set(DOXYGEN_PREDEFINED
    KIRV_GUI_ACCOUNTS_TAB_EXPORT= KIRV_PROTOCOL_EXPORT= KIRV_VALUES_EXPORT= Q_DECL_HIDDEN=
    Q_OBJECT= "Q_ENUM(x)=" "Q_DISABLE_COPY(x)=" "Q_DECLARE_METATYPE(x)=" "Q_DECLARE_TR_FUNCTIONS(x)=")
list(TRANSFORM rooms PREPEND "${PROJECT_SOURCE_DIR}/")
doxygen_add_docs(api_reference ${rooms} "${main_page}" COMMENT "Making the API reference")

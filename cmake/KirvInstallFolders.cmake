# SPDX-License-Identifier: LGPL-2.1-or-later
# The folders of an installation, relative to its prefix: what is installed finds its parts from where the program is, so
# that it can be moved.
include(GNUInstallDirs)

foreach(folder IN ITEMS BINDIR LIBDIR INCLUDEDIR DATADIR MANDIR DOCDIR)
    if(IS_ABSOLUTE "${CMAKE_INSTALL_${folder}}")
        file(RELATIVE_PATH relative "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_${folder}}")
        if(relative MATCHES "^\\.\\.(/|$)")
            message(FATAL_ERROR "CMAKE_INSTALL_${folder} (${CMAKE_INSTALL_${folder}}) must be below "
                                "CMAKE_INSTALL_PREFIX (${CMAKE_INSTALL_PREFIX}).")
        endif()
        set(CMAKE_INSTALL_${folder} "${relative}")
    endif()
endforeach()

set(KIRV_PRIVATE_LIBRARY_DIRECTORY "${CMAKE_INSTALL_LIBDIR}/kirv")
set(KIRV_PROTOCOL_INSTALL_DIRECTORY "${CMAKE_INSTALL_LIBDIR}/kirv/protocols")
set(KIRV_INSTALL_TRANSLATIONS "${CMAKE_INSTALL_DATADIR}/kirv/translations")
# From the folder of the programs.
file(RELATIVE_PATH KIRV_PREFIX_FROM_BIN "/prefix/${CMAKE_INSTALL_BINDIR}" "/prefix")
string(REGEX REPLACE "/$" "" KIRV_PREFIX_FROM_BIN "${KIRV_PREFIX_FROM_BIN}")

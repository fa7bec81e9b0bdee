# SPDX-License-Identifier: LGPL-2.1-or-later
# Builds and installs the page alone as a distribution does: without Qt's test library and what only the client needs,
# without tests, and with a linker that refuses open symbols. Takes WORK, SOURCE, QT, COMPILER, LIBRARIES and READELF.
include("${CMAKE_CURRENT_LIST_DIR}/install.cmake")
string(REPLACE "Qt" "" major "${QT}")
set(options -DCMAKE_BUILD_TYPE=None -DKIRV_QT_MAJOR=${major} -DKIRV_BUILD_CLIENT=OFF -DKIRV_BUILD_TESTS=OFF
    "-DCMAKE_SHARED_LINKER_FLAGS=-Wl,-z,defs" "-DCMAKE_CXX_COMPILER=${COMPILER}"
    -DCMAKE_INSTALL_PREFIX=/usr "-DCMAKE_INSTALL_LIBDIR=/usr/${LIBRARIES}")
foreach(module IN ITEMS Test Sql Svg UiTools Network Xml LinguistTools)
    list(APPEND options "-DCMAKE_DISABLE_FIND_PACKAGE_${QT}${module}=ON")
endforeach()

file(REMOVE_RECURSE "${WORK}")
run("${CMAKE_COMMAND}" -S "${SOURCE}" -B "${WORK}/build" -G Ninja ${options})
run("${CMAKE_COMMAND}" --build "${WORK}/build")
run("${CMAKE_COMMAND}" -E env "DESTDIR=${WORK}/tree" "${CMAKE_COMMAND}" --install "${WORK}/build")

# A folder below the prefix may be given as an absolute path; what is installed can be moved all the same.
file(READ "${WORK}/tree/usr/${LIBRARIES}/pkgconfig/kirv-gui-accounts-tab.pc" package)
string(FIND "${package}" "libdir=\${prefix}/${LIBRARIES}\n" position)
if(position EQUAL -1)
    message(FATAL_ERROR "The file for pkg-config has another folder of the library than ${LIBRARIES}:\n${package}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${SOURCE}" -B "${WORK}/elsewhere" -G Ninja ${options}
    -DCMAKE_INSTALL_LIBDIR=/elsewhere ERROR_VARIABLE refusal OUTPUT_QUIET RESULT_VARIABLE result)
if(result EQUAL 0 OR NOT refusal MATCHES "CMAKE_INSTALL_LIBDIR")
    message(FATAL_ERROR "A folder outside the prefix is not refused: ${refusal}")
endif()

# Without a preset nothing is forced upon who builds it.
file(READ "${WORK}/build/build.ninja" commands)
file(READ "${WORK}/build/CMakeFiles/rules.ninja" rules)
string(APPEND commands "${rules}")
foreach(forced IN ITEMS " -Werror" "/ccache ")
    string(FIND "${commands}" "${forced}" position)
    if(NOT position EQUAL -1)
        message(FATAL_ERROR "The compiler is called with ${forced}")
    endif()
endforeach()
execute_process(COMMAND "${READELF}" -d "${WORK}/tree/usr/${LIBRARIES}/libkirv_gui_accounts_tab.so"
    OUTPUT_VARIABLE section COMMAND_ERROR_IS_FATAL ANY)
if(section MATCHES "(RPATH|RUNPATH)")
    message(FATAL_ERROR "The installed library has a search path of its own:\n${section}")
endif()
foreach(file IN ITEMS share/doc/Kirv/LICENSE share/kirv/layouts/Accounts.ui include/kirv/host/kirv_protocol.h
        include/kirv/accounts_tab/kirv_accounts_tab.h "${LIBRARIES}/pkgconfig/kirv-gui-accounts-tab.pc")
    if(NOT EXISTS "${WORK}/tree/usr/${file}")
        message(FATAL_ERROR "${file} is not installed")
    endif()
endforeach()
foreach(foreign IN ITEMS bin share/applications include/kirv/core "${LIBRARIES}/kirv")
    if(EXISTS "${WORK}/tree/usr/${foreign}")
        message(FATAL_ERROR "${foreign} is installed without the client")
    endif()
endforeach()

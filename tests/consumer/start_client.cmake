# SPDX-License-Identifier: LGPL-2.1-or-later
# Installs everything and starts the client. Takes BUILD, WORK, VERSION, PROGRAM, LIBRARIES and PROTOCOLS.
include("${CMAKE_CURRENT_LIST_DIR}/install.cmake")
install_and_move(folder)

execute_process(COMMAND "${folder}/${PROGRAM}" --version OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
if(NOT output MATCHES "${VERSION}")
    message(FATAL_ERROR "The installed client says \"${output}\" and not ${VERSION}")
endif()

# The texts in other languages are found, wherever they are installed.
execute_process(COMMAND "${CMAKE_COMMAND}" -E env LC_ALL=C.UTF-8 "${folder}/${PROGRAM}" --help
    OUTPUT_VARIABLE english COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" -E env LC_ALL=de_DE.UTF-8 "${folder}/${PROGRAM}" --help
    OUTPUT_VARIABLE german COMMAND_ERROR_IS_FATAL ANY)
if(german STREQUAL english)
    message(FATAL_ERROR "The installed client has no texts in German")
endif()

# Nothing that was installed may need the build folder, or miss a library.
file(GLOB libraries "${folder}/${LIBRARIES}/*.so.*" "${folder}/${LIBRARIES}/kirv/*.so" "${folder}/${PROTOCOLS}/*.so")
foreach(file IN LISTS libraries ITEMS "${folder}/${PROGRAM}")
    execute_process(COMMAND ldd "${file}" OUTPUT_VARIABLE needed COMMAND_ERROR_IS_FATAL ANY)
    string(FIND "${needed}" "${BUILD}/lib/" in_build_folder)
    if(needed MATCHES "not found" OR NOT in_build_folder EQUAL -1)
        message(FATAL_ERROR "${file} does not find its libraries:\n${needed}")
    endif()
endforeach()

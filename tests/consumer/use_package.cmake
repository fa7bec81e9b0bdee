# SPDX-License-Identifier: LGPL-2.1-or-later
# Builds the project in CLIENT with the installed package and runs it. Takes BUILD, WORK, CLIENT, COMPILER and FLAGS.
include("${CMAKE_CURRENT_LIST_DIR}/install.cmake")
install_and_move(folder)

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

run("${CMAKE_COMMAND}" -S "${CLIENT}" -B "${WORK}/build" -G Ninja
    "-DCMAKE_PREFIX_PATH=${folder}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}")
run("${CMAKE_COMMAND}" --build "${WORK}/build")
run("${WORK}/build/consumer")

# SPDX-License-Identifier: LGPL-2.1-or-later
# Takes BUILD, CLIENT, WORK, COMPILER and FLAGS.
set(prefix "${WORK}/prefix")
set(moved "${WORK}/moved")
file(REMOVE_RECURSE "${WORK}")

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(component IN ITEMS page development)
    run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${prefix}" --component ${component})
endforeach()
# A package must not know where it was installed first.
file(RENAME "${prefix}" "${moved}")
run("${CMAKE_COMMAND}" -S "${CLIENT}" -B "${WORK}/build" -G Ninja
    "-DCMAKE_PREFIX_PATH=${moved}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}")
run("${CMAKE_COMMAND}" --build "${WORK}/build")
run("${WORK}/build/consumer")

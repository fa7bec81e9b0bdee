# SPDX-License-Identifier: LGPL-2.1-or-later
# install_and_move(FOLDER): installs from BUILD into a folder below WORK and moves that to another one, which FOLDER
# names then: what is installed must not know where it was installed first. Where PREFIX is given, everything is
# installed there already.
function(install_and_move folder)
    file(REMOVE_RECURSE "${WORK}")
    if(PREFIX)
        file(MAKE_DIRECTORY "${WORK}")
        set(${folder} "${PREFIX}" PARENT_SCOPE)
        return()
    endif()
    execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/first"
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(RENAME "${WORK}/first" "${WORK}/moved")
    set(${folder} "${WORK}/moved" PARENT_SCOPE)
endfunction()

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# build_with_packages(SOURCE PREFIX): builds the project in SOURCE with the packages in PREFIX into WORK/build, with
# COMPILER and FLAGS.
function(build_with_packages source prefix)
    run("${CMAKE_COMMAND}" -S "${source}" -B "${WORK}/build" -G Ninja
        "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}")
    run("${CMAKE_COMMAND}" --build "${WORK}/build")
endfunction()

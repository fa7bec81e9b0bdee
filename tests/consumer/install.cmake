# SPDX-License-Identifier: LGPL-2.1-or-later
# install_and_move(FOLDER): installs from BUILD into a folder below WORK and moves that to another one, which FOLDER
# names then: what is installed must not know where it was installed first.
function(install_and_move folder)
    file(REMOVE_RECURSE "${WORK}")
    execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/first"
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(RENAME "${WORK}/first" "${WORK}/moved")
    set(${folder} "${WORK}/moved" PARENT_SCOPE)
endfunction()

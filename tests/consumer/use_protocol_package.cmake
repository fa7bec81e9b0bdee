# SPDX-License-Identifier: LGPL-2.1-or-later
# Builds a copy of the example protocol with the installed package, installs it among the protocols of the installed
# client and loads it with that client's core. Takes BUILD, WORK, EXAMPLE (its sources), PROJECT (the CMakeLists.txt for
# the copy), LOADER, LIBRARIES, PROTOCOLS, COMPILER and FLAGS.
include("${CMAKE_CURRENT_LIST_DIR}/install.cmake")
install_and_move(folder)

# The include paths of the sources start above protocols/.
file(COPY "${EXAMPLE}" DESTINATION "${WORK}/source/protocols")
# file(COPY) keeps a file of the same name and time, which a fresh checkout has.
configure_file("${PROJECT}" "${WORK}/source/protocols/example/CMakeLists.txt" COPYONLY)
build_with_packages("${WORK}/source/protocols/example" "${folder}")
if(PREFIX)
    return() # only root may install it there
endif()
run("${CMAKE_COMMAND}" --install "${WORK}/build")

set(plug_in "${folder}/${PROTOCOLS}/kirv_protocol_example.so")
run("${CMAKE_COMMAND}" -E env "LD_LIBRARY_PATH=${folder}/${LIBRARIES}:${folder}/${LIBRARIES}/kirv"
    "${LOADER}" "${plug_in}" Example)

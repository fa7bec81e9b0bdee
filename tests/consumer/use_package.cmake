# SPDX-License-Identifier: LGPL-2.1-or-later
# Builds the project in CLIENT with the installed package and runs it, and the check of its core. Takes BUILD, WORK, CLIENT, COMPILER and FLAGS.
include("${CMAKE_CURRENT_LIST_DIR}/install.cmake")
install_and_move(folder)
build_with_packages("${CLIENT}" "${folder}")
run("${WORK}/build/consumer")
run("${WORK}/build/check_host")

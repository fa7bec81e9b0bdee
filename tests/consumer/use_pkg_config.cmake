# SPDX-License-Identifier: LGPL-2.1-or-later
# Builds the sources in CLIENT with what pkg-config says of the installed page and runs the program. Takes BUILD, WORK,
# CLIENT, LIBRARIES, QT, MOC, RCC, PKG_CONFIG, COMPILER and FLAGS.
include("${CMAKE_CURRENT_LIST_DIR}/install.cmake")
install_and_move(folder)
set(ENV{PKG_CONFIG_PATH} "${folder}/${LIBRARIES}/pkgconfig")

function(ask variable)
    execute_process(COMMAND "${PKG_CONFIG}" ${ARGN} kirv-gui-accounts-tab
        OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(${variable} "${answer}" PARENT_SCOPE)
endfunction()

ask(headers --variable=includedir)
ask(layouts --variable=layoutsdir)
ask(translations --variable=translationsdir)
ask(libdir --variable=libdir)
ask(compile --cflags)
ask(link --libs)
execute_process(COMMAND "${PKG_CONFIG}" --cflags --libs ${QT}UiTools
    OUTPUT_VARIABLE ui_tools OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${compile} ${ui_tools} ${link} ${FLAGS}")

set(sources "${CLIENT}/main.cpp" "${CLIENT}/memory_host.cpp")
foreach(name IN ITEMS kirv_avatar_quick_set_widget kirv_field_widget)
    run("${MOC}" "${headers}/host/${name}.h" -o "${WORK}/moc_${name}.cpp")
    list(APPEND sources "${WORK}/moc_${name}.cpp")
endforeach()
run("${RCC}" "${layouts}/layouts.qrc" -o "${WORK}/layouts.cpp")
run("${COMPILER}" -std=c++17 -fPIC "-DLAYOUTS=\"${layouts}\"" "-DTRANSLATIONS=\"${translations}\"" ${sources} "${WORK}/layouts.cpp" ${flags}
    "-Wl,-rpath,${libdir}" -o "${WORK}/consumer")
run("${WORK}/consumer")

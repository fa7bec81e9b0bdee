# SPDX-License-Identifier: LGPL-2.1-or-later
# Writes the catalogue SOURCE to TARGET, with only the contexts of the list CONTEXTS (MODE is TAKE) or without them
# (LEAVE).
file(READ "${SOURCE}" rest)
string(FIND "${rest}" "<context>" start)
if(start EQUAL -1)
    message(FATAL_ERROR "${SOURCE} has no texts")
endif()
string(SUBSTRING "${rest}" 0 ${start} chosen)
while(NOT start EQUAL -1)
    string(SUBSTRING "${rest}" ${start} -1 rest)
    string(FIND "${rest}" "</context>" end)
    math(EXPR end "${end} + 11") # and the end of the line
    string(SUBSTRING "${rest}" 0 ${end} context)
    string(SUBSTRING "${rest}" ${end} -1 rest)
    string(REGEX MATCH "<name>([^<]*)</name>" name "${context}")
    set(name "${CMAKE_MATCH_1}")
    list(FIND CONTEXTS "${name}" place)
    if((MODE STREQUAL TAKE AND NOT place EQUAL -1) OR (MODE STREQUAL LEAVE AND place EQUAL -1))
        string(APPEND chosen "${context}")
    endif()
    string(FIND "${rest}" "<context>" start)
endwhile()
file(WRITE "${TARGET}" "${chosen}</TS>\n")

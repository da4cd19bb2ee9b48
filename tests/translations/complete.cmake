# SPDX-License-Identifier: MIT
# Takes the texts of the library into a copy of the translation. Fails where that changes it, or leaves work to do.
cmake_minimum_required(VERSION 3.19)

get_filename_component(name ${TRANSLATION} NAME)
set(copy ${WORK_DIR}/${name})
file(COPY ${TRANSLATION} DESTINATION ${WORK_DIR})
execute_process(COMMAND ${LUPDATE} ${copy} COMMAND_ERROR_IS_FATAL ANY)

file(READ ${TRANSLATION} before)
file(READ ${copy} after)
if(NOT after STREQUAL before)
    message(FATAL_ERROR "${name} is behind the sources; build the target update_translations. It would become:\n${after}")
endif()
if(NOT before MATCHES "<message>" OR before MATCHES "type=\"|<translation></translation>|<translation/>")
    message(FATAL_ERROR "${name} has messages without a finished translation:\n${before}")
endif()

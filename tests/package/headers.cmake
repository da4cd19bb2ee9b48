# SPDX-License-Identifier: MIT
# Compiles every installed header alone, as the only include of a host that allows no warning and no Qt keyword.
cmake_minimum_required(VERSION 3.19)

file(REMOVE_RECURSE "${WORK_DIR}")
set(root "${STAGING}/${INCLUDEDIR}/tavro")
file(GLOB_RECURSE headers RELATIVE "${root}" "${root}/*")
if(NOT headers)
    message(FATAL_ERROR "no header below ${root}")
endif()

# Qt's own headers are not on trial.
execute_process(COMMAND ${PKG_CONFIG} --cflags Qt5Widgets
    OUTPUT_VARIABLE qt_flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(qt_flags UNIX_COMMAND "${qt_flags}")
list(TRANSFORM qt_flags REPLACE "^-I" "-isystem")

set(failed)
foreach(header IN LISTS headers)
    file(WRITE "${WORK_DIR}/${header}.cpp" "#include <${header}>\n")
    execute_process(
        COMMAND ${CXX} -std=c++17 -fPIC -fsyntax-only -DQT_NO_KEYWORDS -Wall -Wextra -Wpedantic -Werror
            -I${root} ${qt_flags} ${WORK_DIR}/${header}.cpp
        RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        list(APPEND failed ${header})
    endif()
endforeach()
if(failed)
    message(FATAL_ERROR "not usable on their own: ${failed}")
endif()

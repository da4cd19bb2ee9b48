# SPDX-License-Identifier: MIT
# Compiles one file with nothing but the compiler and what pkg-config says, and runs it.
cmake_minimum_required(VERSION 3.19)
include("${CMAKE_CURRENT_LIST_DIR}/checkpdf.cmake")

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
set(ENV{PKG_CONFIG_PATH} "${STAGING}/${LIBDIR}/pkgconfig")

execute_process(COMMAND ${PKG_CONFIG} --modversion tavro
    OUTPUT_VARIABLE version OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
if(NOT version STREQUAL VERSION)
    message(FATAL_ERROR "pkg-config says version ${version}, not ${VERSION}")
endif()

execute_process(COMMAND ${PKG_CONFIG} --cflags --libs tavro
    OUTPUT_VARIABLE package_flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(package_flags UNIX_COMMAND "${package_flags}")
separate_arguments(build_flags UNIX_COMMAND "${CXX_FLAGS} ${LINKER_FLAGS}")
execute_process(
    COMMAND ${CXX} ${build_flags} ${SOURCE_DIR}/examples/cheque_amount.cpp -o ${WORK_DIR}/cheque_amount
        ${package_flags}
    WORKING_DIRECTORY ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)

set(ENV{LD_LIBRARY_PATH} "${STAGING}/${LIBDIR}")
execute_process(COMMAND ${WORK_DIR}/cheque_amount WORKING_DIRECTORY ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
check_cheque(${WORK_DIR}/cheque_amount.pdf)

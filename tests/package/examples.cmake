# SPDX-License-Identifier: MIT
# Builds the examples through find_package() in a new folder, and runs the one that needs no display.
cmake_minimum_required(VERSION 3.19)
include("${CMAKE_CURRENT_LIST_DIR}/checkpdf.cmake")

file(REMOVE_RECURSE "${WORK_DIR}")
execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples -B ${WORK_DIR} -G ${GENERATOR}
        -DCMAKE_PREFIX_PATH=${STAGING} -DCMAKE_BUILD_TYPE=${CONFIG}
        -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_FLAGS=${CXX_FLAGS} -DCMAKE_EXE_LINKER_FLAGS=${LINKER_FLAGS}
    COMMAND_ERROR_IS_FATAL ANY)

# Another installation on this machine would make the rest of the test say nothing.
load_cache("${WORK_DIR}" READ_WITH_PREFIX found_ Tavro_DIR)
if(NOT found_Tavro_DIR STREQUAL "${STAGING}/${LIBDIR}/cmake/Tavro")
    message(FATAL_ERROR "found the package in ${found_Tavro_DIR}")
endif()

execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/cheque_amount WORKING_DIRECTORY ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
check_cheque(${WORK_DIR}/cheque_amount.pdf)

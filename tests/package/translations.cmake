# SPDX-License-Identifier: MIT
# The translations are installed with the library, at the place that CMake and pkg-config tell a host.
cmake_minimum_required(VERSION 3.19)

file(REMOVE_RECURSE "${WORK_DIR}")
set(installed "${STAGING}/${DATADIR}/tavro/translations")
file(GLOB built RELATIVE "${BUILD_DIR}/translations" "${BUILD_DIR}/translations/*.qm")
if(NOT "tavro_zh_CN.qm" IN_LIST built)
    message(FATAL_ERROR "the build made no Chinese translation")
endif()
foreach(name IN LISTS built)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E compare_files ${BUILD_DIR}/translations/${name} ${installed}/${name}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()

function(check_place teller place)
    get_filename_component(place "${place}" REALPATH)
    get_filename_component(expected "${installed}" REALPATH)
    if(NOT place STREQUAL expected)
        message(FATAL_ERROR "${teller} says ${place}, not ${expected}")
    endif()
endfunction()

set(ENV{PKG_CONFIG_PATH} "${STAGING}/${LIBDIR}/pkgconfig")
execute_process(COMMAND ${PKG_CONFIG} --variable=translationsdir tavro
    OUTPUT_VARIABLE place OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
check_place(pkg-config "${place}")

file(WRITE "${WORK_DIR}/CMakeLists.txt" [[
cmake_minimum_required(VERSION 3.19)
project(host LANGUAGES CXX)
find_package(Tavro REQUIRED)
file(WRITE "${PROJECT_BINARY_DIR}/place" "${Tavro_TRANSLATIONS_DIR}")
]])
execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${WORK_DIR} -B ${WORK_DIR}/build -G ${GENERATOR} -DCMAKE_PREFIX_PATH=${STAGING}
        -DCMAKE_CXX_COMPILER=${CXX}
    COMMAND_ERROR_IS_FATAL ANY)
file(READ "${WORK_DIR}/build/place" place)
check_place(CMake "${place}")

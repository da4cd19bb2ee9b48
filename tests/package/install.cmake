# SPDX-License-Identifier: MIT
# Installs what a developer's package would hold, at another place than the configured one.
cmake_minimum_required(VERSION 3.19)

file(REMOVE_RECURSE "${STAGING}")
foreach(component library development)
    execute_process(
        COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --config "${CONFIG}" --prefix ${STAGING}
            --component ${component}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# SPDX-License-Identifier: MIT
# The API reference, where Doxygen is installed: cmake --build --preset dev --target docs
find_program(DOXYGEN_EXECUTABLE doxygen)
mark_as_advanced(DOXYGEN_EXECUTABLE)
if(DOXYGEN_EXECUTABLE)
    get_property(public_headers GLOBAL PROPERTY TAVRO_PUBLIC_HEADERS)
    list(TRANSFORM public_headers REPLACE "(.+)" "\"${PROJECT_SOURCE_DIR}/\\1\"" OUTPUT_VARIABLE docs_input)
    list(JOIN docs_input " " docs_input)
    configure_file(docs/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
    add_custom_target(docs COMMAND ${DOXYGEN_EXECUTABLE} ${PROJECT_BINARY_DIR}/Doxyfile
        COMMENT "API reference in ${PROJECT_BINARY_DIR}/docs/html" VERBATIM)
endif()

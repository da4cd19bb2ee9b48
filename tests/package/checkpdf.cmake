# SPDX-License-Identifier: MIT
# Fails unless the PDF file is a cheque of 225 mm × 80 mm that bears the amount in capitals.
find_program(PDFINFO pdfinfo REQUIRED)
find_program(PDFTOTEXT pdftotext REQUIRED)

function(check_cheque file)
    execute_process(COMMAND ${PDFINFO} ${file} OUTPUT_VARIABLE info COMMAND_ERROR_IS_FATAL ANY)
    if(NOT info MATCHES "Page size: +638 x 227 pts")
        message(FATAL_ERROR "${file} has another page size:\n${info}")
    endif()
    execute_process(COMMAND ${PDFTOTEXT} ${file} - OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    string(STRIP "${text}" text)
    if(NOT text STREQUAL "壹万零伍佰元整")
        message(FATAL_ERROR "${file} bears another text: ${text}")
    endif()
endfunction()

# SPDX-License-Identifier: MIT
# Fails unless the program in the README is the example, byte for byte.
cmake_minimum_required(VERSION 3.19)

set(fence "```cpp\n")
file(READ "${SOURCE_DIR}/README.md" readme)
string(FIND "${readme}" "${fence}" start)
if(start EQUAL -1)
    message(FATAL_ERROR "README.md shows no program")
endif()
string(LENGTH "${fence}" length)
math(EXPR start "${start} + ${length}")
string(SUBSTRING "${readme}" ${start} -1 program)
string(FIND "${program}" "```" end)
string(SUBSTRING "${program}" 0 ${end} program)

file(READ "${SOURCE_DIR}/examples/cheque_amount.cpp" example)
if(NOT program STREQUAL example)
    message(FATAL_ERROR "README.md and examples/cheque_amount.cpp differ; the README shows:\n${program}")
endif()

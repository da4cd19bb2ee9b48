# SPDX-License-Identifier: MIT
# The settings that every target of the project shares, and the lists of the floors.

# Compiler settings of one target: standard, moc, visibility, warnings.
function(tavro_defaults target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON AUTORCC ON CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON POSITION_INDEPENDENT_CODE ON)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_DEPRECATED_WARNINGS)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${TAVRO_WERROR}>:-Werror>)
endfunction()

# One floor of the library.
#   PURE      pairs of source and header that compute on plain values
#   HEADERS   further installed headers: those without a source, and those of PURE that a public class holds by value
#   PUBLIC    classes of the interface; their headers are installed
#   INTERNAL  classes that no host sees
#   SOURCES   further sources of a class whose definitions fill more than one file
function(tavro_floor floor)
    cmake_parse_arguments(arg "" "" "PURE;HEADERS;PUBLIC;INTERNAL;SOURCES" ${ARGN})
    foreach(name IN LISTS arg_PURE)
        target_sources(tavro_pure PRIVATE ${floor}/${name}.cpp ${floor}/${name}.h)
    endforeach()
    foreach(name IN LISTS arg_PUBLIC arg_INTERNAL)
        target_sources(tavro_items PRIVATE ${floor}/${name}.cpp ${floor}/${name}.h)
    endforeach()
    foreach(name IN LISTS arg_SOURCES)
        target_sources(tavro_items PRIVATE ${floor}/${name}.cpp)
    endforeach()
    foreach(name IN LISTS arg_HEADERS arg_PUBLIC)
        set_property(GLOBAL APPEND PROPERTY TAVRO_PUBLIC_HEADERS ${floor}/${name}.h)
    endforeach()
endfunction()

# SPDX-License-Identifier: MIT
# Library, headers, CMake package and pkg-config file. The translations install themselves.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Tavro)
install(TARGETS Tavro EXPORT TavroTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library
    NAMELINK_COMPONENT development)
install(EXPORT TavroTargets NAMESPACE Tavro:: DESTINATION ${package_dir} COMPONENT development)

get_property(public_headers GLOBAL PROPERTY TAVRO_PUBLIC_HEADERS)
foreach(header IN LISTS public_headers)
    get_filename_component(floor ${header} DIRECTORY)
    install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tavro/${floor} COMPONENT development)
endforeach()

configure_package_config_file(cmake/TavroConfig.cmake.in ${PROJECT_BINARY_DIR}/TavroConfig.cmake
    INSTALL_DESTINATION ${package_dir} PATH_VARS translations_install_dir)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TavroConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TavroConfig.cmake ${PROJECT_BINARY_DIR}/TavroConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT development)

# Relative to the file itself, so that an installation can be moved and staged below any prefix.
foreach(dir LIBDIR INCLUDEDIR DATADIR)
    if(IS_ABSOLUTE "${CMAKE_INSTALL_${dir}}")
        set(pc_${dir} "${CMAKE_INSTALL_${dir}}")
    else()
        set(pc_${dir} "\${prefix}/${CMAKE_INSTALL_${dir}}")
    endif()
endforeach()
file(RELATIVE_PATH pc_prefix "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" pc_prefix "${pc_prefix}")
configure_file(cmake/tavro.pc.in ${PROJECT_BINARY_DIR}/tavro.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tavro.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

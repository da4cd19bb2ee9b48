# SPDX-License-Identifier: MIT
# libzint comes with neither a CMake package nor a pkg-config file. Defines the target Zint::Zint.
find_path(ZINT_INCLUDE_DIR zint.h)
find_library(ZINT_LIBRARY zint)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Zint REQUIRED_VARS ZINT_LIBRARY ZINT_INCLUDE_DIR)
mark_as_advanced(ZINT_LIBRARY ZINT_INCLUDE_DIR)
if(Zint_FOUND AND NOT TARGET Zint::Zint)
    add_library(Zint::Zint UNKNOWN IMPORTED)
    set_target_properties(Zint::Zint PROPERTIES
        IMPORTED_LOCATION "${ZINT_LIBRARY}" INTERFACE_INCLUDE_DIRECTORIES "${ZINT_INCLUDE_DIR}")
endif()

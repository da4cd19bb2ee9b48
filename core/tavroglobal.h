// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/qglobal.h>

// Hosts import; the library's own translation units export.
#if defined(TAVRO_BUILD_LIBRARY)
#define TAVRO_EXPORT Q_DECL_EXPORT
#else
#define TAVRO_EXPORT Q_DECL_IMPORT
#endif

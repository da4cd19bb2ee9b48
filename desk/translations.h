// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QCoreApplication;
class QLocale;

namespace translations {

/// Has the application speak the language of the locale, as far as there are translations: those of the library are
/// compiled in, those of Qt are taken from the folder, where they may be missing. The application owns what is loaded.
void install(QCoreApplication &application, const QLocale &locale, const QString &folderOfQt);

} // namespace translations

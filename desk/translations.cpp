// SPDX-License-Identifier: MIT
#include "desk/translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

// A static library drops a resource that nothing in the program names. The name is not looked up in a namespace.
static void useResource()
{
    Q_INIT_RESOURCE(translations);
}

namespace {

void installOne(QCoreApplication &application, const QLocale &locale, const QString &name, const QString &folder)
{
    auto *translator = new QTranslator(&application);
    if (translator->load(locale, name, QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

namespace translations {

void install(QCoreApplication &application, const QLocale &locale, const QString &folderOfQt)
{
    useResource();
    installOne(application, locale, QStringLiteral("qtbase"), folderOfQt);
    installOne(application, locale, QStringLiteral("tavro"), QStringLiteral(":/translations"));
}

} // namespace translations

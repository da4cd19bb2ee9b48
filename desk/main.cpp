// SPDX-License-Identifier: MIT
#include "desk/commandline.h"
#include "desk/fonts.h"
#include "desk/translations.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTextStream>
#include <cstdio>

namespace {

// A daemon or a container has no runtime directory, and a platform without windows does not pass size hints on to them.
// The commands need neither, and a line about it before every report would hide the report.
bool isOfThePlatform(const QString &text)
{
    return text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")) ||
           text == QLatin1String("This plugin does not support propagateSizeHints()");
}

void writeMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!isOfThePlatform(text))
        fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

} // namespace

int main(int argc, char *argv[])
{
    // The commands show no window, so they need no display.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(writeMessage);
    QApplication application(argc, argv);
    translations::install(application, QLocale::system(), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    fonts::substituteMissing();
    QTextStream out(stdout);
    QTextStream err(stderr);
    out.setCodec("UTF-8");
    err.setCodec("UTF-8");
    return commandline::run(QCoreApplication::arguments(), out, err);
}

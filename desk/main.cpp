// SPDX-License-Identifier: MIT
#include "desk/commandline.h"
#include "desk/fonts.h"

#include <QApplication>
#include <QTextStream>
#include <cstdio>

int main(int argc, char *argv[])
{
    // The commands show no window, so they need no display.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    fonts::substituteMissing();
    QTextStream out(stdout);
    QTextStream err(stderr);
    out.setCodec("UTF-8");
    err.setCodec("UTF-8");
    return commandline::run(QCoreApplication::arguments(), out, err);
}

// SPDX-License-Identifier: MIT
#include "tests/support/stricttest.h"

#include <QTest>

namespace {

// One test object runs at a time in a test program, so what it collects can stand here.
QtMessageHandler previousHandler = nullptr;
QStringList unexpectedWarnings;

// Written by the offscreen platform whenever a window has a size hint, or a list pops up.
bool belongsToPlatform(const QString &text)
{
    return text == QLatin1String("This plugin does not support propagateSizeHints()") ||
           text == QLatin1String("This plugin does not support raise()") ||
           text == QLatin1String("This plugin does not support grabbing the keyboard");
}

} // namespace

void StrictTest::handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        if (belongsToPlatform(text))
            return;
        unexpectedWarnings.append(text);
    }
    previousHandler(type, context, text);
}

void StrictTest::init()
{
    unexpectedWarnings.clear();
    previousHandler = qInstallMessageHandler(handleMessage);
}

void StrictTest::cleanup()
{
    qInstallMessageHandler(previousHandler);
    QVERIFY2(unexpectedWarnings.isEmpty(), qPrintable(unexpectedWarnings.join(QLatin1Char('\n'))));
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

/// Base of the tests of items and widgets: a Qt warning fails the test, unless it belongs to the platform.
/// A subclass with an init() or cleanup() of its own calls the one here.
class StrictTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

private:
    static void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text);
};

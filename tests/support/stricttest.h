// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRegularExpression>
#include <QVector>

/// Base of the tests of items and widgets: a Qt warning that the test did not announce fails it.
/// A subclass with an init() or cleanup() of its own calls the one here.
class StrictTest : public QObject
{
    Q_OBJECT

protected:
    /// Announces one warning whose text matches `pattern`; the test fails when it does not come.
    void expectWarning(const QString &pattern);

protected Q_SLOTS:
    void init();
    void cleanup();

private:
    static void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text);
};

// SPDX-License-Identifier: MIT
#include "cells/typedtext.h"

#include <QKeyEvent>
#include <QTest>

/// Which keys write, and what.
class TypedTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typed_data();
    void typed();
    void digitKeys();

private:
    static void addWriting();
    static void addOrders();
};

namespace {

void add(const char *name, int key, Qt::KeyboardModifiers modifiers, const QString &text, const QString &typed)
{
    QTest::newRow(name) << key << int(modifiers) << text << typed;
}

void addWritten(const char *name, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    add(name, key, modifiers, text, text);
}

void addOrder(const char *name, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    add(name, key, modifiers, text, QString());
}

} // namespace

void TypedTextTest::typed_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("typed");

    addWriting();
    addOrders();
}

void TypedTextTest::addWriting()
{
    const Qt::KeyboardModifiers thirdLevel = Qt::ControlModifier | Qt::AltModifier;
    addWritten("digit", Qt::Key_5, Qt::NoModifier, QStringLiteral("5"));
    addWritten("digit of the keypad", Qt::Key_5, Qt::KeypadModifier, QStringLiteral("5"));
    addWritten("letter", Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    addWritten("capital letter", Qt::Key_A, Qt::ShiftModifier, QStringLiteral("A"));
    addWritten("blank", Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
    addWritten("sign", Qt::Key_Minus, Qt::NoModifier, QStringLiteral("-"));
    addWritten("Chinese character", Qt::Key_unknown, Qt::NoModifier, QStringLiteral("元"));
    addWritten("beyond the basic plane", Qt::Key_unknown, Qt::NoModifier, QString::fromUcs4(U"\x1f600"));
    addWritten("third level of the keyboard", Qt::Key_E, thirdLevel, QStringLiteral("€"));
    addWritten("third level with Shift", Qt::Key_E, thirdLevel | Qt::ShiftModifier, QStringLiteral("¢"));
    addWritten("other group of the keyboard", Qt::Key_5, Qt::GroupSwitchModifier, QStringLiteral("½"));
}

void TypedTextTest::addOrders()
{
    const QString digit = QStringLiteral("5");
    addOrder("key without a text", Qt::Key_Home, Qt::NoModifier, QString());
    addOrder("Shift alone", Qt::Key_Shift, Qt::ShiftModifier, QString());
    addOrder("Enter", Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    addOrder("Enter of the keypad", Qt::Key_Enter, Qt::KeypadModifier, QStringLiteral("\r"));
    addOrder("new line", Qt::Key_Return, Qt::ShiftModifier, QStringLiteral("\n"));
    addOrder("Tab", Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
    addOrder("Delete", Qt::Key_Delete, Qt::NoModifier, QStringLiteral("\x7f"));
    addOrder("Escape", Qt::Key_Escape, Qt::NoModifier, QStringLiteral("\x1b"));
    addOrder("Backspace", Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b"));
    addOrder("second row of control characters", Qt::Key_unknown, Qt::NoModifier, QString(QChar(0x85)));
    addOrder("digit with Control", Qt::Key_5, Qt::ControlModifier, digit);
    addOrder("digit with Control and Shift", Qt::Key_5, Qt::ControlModifier | Qt::ShiftModifier, digit);
    addOrder("digit of the keypad with Control", Qt::Key_5, Qt::ControlModifier | Qt::KeypadModifier, digit);
    addOrder("letter with Control", Qt::Key_C, Qt::ControlModifier, QStringLiteral("\x03"));
    addOrder("digit with Alt", Qt::Key_5, Qt::AltModifier, digit);
    addOrder("digit with Meta", Qt::Key_5, Qt::MetaModifier, digit);
    addOrder("digit with Control and Meta", Qt::Key_5, Qt::ControlModifier | Qt::MetaModifier, digit);
    addOrder("digit with Alt and Meta", Qt::Key_5, Qt::AltModifier | Qt::MetaModifier, digit);
    addOrder("digit with all three", Qt::Key_5, Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier, digit);
    addOrder("control character on the third level", Qt::Key_Return, Qt::ControlModifier | Qt::AltModifier,
             QStringLiteral("\r"));
}

void TypedTextTest::typed()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QFETCH(const QString, text);
    QFETCH(const QString, typed);
    const QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), text);
    QCOMPARE(typedtext::textOf(event), typed);
}

void TypedTextTest::digitKeys()
{
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key)
        QVERIFY2(typedtext::isDigitKey(key), qPrintable(QString::number(key)));
    for (const int key : {int(Qt::Key_Slash), int(Qt::Key_Colon), int(Qt::Key_A), int(Qt::Key_Minus),
                          int(Qt::Key_Period), int(Qt::Key_Backspace), int(Qt::Key_Left), 0, 5, -1})
        QVERIFY2(!typedtext::isDigitKey(key), qPrintable(QString::number(key)));
}

QTEST_APPLESS_MAIN(TypedTextTest)
#include "tst_typedtext.moc"

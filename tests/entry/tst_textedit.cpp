// SPDX-License-Identifier: MIT
#include "entry/textedit.h"
#include "tests/entry/keytable.h"
#include "tests/support/stricttest.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

using keytable::Keys;

class TestTextEdit : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsFlat();
    void hasNoParentUnlessGivenOne();
    void storesTheFormat();
    void borderColorIsPutIntoTheSheetAsGiven_data();
    void borderColorIsPutIntoTheSheetAsGiven();
    void borderIsOnePixelWide_data();
    void borderIsOnePixelWide();
    void keysPerFormat_data() { keytable::addRows(); }
    void keysPerFormat();
    void tabIsLeftToTheForm();
    void tabIsPassedOnWhereTheHostWantsTabs();
    void typedAmount_data();
    void typedAmount();
    void pasteIsNotFiltered_data();
    void pasteIsNotFiltered();
    void refusedKeyTellsNobody();
    void swallowedKeysStopAtTheEditor_data();
    void swallowedKeysStopAtTheEditor();
    void acceptedKeyTellsOnce();
    void focusOutHidesTheCursor();
    void contextMenuOpens();
};

void TestTextEdit::startsFlat()
{
    const TextEdit editor;
    QCOMPARE(editor.metaObject()->className(), "TextEdit");
    QCOMPARE(editor.formatType(), Format_Text);
    QCOMPARE(editor.font().hintingPreference(), QFont::PreferVerticalHinting);
    QVERIFY(editor.tabChangesFocus());
    QCOMPARE(editor.document()->documentMargin(), 0.0);
    QCOMPARE(editor.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(editor.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(editor.styleSheet(), QStringLiteral("TextEdit{border:1px solid #1ba39c;}"));
    QCOMPARE(editor.toPlainText(), QString());
}

void TestTextEdit::hasNoParentUnlessGivenOne()
{
    const TextEdit alone;
    QVERIFY(!alone.parentWidget());
    QWidget form;
    const auto *child = new TextEdit(&form);
    QCOMPARE(child->parentWidget(), &form);
}

void TestTextEdit::storesTheFormat()
{
    TextEdit editor;
    for (int number = -3; number <= 12; ++number) {
        editor.setFormatType(static_cast<Input_Format>(number));
        QCOMPARE(int(editor.formatType()), number);
    }
}

void TestTextEdit::borderColorIsPutIntoTheSheetAsGiven_data()
{
    QTest::addColumn<QString>("color");
    QTest::newRow("name") << QStringLiteral("red");
    QTest::newRow("hexadecimal") << QStringLiteral("#00FF7f");
    QTest::newRow("function") << QStringLiteral("rgb(1, 2, 3)");
}

void TestTextEdit::borderColorIsPutIntoTheSheetAsGiven()
{
    QFETCH(QString, color);
    TextEdit editor;
    editor.setBorderColor(color);
    QCOMPARE(editor.styleSheet(), QStringLiteral("TextEdit{border:1px solid ") + color + QStringLiteral(";}"));
}

void TestTextEdit::borderIsOnePixelWide_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<QColor>("painted");
    QTest::newRow("initial") << QString() << QColor(0x1b, 0xa3, 0x9c);
    QTest::newRow("name") << QStringLiteral("red") << QColor(Qt::red);
    QTest::newRow("hexadecimal") << QStringLiteral("#123456") << QColor(0x12, 0x34, 0x56);
}

void TestTextEdit::borderIsOnePixelWide()
{
    QFETCH(QString, color);
    QFETCH(QColor, painted);
    TextEdit editor;
    if (!color.isEmpty())
        editor.setBorderColor(color);
    editor.resize(40, 20);
    const QImage image = editor.grab().toImage();
    QCOMPARE(image.size(), QSize(40, 20));
    for (const QPoint &edge : {QPoint(0, 10), QPoint(39, 10), QPoint(20, 0), QPoint(20, 19)})
        QCOMPARE(image.pixelColor(edge), painted);
    for (const QPoint &inside : {QPoint(1, 10), QPoint(38, 10), QPoint(20, 1), QPoint(20, 18)})
        QCOMPARE(image.pixelColor(inside), QColor(Qt::white));
}

void TestTextEdit::keysPerFormat()
{
    QFETCH(int, format);
    QFETCH(QString, before);
    QFETCH(Keys, keys);
    QFETCH(QString, after);
    TextEdit editor;
    editor.setFormatType(static_cast<Input_Format>(format));
    editor.setPlainText(before);
    editor.moveCursor(QTextCursor::End);
    keytable::type(&editor, keys);
    QCOMPARE(editor.toPlainText(), after);
}

void TestTextEdit::tabIsLeftToTheForm()
{
    TextEdit editor;
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("\t"));
        QApplication::sendEvent(&editor, &event);
        QVERIFY(!event.isAccepted());
    }
}

void TestTextEdit::tabIsPassedOnWhereTheHostWantsTabs()
{
    TextEdit editor;
    editor.setTabChangesFocus(false);
    editor.setFormatType(Format_Number);
    QTest::keyClick(&editor, Qt::Key_Tab);
    QCOMPARE(editor.toPlainText(), QStringLiteral("\t"));
}

void TestTextEdit::typedAmount_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("cursorAfter");

    QTest::newRow("first digit") << QString() << 0 << Keys{Qt::Key_1} << QStringLiteral("1") << 1;
    QTest::newRow("point first") << QString() << 0 << Keys{Qt::Key_Period} << QStringLiteral(".") << 1;
    QTest::newRow("tenth digit") << QStringLiteral("123456789") << 9 << Keys{Qt::Key_0} << QStringLiteral("1234567890")
                                 << 10;
    QTest::newRow("eleventh digit") << QStringLiteral("1234567890") << 10 << Keys{Qt::Key_1}
                                    << QStringLiteral("1234567890") << 10;
    QTest::newRow("eleventh digit at the front")
        << QStringLiteral("1234567890") << 0 << Keys{Qt::Key_1} << QStringLiteral("1234567890") << 10;
    QTest::newRow("eleventh digit before a point")
        << QStringLiteral("1234567890.5") << 3 << Keys{Qt::Key_1} << QStringLiteral("1234567890.5") << 12;
    QTest::newRow("second decimal") << QStringLiteral("1.2") << 3 << Keys{Qt::Key_3} << QStringLiteral("1.23") << 4;
    QTest::newRow("third decimal") << QStringLiteral("1.23") << 4 << Keys{Qt::Key_4} << QStringLiteral("1.23") << 4;
    QTest::newRow("third decimal behind the point")
        << QStringLiteral("1.23") << 2 << Keys{Qt::Key_4} << QStringLiteral("1.23") << 4;
    QTest::newRow("digit before the point")
        << QStringLiteral("1.23") << 1 << Keys{Qt::Key_4} << QStringLiteral("14.23") << 2;
    QTest::newRow("second point") << QStringLiteral("1.2") << 0 << Keys{Qt::Key_Period} << QStringLiteral("1.2") << 3;
    QTest::newRow("point with three digits behind it")
        << QStringLiteral("1234") << 1 << Keys{Qt::Key_Period} << QStringLiteral("1234") << 4;
    QTest::newRow("digit in front of a minus")
        << QStringLiteral("-5") << 0 << Keys{Qt::Key_1} << QStringLiteral("-5") << 2;
    QTest::newRow("digit behind a minus") << QStringLiteral("-5") << 2 << Keys{Qt::Key_1} << QStringLiteral("-51") << 3;
    QTest::newRow("digit in a text of letters")
        << QStringLiteral("abc") << 0 << Keys{Qt::Key_1} << QStringLiteral("abc") << 3;
    QTest::newRow("amount with three decimals from the host")
        << QStringLiteral("1.234") << 1 << Keys{Qt::Key_5} << QStringLiteral("1.234") << 5;
    QTest::newRow("amount with three decimals, shortened first")
        << QStringLiteral("1.234") << 5 << Keys{Qt::Key_Backspace, Qt::Key_Backspace, Qt::Key_5}
        << QStringLiteral("1.25") << 4;
    QTest::newRow("eleventh digit in place of a selected one")
        << QStringLiteral("1234567890") << 10 << Keys{{Qt::Key_Left, Qt::ShiftModifier}, Qt::Key_1}
        << QStringLiteral("1234567891") << 10;
}

void TestTextEdit::typedAmount()
{
    QFETCH(QString, before);
    QFETCH(int, cursor);
    QFETCH(Keys, keys);
    QFETCH(QString, after);
    QFETCH(int, cursorAfter);
    TextEdit editor;
    for (const Input_Format format : {Format_RmbCapital, Format_RmbCapitalAlt, Format_RmbCapitalYuan, Format_UsdCapital,
                                      Format_RmbCapitalNoSuffix, Format_EnglishAmount, Format_Customized}) {
        editor.setFormatType(format);
        editor.setPlainText(before);
        QTextCursor position = editor.textCursor();
        position.setPosition(cursor);
        editor.setTextCursor(position);
        keytable::type(&editor, keys);
        QCOMPARE(editor.toPlainText(), after);
        QCOMPARE(editor.textCursor().position(), cursorAfter);
        QVERIFY(!editor.textCursor().hasSelection());
    }
}

void TestTextEdit::pasteIsNotFiltered_data()
{
    QTest::addColumn<int>("format");
    for (const int format : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, -3})
        QTest::addRow("format %d", format) << format;
}

void TestTextEdit::pasteIsNotFiltered()
{
    QFETCH(int, format);
    TextEdit editor;
    editor.setFormatType(static_cast<Input_Format>(format));
    QApplication::clipboard()->setText(QStringLiteral("-1.2345 abc"));
    QTest::keyClick(&editor, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(editor.toPlainText(), QStringLiteral("-1.2345 abc"));
}

void TestTextEdit::refusedKeyTellsNobody()
{
    TextEdit editor;
    editor.setFormatType(Format_RmbCapital);
    editor.setPlainText(QStringLiteral("1.23"));
    editor.moveCursor(QTextCursor::End);
    const QSignalSpy changed(&editor, &TextEdit::textChanged);
    QTest::keyClick(&editor, Qt::Key_4);
    QTest::keyClick(&editor, Qt::Key_Period);
    QTest::keyClick(&editor, Qt::Key_A);
    QCOMPARE(changed.count(), 0);
    QVERIFY(!editor.signalsBlocked());
}

void TestTextEdit::swallowedKeysStopAtTheEditor_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    QTest::newRow("select all") << 0 << int(Qt::Key_A) << control;
    QTest::newRow("undo") << 0 << int(Qt::Key_Z) << control;
    QTest::newRow("Delete in a number") << 1 << int(Qt::Key_Delete) << none;
    QTest::newRow("minus in an amount") << 2 << int(Qt::Key_Minus) << none;
    QTest::newRow("third decimal") << 2 << int(Qt::Key_4) << none;
    QTest::newRow("point in a serial number") << 8 << int(Qt::Key_Period) << none;
    QTest::newRow("digit beyond the formats") << 11 << int(Qt::Key_1) << none;
}

// A key that the view got instead would act on the form: Delete and Ctrl+Z are a host's usual shortcuts.
void TestTextEdit::swallowedKeysStopAtTheEditor()
{
    QFETCH(int, format);
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    TextEdit editor;
    editor.setFormatType(static_cast<Input_Format>(format));
    editor.setPlainText(QStringLiteral("1.23"));
    editor.moveCursor(QTextCursor::End);
    QKeyEvent event(QEvent::KeyPress, key, modifiers, QString(QChar(key)));
    QApplication::sendEvent(&editor, &event);
    QVERIFY(event.isAccepted());
    QCOMPARE(editor.toPlainText(), QStringLiteral("1.23"));
    QVERIFY(!editor.textCursor().hasSelection());
}

void TestTextEdit::acceptedKeyTellsOnce()
{
    TextEdit editor;
    const QSignalSpy changed(&editor, &TextEdit::textChanged);
    int expected = 0;
    for (const Input_Format format : {Format_Text, Format_Number, Format_RmbCapital, Format_SerialNumber}) {
        editor.setFormatType(format);
        QTest::keyClick(&editor, Qt::Key_1);
        QCOMPARE(changed.count(), ++expected);
    }
    QTest::keyClick(&editor, Qt::Key_Backspace);
    QCOMPARE(changed.count(), ++expected);
}

void TestTextEdit::focusOutHidesTheCursor()
{
    TextEdit editor;
    editor.resize(40, 20);
    const QImage before = editor.grab().toImage();
    QFocusEvent in(QEvent::FocusIn, Qt::OtherFocusReason);
    QApplication::sendEvent(&editor, &in);
    QVERIFY(editor.grab().toImage() != before);
    QFocusEvent out(QEvent::FocusOut, Qt::OtherFocusReason);
    QApplication::sendEvent(&editor, &out);
    QCOMPARE(editor.grab().toImage(), before);
}

void TestTextEdit::contextMenuOpens()
{
    TextEdit editor;
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), editor.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(editor.viewport(), &event);
    QTRY_VERIFY(qobject_cast<QMenu *>(QApplication::activePopupWidget()));
    QVERIFY(!QApplication::activePopupWidget()->actions().isEmpty());
    QApplication::activePopupWidget()->close();
    QTRY_VERIFY(!QApplication::activePopupWidget());
}

QTEST_MAIN(TestTextEdit)
#include "tst_textedit.moc"

// SPDX-License-Identifier: MIT
// What input methods write into the cells of a form.
#include "cells/tavroseperateedit.h"
#include "tests/cells/cellview.h"
#include "tests/cells/seperatecells.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <QTest>

using seperatecells::cellsOf;
using seperatecells::fill;
using seperatecells::rowOf;

namespace {

using Edit = TavroSeperateEdit;

// Row before, and after one character.
const QString Before = QStringLiteral("1 2 3 4 5 6, 3");
const QString After = QStringLiteral("1 2 3 %1 5 6, 4");

// A row of six cells with the keyboard, the cursor on the fourth.
Edit *addRow(CellView &form, int mode)
{
    auto *edit = form.add<Edit>(QRectF(20, 20, 300, 40));
    edit->setSeperateMode(static_cast<SeperateMode>(mode));
    edit->setNumOfEditable(6);
    fill(*edit, QStringLiteral("1 2 3 4 5 6"));
    edit->moveCursorTo(3);
    edit->setFocus();
    return edit;
}

} // namespace

class TestSeperateEditInputMethod : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void committedText_data();
    void committedText();
    void committedTextWithoutFocus();
    void composedTextIsNotWritten();
    void committedTextOnReadOnlyRow();
    void committedTextByAcceptance_data();
    void committedTextByAcceptance();
    void committedTextIsAnnouncedOnce();
    void candidatesStandAtTheCursor();
};

void TestSeperateEditInputMethod::committedText_data()
{
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("row");
    const QString pair = QString::fromUtf8("\xf0\xa0\xae\xb7");
    const QString marked = QStringLiteral("e\u0301");
    QTest::newRow("one character") << 0 << QStringLiteral("中") << QStringLiteral("中 2 3 4 5 6, 1");
    QTest::newRow("several") << 1 << QStringLiteral("中文字") << QStringLiteral("1 中 文 字 5 6, 4");
    QTest::newRow("up to the last cell") << 4 << QStringLiteral("中文") << QStringLiteral("1 2 3 4 中 文, 5");
    QTest::newRow("no cell for the last") << 4 << QStringLiteral("中文字") << QStringLiteral("1 2 3 4 中 文, 5");
    QTest::newRow("last cell") << 5 << QStringLiteral("中") << QStringLiteral("1 2 3 4 5 中, 5");
    QTest::newRow("no cell behind the last") << 5 << QStringLiteral("中文") << QStringLiteral("1 2 3 4 5 中, 5");
    QTest::newRow("longer than the row") << 0 << QStringLiteral("abcdefgh") << QStringLiteral("a b c d e f, 5");
    QTest::newRow("any character") << 2 << QStringLiteral("-.0") << QStringLiteral("1 2 - . 0 6, 5");
    QTest::newRow("surrogate pair") << 0 << pair + QStringLiteral("x") << pair + QStringLiteral(" x 3 4 5 6, 2");
    QTest::newRow("letter and its mark") << 0 << marked + QStringLiteral("x")
                                         << marked + QStringLiteral(" x 3 4 5 6, 2");
}

void TestSeperateEditInputMethod::committedText()
{
    QFETCH(int, cursor);
    QFETCH(QString, text);
    QFETCH(QString, row);
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form, 3);
    edit->moveCursorTo(cursor);
    const QSignalSpy changed(edit, &Edit::contentDataChanged);
    form.commit(text);
    QCOMPARE(rowOf(*edit), row);
    QCOMPARE(edit->contentData(), QVariant(cellsOf(*edit).remove(QLatin1Char(' '))));
    QCOMPARE(changed.count(), 1);
}

void TestSeperateEditInputMethod::committedTextWithoutFocus()
{
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form, 3);
    edit->clearFocus();
    form.commit(QStringLiteral("中"));
    QCOMPARE(rowOf(*edit), Before);
}

// What is being composed is the input method's own until it is committed.
void TestSeperateEditInputMethod::composedTextIsNotWritten()
{
    CellView form;
    QVERIFY(form.isActive());
    const Edit *edit = addRow(form, 3);
    const QSignalSpy changed(edit, &Edit::contentDataChanged);
    form.commit(QString(), QStringLiteral("zhong"));
    form.commit(QString());
    QCOMPARE(rowOf(*edit), Before);
    QVERIFY(edit->contentData().isNull());
    QCOMPARE(changed.count(), 0);
    form.commit(QStringLiteral("中"), QStringLiteral("wen"));
    QCOMPARE(rowOf(*edit), After.arg(QStringLiteral("中")));
}

void TestSeperateEditInputMethod::committedTextOnReadOnlyRow()
{
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form, 3);
    edit->setIsReadOnly(true);
    const QSignalSpy changed(edit, &Edit::contentDataChanged);
    form.commit(QStringLiteral("中"));
    QCOMPARE(rowOf(*edit), Before);
    QCOMPARE(changed.count(), 0);
}

void TestSeperateEditInputMethod::committedTextByAcceptance_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("acceptable");
    for (const int mode : {0, 1, 2, 3, 4}) {
        QTest::addRow("accepted, mode %d", mode) << mode << true;
        QTest::addRow("not accepted, mode %d", mode) << mode << false;
    }
}

void TestSeperateEditInputMethod::committedTextByAcceptance()
{
    QFETCH(int, mode);
    QFETCH(bool, acceptable);
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form, mode);
    form.commit(QStringLiteral("中"));
    QCOMPARE(rowOf(*edit), mode == 3 ? After.arg(QStringLiteral("中")) : Before);
    fill(*edit, QStringLiteral("1 2 3 4 5 6"));
    edit->moveCursorTo(3);
    edit->setInputMethodAcceptable(acceptable);
    const QSignalSpy changed(edit, &Edit::contentDataChanged);
    form.commit(QStringLiteral("文"));
    QCOMPARE(rowOf(*edit), acceptable ? After.arg(QStringLiteral("文")) : Before);
    QCOMPARE(changed.count(), acceptable ? 1 : 0);
    if (acceptable)
        QCOMPARE(edit->contentData(), QVariant(mode == 0 ? QStringLiteral("123文.56") : QStringLiteral("123文56")));
}

void TestSeperateEditInputMethod::committedTextIsAnnouncedOnce()
{
    CellView form;
    QVERIFY(form.isActive());
    const Edit *edit = addRow(form, 3);
    QStringList seen;
    connect(edit, &Edit::contentDataChanged, this, [&] { seen << edit->contentData().toString() + rowOf(*edit); });
    form.commit(QStringLiteral("中文字"));
    QCOMPARE(seen, QStringList(QStringLiteral("123中文字1 2 3 中 文 字, 5")));
}

void TestSeperateEditInputMethod::candidatesStandAtTheCursor()
{
    CellView form;
    QVERIFY(form.isActive());
    Edit *edit = addRow(form, 3);
    edit->setPos(30, 100);
    for (const int cursor : {0, 2}) {
        edit->moveCursorTo(cursor);
        const QRectF place = form.view().inputMethodQuery(Qt::ImCursorRectangle).toRectF();
        QCOMPARE(place, QRectF(50 + cursor * 50, 120, 50, 40));
    }
    QVERIFY(!form.view().inputMethodQuery(Qt::ImSurroundingText).isValid());
}

QTEST_MAIN(TestSeperateEditInputMethod)
#include "tst_seperateeditinputmethod.moc"

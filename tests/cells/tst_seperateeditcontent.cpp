// SPDX-License-Identifier: MIT
// When the cells of a separated-cell edit follow its content, and the content its cells.
#include "cells/tavroseperateedit.h"
#include "tests/cells/seperatecells.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <QTest>

using seperatecells::cellsOf;
using seperatecells::fill;

namespace {

using Edit = TavroSeperateEdit;

} // namespace

class TestSeperateEditContent : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void contentIsAnnouncedOnce();
    void cellsAreNotRebuiltFromWhatTheyHold();
    void spreadingTouchesTheCellsOnly();
    void contentFillsTheCellsOfANewRange();
    void preset();
    void renewed_data();
    void renewed();
    void fontIsFittedToNewContent();
};

void TestSeperateEditContent::contentIsAnnouncedOnce()
{
    Edit edit;
    const QSignalSpy content(&edit, &Edit::contentDataChanged);
    edit.setContentData(QStringLiteral("5"));
    QCOMPARE(content.count(), 1);
    edit.setContentData(QStringLiteral("5"));
    QCOMPARE(content.count(), 2);
    edit.syncContentData();
    QCOMPARE(content.count(), 3);
    edit.syncContentData();
    QCOMPARE(content.count(), 4);
}

// A host that listens reads the new content; the cells stay as they were typed.
void TestSeperateEditContent::cellsAreNotRebuiltFromWhatTheyHold()
{
    Edit edit;
    fill(edit, QStringLiteral("0 0 _ 5 _ _ _"));
    QVariant seen;
    connect(&edit, &Edit::contentDataChanged, &edit, [&] { seen = edit.contentData(); });
    edit.syncContentData();
    QCOMPARE(seen, QVariant(QStringLiteral("0.05")));
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("0.05")));
    QCOMPARE(cellsOf(edit), QStringLiteral("0 0 _ 5 _ _ _"));
}

void TestSeperateEditContent::spreadingTouchesTheCellsOnly()
{
    Edit edit;
    edit.setContentData(QStringLiteral("1"));
    edit.moveCursorTo(3);
    const QSignalSpy content(&edit, &Edit::contentDataChanged);
    edit.strToList(QStringLiteral("27"));
    QCOMPARE(cellsOf(edit), QStringLiteral("_ _ _ 2 7 0 0"));
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("1")));
    edit.syncDigitsList();
    QCOMPARE(cellsOf(edit), QStringLiteral("_ _ _ _ 1 0 0"));
    edit.setCharAt(0, QStringLiteral("9"));
    edit.fillZeroToTrail();
    edit.removePrefixZero();
    edit.resetEditable();
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("1")));
    QCOMPARE(edit.cursorIndx(), 3);
    QCOMPARE(content.count(), 0);
}

void TestSeperateEditContent::contentFillsTheCellsOfANewRange()
{
    Edit edit;
    edit.setContentData(QStringLiteral("1234.5"));
    edit.setUnitRange(1, 8);
    edit.syncDigitsList();
    QCOMPARE(cellsOf(edit), QStringLiteral("_ _ _ 1 2 3 4 5"));
    edit.setSeperateMode(Sep_Chars6);
    edit.syncDigitsList();
    QCOMPARE(cellsOf(edit), QStringLiteral("1 2 3 4 . 5"));
    edit.setSeperateMode(Sep_Amount);
    edit.setContentData(edit.contentData());
    QCOMPARE(cellsOf(edit), QStringLiteral("_ 1 2 3 4 5 0"));
}

void TestSeperateEditContent::preset()
{
    Edit edit;
    edit.setContentData(QStringLiteral("1"));
    edit.setIsModified(false);
    const QSignalSpy content(&edit, &Edit::contentDataChanged);
    TavroPrototype &base = edit;
    base.setPresetData(QStringLiteral("77"));
    QCOMPARE(edit.presetData(), QVariant(QStringLiteral("77")));
    QVERIFY(edit.isModified());
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("1")));
    QCOMPARE(cellsOf(edit), QStringLiteral("_ _ _ _ 1 0 0"));
    QCOMPARE(content.count(), 0);
}

void TestSeperateEditContent::renewed_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("reset");
    QTest::addColumn<QVariant>("preset");
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<QString>("cells");
    const QVariant one(QStringLiteral("1"));
    const QVariant preset(QStringLiteral("27.5"));
    QTest::newRow("preset") << 0 << true << preset << preset << QStringLiteral("_ _ _ 2 7 5 0");
    QTest::newRow("no preset") << 0 << true << QVariant() << QVariant() << QStringLiteral("_ _ _ _ 0 0 0");
    QTest::newRow("kept") << 0 << false << preset << one << QStringLiteral("_ _ 9 _ 1 0 0");
    QTest::newRow("characters") << 3 << true << preset << preset << QStringLiteral("2 7 . 5 _ _");
    QTest::newRow("characters, no preset") << 3 << true << QVariant() << QVariant() << QStringLiteral("_ _ _ _ _ _");
    QTest::newRow("characters, kept") << 3 << false << preset << one << QStringLiteral("1 _ 9 _ _ _");
}

void TestSeperateEditContent::renewed()
{
    QFETCH(int, mode);
    QFETCH(bool, reset);
    QFETCH(QVariant, preset);
    QFETCH(QVariant, content);
    QFETCH(QString, cells);
    Edit edit;
    edit.setSeperateMode(static_cast<SeperateMode>(mode));
    edit.setIsResetAtRenew(reset);
    edit.setPresetData(preset);
    edit.setContentData(QStringLiteral("1"));
    edit.setCharAt(2, QStringLiteral("9"));
    edit.moveCursorTo(4);
    edit.setIsModified(false);
    const QSignalSpy changed(&edit, &Edit::contentDataChanged);
    TavroPrototype &base = edit;
    base.renew();
    QCOMPARE(edit.contentData(), content);
    QCOMPARE(cellsOf(edit), cells);
    QCOMPARE(changed.count(), reset ? 1 : 0);
    QCOMPARE(edit.cursorIndx(), 4);
    QVERIFY(!edit.isModified());
}

// Typed text is not fitted: the digits would change their size at each key.
void TestSeperateEditContent::fontIsFittedToNewContent()
{
    Edit edit;
    edit.setTextFillingRule(Fill_Shrink);
    edit.setSeperateMode(Sep_Digits18);
    edit.setBoundingRect(QRectF(0, 0, 60, 20));
    const int large = edit.font().pixelSize();
    edit.setContentData(QStringLiteral("123456789012345678"));
    const int small = edit.font().pixelSize();
    QVERIFY(small < large);
    edit.setPresetData(QString());
    edit.renew();
    QCOMPARE(edit.font().pixelSize(), large);
    for (int i = 0; i < 18; ++i)
        edit.updateContentByKey(Qt::Key_1, QStringLiteral("1"));
    QCOMPARE(edit.contentData().toString().size(), 18);
    QCOMPARE(edit.font().pixelSize(), large);
    edit.setBoundingRect(QRectF(0, 0, 60, 20));
    QCOMPARE(edit.font().pixelSize(), small);
}

QTEST_MAIN(TestSeperateEditContent)
#include "tst_seperateeditcontent.moc"

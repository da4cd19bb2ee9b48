// SPDX-License-Identifier: MIT
// What a separated-cell edit is set up with: initial values, settings, modes, marks.
#include "cells/tavroseperateedit.h"
#include "tests/cells/seperatecells.h"
#include "tests/support/settingtable.h"
#include "tests/support/stricttest.h"

#include <QMetaProperty>
#include <QSignalSpy>
#include <limits>

using seperatecells::cellsOf;
using seperatecells::fill;

namespace {

using Edit = TavroSeperateEdit;
using Range = std::pair<int, int>;

constexpr bool Marks = true;
constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

Range rangeOf(const Edit &edit)
{
    return {edit.unitRange().start, edit.unitRange().end};
}

template <typename Value, typename Getter, typename Setter>
Setting<Edit> of(const char *name, Getter get, Setter set, const Value &initial, const Value &written)
{
    return setting<Edit>(name, get, set, initial, written, Marks);
}

QVector<Setting<Edit>> settings()
{
    const auto setEnds = [](Edit &edit, const Range &ends) { edit.setUnitRange(ends.first, ends.second); };
    const auto setRange = [](Edit &edit, const Range &ends) { edit.setUnitRange(_UnitRange{ends.first, ends.second}); };
    return {
        of<SeperateMode>("seperateMode", &Edit::seperateMode, &Edit::setSeperateMode, Sep_Amount, Sep_Digits6),
        of<int>("numOfEditable", &Edit::numOfEditable, &Edit::setNumOfEditable, 7, 4),
        of<double>("phyWidthOfSeperator", &Edit::phyWidthOfSeperator, &Edit::setPhyWidthOfSeperator, 5, -1.5),
        of<Range>("unitRange, two numbers", rangeOf, setEnds, {0, 6}, {1, 8}),
        of<Range>("unitRange", rangeOf, setRange, {0, 6}, {1, 8}),
        of<bool>("isDrawMonetaryUnit", &Edit::isDrawMonetaryUnit, &Edit::setIsDrawMonetaryUnit, true, false),
        of<bool>("isPrefixAll", &Edit::isPrefixAll, &Edit::setIsPrefixAll, false, true),
        of<Prefix_Mode>("prefixMode", &Edit::prefixMode, &Edit::setPrefixMode, Prefix_Cross, Prefix_Zero),
        of<bool>("isFocusable", &Edit::isFocusable, &Edit::setFocusable, true, false),
        of<bool>("isInputMethodAcceptable", &Edit::isInputMethodAcceptable, &Edit::setInputMethodAcceptable, false,
                 true),
        of<QVariant>("presetData", &Edit::presetData, &Edit::setPresetData, {}, QStringLiteral("12.50")),
    };
}

} // namespace

class TestSeperateEdit : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void newObject();
    void metaObjectAddsItsNameOnly();
    void setting_data() { addSettingRows(settings()); }
    void setting();
    void settersTouchTheirFieldOnly();
    void operationsDoNotMark();
    void modes_data();
    void modes();
    void modeEmptiesTheCells_data() { modes_data(); }
    void modeEmptiesTheCells();
    void amountModeTakesItsFirstRangeAgain();
    void prefixMark_data();
    void prefixMark();
    void flags();
    void paintModeSetsTheFocus_data();
    void paintModeSetsTheFocus();
    void settingsEmitNothing();
};

void TestSeperateEdit::newObject()
{
    QGraphicsRectItem parent;
    const auto *edit = new Edit(&parent);
    QCOMPARE(edit->parentItem(), &parent);
    QCOMPARE(edit->objType(), Obj_SeperateEdit);
    QCOMPARE(static_cast<int>(edit->objType()), 5);
    QVERIFY(edit->isModified());
    QCOMPARE(static_cast<int>(edit->seperateMode()), 0);
    QCOMPARE(static_cast<int>(edit->prefixMode()), 1);
    QCOMPARE(edit->prefix(), QStringLiteral("ⓧ"));
    QCOMPARE(edit->numOfEditable(), 7);
    QCOMPARE(edit->numOfSeperator(), 7);
    QCOMPARE(edit->phyWidthOfSeperator(), 5.0);
    QCOMPARE(edit->pixWidthOfSeperator(), 0.0);
    QCOMPARE(edit->unitStart(), 0);
    QCOMPARE(edit->unitEnd(), 6);
    QCOMPARE(edit->cursorIndx(), 0);
    QCOMPARE(cellsOf(*edit), QStringLiteral("_ _ _ _ _ _ _"));
    QVERIFY(edit->contentData().isNull());
    QCOMPARE(edit->paintMode(), Paint_Design);
}

// Nothing of its own is reachable by name, and its content is announced by the prototype.
void TestSeperateEdit::metaObjectAddsItsNameOnly()
{
    const QMetaObject &meta = Edit::staticMetaObject;
    QCOMPARE(meta.className(), "TavroSeperateEdit");
    QCOMPARE(meta.superClass(), &TavroText::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
    QCOMPARE(meta.classInfoCount(), meta.classInfoOffset());
    QCOMPARE(meta.constructorCount(), 0);
}

void TestSeperateEdit::setting()
{
    QFETCH(int, index);
    checkSetting(settings().at(index));
}

void TestSeperateEdit::settersTouchTheirFieldOnly()
{
    const QVector<Setting<Edit>> table = settings();
    // A mode and a range bring the cells with them, and the mode the gaps.
    const QMap<QString, QStringList> followers{
        {QStringLiteral("seperateMode"), {QStringLiteral("numOfEditable"), QStringLiteral("phyWidthOfSeperator")}},
        {QStringLiteral("unitRange"), {QStringLiteral("numOfEditable"), QStringLiteral("unitRange, two numbers")}},
        {QStringLiteral("unitRange, two numbers"), {QStringLiteral("numOfEditable"), QStringLiteral("unitRange")}},
    };
    for (const Setting<Edit> &written : table) {
        Edit object;
        written.write(object);
        const QStringList following = followers.value(QLatin1String(written.name));
        for (const Setting<Edit> &other : table) {
            if (other.name == written.name || following.contains(QLatin1String(other.name)))
                continue;
            QVERIFY2(other.isInitial(object),
                     qPrintable(
                         QStringLiteral("%1 changed %2").arg(QLatin1String(written.name), QLatin1String(other.name))));
        }
    }
}

// What is filled in is not saved with the form.
void TestSeperateEdit::operationsDoNotMark()
{
    Edit edit;
    edit.setIsModified(false);
    edit.setBoundingRect(QRectF(0, 0, 100, 20));
    edit.setContentData(QStringLiteral("12.50"));
    edit.setCharAt(0, QStringLiteral("1"));
    edit.moveCursorTo(3);
    edit.decreaseCursor();
    edit.increaseCursor();
    edit.updateContentByKey(Qt::Key_5, QStringLiteral("5"));
    edit.deleteCharUnderCursor();
    edit.resetCursor();
    edit.triggerDrawCursor();
    edit.fillZeroToTrail();
    edit.removePrefixZero();
    edit.strToList(QStringLiteral("7"));
    edit.syncContentData();
    edit.syncDigitsList();
    edit.syncRectGeometry();
    edit.updateIndxOfYuan();
    edit.resetEditable();
    edit.setPaintMode(Paint_Input);
    edit.renew();
    QVERIFY(!edit.isModified());
}

void TestSeperateEdit::modes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("cells");
    QTest::addColumn<double>("gap");
    QTest::addColumn<bool>("inputMethod");
    QTest::newRow("amount") << 0 << 7 << 5.0 << false;
    QTest::newRow("18 digits") << 1 << 18 << 0.0 << false;
    QTest::newRow("6 digits") << 2 << 6 << 0.0 << false;
    QTest::newRow("6 characters") << 3 << 6 << 5.0 << true;
    QTest::newRow("beyond the modes") << 4 << 4 << 0.0 << false;
    QTest::newRow("far beyond the modes") << Most << 4 << 0.0 << false;
    QTest::newRow("below the modes") << -1 << 4 << 0.0 << false;
    QTest::newRow("far below the modes") << Least << 4 << 0.0 << false;
}

void TestSeperateEdit::modes()
{
    QFETCH(int, mode);
    QFETCH(int, cells);
    QFETCH(double, gap);
    QFETCH(bool, inputMethod);
    for (const bool inputMethodBefore : {false, true}) {
        Edit edit;
        edit.setNumOfEditable(4);
        edit.setPhyWidthOfSeperator(3);
        edit.setInputMethodAcceptable(inputMethodBefore);
        edit.setSeperateMode(static_cast<SeperateMode>(mode));
        QCOMPARE(static_cast<int>(edit.seperateMode()), mode);
        QCOMPARE(edit.numOfEditable(), cells);
        QCOMPARE(edit.phyWidthOfSeperator(), gap);
        QCOMPARE(edit.isInputMethodAcceptable(), inputMethod);
        QCOMPARE(rangeOf(edit), Range(0, 6));
    }
}

void TestSeperateEdit::modeEmptiesTheCells()
{
    QFETCH(int, mode);
    QFETCH(int, cells);
    Edit edit;
    edit.setNumOfEditable(4);
    edit.setContentData(QStringLiteral("12345"));
    fill(edit, QStringLiteral("1 2 3 4"));
    edit.moveCursorTo(2);
    edit.setSeperateMode(static_cast<SeperateMode>(mode));
    const bool isNamed = mode >= 0 && mode <= 3;
    const QString empty = QStringList(QVector<QString>(cells, QStringLiteral("_")).toList()).join(QLatin1Char(' '));
    QCOMPARE(cellsOf(edit), isNamed ? empty : QStringLiteral("1 2 3 4"));
    QCOMPARE(edit.cursorIndx(), isNamed ? 0 : 2);
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("12345")));
}

void TestSeperateEdit::amountModeTakesItsFirstRangeAgain()
{
    Edit edit;
    edit.setUnitRange(2, 9);
    edit.setSeperateMode(Sep_Digits18);
    QCOMPARE(rangeOf(edit), Range(2, 9));
    edit.setSeperateMode(Sep_Amount);
    QCOMPARE(rangeOf(edit), Range(0, 6));
    edit.setUnitRange(2, 9);
    edit.setSeperateMode(Sep_Amount);
    QCOMPARE(rangeOf(edit), Range(0, 6));
}

void TestSeperateEdit::prefixMark_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("mark");
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("cross") << 1 << QString(QChar(0x24E7));
    QTest::newRow("zero") << 2 << QStringLiteral("零");
    QTest::newRow("beyond the modes") << 3 << QStringLiteral("#");
    QTest::newRow("far beyond the modes") << Most << QStringLiteral("#");
    QTest::newRow("below the modes") << -1 << QStringLiteral("#");
}

void TestSeperateEdit::prefixMark()
{
    QFETCH(int, mode);
    QFETCH(QString, mark);
    Edit edit;
    edit.setPrefix(QStringLiteral("#"));
    QSignalSpy prefixChanged(&edit, &Edit::prefixChanged);
    edit.setPrefixMode(static_cast<Prefix_Mode>(mode));
    QCOMPARE(edit.prefix(), mark);
    QCOMPARE(static_cast<int>(edit.prefixMode()), mode);
    QCOMPARE(prefixChanged.count(), 0);
}

void TestSeperateEdit::flags()
{
    Edit edit;
    edit.setFocusable(false);
    QVERIFY(!edit.flags().testFlag(QGraphicsItem::ItemIsFocusable));
    edit.setFocusable(true);
    QVERIFY(edit.flags().testFlag(QGraphicsItem::ItemIsFocusable));
    edit.setInputMethodAcceptable(true);
    QVERIFY(edit.flags().testFlag(QGraphicsItem::ItemAcceptsInputMethod));
    edit.setInputMethodAcceptable(false);
    QVERIFY(!edit.flags().testFlag(QGraphicsItem::ItemAcceptsInputMethod));
    edit.setFlag(QGraphicsItem::ItemAcceptsInputMethod);
    QVERIFY(edit.isInputMethodAcceptable());
    edit.setFlag(QGraphicsItem::ItemIsFocusable, false);
    QVERIFY(!edit.isFocusable());
}

void TestSeperateEdit::paintModeSetsTheFocus_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("focusable");
    QTest::newRow("design") << 0 << false;
    QTest::newRow("input") << 1 << true;
    QTest::newRow("print") << 2 << false;
    QTest::newRow("beyond the modes") << 3 << false;
    QTest::newRow("below the modes") << -1 << false;
}

void TestSeperateEdit::paintModeSetsTheFocus()
{
    QFETCH(int, mode);
    QFETCH(bool, focusable);
    for (const bool before : {false, true}) {
        Edit edit;
        edit.setFocusable(before);
        edit.setObjVisible(false);
        QSignalSpy paintModeChanged(&edit, &Edit::paintModeChanged);
        TavroPrototype &base = edit;
        base.setPaintMode(static_cast<Paint_Mode>(mode));
        QCOMPARE(edit.isFocusable(), focusable);
        QCOMPARE(static_cast<int>(edit.paintMode()), mode);
        // The rest is the prototype's.
        QCOMPARE(paintModeChanged.count(), 1);
        QCOMPARE(edit.isVisible(), mode != 1);
        QCOMPARE(edit.flags().testFlag(QGraphicsItem::ItemIsMovable), mode == 0);
    }
}

void TestSeperateEdit::settingsEmitNothing()
{
    const QVector<Setting<Edit>> table = settings();
    for (const Setting<Edit> &tested : table) {
        Edit edit;
        const QSignalSpy content(&edit, &Edit::contentDataChanged);
        const QSignalSpy prefix(&edit, &Edit::prefixChanged);
        const QSignalSpy font(&edit, &Edit::fontChanged);
        const QSignalSpy rect(&edit, &Edit::boundingRectChanged);
        tested.write(edit);
        QVERIFY2(content.isEmpty() && prefix.isEmpty() && font.isEmpty() && rect.isEmpty(), tested.name);
    }
}

QTEST_MAIN(TestSeperateEdit)
#include "tst_seperateedit.moc"

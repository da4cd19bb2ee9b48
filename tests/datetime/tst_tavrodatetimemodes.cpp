// SPDX-License-Identifier: MIT
// What a date/time object shows of its editors, mode by mode and format by format.
#include "tests/datetime/datetimeview.h"
#include "tests/support/stricttest.h"

namespace {

// One step a word: m and the number of a mode, or f and the number of a format.
void take(TavroDatetime &object, const QString &steps)
{
    const QStringList words = steps.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const int number = word.mid(1).toInt();
        if (word.startsWith(QLatin1Char('m')))
            object.setPaintMode(static_cast<Paint_Mode>(number));
        else
            object.setDateTimeFormat(static_cast<Datetime_Format>(number));
    }
}

bool areHandlesEnabled(const DateTimeEditPrototype *editor, bool enabled)
{
    for (int i = 0; i < editor->count(); ++i) {
        if (editor->handle(i)->isEnabled() != enabled)
            return false;
    }
    return editor->count() > 0;
}

// What stands in the window: "date", "time" or "" of the editors, in that order.
QString seen(const Editors &both)
{
    QStringList names;
    if (both.dates->isVisible())
        names << QStringLiteral("date");
    if (both.times->isVisible())
        names << QStringLiteral("time");
    return names.join(QLatin1Char(' '));
}

} // namespace

class TestTavroDatetimeModes : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void editorsShown_data();
    void editorsShown();
    void newObjectsShowNoEditor();
    void patternsLeaveTheProxyAsItWas_data();
    void patternsLeaveTheProxyAsItWas();
    void printModeHidesEachOnItsOwn();
    void handlesPerMode_data();
    void handlesPerMode();
    void handlesOfLabelsBuiltInAMode();
    void handlesOfDisabledObjects();
    void proxyTakesTheEditorInUse();
    void modesBelongToTheObject_data();
    void modesBelongToTheObject();
};

void TestTavroDatetimeModes::editorsShown_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *steps, const char *shown) {
        QTest::newRow(steps) << QString::fromLatin1(steps) << QString::fromLatin1(shown);
    };
    row("m0", "date");
    row("m1", "date");
    row("m2", "");
    row("m7", "");
    for (const char *mode : {"m0", "m1"}) {
        for (const char *format : {"f0", "f1", "f2", "f3", "f4", "f7", "f-1"}) {
            row(qPrintable(QStringLiteral("%1 %2").arg(QLatin1String(mode), QLatin1String(format))), "date");
            row(qPrintable(QStringLiteral("%1 %2").arg(QLatin1String(format), QLatin1String(mode))), "date");
        }
    }
    for (const char *steps : {"m2 f0", "m2 f1", "m2 f4", "m2 f7", "m2 f-1"})
        row(steps, "");
    row("m0 f5", "time");
    row("f5 m0", "time");
    row("f5 m1", "time");
    row("m0 f6", "");
    row("f6 m0", "");
    row("f6 m1", "");
    // From one format to another and back.
    row("m0 f5 f3", "date");
    row("m0 f5 f3 f5", "time");
    row("m1 f6 f3", "date");
    row("m1 f6 f5", "time");
    row("m1 f5 f6 f6 f4", "date");
    // Print mode hides everything, and the next mode shows it again.
    row("m0 m2", "");
    row("m0 f5 m2", "");
    row("m0 m2 m0", "date");
    row("m0 m2 m1", "date");
    row("m1 f5 m2 m0", "time");
    row("m2 m2", "");
    // An editor that is shown in print mode would be printed over the sections.
    row("m2 f3", "");
    row("m2 f5", "");
    row("m0 m2 f5", "");
    row("m0 m2 f6 f3", "");
    row("m0 m2 f5 m0", "time");
    row("m2 f5 m1", "time");
    // Other modes leave what is shown.
    row("m0 m7", "date");
    row("m0 m-1", "date");
    row("m1 f5 m3", "time");
    row("m0 m2 m7", "");
    row("m0 f6 m7", "");
}

void TestTavroDatetimeModes::editorsShown()
{
    QFETCH(QString, steps);
    QFETCH(QString, shown);
    DatetimeView form;
    auto *object = new TavroDatetime;
    const Editors both(*object);
    object->widgetPrxy()->hide();
    form.scene().addItem(object);
    take(*object, steps);
    QCOMPARE(seen(both), shown);
    QCOMPARE(object->widgetPrxy()->isVisible(), !shown.isEmpty());
    if (!shown.isEmpty())
        QCOMPARE(object->widgetPrxy()->widget()->isVisible(), true);
}

// The editor is there before the first mode, but a new object does not show it.
void TestTavroDatetimeModes::newObjectsShowNoEditor()
{
    DatetimeView form;
    auto *object = new TavroDatetime;
    form.scene().addItem(object);
    object->setBoundingRect({10, 20, 300, 30});
    object->setContentData(editors::aMoment());
    QCOMPARE(object->widgetPrxy()->isVisible(), false);
    QCOMPARE(editorOf(*object)->isVisible(), false);
}

void TestTavroDatetimeModes::patternsLeaveTheProxyAsItWas_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("leaves");
    QTest::newRow("design") << 0 << true;
    QTest::newRow("input") << 1 << true;
    QTest::newRow("print") << 2 << false;
    QTest::newRow("beyond the modes") << 9 << true;
}

void TestTavroDatetimeModes::patternsLeaveTheProxyAsItWas()
{
    QFETCH(int, mode);
    QFETCH(bool, leaves);
    TavroDatetime object;
    object.setDateTimeFormat(Dt_Custom);
    for (const bool visible : {true, false}) {
        object.widgetPrxy()->setVisible(visible);
        object.setPaintMode(static_cast<Paint_Mode>(mode));
        QCOMPARE(object.widgetPrxy()->isVisible(), visible && leaves);
    }
}

// A proxy and its editor come and go together, so each is looked at without the other.
void TestTavroDatetimeModes::printModeHidesEachOnItsOwn()
{
    TavroDatetime object;
    const Editors both(object);
    object.widgetPrxy()->setWidget(nullptr);
    object.widgetPrxy()->show();
    for (DateTimeEditPrototype *editor : QVector<DateTimeEditPrototype *>{both.dates, both.times}) {
        editor->setAttribute(Qt::WA_DontShowOnScreen);
        editor->show();
    }
    object.setPaintMode(Paint_Print);
    QVERIFY(both.dates->isHidden());
    QVERIFY(both.times->isHidden());
    QVERIFY(!object.widgetPrxy()->isVisible());
}

void TestTavroDatetimeModes::handlesPerMode_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("design") << 1 << 0 << true;
    QTest::newRow("input") << 0 << 1 << false;
    QTest::newRow("print after design") << 0 << 2 << true;
    QTest::newRow("print after input") << 1 << 2 << false;
    QTest::newRow("beyond the modes, after design") << 0 << 7 << true;
    QTest::newRow("beyond the modes, after input") << 1 << 7 << false;
}

void TestTavroDatetimeModes::handlesPerMode()
{
    QFETCH(int, before);
    QFETCH(int, mode);
    QFETCH(bool, enabled);
    for (const int format : {3, 5, 6}) {
        TavroDatetime object;
        const Editors both(object);
        object.setDateTimeFormat(static_cast<Datetime_Format>(format));
        object.setPaintMode(static_cast<Paint_Mode>(before));
        object.setPaintMode(static_cast<Paint_Mode>(mode));
        // Both editors, whichever the format is.
        QVERIFY(areHandlesEnabled(both.dates, enabled));
        QVERIFY(areHandlesEnabled(both.times, enabled));
    }
}

void TestTavroDatetimeModes::handlesOfLabelsBuiltInAMode()
{
    TavroDatetime object;
    const Editors both(object);
    for (const bool enabled : {false, true}) {
        object.setPaintMode(enabled ? Paint_Design : Paint_Input);
        object.setSeperatorType(Sep_Slash);
        QVERIFY(areHandlesEnabled(both.dates, enabled));
        QVERIFY(areHandlesEnabled(both.times, enabled));
        object.setIsShowSeperator(enabled);
        object.setDateTimeFormat(Dt_Time);
        object.setOrderType(1);
        object.setDateTimeFormat(Dt_Capital);
        object.setOrderType(1);
        QVERIFY(areHandlesEnabled(both.dates, enabled));
        QVERIFY(areHandlesEnabled(both.times, enabled));
    }
}

// An object that is disabled while it is filled in can be laid out again.
void TestTavroDatetimeModes::handlesOfDisabledObjects()
{
    TavroDatetime object;
    const Editors both(object);
    object.setObjEnabled(false);
    object.setPaintMode(Paint_Input);
    QVERIFY(!both.dates->isEnabled());
    object.setPaintMode(Paint_Design);
    QVERIFY(areHandlesEnabled(both.dates, true));
    QVERIFY(areHandlesEnabled(both.times, true));
}

void TestTavroDatetimeModes::proxyTakesTheEditorInUse()
{
    TavroDatetime object;
    const Editors both(object);
    const QGraphicsProxyWidget *proxy = object.widgetPrxy();
    QCOMPARE(proxy->widget(), both.dates);
    object.setDateTimeFormat(Dt_Time);
    QCOMPARE(proxy->widget(), both.times);
    // A pattern needs no editor; what the proxy holds stays.
    object.setDateTimeFormat(Dt_Custom);
    QCOMPARE(proxy->widget(), both.times);
    object.setDateTimeFormat(Dt_Numeral);
    QCOMPARE(proxy->widget(), both.dates);
    QCOMPARE(object.widgetPrxy(), proxy);
    // The one that is out of use is never a window of its own.
    object.setPaintMode(Paint_Design);
    QVERIFY(both.times->isHidden());
}

void TestTavroDatetimeModes::modesBelongToTheObject_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("movable");
    for (const int mode : {0, 1, 2, 7})
        QTest::addRow("mode %d", mode) << mode << (mode == 0);
}

void TestTavroDatetimeModes::modesBelongToTheObject()
{
    QFETCH(int, mode);
    QFETCH(bool, movable);
    TavroDatetime object;
    object.setIsModified(false);
    object.setPaintMode(static_cast<Paint_Mode>(mode));
    QCOMPARE(static_cast<int>(object.paintMode()), mode);
    QCOMPARE(object.flags().testFlag(QGraphicsItem::ItemIsMovable), movable);
    QCOMPARE(object.flags().testFlag(QGraphicsItem::ItemIsSelectable), movable);
    QCOMPARE(object.isModified(), false);
}

QTEST_MAIN(TestTavroDatetimeModes)
#include "tst_tavrodatetimemodes.moc"

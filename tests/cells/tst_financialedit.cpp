// SPDX-License-Identifier: MIT
#include "tests/cells/gridcells.h"
#include "tests/support/settingtable.h"
#include "tests/support/stricttest.h"

#include <limits>
#include <utility>

namespace {

using F = TavroFinancialEdit;
using Range = std::pair<int, int>;

constexpr bool Marks = true;
constexpr int Most = std::numeric_limits<int>::max();
constexpr int Least = std::numeric_limits<int>::min();

template <typename Value, typename Getter, typename Setter>
Setting<F> of(const char *name, Getter get, Setter set, const Value &initial, const Value &written)
{
    return setting<F>(name, get, set, initial, written, Marks);
}

QVector<Setting<F>> settings()
{
    const auto range = [](const F &edit) { return Range(edit.unitRange().start, edit.unitRange().end); };
    const auto setRange = [](F &edit, const Range &value) { edit.setUnitRange(_UnitRange{value.first, value.second}); };
    const auto ends = [](const F &edit) { return Range(edit.unitStart(), edit.unitEnd()); };
    const auto setEnds = [](F &edit, const Range &value) { edit.setUnitRange(value.first, value.second); };
    const auto focusable = [](const F &edit) { return bool(edit.flags() & QGraphicsItem::ItemIsFocusable); };
    return {
        of<Currency>("currencySign", &F::currencySign, &F::setCurrency, Currency_None, Currency_Pound),
        of<double>("unitRowPhyHeight", &F::unitRowPhyHeight, &F::setUnitRowPhyHeight, 5.0, 7.25),
        of<Range>("unitRange", range, setRange, {0, 11}, {1, 6}),
        of<Range>("unitStart and unitEnd", ends, setEnds, {0, 11}, {1, 6}),
        of<int>("numOfEditable", &F::numOfEditable, &F::setNumOfEditable, 12, 5),
        of<bool>("isDrawMonetaryUnit", &F::isDrawMonetaryUnit, &F::setIsDrawMonetaryUnit, true, false),
        of<bool>("isShowLimit", &F::isShowLimit, &F::setIsShowLimit, false, true),
        of<int>("limitUnit", &F::limitUnit, &F::setLimitUnit, 11, 6),
        of<bool>("isShowZero", &F::isShowZero, &F::setIsShowZero, false, true),
        of<bool>("focusable", focusable, &F::setFocusable, true, false),
    };
}

} // namespace

/// Settings of the financial edit: what a new one is like, what is stored, and what follows from it.
class TestFinancialEdit : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void newObject();
    void settings_data() { addSettingRows(::settings()); }
    void settings();
    void settersTouchTheirFieldOnly();
    void operationsDoNotMark();
    void metaObject();
    void currency_data();
    void currency();
    void currencyIsQuiet();
    void paintMode_data();
    void paintMode();
    void preset();
    void renew_data();
    void renew();
};

void TestFinancialEdit::newObject()
{
    QGraphicsRectItem parent;
    auto *edit = new F(&parent);
    QCOMPARE(edit->parentItem(), &parent);
    QCOMPARE(static_cast<int>(edit->objType()), 4);
    QCOMPARE(edit->type(), static_cast<int>(TavroPrototype::Type));
    QCOMPARE(cellsOf(*edit), QStringLiteral("____________"));
    QCOMPARE(edit->cursorIndx(), 0);
    QCOMPARE(edit->prefix(), QString());
    QCOMPARE(edit->unitRowHeight(), 0.0);
    QCOMPARE(leftmostReached(*edit), 0);
    QVERIFY(edit->contentData().isNull());
    QVERIFY(edit->isModified());
    QVERIFY(!(edit->flags() & QGraphicsItem::ItemAcceptsInputMethod));
    QCOMPARE(F().parentItem(), nullptr);
}

void TestFinancialEdit::settings()
{
    QFETCH(int, index);
    checkSetting(::settings().at(index));
}

void TestFinancialEdit::settersTouchTheirFieldOnly()
{
    const QVector<Setting<F>> table = ::settings();
    const QStringList sharing{QStringLiteral("unitRange"), QStringLiteral("unitStart and unitEnd"),
                              QStringLiteral("numOfEditable")};
    for (const Setting<F> &written : table) {
        F edit;
        written.write(edit);
        for (const Setting<F> &other : table) {
            if (other.name == written.name ||
                (sharing.contains(QLatin1String(written.name)) && sharing.contains(QLatin1String(other.name))))
                continue;
            QVERIFY2(other.isInitial(edit),
                     qPrintable(
                         QStringLiteral("%1 changed %2").arg(QLatin1String(written.name), QLatin1String(other.name))));
        }
    }
}

// Only settings are saved with the form.
void TestFinancialEdit::operationsDoNotMark()
{
    F edit;
    edit.setIsModified(false);
    edit.setBoundingRect({0, 0, 240, 60});
    edit.setPaintMode(Paint_Input);
    edit.setContentData(QStringLiteral("5"));
    edit.setDigitAt(0, QStringLiteral("1"));
    edit.setRectAt(0, {0, 0, 1, 1});
    edit.syncDigitList();
    edit.syncContentData();
    edit.stringToDigits(QStringLiteral("7"));
    edit.fillZeroToTrail();
    edit.removePrefixZero();
    edit.updateDigitByKey(Qt::Key_5, QStringLiteral("5"));
    edit.increaseCursor();
    edit.decreaseCursor();
    edit.moveCursorTo(3);
    edit.resetCurosr();
    edit.triggerDrawCursor();
    edit.updateIndxOfYuan();
    edit.updateIndxOfLimitUnit();
    edit.resetEditable();
    edit.syncEditableGeometry();
    edit.renew();
    QVERIFY(!edit.isModified());
}

void TestFinancialEdit::metaObject()
{
    const QMetaObject &meta = F::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("TavroFinancialEdit"));
    QCOMPARE(meta.superClass(), &TavroText::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
    QCOMPARE(F().metaObject(), &meta);
}

void TestFinancialEdit::currency_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("sign");
    const QString kept = QStringLiteral("kept");
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("yuan") << 1 << QStringLiteral("\u00a5");
    QTest::newRow("dollar") << 2 << QStringLiteral("$");
    QTest::newRow("pound") << 3 << QStringLiteral("\u00a3");
    QTest::newRow("cent") << 4 << QStringLiteral("\uffe0");
    QTest::newRow("letters") << 5 << QStringLiteral("USD");
    QTest::newRow("first unknown") << 6 << kept;
    QTest::newRow("greatest") << Most << kept;
    QTest::newRow("negative") << -1 << kept;
    QTest::newRow("least") << Least << kept;
}

void TestFinancialEdit::currency()
{
    QFETCH(int, value);
    QFETCH(QString, sign);
    F edit;
    edit.setPrefix(QStringLiteral("kept"));
    edit.setCurrency(static_cast<Currency>(value));
    QCOMPARE(static_cast<int>(edit.currencySign()), value);
    QCOMPARE(edit.prefix(), sign);
}

void TestFinancialEdit::currencyIsQuiet()
{
    F edit;
    const QSignalSpy prefix(&edit, &TavroText::prefixChanged);
    const QSignalSpy content(&edit, &TavroPrototype::contentDataChanged);
    edit.setCurrency(Currency_Dollar);
    edit.setCurrency(static_cast<Currency>(6));
    QCOMPARE(prefix.count() + content.count(), 0);
    QCOMPARE(edit.prefix(), QStringLiteral("$"));
}

void TestFinancialEdit::paintMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("focusable");
    QTest::addColumn<bool>("selectable");
    QTest::newRow("design") << 0 << false << true;
    QTest::newRow("input") << 1 << true << false;
    QTest::newRow("print") << 2 << false << false;
    QTest::newRow("beyond the modes") << 7 << false << false;
}

void TestFinancialEdit::paintMode()
{
    QFETCH(int, mode);
    QFETCH(bool, focusable);
    QFETCH(bool, selectable);
    for (const bool before : {false, true}) {
        F edit;
        edit.setFocusable(before);
        const QSignalSpy changed(&edit, &TavroPrototype::paintModeChanged);
        edit.setPaintMode(static_cast<Paint_Mode>(mode));
        QCOMPARE(static_cast<int>(edit.paintMode()), mode);
        QCOMPARE(bool(edit.flags() & QGraphicsItem::ItemIsFocusable), focusable);
        QCOMPARE(bool(edit.flags() & QGraphicsItem::ItemIsSelectable), selectable);
        QVERIFY(!(edit.flags() & QGraphicsItem::ItemAcceptsInputMethod));
        QCOMPARE(changed.count(), 1);
    }
}

void TestFinancialEdit::preset()
{
    F edit;
    edit.setContentData(QStringLiteral("5"));
    edit.setIsModified(false);
    const QSignalSpy content(&edit, &TavroPrototype::contentDataChanged);
    edit.setPresetData(12.5);
    QCOMPARE(edit.presetData(), QVariant(12.5));
    QVERIFY(edit.isModified());
    QCOMPARE(edit.contentData().toString(), QStringLiteral("5"));
    QCOMPARE(cellsOf(edit), QStringLiteral("_________500"));
    QCOMPARE(content.count(), 0);
}

void TestFinancialEdit::renew_data()
{
    QTest::addColumn<bool>("reset");
    QTest::addColumn<QVariant>("preset");
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<QString>("cells");
    const QVariant before = QStringLiteral("5");
    QTest::newRow("to the preset") << true << QVariant(12.5) << QVariant(12.5) << QStringLiteral("________1250");
    QTest::newRow("to nothing") << true << QVariant() << QVariant() << QStringLiteral("____________");
    QTest::newRow("kept") << false << QVariant(12.5) << before << QStringLiteral("7___________");
}

void TestFinancialEdit::renew()
{
    QFETCH(bool, reset);
    QFETCH(QVariant, preset);
    QFETCH(QVariant, content);
    QFETCH(QString, cells);
    F edit;
    edit.setContentData(QStringLiteral("5"));
    setCells(edit, QStringLiteral("7___________"));
    edit.setPresetData(preset);
    edit.setIsResetAtRenew(reset);
    const QSignalSpy changed(&edit, &TavroPrototype::contentDataChanged);
    edit.renew();
    QCOMPARE(edit.contentData(), content);
    QCOMPARE(cellsOf(edit), cells);
    QCOMPARE(changed.count(), reset ? 1 : 0);
}

QTEST_MAIN(TestFinancialEdit)
#include "tst_financialedit.moc"

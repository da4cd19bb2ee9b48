// SPDX-License-Identifier: MIT
#include "desk/settings/catalogue.h"

#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "core/controlfactory.h"
#include "core/tavroprototype.h"
#include "desk/form.h"
#include "graphic/tavroline.h"
#include "graphic/tavrorect.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QSet>
#include <QTest>

namespace {

constexpr double Scale = 8;

// Every number that a kind can have, and some that none has.
constexpr int LeastKind = -1;
constexpr int MostKind = 40;

std::unique_ptr<Form> formWith(ObjType kind)
{
    auto form = std::make_unique<Form>();
    form->addObject(ControlFactory::factory(kind), {10, 10, 40, 8});
    return form;
}

} // namespace

class CatalogueTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesAllKindsOfTheFactory_data();
    void namesAllKindsOfTheFactory();
    void kindsWithoutName();
    void settingsOfKind_data();
    void settingsOfKind();
    void setting_data();
    void setting();
    void lineWidthFollowsScale();
    void rotationStartsUpright();
    void presetFillsIn();
    void bindingKeepsTheOtherName();
    void marksFollowFromTheirModes();
    void modeBringsCellsAndGap_data();
    void modeBringsCellsAndGap();
    void rangeOfUnits_data();
    void rangeOfUnits();
    void rangeLeavesPlainRows();
    void gapMovesTheCells();
    void unitWordsMoveTheCells();
    void limitMovesTheCursor_data();
    void limitMovesTheCursor();
    void cellsShowTheContent_data();
    void cellsShowTheContent();

private:
    static void addSettingRows();
};

void CatalogueTest::namesAllKindsOfTheFactory_data()
{
    QTest::addColumn<int>("number");
    for (int number = LeastKind; number <= MostKind; ++number)
        QTest::addRow("kind %d", number) << number;
}

void CatalogueTest::namesAllKindsOfTheFactory()
{
    QFETCH(int, number);
    const auto kind = static_cast<ObjType>(number);
    const std::unique_ptr<TavroPrototype> object(ControlFactory::factory(kind));
    const QString name = catalogue::nameOf(kind);
    QCOMPARE(name.isEmpty(), object == nullptr);
    QCOMPARE(catalogue::settingsOf(kind).isEmpty(), object == nullptr);
    if (!object)
        return;
    QCOMPARE(object->objType(), kind);
    QCOMPARE(catalogue::kindOf(name), kind);
    QCOMPARE(catalogue::kindNames().count(name), 1);
}

void CatalogueTest::kindsWithoutName()
{
    QCOMPARE(catalogue::kindOf(QString()), Obj_None);
    QCOMPARE(catalogue::kindOf(QStringLiteral("hologram")), Obj_None);
    QCOMPARE(catalogue::kindOf(QStringLiteral("Line")), Obj_None);
    for (const QString &name : catalogue::kindNames())
        QVERIFY2(catalogue::kindOf(name) != Obj_None, qPrintable(name));
}

void CatalogueTest::settingsOfKind_data()
{
    QTest::addColumn<int>("kind");
    for (const QString &name : catalogue::kindNames())
        QTest::newRow(qPrintable(name)) << int(catalogue::kindOf(name));
}

void CatalogueTest::settingsOfKind()
{
    QFETCH(int, kind);
    QSet<QString> keys{QStringLiteral("kind"), QStringLiteral("rect")};
    QSet<QString> labels;
    for (const Setting &setting : catalogue::settingsOf(static_cast<ObjType>(kind))) {
        QVERIFY2(!setting.key.isEmpty() && !keys.contains(setting.key), qPrintable(setting.key));
        QVERIFY2(!setting.label.isEmpty() && !labels.contains(setting.label), qPrintable(setting.key));
        QVERIFY2(!setting.group.isEmpty(), qPrintable(setting.key));
        QVERIFY2(setting.get && setting.set, qPrintable(setting.key));
        keys.insert(setting.key);
        labels.insert(setting.label);
    }
}

void CatalogueTest::addSettingRows()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("index");
    for (const QString &name : catalogue::kindNames()) {
        const ObjType kind = catalogue::kindOf(name);
        const QVector<Setting> &settings = catalogue::settingsOf(kind);
        for (int index = 0; index < settings.size(); ++index)
            QTest::addRow("%s, %s", qPrintable(name), qPrintable(settings.at(index).key)) << int(kind) << index;
    }
}

void CatalogueTest::setting_data()
{
    addSettingRows();
}

// Each setting stores and reads back, through JSON too, and touches no setting beside it but those that it brings
// along.
void CatalogueTest::setting()
{
    QFETCH(int, kind);
    QFETCH(int, index);
    const QVector<Setting> &settings = catalogue::settingsOf(static_cast<ObjType>(kind));
    const Setting &setting = settings.at(index);
    const std::unique_ptr<Form> form = formWith(static_cast<ObjType>(kind));
    TavroPrototype &object = *form->entries.front().object;

    QVector<QVariant> before;
    for (const Setting &each : settings)
        before.append(each.get(object));
    const QJsonValue fresh = setting.toJson(setting.get(object));
    QVERIFY2(setting.fromJson(fresh).isValid(), "a new object has a value that no file can hold");

    const QJsonValue other = deskforms::otherValue(static_cast<ObjType>(kind), setting.key);
    QVERIFY(other != fresh);
    const QVariant value = setting.fromJson(other);
    QVERIFY(value.isValid());
    setting.set(object, value, Scale);
    QCOMPARE(setting.get(object), value);
    QCOMPARE(setting.toJson(setting.get(object)), other);
    for (int i = 0; i < settings.size(); ++i) {
        if (i < index || (i > index && !setting.bringsOthers))
            QVERIFY2(settings.at(i).get(object) == before.at(i), qPrintable(settings.at(i).key));
    }
}

namespace {

const Setting &settingOf(ObjType kind, const char *key)
{
    for (const Setting &setting : catalogue::settingsOf(kind)) {
        if (setting.key == QLatin1String(key))
            return setting;
    }
    qFatal("no setting %s", key);
}

} // namespace

void CatalogueTest::lineWidthFollowsScale()
{
    TavroLine line;
    settingOf(Obj_Line, "lineWidth").set(line, 0.5, 20);
    QCOMPARE(line.lineWidthPhy(), 0.5);
    QCOMPARE(line.lineWidthPix(), 10.0);
    TavroRect rect;
    settingOf(Obj_Rect, "lineWidth").set(rect, 0.25, 8);
    QCOMPARE(rect.lineWidthPhy(), 0.25);
    QCOMPARE(rect.lineWidthPix(), 2.0);
}

// The library turns on top of the turn that is there; a setting is a state, so setting it twice is setting it once.
void CatalogueTest::rotationStartsUpright()
{
    const std::unique_ptr<Form> form = formWith(Obj_Edit);
    TavroPrototype &object = *form->entries.front().object;
    const Setting &rotation = settingOf(Obj_Edit, "rotation");
    const QRectF upright = object.sceneBoundingRect();
    rotation.set(object, 90, Scale);
    rotation.set(object, 90, Scale);
    QCOMPARE(object.getRotateAngle(), 90);
    QCOMPARE(object.sceneBoundingRect().center(), upright.center());
    QCOMPARE(object.sceneBoundingRect().size(), upright.size().transposed());
    rotation.set(object, 0, Scale);
    QCOMPARE(object.sceneBoundingRect(), upright);
}

void CatalogueTest::presetFillsIn()
{
    const QVector<QPair<ObjType, const char *>> presets{{Obj_Edit, "preset"},         {Obj_Label, "text"},
                                                        {Obj_SeperateEdit, "preset"}, {Obj_FinancialEdit, "preset"},
                                                        {Obj_Combx, "preset"},        {Obj_Barcode, "preset"}};
    for (const auto &[kind, key] : presets) {
        const std::unique_ptr<TavroPrototype> object(ControlFactory::factory(kind));
        settingOf(kind, key).set(*object, QStringLiteral("合计"), Scale);
        QCOMPARE(object->presetData().toString(), QStringLiteral("合计"));
        QCOMPARE(object->contentData().toString(), QStringLiteral("合计"));
    }
}

void CatalogueTest::bindingKeepsTheOtherName()
{
    TavroRect rect;
    rect.bindToDB(QStringLiteral("cheque"), QStringLiteral("payee"));
    settingOf(Obj_Rect, "table").set(rect, QStringLiteral("bill"), Scale);
    QCOMPARE(rect.tableDB(), QStringLiteral("bill"));
    QCOMPARE(rect.columnDB(), QStringLiteral("payee"));
    settingOf(Obj_Rect, "column").set(rect, QStringLiteral("amount"), Scale);
    QCOMPARE(rect.tableDB(), QStringLiteral("bill"));
    QCOMPARE(rect.columnDB(), QStringLiteral("amount"));
}

// A text in front of the value that a file gave freely could contradict the mark or the sign.
void CatalogueTest::marksFollowFromTheirModes()
{
    for (const ObjType kind : {Obj_SeperateEdit, Obj_FinancialEdit}) {
        for (const Setting &setting : catalogue::settingsOf(kind))
            QVERIFY(setting.key != QLatin1String("prefix"));
    }
    TavroSeperateEdit row;
    settingOf(Obj_SeperateEdit, "prefixMark").set(row, Prefix_Zero, Scale);
    QCOMPARE(row.prefix(), QStringLiteral("零"));
    TavroFinancialEdit grid;
    settingOf(Obj_FinancialEdit, "currency").set(grid, Currency_Pound, Scale);
    QCOMPARE(grid.prefix(), QStringLiteral("£"));
}

void CatalogueTest::modeBringsCellsAndGap_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("cells");
    QTest::addColumn<double>("gap");
    QTest::newRow("amount") << int(Sep_Amount) << 7 << 5.0;
    QTest::newRow("18 digits") << int(Sep_Digits18) << 18 << 0.0;
    QTest::newRow("6 digits") << int(Sep_Digits6) << 6 << 0.0;
    QTest::newRow("6 characters") << int(Sep_Chars6) << 6 << 5.0;
    QTest::newRow("number without a name") << 77 << 7 << 0.0;
}

void CatalogueTest::modeBringsCellsAndGap()
{
    QFETCH(int, mode);
    QFETCH(int, cells);
    QFETCH(double, gap);
    const std::unique_ptr<Form> form = formWith(Obj_SeperateEdit);
    auto &edit = static_cast<TavroSeperateEdit &>(*form->entries.front().object);
    settingOf(Obj_SeperateEdit, "mode").set(edit, mode, Scale);
    QCOMPARE(edit.numOfEditable(), cells);
    QCOMPARE(edit.phyWidthOfSeperator(), gap);
    QCOMPARE(edit.rectAt(1).left() - edit.rectAt(0).right(), gap * Scale);
}

void CatalogueTest::rangeOfUnits_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("highest");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<bool>("isAccepted");

    const auto add = [](const char *name, ObjType kind, int highest, int lowest, bool isAccepted) {
        QTest::newRow(name) << int(kind) << highest << lowest << isAccepted;
    };
    add("row from 亿 to 元", Obj_SeperateEdit, 10, 2, true);
    add("row of 元 alone", Obj_SeperateEdit, 2, 2, true);
    add("row of all units", Obj_SeperateEdit, 11, 0, true);
    add("row without 元", Obj_SeperateEdit, 8, 3, true);
    add("row upside down", Obj_SeperateEdit, 4, 5, false);
    add("row that does not reach 元", Obj_SeperateEdit, 1, 0, false);
    add("grid of 角 and 分", Obj_FinancialEdit, 1, 0, true);
    add("grid of 角 alone", Obj_FinancialEdit, 1, 1, true);
    add("grid of ten 亿 alone", Obj_FinancialEdit, 11, 11, true);
    add("grid upside down", Obj_FinancialEdit, 4, 5, false);
    add("grid that does not reach 角", Obj_FinancialEdit, 0, 0, false);
}

// A range that the object refuses reads back as what it was.
void CatalogueTest::rangeOfUnits()
{
    QFETCH(int, kind);
    QFETCH(int, highest);
    QFETCH(int, lowest);
    QFETCH(bool, isAccepted);
    const auto type = static_cast<ObjType>(kind);
    const std::unique_ptr<Form> form = formWith(type);
    TavroPrototype &object = *form->entries.front().object;
    const Setting &highestUnit = settingOf(type, "highestUnit");
    const Setting &lowestUnit = settingOf(type, "lowestUnit");
    highestUnit.set(object, highest, Scale);
    lowestUnit.set(object, lowest, Scale);
    QCOMPARE(highestUnit.get(object).toInt() == highest && lowestUnit.get(object).toInt() == lowest, isAccepted);
    const int cells = highestUnit.get(object).toInt() - lowestUnit.get(object).toInt() + 1;
    QCOMPARE(type == Obj_SeperateEdit ? static_cast<TavroSeperateEdit &>(object).numOfEditable()
                                      : static_cast<TavroFinancialEdit &>(object).numOfEditable(),
             cells);
}

void CatalogueTest::rangeLeavesPlainRows()
{
    TavroSeperateEdit edit;
    settingOf(Obj_SeperateEdit, "mode").set(edit, Sep_Digits18, Scale);
    settingOf(Obj_SeperateEdit, "preset").set(edit, QStringLiteral("123"), Scale);
    settingOf(Obj_SeperateEdit, "highestUnit").set(edit, 8, Scale);
    settingOf(Obj_SeperateEdit, "lowestUnit").set(edit, 2, Scale);
    QCOMPARE(edit.unitEnd(), 8);
    QCOMPARE(edit.unitStart(), 2);
    QCOMPARE(edit.numOfEditable(), 18);
    QCOMPARE(edit.charAt(2), QStringLiteral("3"));
}

void CatalogueTest::gapMovesTheCells()
{
    const std::unique_ptr<Form> form = formWith(Obj_SeperateEdit);
    auto &edit = static_cast<TavroSeperateEdit &>(*form->entries.front().object);
    settingOf(Obj_SeperateEdit, "separatorWidth").set(edit, 2.0, Scale);
    // 40 mm hold seven cells and seven gaps.
    constexpr double cell = (40 - 7 * 2.0) / 7;
    QCOMPARE(edit.rectAt(6), QRectF((10 + 6 * (cell + 2)) * Scale, 10 * Scale, cell * Scale, 8 * Scale));
}

void CatalogueTest::unitWordsMoveTheCells()
{
    const std::unique_ptr<Form> form = formWith(Obj_FinancialEdit);
    auto &edit = static_cast<TavroFinancialEdit &>(*form->entries.front().object);
    settingOf(Obj_FinancialEdit, "unitRowHeight").set(edit, 3.0, Scale);
    QCOMPARE(edit.rectAt(0).top(), 13 * Scale);
    QCOMPARE(edit.rectAt(0).bottom(), 18 * Scale);
    settingOf(Obj_FinancialEdit, "unitRowHeight").set(edit, 0.0, Scale);
    QCOMPARE(edit.rectAt(0).top(), 10 * Scale);
}

void CatalogueTest::limitMovesTheCursor_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QVector<int>>("values");
    QTest::addColumn<int>("cursor");

    const auto add = [](const char *name, const QStringList &keys, const QVector<int> &values, int cursor) {
        QTest::newRow(name) << keys << values << cursor;
    };
    const QString show = QStringLiteral("showLimit");
    const QString limit = QStringLiteral("limitUnit");
    const QString highest = QStringLiteral("highestUnit");
    const QString lowest = QStringLiteral("lowestUnit");
    add("limit 万", {show, limit}, {1, 6}, 5);
    add("other order", {limit, show}, {6, 1}, 5);
    add("range first", {highest, show, limit}, {8, 1, 6}, 2);
    add("range last", {show, limit, highest}, {1, 6, 8}, 2);
    add("limit that is not shown", {limit}, {6}, 0);
    add("highest unit", {show, limit}, {1, 11}, 0);
    add("above the range", {highest, show, limit}, {8, 1, 9}, 0);
    add("lowest unit", {lowest, show, limit}, {2, 1, 2}, 9);
    add("below the range", {lowest, show, limit}, {2, 1, 1}, 0);
    add("shown no more", {show, limit, show}, {1, 6, 0}, 0);
}

void CatalogueTest::limitMovesTheCursor()
{
    QFETCH(QStringList, keys);
    QFETCH(QVector<int>, values);
    QFETCH(int, cursor);
    TavroFinancialEdit edit;
    for (int i = 0; i < keys.size(); ++i)
        settingOf(Obj_FinancialEdit, qPrintable(keys.at(i))).set(edit, values.at(i), Scale);
    QCOMPARE(edit.cursorIndx(), cursor);
    // The cursor stands on the limit, which it does not pass.
    edit.increaseCursor();
    edit.decreaseCursor();
    edit.decreaseCursor();
    QCOMPARE(edit.cursorIndx(), cursor);
}

void CatalogueTest::cellsShowTheContent_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("key");
    for (const ObjType kind : {Obj_SeperateEdit, Obj_FinancialEdit}) {
        for (const Setting &setting : catalogue::settingsOf(kind)) {
            // A limit empties the content.
            if (setting.group == QLatin1String("Cells") && setting.key != QLatin1String("limitUnit"))
                QTest::addRow("%s, %s", qPrintable(catalogue::nameOf(kind)), qPrintable(setting.key))
                    << int(kind) << setting.key;
        }
    }
}

// The library empties the cells at some settings and lets others wait for the next content.
void CatalogueTest::cellsShowTheContent()
{
    QFETCH(int, kind);
    QFETCH(QString, key);
    const auto type = static_cast<ObjType>(kind);
    const Setting &setting = settingOf(type, qPrintable(key));
    const std::unique_ptr<Form> form = formWith(type);
    const std::unique_ptr<Form> expected = formWith(type);
    const QVariant value = setting.fromJson(deskforms::otherValue(type, key));
    const QString content = QStringLiteral("0.5");
    TavroPrototype &object = *form->entries.front().object;
    TavroPrototype &fresh = *expected->entries.front().object;
    object.setContentData(content);
    setting.set(object, value, Scale);
    setting.set(fresh, value, Scale);
    fresh.setContentData(content);
    for (int i = 0; i < 18; ++i) {
        if (type == Obj_SeperateEdit)
            QCOMPARE(static_cast<TavroSeperateEdit &>(object).charAt(i),
                     static_cast<TavroSeperateEdit &>(fresh).charAt(i));
        else
            QCOMPARE(static_cast<TavroFinancialEdit &>(object).digitAt(i),
                     static_cast<TavroFinancialEdit &>(fresh).digitAt(i));
    }
}

QTEST_MAIN(CatalogueTest)
#include "tst_catalogue.moc"

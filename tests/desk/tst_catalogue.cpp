// SPDX-License-Identifier: MIT
#include "desk/catalogue.h"

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

// Each setting stores and reads back, through JSON too, and touches no setting beside it.
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
        if (i != index)
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
    const QVector<QPair<ObjType, const char *>> presets{{Obj_Edit, "preset"}, {Obj_Label, "text"}};
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

QTEST_MAIN(CatalogueTest)
#include "tst_catalogue.moc"

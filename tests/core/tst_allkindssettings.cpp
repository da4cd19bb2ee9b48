// SPDX-License-Identifier: MIT
#include "tests/support/kinds.h"
#include "tests/support/prototypesettings.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <memory>

namespace {

using Object = std::unique_ptr<TavroPrototype>;

Object filled(int kind)
{
    return Object(kinds::filled(kind));
}

} // namespace

/// Settings, content and preset of every form object, whatever its kind.
class TestAllKindsSettings : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void defaults_data() { kinds::addRows(); }
    void defaults();
    void settings_data();
    void settings();
    void contentAndPreset_data() { kinds::addRows(); }
    void contentAndPreset();
    void renewing_data() { kinds::addRows(); }
    void renewing();
};

void TestAllKindsSettings::defaults()
{
    QFETCH(int, kind);
    const Object object(ControlFactory::factory(static_cast<ObjType>(kind)));
    // Each kind has a size, a content and proportions of its own, and settings of its own in front of those.
    const QStringList own{QStringLiteral("width"),       QStringLiteral("height"),     QStringLiteral("boundingRect"),
                          QStringLiteral("contentData"), QStringLiteral("presetData"), QStringLiteral("isProportional"),
                          QStringLiteral("objX"),        QStringLiteral("objY"),       QStringLiteral("objPos")};
    for (const Setting<TavroPrototype> &setting : prototypesettings::all()) {
        if (!own.contains(QLatin1String(setting.name)))
            QVERIFY2(setting.isInitial(*object), setting.name);
    }
    QCOMPARE(object->type(), int(TavroPrototype::Type));
    QVERIFY(object->isVisible());
    QVERIFY(object->isEnabled());
    QVERIFY(object->acceptHoverEvents());
    QVERIFY(object->flags().testFlag(QGraphicsItem::ItemIsMovable));
    QVERIFY(object->flags().testFlag(QGraphicsItem::ItemIsSelectable));
    QCOMPARE(object->zValue(), 0.0);
    QVERIFY(object->isValid());
}

void TestAllKindsSettings::settings_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("index");
    const QVector<Setting<TavroPrototype>> table = prototypesettings::all();
    for (const kinds::Kind &kind : kinds::all()) {
        for (int i = 0; i < table.size(); ++i) {
            const QLatin1String name(table.at(i).name);
            // These are read by some kinds, and have a test of their own.
            if (name != QLatin1String("contentData") && name != QLatin1String("presetData"))
                QTest::addRow("%s of a %s", table.at(i).name, kind.name) << int(kind.type) << i;
        }
    }
}

void TestAllKindsSettings::settings()
{
    QFETCH(int, kind);
    QFETCH(int, index);
    const Object object = filled(kind);
    checkStoring(prototypesettings::all().at(index), *object);
}

void TestAllKindsSettings::contentAndPreset()
{
    QFETCH(int, kind);
    const kinds::Kind known = kinds::byType(kind);
    const Object object(ControlFactory::factory(known.type));
    object->setIsModified(false);
    QSignalSpy changed(object.get(), &TavroPrototype::contentDataChanged);
    object->setContentData(known.content);
    QCOMPARE(object->contentData(), known.content);
    QVERIFY(!changed.isEmpty());
    QCOMPARE(object->isModified(), known.contentMarks);
    object->setPresetData(known.preset);
    QCOMPARE(object->presetData(), known.preset);
    QVERIFY(object->isModified());
}

void TestAllKindsSettings::renewing()
{
    QFETCH(int, kind);
    const kinds::Kind known = kinds::byType(kind);
    const Object object = filled(kind);
    object->setPresetData(known.preset);
    object->setContentData(known.content);
    object->setIsResetAtRenew(false);
    object->renew();
    QCOMPARE(object->contentData(), known.content);
    object->setIsResetAtRenew(true);
    object->setIsModified(false);
    object->renew();
    QCOMPARE(object->contentData(), known.preset);
    QCOMPARE(object->isModified(), known.contentMarks);
}

QTEST_MAIN(TestAllKindsSettings)
#include "tst_allkindssettings.moc"

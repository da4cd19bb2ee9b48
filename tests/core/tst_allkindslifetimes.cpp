// SPDX-License-Identifier: MIT
#include "tests/core/kinddesk.h"
#include "tests/support/stricttest.h"

#include <functional>

using kinds::Desk;
using Begin = std::function<void(QGraphicsView &, TavroPrototype &)>;
Q_DECLARE_METATYPE(Begin)

/// Form objects that go while something is going on with them: in each kind and mode.
class TestAllKindsLifetimes : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void deletedInUse_data();
    void deletedInUse();
    void sceneFirst_data() { kinds::addModeRows(); }
    void sceneFirst();
    void viewFirst_data() { kinds::addModeRows(); }
    void viewFirst();
    void anotherScene_data() { kinds::addModeRows(); }
    void anotherScene();
    void widgetsDestroyed_data() { kinds::addModeRows(); }
    void widgetsDestroyed();
};

void TestAllKindsLifetimes::deletedInUse_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("mode");
    QTest::addColumn<Begin>("begin");

    struct Use
    {
        const char *name;
        Begin begin;
    };
    const QVector<Use> uses{{"selected", kinds::selectObject},         {"with the focus", kinds::focus},
                            {"under the pointer", kinds::hoverObject}, {"with the button held", kinds::grabMouse},
                            {"being edited", kinds::openEditor},       {"with completions", kinds::completeOption}};
    const char *const modes[] = {"design", "input", "print", "no mode"};
    for (const kinds::Kind &kind : kinds::all()) {
        for (int mode = 0; mode < 4; ++mode) {
            for (const Use &use : uses)
                QTest::addRow("%s %s, %s", kind.name, use.name, modes[mode]) << int(kind.type) << mode << use.begin;
        }
    }
}

void TestAllKindsLifetimes::deletedInUse()
{
    QFETCH(int, kind);
    QFETCH(int, mode);
    QFETCH(Begin, begin);
    Desk desk(kind, mode);
    begin(*desk.view, *desk.object);
    QVERIFY(desk.object);
    delete desk.object;
    desk.goOn();
    QVERIFY(desk.below);
    QVERIFY(!desk.scene->items().isEmpty());
}

void TestAllKindsLifetimes::sceneFirst()
{
    QFETCH(int, kind);
    QFETCH(int, mode);
    Desk desk(kind, mode);
    kinds::openEditor(*desk.view, *desk.object);
    desk.object->setSelected(true);
    desk.scene.reset();
    QVERIFY(desk.object.isNull());
    QVERIFY(desk.below.isNull());
    QCoreApplication::processEvents();
}

void TestAllKindsLifetimes::viewFirst()
{
    QFETCH(int, kind);
    QFETCH(int, mode);
    Desk desk(kind, mode);
    kinds::hoverObject(*desk.view, *desk.object);
    kinds::openEditor(*desk.view, *desk.object);
    desk.view.reset();
    QVERIFY(desk.object);
    kinds::exerciseAll(*desk.object);
    QCOMPARE(desk.object->contentData(), kinds::byType(kind).content);
}

void TestAllKindsLifetimes::anotherScene()
{
    QFETCH(int, kind);
    QFETCH(int, mode);
    Desk desk(kind, mode);
    kinds::openEditor(*desk.view, *desk.object);
    QGraphicsScene other;
    desk.scene->removeItem(desk.object);
    QCOMPARE(desk.object->scene(), nullptr);
    desk.object->setPaintMode(Paint_Print);
    desk.object->setBoundingRect(QRectF(20, 30, 100, 20));
    other.addItem(desk.object);
    desk.goOn();
    kinds::exerciseAll(*desk.object);
    QCOMPARE(desk.object->scene(), &other);
    QCOMPARE(desk.object->contentData(), kinds::byType(kind).content);
    for (const QGraphicsProxyWidget *proxy : kinds::proxiesOf(*desk.object))
        QCOMPARE(proxy->scene(), &other);
}

void TestAllKindsLifetimes::widgetsDestroyed()
{
    QFETCH(int, kind);
    QFETCH(int, mode);
    Desk desk(kind, mode);
    kinds::openEditor(*desk.view, *desk.object);
    for (QGraphicsProxyWidget *proxy : kinds::proxiesOf(*desk.object))
        delete proxy->widget();
    kinds::exerciseAll(*desk.object);
    QVERIFY(desk.object);
    QCOMPARE(desk.object->contentData(), kinds::byType(kind).content);
    desk.goOn();
}

QTEST_MAIN(TestAllKindsLifetimes)
#include "tst_allkindslifetimes.moc"

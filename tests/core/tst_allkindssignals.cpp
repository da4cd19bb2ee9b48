// SPDX-License-Identifier: MIT
#include "tests/support/kindexercise.h"
#include "tests/support/stricttest.h"

#include <QGraphicsView>
#include <QPointer>
#include <memory>

using Signal = void (TavroPrototype::*)();
Q_DECLARE_METATYPE(Signal)

namespace {

using P = TavroPrototype;

// Whatever emits one of the signals, in the code and by the hand of the user.
void provoke(TavroPrototype &object)
{
    object.setTavroID(QStringLiteral("payee"));
    object.setPaintMode(Paint_Input);
    object.setContentData(kinds::byType(object.objType()).preset);
    object.setPresetData(kinds::byType(object.objType()).content);
    object.setFocus();
    kinds::press(object);
    kinds::exerciseOwn(object);
    object.renew();
    object.setPos(5, 5);
    object.resize(Handle_BottomRight, QPointF(300, 90));
    object.setWidth(90);
    object.updateObjRotation();
    probes::paintedBy(object);
}

} // namespace

/// Hosts that delete an object in answer to what it tells them, when the event loop turns.
class TestAllKindsSignals : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void deletedByListener_data();
    void deletedByListener();
    void deletedInTheMidst_data() { deletedByListener_data(); }
    void deletedInTheMidst();
};

void TestAllKindsSignals::deletedByListener_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("mode");
    QTest::addColumn<Signal>("signal");

    const char *const modes[] = {"design", "input", "print", "no mode"};
    for (const kinds::Kind &kind : kinds::all()) {
        for (int mode = 0; mode < 4; ++mode) {
            const auto row = [&](const char *name, Signal signal) {
                QTest::addRow("%s of a %s, %s", name, kind.name, modes[mode]) << int(kind.type) << mode << signal;
            };
            row("content", &P::contentDataChanged);
            row("rectangle", &P::boundingRectChanged);
            row("mode", &P::paintModeChanged);
            row("identifier", &P::tavroIDChanged);
        }
    }
}

void TestAllKindsSignals::deletedByListener()
{
    QFETCH(int, kind);
    QFETCH(int, mode);
    QFETCH(Signal, signal);
    QGraphicsScene scene(0, 0, 400, 200);
    const QGraphicsView view(&scene);
    QPointer<TavroPrototype> object = kinds::filled(kind);
    scene.addItem(object);
    object->setPaintMode(static_cast<Paint_Mode>(mode));
    connect(object.data(), signal, object.data(), &QObject::deleteLater);
    // The object goes on with what it was doing; the loop has not turned yet.
    provoke(*object);
    QVERIFY(object);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(object.isNull());
    QCoreApplication::processEvents();
    QVERIFY(scene.items().isEmpty());
}

// Hidden, deselected or without a scene by its listener, who deletes it then.
void TestAllKindsSignals::deletedInTheMidst()
{
    QFETCH(int, kind);
    QFETCH(int, mode);
    QFETCH(Signal, signal);
    QGraphicsScene scene(0, 0, 400, 200);
    QPointer<TavroPrototype> object = kinds::filled(kind);
    scene.addItem(object);
    object->setPaintMode(static_cast<Paint_Mode>(mode));
    TavroPrototype *listened = object;
    connect(listened, signal, listened, [listened] {
        if (listened->scene())
            listened->scene()->removeItem(listened);
        listened->deleteLater();
    });
    object->setTavroID(QStringLiteral("payee"));
    object->setPaintMode(Paint_Input);
    object->setContentData(kinds::byType(kind).preset);
    object->setSelected(true);
    object->setBoundingRect(QRectF(10, 10, -50, 20));
    object->bringObjToFront();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(object.isNull());
    QVERIFY(scene.items().isEmpty());
}

QTEST_MAIN(TestAllKindsSignals)
#include "tst_allkindssignals.moc"

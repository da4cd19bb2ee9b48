// SPDX-License-Identifier: MIT
#include "barcode/tavrobarcode.h"
#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "choice/tavrocheckbox.h"
#include "choice/tavrocombx.h"
#include "core/controlfactory.h"
#include "datetime/tavrodatetime.h"
#include "entry/tavroedit.h"
#include "entry/tavrolabel.h"
#include "graphic/tavroline.h"
#include "graphic/tavropicture.h"
#include "graphic/tavrorect.h"
#include "graphic/tavrotable.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QPointer>
#include <QTest>
#include <limits>
#include <memory>

/// Objects made from the number of their kind.
class TestControlFactory : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void kinds_data();
    void kinds();
    void noKinds_data();
    void noKinds();
    void sceneTakesOver();
};

void TestControlFactory::kinds_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<bool>("modified");

    const auto row = [](int kind, const QMetaObject &meta, bool modified) {
        QTest::newRow(meta.className()) << kind << QByteArray(meta.className()) << modified;
    };
    row(1, TavroLine::staticMetaObject, true);
    row(2, TavroRect::staticMetaObject, true);
    // An edit object chooses its format on the way, by the setter that marks.
    row(3, TavroEdit::staticMetaObject, true);
    row(4, TavroFinancialEdit::staticMetaObject, true);
    row(5, TavroSeperateEdit::staticMetaObject, true);
    row(6, TavroCheckBox::staticMetaObject, true);
    row(7, TavroLabel::staticMetaObject, true);
    row(8, TavroCombx::staticMetaObject, false);
    row(9, TavroDatetime::staticMetaObject, false);
    row(10, TavroPicture::staticMetaObject, false);
    row(11, TavroBarcode::staticMetaObject, true);
    row(12, TavroTable::staticMetaObject, false);
}

void TestControlFactory::kinds()
{
    QFETCH(int, kind);
    QFETCH(QByteArray, className);
    const std::unique_ptr<TavroPrototype> object(ControlFactory::factory(static_cast<ObjType>(kind)));
    QVERIFY(object);
    QCOMPARE(static_cast<int>(object->objType()), kind);
    QCOMPARE(QByteArray(object->metaObject()->className()), className);
    QTEST(object->isModified(), "modified");
    QCOMPARE(object->paintMode(), Paint_Design);
    QCOMPARE(object->parentItem(), nullptr);
    QCOMPARE(object->scene(), nullptr);
    QVERIFY(probes::visibleHandles(*object).isEmpty());
    QVERIFY(!probes::dashRectOf(*object)->isVisible());
    const std::unique_ptr<TavroPrototype> another(ControlFactory::factory(static_cast<ObjType>(kind)));
    QVERIFY(another.get() != object.get());
}

void TestControlFactory::noKinds_data()
{
    QTest::addColumn<int>("kind");

    QTest::newRow("none") << 0;
    QTest::newRow("above the last kind") << 13;
    QTest::newRow("far above") << 1000;
    QTest::newRow("unset") << -1;
    QTest::newRow("smallest number") << std::numeric_limits<int>::min();
}

void TestControlFactory::noKinds()
{
    QFETCH(int, kind);
    QCOMPARE(ControlFactory::factory(static_cast<ObjType>(kind)), nullptr);
}

void TestControlFactory::sceneTakesOver()
{
    QGraphicsScene scene;
    QPointer<TavroPrototype> object = ControlFactory().factory(Obj_Rect);
    scene.addItem(object);
    scene.clear();
    QVERIFY(object.isNull());
}

QTEST_MAIN(TestControlFactory)
#include "tst_controlfactory.moc"

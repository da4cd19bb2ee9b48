// SPDX-License-Identifier: MIT
#include "choice/tavrocheckbox.h"
#include "tests/support/itemprobes.h"
#include "tests/support/settingtable.h"
#include "tests/support/stricttest.h"

#include <QCheckBox>
#include <QGraphicsProxyWidget>
#include <QMetaMethod>

namespace {

using Box = TavroCheckBox;

QVector<Setting<Box>> settings()
{
    const auto beyond = static_cast<Check_Style>(99);
    return {
        setting<Box>("checkStyle", &Box::checkStyle, &Box::setCheckStyle, EmptyTick, CrossCircle, true),
        setting<Box>("checkStyle beyond", &Box::checkStyle, &Box::setCheckStyle, EmptyTick, beyond, true),
        setting<Box>("checkGroupId", &Box::checkGroupId, &Box::setCheckGroupId, QString(), QStringLiteral("g"), false),
        setting<Box>("contentData", &Box::contentData, &Box::setContentData, QVariant(0), QVariant(2), false),
        setting<Box>("presetData", &Box::presetData, &Box::setPresetData, QVariant(0), QVariant(2), true),
    };
}

} // namespace

/// Settings, construction, and the check box behind the object.
class TestTavroCheckBox : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void settings_data() { addSettingRows(::settings()); }
    void settings();
    void construction();
    void nothingOfItsOwnInTheMetaObject();
    void handlesOnCornersOnly();
    void styleAndContentRepaint();
    void boxDestroyed_data();
    void boxDestroyed();
    void boxDiesWithTheObject();
};

void TestTavroCheckBox::settings()
{
    QFETCH(int, index);
    checkSetting(::settings().at(index));
}

void TestTavroCheckBox::construction()
{
    const Box box;
    QCOMPARE(box.objType(), Obj_CheckBox);
    QCOMPARE(static_cast<int>(box.objType()), 6);
    QCOMPARE(box.paintMode(), Paint_Design);
    QVERIFY(box.isProportional());
    QVERIFY(box.isModified());
    QVERIFY(!box.flags().testFlag(QGraphicsItem::ItemClipsToShape));
    QCOMPARE(box.contentData(), QVariant(0));
    QCOMPARE(static_cast<QMetaType::Type>(box.contentData().type()), QMetaType::Int);
    QCOMPARE(box.presetData(), QVariant(0));
    QCOMPARE(box.checkBx()->checkState(), Qt::Unchecked);
    QVERIFY(!box.checkBx()->isTristate());
    QCOMPARE(box.checkBx()->parent(), nullptr);
    QCOMPARE(box.checkBx()->group(), nullptr);
    QCOMPARE(box.widgetPrxy()->widget(), box.checkBx());
    QCOMPARE(box.widgetPrxy()->parentItem(), &box);
    QVERIFY(!box.widgetPrxy()->isVisible());
    QCOMPARE(box.parentItem(), nullptr);
}

void TestTavroCheckBox::nothingOfItsOwnInTheMetaObject()
{
    const QMetaObject &meta = Box::staticMetaObject;
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
    QCOMPARE(meta.method(meta.methodOffset()).name(), QByteArrayLiteral("syncContentData"));
}

void TestTavroCheckBox::handlesOnCornersOnly()
{
    Box box;
    box.setSelected(true);
    QCOMPARE(probes::visibleHandles(box), QVector<int>({0, 2, 4, 6}));
}

void TestTavroCheckBox::styleAndContentRepaint()
{
    QGraphicsScene scene(0, 0, 100, 100);
    auto *box = new Box;
    box->setBoundingRect(QRectF(10, 10, 40, 40));
    scene.addItem(box);
    QSignalSpy changed(&scene, &QGraphicsScene::changed);
    const auto repaintsAfter = [&](const std::function<void()> &act) {
        QCoreApplication::processEvents();
        changed.clear();
        act();
        QCoreApplication::processEvents();
        return !changed.isEmpty();
    };
    QVERIFY(!repaintsAfter([] {}));
    QVERIFY(repaintsAfter([&] { box->setCheckStyle(CrossTick); }));
    QVERIFY(repaintsAfter([&] { box->setContentData(2); }));
    QVERIFY(repaintsAfter([&] { box->setPresetData(0); }));
    QVERIFY(repaintsAfter([&] { box->checkBx()->setChecked(true); }));
    QVERIFY(repaintsAfter([&] { box->renew(); }));
    QVERIFY(!repaintsAfter([&] { box->setCheckGroupId(QStringLiteral("g")); }));
}

void TestTavroCheckBox::boxDestroyed_data()
{
    QTest::addColumn<bool>("byProxy");

    QTest::newRow("the check box") << false;
    QTest::newRow("the proxy") << true;
}

// The object stays usable, its content with it.
void TestTavroCheckBox::boxDestroyed()
{
    QFETCH(bool, byProxy);
    Box box;
    box.setBoundingRect(QRectF(0, 0, 20, 20));
    box.setContentData(2);
    if (byProxy)
        delete box.widgetPrxy();
    else
        delete box.checkBx();
    QCOMPARE(box.checkBx(), nullptr);
    QCOMPARE(box.widgetPrxy(), nullptr);
    box.syncContentData();
    box.syncCheckBxState();
    QCOMPARE(box.contentData(), QVariant(2));
    box.renew();
    QCOMPARE(box.contentData(), QVariant(0));
    box.setContentData(1);
    QCOMPARE(box.contentData(), QVariant(1));
    for (const Paint_Mode mode : {Paint_Design, Paint_Input, Paint_Print}) {
        box.setPaintMode(mode);
        QCOMPARE(probes::paintedBy(box).size(), mode == Paint_Print ? 0 : 1);
    }
}

void TestTavroCheckBox::boxDiesWithTheObject()
{
    auto *box = new Box;
    const QPointer<QCheckBox> checkBox = box->checkBx();
    const QPointer<QGraphicsProxyWidget> proxy = box->widgetPrxy();
    delete box;
    QVERIFY(!checkBox);
    QVERIFY(!proxy);
}

QTEST_MAIN(TestTavroCheckBox)
#include "tst_tavrocheckbox.moc"

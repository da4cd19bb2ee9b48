// SPDX-License-Identifier: MIT
#include "tests/choice/boxform.h"
#include "tests/support/stricttest.h"

#include <QButtonGroup>
#include <QPointer>

/// Fields that the host deletes while they are clicked.
class TestTavroCheckBoxDeleting : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void deletedInASlot_data();
    void deletedInASlot();
    void deletedWhenTheBoxChanges();
    void boxDestroyed();
};

void TestTavroCheckBoxDeleting::deletedInASlot_data()
{
    QTest::addColumn<bool>("atOnce");
    QTest::addColumn<bool>("isChecked");
    QTest::addColumn<bool>("isGrouped");

    for (const bool isGrouped : {false, true}) {
        for (const bool isChecked : {false, true}) {
            for (const bool atOnce : {false, true})
                QTest::addRow("%s%s, %s", isChecked ? "unchecked" : "checked", isGrouped ? " in a group" : "",
                              atOnce ? "at once" : "later")
                    << atOnce << isChecked << isGrouped;
        }
    }
}

void TestTavroCheckBoxDeleting::deletedInASlot()
{
    QFETCH(bool, atOnce);
    QFETCH(bool, isChecked);
    QFETCH(bool, isGrouped);
    BoxForm form;
    QVERIFY(form.isShown());
    QButtonGroup group;
    const QPointer<ObservedBox> box = form.add({50, 50});
    const QPointer<QCheckBox> checkBox = box->checkBx();
    if (isGrouped)
        group.addButton(checkBox);
    box->setContentData(isChecked ? 2 : 0);
    connect(box, &TavroCheckBox::contentDataChanged, this, [&] {
        if (atOnce)
            delete box;
        else
            box->deleteLater();
    });
    form.click({70, 70});
    QTRY_VERIFY(!box);
    QTRY_VERIFY(!checkBox);
    QVERIFY(form.scene().items().isEmpty());
    QVERIFY(group.exclusive());
    QVERIFY(group.buttons().isEmpty());
    form.click({70, 70});
}

// The host itself may have changed the check box, and a neighbour may have cleared the form.
void TestTavroCheckBoxDeleting::deletedWhenTheBoxChanges()
{
    BoxForm form;
    QVERIFY(form.isShown());
    QButtonGroup group;
    const QPointer<ObservedBox> checked = form.add({50, 50});
    const QPointer<ObservedBox> clicked = form.add({150, 50});
    group.addButton(checked->checkBx());
    group.addButton(clicked->checkBx());
    const QPointer<QCheckBox> last = clicked->checkBx();
    checked->checkBx()->setChecked(true);
    connect(checked, &TavroCheckBox::contentDataChanged, this, [&] {
        delete clicked;
        delete checked;
    });
    form.click(clicked);
    QVERIFY(!clicked);
    QVERIFY(!checked);
    QTRY_VERIFY(!last);

    const QPointer<ObservedBox> byHost = form.add({50, 50});
    connect(byHost, &TavroCheckBox::contentDataChanged, this, [&] { delete byHost; });
    byHost->checkBx()->setChecked(true);
    QVERIFY(!byHost);
}

void TestTavroCheckBoxDeleting::boxDestroyed()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *below = form.add({50, 50});
    ObservedBox *box = form.add({50, 50});
    delete box->checkBx();
    form.click(box);
    QCOMPARE(box->contentData(), QVariant(0));
    QVERIFY(box->told.isEmpty());
    QCOMPARE(below->state(), Qt::Unchecked);
}

QTEST_MAIN(TestTavroCheckBoxDeleting)
#include "tst_tavrocheckboxdeleting.moc"

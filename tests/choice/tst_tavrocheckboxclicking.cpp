// SPDX-License-Identifier: MIT
#include "tests/choice/boxform.h"
#include "tests/support/stricttest.h"

#include <QGraphicsProxyWidget>

/// Clicks of the user on fields of their own.
class TestTavroCheckBoxClicking : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void modes_data();
    void modes();
    void checksAndUnchecks();
    void pressCounts();
    void everyButton();
    void besideTheBox();
    void contentOne();
    void triState_data();
    void triState();
    void noLongerTriState();
    void keys_data();
    void keys();
    void doubleClick();
    void settingsThatDoNotLock();
    void disabled();
    void hidden();
    void backInDesign();
    void coveredField();
    void designClickSelects();
    void contentComesBeforeToggled();
};

void TestTavroCheckBoxClicking::modes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");

    QTest::newRow("design, unchecked") << 0 << 0 << 0;
    QTest::newRow("design, checked") << 0 << 2 << 2;
    QTest::newRow("input, unchecked") << 1 << 0 << 2;
    QTest::newRow("input, partially checked") << 1 << 1 << 0;
    QTest::newRow("input, checked") << 1 << 2 << 0;
    QTest::newRow("print, unchecked") << 2 << 0 << 0;
    QTest::newRow("print, checked") << 2 << 2 << 2;
    QTest::newRow("beyond, unchecked") << 7 << 0 << 0;
    QTest::newRow("beyond, checked") << 7 << 2 << 2;
}

void TestTavroCheckBoxClicking::modes()
{
    QFETCH(int, mode);
    QFETCH(int, before);
    QFETCH(int, after);
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50}, static_cast<Paint_Mode>(mode));
    box->checkBx()->setCheckState(static_cast<Qt::CheckState>(before));
    box->told.clear();
    form.click(box);
    QCOMPARE(static_cast<int>(box->state()), after);
    QCOMPARE(box->contentData(), QVariant(after));
    QCOMPARE(box->told.size(), before == after ? 0 : 1);
    QCOMPARE(box->contentCalls, 0);
}

void TestTavroCheckBoxClicking::checksAndUnchecks()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50});
    box->setIsModified(false);
    for (const int expected : {2, 0, 2, 0}) {
        box->told.clear();
        form.click(box);
        QCOMPARE(box->told.size(), 1);
        QCOMPARE(box->told.first().content, QVariant(expected));
        QCOMPARE(static_cast<int>(box->told.first().state), expected);
        QCOMPARE(box->contentData(), QVariant(expected));
    }
    QVERIFY(!box->isModified());
    QVERIFY(!box->widgetPrxy()->isVisible());
}

void TestTavroCheckBoxClicking::pressCounts()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50});
    form.press({70, 70});
    QCOMPARE(box->state(), Qt::Checked);
    form.release({300, 200});
    QCOMPARE(box->state(), Qt::Checked);
    QCOMPARE(box->told.size(), 1);
}

void TestTavroCheckBoxClicking::everyButton()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50});
    form.click({70, 70}, Qt::RightButton);
    QCOMPARE(box->state(), Qt::Checked);
    form.click({70, 70}, Qt::MiddleButton);
    QCOMPARE(box->state(), Qt::Unchecked);
}

void TestTavroCheckBoxClicking::besideTheBox()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50});
    form.click({95, 70});
    QCOMPARE(box->state(), Qt::Unchecked);
    form.click({88, 88});
    QCOMPARE(box->state(), Qt::Checked);
}

// The content 1 is shown as checked, so a click clears it.
void TestTavroCheckBoxClicking::contentOne()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50});
    box->setContentData(1);
    form.click(box);
    QCOMPARE(box->contentData(), QVariant(0));
    form.click(box);
    QCOMPARE(box->contentData(), QVariant(2));
}

void TestTavroCheckBoxClicking::triState_data()
{
    QTest::addColumn<bool>("byState");
    QTest::addColumn<QVector<int>>("contents");
    QTest::newRow("set") << false << QVector<int>{1, 0, 1, 0};
    QTest::newRow("by its state") << true << QVector<int>{0, 1, 0, 1};
}

// The click of a check box of three states goes to the partial one first, which counts as checked.
void TestTavroCheckBoxClicking::triState()
{
    QFETCH(bool, byState);
    QFETCH(QVector<int>, contents);
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50});
    if (byState)
        box->checkBx()->setCheckState(Qt::PartiallyChecked);
    else
        box->checkBx()->setTristate(true);
    box->told.clear();
    for (const int expected : qAsConst(contents)) {
        form.click(box);
        QCOMPARE(box->contentData(), QVariant(expected));
        QCOMPARE(static_cast<int>(box->state()), expected);
    }
    QCOMPARE(box->told.size(), contents.size());
}

void TestTavroCheckBoxClicking::noLongerTriState()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50});
    box->checkBx()->setCheckState(Qt::PartiallyChecked);
    box->checkBx()->setTristate(false);
    for (const int expected : {0, 2, 0}) {
        form.click(box);
        QCOMPARE(box->contentData(), QVariant(expected));
    }
}

void TestTavroCheckBoxClicking::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Space") << static_cast<int>(Qt::Key_Space);
    QTest::newRow("Enter") << static_cast<int>(Qt::Key_Return);
    QTest::newRow("Enter of the number pad") << static_cast<int>(Qt::Key_Enter);
}

// The keyboard is the host's.
void TestTavroCheckBoxClicking::keys()
{
    QFETCH(int, key);
    for (const int content : {0, 2}) {
        BoxForm form;
        QVERIFY(form.isActive());
        ObservedBox *box = form.add({50, 50});
        box->setContentData(content);
        box->told.clear();
        box->setFocus();
        QCOMPARE(form.scene().focusItem(), box);
        form.key(static_cast<Qt::Key>(key));
        QCOMPARE(box->contentData(), QVariant(content));
        QCOMPARE(static_cast<int>(box->state()), content);
        QVERIFY(box->told.isEmpty());
    }
}

void TestTavroCheckBoxClicking::doubleClick()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50});
    form.click(box);
    form.pressAgain({70, 70});
    QCOMPARE(box->state(), Qt::Unchecked);
    QCOMPARE(box->told.size(), 2);
}

void TestTavroCheckBoxClicking::settingsThatDoNotLock()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50});
    box->setIsReadOnly(true);
    box->setIsLocked(true);
    form.click(box);
    QCOMPARE(box->state(), Qt::Checked);
}

void TestTavroCheckBoxClicking::disabled()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50}, Paint_Design);
    box->setObjEnabled(false);
    box->setPaintMode(Paint_Input);
    form.click(box);
    QCOMPARE(box->state(), Qt::Unchecked);
    QVERIFY(box->told.isEmpty());
    box->setContentData(2);
    form.click(box);
    QCOMPARE(box->state(), Qt::Checked);
    box->setObjEnabled(true);
    box->setPaintMode(Paint_Input);
    form.click(box);
    QCOMPARE(box->state(), Qt::Unchecked);
}

void TestTavroCheckBoxClicking::hidden()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50}, Paint_Design);
    box->setObjVisible(false);
    box->setPaintMode(Paint_Input);
    form.click(box);
    QCOMPARE(box->state(), Qt::Unchecked);
}

void TestTavroCheckBoxClicking::backInDesign()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50});
    form.click(box);
    box->setPaintMode(Paint_Design);
    form.click(box);
    QCOMPARE(box->state(), Qt::Checked);
}

void TestTavroCheckBoxClicking::coveredField()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *below = form.add({50, 50});
    ObservedBox *above = form.add({60, 60});
    form.click({75, 75});
    QCOMPARE(above->state(), Qt::Checked);
    QCOMPARE(below->state(), Qt::Unchecked);
    form.click({75, 75});
    QCOMPARE(above->state(), Qt::Unchecked);
    QCOMPARE(below->state(), Qt::Unchecked);
    form.click({55, 55});
    QCOMPARE(below->state(), Qt::Checked);
}

void TestTavroCheckBoxClicking::designClickSelects()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50}, Paint_Design);
    form.click(box);
    QVERIFY(box->isSelected());
    ObservedBox *filledIn = form.add({150, 50}, Paint_Input);
    form.click(filledIn);
    QVERIFY(!filledIn->isSelected());
}

// A host that listens to its group reads the new content, in either direction.
void TestTavroCheckBoxClicking::contentComesBeforeToggled()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50});
    QVector<int> seen;
    connect(box->checkBx(), &QCheckBox::toggled, this, [&] { seen.append(box->contentData().toInt()); });
    form.click(box);
    form.click(box);
    QCOMPARE(seen, QVector<int>({2, 0}));
}

QTEST_MAIN(TestTavroCheckBoxClicking)
#include "tst_tavrocheckboxclicking.moc"

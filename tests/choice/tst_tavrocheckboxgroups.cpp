// SPDX-License-Identifier: MIT
#include "tests/choice/boxform.h"
#include "tests/support/stricttest.h"

#include <QButtonGroup>

namespace {

// Three fields of a choice on a form.
class Choice : public BoxForm
{
public:
    explicit Choice(bool isExclusive)
    {
        for (int i = 0; i < 3; ++i) {
            boxes.append(add(QPointF(50 + 100 * i, 50)));
            group.addButton(boxes.last()->checkBx(), i);
        }
        group.setExclusive(isExclusive);
    }
    QVector<int> contents() const
    {
        QVector<int> found;
        for (const ObservedBox *box : boxes)
            found.append(box->contentData().toInt());
        return found;
    }
    // What the boxes show, as the contents tell it.
    QVector<int> states() const
    {
        QVector<int> found;
        for (const ObservedBox *box : boxes)
            found.append(box->state());
        return found;
    }
    // How often each box told a change since the last time.
    QVector<int> told()
    {
        QVector<int> counts;
        for (ObservedBox *box : boxes) {
            counts.append(box->told.size());
            box->told.clear();
        }
        return counts;
    }

    QButtonGroup group;
    QVector<ObservedBox *> boxes;
};

using Numbers = QVector<int>;

} // namespace

/// Fields that share a button group of the host.
class TestTavroCheckBoxGroups : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void clickMovesTheChoice();
    void clickClearsTheChoice();
    void clicksWithoutExclusion();
    void triStateMember();
    void contentMovesTheChoice();
    void contentClearsTheChoice();
    void clearedAmongEqualChoices();
    void contentOfAnUncheckedMember();
    void renewing_data();
    void renewing();
    void groupDeletedInASlot();
};

void TestTavroCheckBoxGroups::clickMovesTheChoice()
{
    Choice choice(true);
    QVERIFY(choice.isShown());
    choice.click(choice.boxes.at(0));
    QCOMPARE(choice.contents(), Numbers({2, 0, 0}));
    QCOMPARE(choice.told(), Numbers({1, 0, 0}));
    choice.click(choice.boxes.at(2));
    QCOMPARE(choice.contents(), Numbers({0, 0, 2}));
    QCOMPARE(choice.states(), choice.contents());
    QCOMPARE(choice.told(), Numbers({1, 0, 1}));
    QCOMPARE(choice.group.checkedId(), 2);
}

void TestTavroCheckBoxGroups::clickClearsTheChoice()
{
    Choice choice(true);
    QVERIFY(choice.isShown());
    choice.click(choice.boxes.at(1));
    choice.told();
    bool wasExclusive = true;
    connect(choice.boxes.at(1), &TavroCheckBox::contentDataChanged, this,
            [&] { wasExclusive = choice.group.exclusive(); });
    choice.click(choice.boxes.at(1));
    QCOMPARE(choice.contents(), Numbers({0, 0, 0}));
    QCOMPARE(choice.states(), choice.contents());
    QCOMPARE(choice.told(), Numbers({0, 1, 0}));
    QCOMPARE(choice.group.checkedButton(), nullptr);
    QVERIFY(!wasExclusive);
    QVERIFY(choice.group.exclusive());
    // and the choice works as before
    choice.click(choice.boxes.at(0));
    choice.click(choice.boxes.at(1));
    QCOMPARE(choice.contents(), Numbers({0, 2, 0}));
}

void TestTavroCheckBoxGroups::clicksWithoutExclusion()
{
    Choice choice(false);
    QVERIFY(choice.isShown());
    choice.click(choice.boxes.at(0));
    choice.click(choice.boxes.at(1));
    QCOMPARE(choice.contents(), Numbers({2, 2, 0}));
    choice.click(choice.boxes.at(0));
    QCOMPARE(choice.contents(), Numbers({0, 2, 0}));
    QCOMPARE(choice.states(), choice.contents());
    QCOMPARE(choice.told(), Numbers({2, 1, 0}));
    QVERIFY(!choice.group.exclusive());
}

void TestTavroCheckBoxGroups::triStateMember()
{
    Choice choice(true);
    QVERIFY(choice.isShown());
    choice.boxes.at(0)->checkBx()->setTristate(true);
    choice.click(choice.boxes.at(1));
    choice.click(choice.boxes.at(0));
    QCOMPARE(choice.contents(), Numbers({1, 0, 0}));
    choice.click(choice.boxes.at(0));
    QCOMPARE(choice.contents(), Numbers({0, 0, 0}));
    QCOMPARE(choice.states(), choice.contents());
    QVERIFY(choice.group.exclusive());
}

void TestTavroCheckBoxGroups::contentMovesTheChoice()
{
    Choice choice(true);
    choice.boxes.at(0)->setContentData(2);
    choice.told();
    choice.boxes.at(1)->setContentData(1);
    QCOMPARE(choice.contents(), Numbers({0, 1, 0}));
    QCOMPARE(choice.states(), Numbers({0, 2, 0}));
    QCOMPARE(choice.told(), Numbers({1, 1, 0}));
    QCOMPARE(choice.group.checkedId(), 1);
}

void TestTavroCheckBoxGroups::contentClearsTheChoice()
{
    Choice choice(true);
    choice.boxes.at(1)->setContentData(2);
    choice.told();
    choice.boxes.at(1)->setContentData(0);
    QCOMPARE(choice.contents(), Numbers({0, 0, 0}));
    QCOMPARE(choice.states(), choice.contents());
    QCOMPARE(choice.told(), Numbers({0, 1, 0}));
    QCOMPARE(choice.group.checkedButton(), nullptr);
    QVERIFY(choice.group.exclusive());
}

void TestTavroCheckBoxGroups::clearedAmongEqualChoices()
{
    Choice choice(false);
    choice.boxes.at(0)->setContentData(2);
    choice.boxes.at(1)->setContentData(2);
    choice.boxes.at(0)->setContentData(QVariant());
    QCOMPARE(choice.states(), Numbers({0, 2, 0}));
    QVERIFY(!choice.group.exclusive());
}

void TestTavroCheckBoxGroups::contentOfAnUncheckedMember()
{
    Choice choice(true);
    choice.boxes.at(0)->setContentData(2);
    choice.boxes.at(1)->setContentData(0);
    QCOMPARE(choice.states(), Numbers({2, 0, 0}));
    QCOMPARE(choice.group.checkedId(), 0);
}

void TestTavroCheckBoxGroups::renewing_data()
{
    QTest::addColumn<bool>("isExclusive");
    QTest::addColumn<bool>("isReset");
    QTest::addColumn<Numbers>("presets");
    QTest::addColumn<Numbers>("expected");

    QTest::newRow("none preset") << true << true << Numbers{0, 0, 0} << Numbers{0, 0, 0};
    QTest::newRow("first preset") << true << true << Numbers{2, 0, 0} << Numbers{2, 0, 0};
    QTest::newRow("checked one preset") << true << true << Numbers{0, 2, 0} << Numbers{0, 2, 0};
    QTest::newRow("last preset") << true << true << Numbers{0, 0, 2} << Numbers{0, 0, 2};
    QTest::newRow("the last of two presets") << true << true << Numbers{2, 0, 2} << Numbers{0, 0, 2};
    QTest::newRow("not reset") << true << false << Numbers{2, 0, 0} << Numbers{0, 2, 0};
    QTest::newRow("not exclusive") << false << true << Numbers{2, 0, 2} << Numbers{2, 0, 2};
    QTest::newRow("not exclusive, not reset") << false << false << Numbers{2, 0, 2} << Numbers{0, 2, 0};
}

void TestTavroCheckBoxGroups::renewing()
{
    QFETCH(bool, isExclusive);
    QFETCH(bool, isReset);
    QFETCH(Numbers, presets);
    QFETCH(Numbers, expected);
    Choice choice(isExclusive);
    for (int i = 0; i < 3; ++i) {
        choice.boxes.at(i)->setPresetData(presets.at(i));
        choice.boxes.at(i)->setIsResetAtRenew(isReset);
    }
    for (int i = 0; i < 3; ++i)
        choice.boxes.at(i)->setContentData(0);
    choice.boxes.at(1)->setContentData(2);
    for (ObservedBox *box : qAsConst(choice.boxes))
        box->renew();
    QCOMPARE(choice.contents(), expected);
    QCOMPARE(choice.states(), expected);
    QCOMPARE(choice.group.exclusive(), isExclusive);
}

void TestTavroCheckBoxGroups::groupDeletedInASlot()
{
    BoxForm form;
    QVERIFY(form.isShown());
    ObservedBox *box = form.add({50, 50});
    auto *group = new QButtonGroup(&form.scene());
    group->addButton(box->checkBx());
    box->setContentData(2);
    connect(box->checkBx(), &QCheckBox::stateChanged, group, &QObject::deleteLater);
    form.click(box);
    QCOMPARE(box->state(), Qt::Unchecked);
    QTRY_COMPARE(box->checkBx()->group(), nullptr);
    form.click(box);
    QCOMPARE(box->state(), Qt::Checked);
}

QTEST_MAIN(TestTavroCheckBoxGroups)
#include "tst_tavrocheckboxgroups.moc"

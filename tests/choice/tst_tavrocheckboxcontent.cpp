// SPDX-License-Identifier: MIT
#include "tests/choice/observedbox.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <QTest>
#include <climits>

/// Content, preset and the state of the check box.
class TestTavroCheckBoxContent : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void content_data();
    void content();
    void contentIsToldBeforeTheBoxFollows();
    void presetIsTheContentToo();
    void boxToContent();
    void equalStateTellsNothing();
    void partialStateOfTheBox();
    void contentClearsThePartialState();
    void syncByHand();
    void signalsOfTheBoxAreOnAgain();
    void renewing();
    void silentWhileRenewing();
    void notResetAtRenew();
};

void TestTavroCheckBoxContent::content_data()
{
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<bool>("checks");

    QTest::newRow("0") << QVariant(0) << false;
    QTest::newRow("1, the partial state") << QVariant(1) << true;
    QTest::newRow("2") << QVariant(2) << true;
    QTest::newRow("3") << QVariant(3) << true;
    QTest::newRow("-1") << QVariant(-1) << true;
    QTest::newRow("largest") << QVariant(INT_MAX) << true;
    QTest::newRow("smallest") << QVariant(INT_MIN) << true;
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("null") << QVariant() << false;
    QTest::newRow("null number") << QVariant(QVariant::Int) << false;
    QTest::newRow("text 2") << QVariant(QStringLiteral("2")) << true;
    QTest::newRow("text 0") << QVariant(QStringLiteral("0")) << false;
    QTest::newRow("empty text") << QVariant(QString()) << false;
    QTest::newRow("word") << QVariant(QStringLiteral("yes")) << false;
    QTest::newRow("word true") << QVariant(QStringLiteral("true")) << false;
    QTest::newRow("text 2x") << QVariant(QStringLiteral("2x")) << false;
    QTest::newRow("0.4") << QVariant(0.4) << false;
    QTest::newRow("0.6") << QVariant(0.6) << true;
    QTest::newRow("a list") << QVariant(QVariantList{2}) << false;
}

void TestTavroCheckBoxContent::content()
{
    QFETCH(QVariant, content);
    QFETCH(bool, checks);
    for (const Qt::CheckState before : {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked}) {
        ObservedBox box;
        box.checkBx()->setCheckState(before);
        box.told.clear();
        box.setContentData(content);
        QCOMPARE(box.state(), checks ? Qt::Checked : Qt::Unchecked);
        QCOMPARE(box.contentData(), content);
        QCOMPARE(box.contentData().userType(), content.userType());
        QCOMPARE(box.told.size(), 1);
        QCOMPARE(box.told.first().content, content);
    }
}

void TestTavroCheckBoxContent::contentIsToldBeforeTheBoxFollows()
{
    ObservedBox box;
    box.setContentData(2);
    QCOMPARE(box.told.size(), 1);
    QCOMPARE(box.told.first().state, Qt::Unchecked);
    QCOMPARE(box.state(), Qt::Checked);
}

void TestTavroCheckBoxContent::presetIsTheContentToo()
{
    ObservedBox box;
    box.setPresetData(QStringLiteral("1"));
    QCOMPARE(box.presetData(), QVariant(QStringLiteral("1")));
    QCOMPARE(box.contentData(), QVariant(QStringLiteral("1")));
    QCOMPARE(box.contentCalls, 1);
    QCOMPARE(box.told.size(), 1);
    QCOMPARE(box.state(), Qt::Checked);
    box.setContentData(0);
    QCOMPARE(box.presetData(), QVariant(QStringLiteral("1")));
}

void TestTavroCheckBoxContent::boxToContent()
{
    ObservedBox box;
    box.setIsModified(false);
    box.checkBx()->setChecked(true);
    QCOMPARE(box.contentData(), QVariant(2));
    QCOMPARE(static_cast<QMetaType::Type>(box.contentData().type()), QMetaType::Int);
    QCOMPARE(box.told.size(), 1);
    QCOMPARE(box.told.first().content, QVariant(2));
    box.checkBx()->setChecked(false);
    QCOMPARE(box.contentData(), QVariant(0));
    QCOMPARE(box.told.size(), 2);
    QCOMPARE(box.told.last().content, QVariant(0));
    QCOMPARE(box.contentCalls, 0);
    QCOMPARE(box.presetData(), QVariant(0));
    QVERIFY(!box.isModified());
}

void TestTavroCheckBoxContent::equalStateTellsNothing()
{
    ObservedBox box;
    box.setContentData(1);
    box.checkBx()->setCheckState(Qt::Checked);
    QCOMPARE(box.contentData(), QVariant(1));
    QCOMPARE(box.told.size(), 1);
}

void TestTavroCheckBoxContent::partialStateOfTheBox()
{
    ObservedBox box;
    box.checkBx()->setCheckState(Qt::PartiallyChecked);
    QCOMPARE(box.contentData(), QVariant(1));
    QCOMPARE(box.state(), Qt::PartiallyChecked);
    QCOMPARE(box.told.size(), 1);
    box.syncCheckBxState();
    QCOMPARE(box.state(), Qt::Checked);
    QCOMPARE(box.contentData(), QVariant(1));
}

void TestTavroCheckBoxContent::contentClearsThePartialState()
{
    ObservedBox box;
    box.checkBx()->setCheckState(Qt::PartiallyChecked);
    box.setContentData(1);
    QCOMPARE(box.state(), Qt::Checked);
    QCOMPARE(box.told.size(), 2);
}

void TestTavroCheckBoxContent::syncByHand()
{
    ObservedBox box;
    box.checkBx()->blockSignals(true);
    box.checkBx()->setChecked(true);
    box.checkBx()->blockSignals(false);
    QCOMPARE(box.contentData(), QVariant(0));
    box.syncContentData();
    QCOMPARE(box.contentData(), QVariant(2));
    QCOMPARE(box.told.size(), 1);
    // Told even where nothing changes.
    box.syncContentData();
    QCOMPARE(box.told.size(), 2);
    QCOMPARE(box.contentCalls, 0);
}

void TestTavroCheckBoxContent::signalsOfTheBoxAreOnAgain()
{
    ObservedBox box;
    QSignalSpy changed(box.checkBx(), &QCheckBox::stateChanged);
    QSignalSpy toggled(box.checkBx(), &QCheckBox::toggled);
    box.setContentData(2);
    box.renew();
    box.syncCheckBxState();
    box.setPresetData(1);
    QCOMPARE(changed.count() + toggled.count(), 0);
    QVERIFY(!box.checkBx()->signalsBlocked());
    // A host that blocks them itself finds them blocked.
    box.checkBx()->blockSignals(true);
    box.renew();
    QVERIFY(box.checkBx()->signalsBlocked());
}

void TestTavroCheckBoxContent::renewing()
{
    ObservedBox box;
    box.setPresetData(2);
    box.checkBx()->setChecked(false);
    QSignalSpy changed(box.checkBx(), &QCheckBox::stateChanged);
    box.told.clear();
    box.contentCalls = 0;
    box.setIsModified(false);
    box.renew();
    QCOMPARE(box.contentData(), QVariant(2));
    QCOMPARE(box.state(), Qt::Checked);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(box.contentCalls, 1);
    QCOMPARE(box.told.size(), 1);
    QVERIFY(!box.isModified());
}

// The content is told with the check box held silent, so that nothing echoes from it.
void TestTavroCheckBoxContent::silentWhileRenewing()
{
    ObservedBox box;
    QVector<bool> blocked;
    connect(&box, &TavroCheckBox::contentDataChanged, this, [&] { blocked.append(box.checkBx()->signalsBlocked()); });
    box.renew();
    box.setContentData(2);
    QCOMPARE(blocked, QVector<bool>({true, false}));
}

void TestTavroCheckBoxContent::notResetAtRenew()
{
    ObservedBox box;
    box.setIsResetAtRenew(false);
    box.checkBx()->setChecked(true);
    box.renew();
    QCOMPARE(box.contentData(), QVariant(2));
    QCOMPARE(box.state(), Qt::Checked);
    QCOMPARE(box.told.size(), 1);
    QCOMPARE(box.contentCalls, 0);
}

QTEST_MAIN(TestTavroCheckBoxContent)
#include "tst_tavrocheckboxcontent.moc"

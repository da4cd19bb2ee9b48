// SPDX-License-Identifier: MIT
// A date/time object that follows the clock: each painting takes the time, and nothing else does.
#include "tests/datetime/datetimepaints.h"
#include "tests/support/stricttest.h"

using namespace datetimepaints;
using namespace editors;

class TestTavroDatetimeRealTime : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void realTimeFollowsTheClock_data() { addFormatAndModeRows(); }
    void realTimeFollowsTheClock();
    void otherContentStaysAtEachPainting_data() { addFormatAndModeRows(); }
    void otherContentStaysAtEachPainting();
    void whatIsNotPrintedIsNotRefreshed();
    void realTimeIsTakenBeforeTheSections();
    void shownRealTimeComesToRest_data();
    void shownRealTimeComesToRest();
};

void TestTavroDatetimeRealTime::realTimeFollowsTheClock()
{
    QFETCH(int, format);
    QFETCH(int, mode);
    Counting made;
    made.setBoundingRect(Boxes);
    made.setDateTimeFormat(static_cast<Datetime_Format>(format));
    made.setPaintMode(static_cast<Paint_Mode>(mode));
    made.setIsRealTime(true);
    made.setContentData(LongAgo);
    // Nothing but a painting takes the clock.
    QCOMPARE(made.contentData(), QVariant(LongAgo));
    made.m_contents = 0;
    made.setIsModified(false);
    QSignalSpy changed(&made, &TavroDatetime::contentDataChanged);
    for (int painting = 1; painting <= 2; ++painting) {
        const QDateTime before = QDateTime::currentDateTime();
        probes::paintedBy(made);
        const QDateTime after = QDateTime::currentDateTime();
        const QDateTime content = made.contentData().toDateTime();
        QVERIFY(content >= before && content <= after);
        QCOMPARE(made.m_contents, painting);
        QCOMPARE(changed.count(), painting);
        QCOMPARE(editorOf(made)->dateTime(), content);
    }
    QCOMPARE(made.isModified(), false);
}

void TestTavroDatetimeRealTime::otherContentStaysAtEachPainting()
{
    QFETCH(int, format);
    QFETCH(int, mode);
    const auto made = object(format, mode);
    QSignalSpy changed(made.get(), &TavroDatetime::contentDataChanged);
    probes::paintedBy(*made);
    QCOMPARE(made->contentData(), QVariant(aMoment()));
    QCOMPARE(changed.count(), 0);
}

void TestTavroDatetimeRealTime::whatIsNotPrintedIsNotRefreshed()
{
    for (const int format : {3, 5, 6}) {
        const auto made = object(format, 2);
        made->setIsRealTime(true);
        made->setIsPrint(false);
        made->setContentData(LongAgo);
        QCOMPARE(sequence(probes::paintedBy(*made)), QString());
        QCOMPARE(made->contentData(), QVariant(LongAgo));
        made->setIsPrint(true);
        QVERIFY(!probes::paintedBy(*made).isEmpty());
        QVERIFY(made->contentData() != QVariant(LongAgo));
        // On screen it is refreshed although it is not printed.
        made->setIsPrint(false);
        made->setPaintMode(Paint_Input);
        made->setContentData(LongAgo);
        probes::paintedBy(*made);
        QVERIFY(made->contentData() != QVariant(LongAgo));
    }
}

// What is painted is the clock already, not what stood there before.
void TestTavroDatetimeRealTime::realTimeIsTakenBeforeTheSections()
{
    const auto dated = object(4, 2);
    dated->setIsRealTime(true);
    dated->setContentData(LongAgo);
    const QString printed = sequence(probes::paintedBy(*dated));
    const QDate date = dated->contentData().toDateTime().date();
    QCOMPARE(printed, QStringLiteral("%1 年 %2 月 %3 日").arg(date.year()).arg(date.month()).arg(date.day()));
    for (const int mode : {0, 1, 2}) {
        const auto pattern = object(6, mode);
        pattern->setHasBorder(false);
        pattern->setIsRealTime(true);
        pattern->setContentData(LongAgo);
        const QString painted = sequence(probes::paintedBy(*pattern));
        QCOMPARE(painted, pattern->contentData().toDateTime().toString(QStringLiteral("yyyy-MM-dd")));
        QVERIFY(painted != QStringLiteral("1999-12-31"));
    }
}

void TestTavroDatetimeRealTime::shownRealTimeComesToRest_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QRectF>("rect");
    for (const int format : {0, 3, 5, 6}) {
        for (const int mode : {0, 1, 2}) {
            QTest::addRow("format %d, mode %d", format, mode) << format << mode << Boxes;
            QTest::addRow("format %d, mode %d, narrow", format, mode) << format << mode << QRectF(40.4, 20.6, 9.5, 8);
            QTest::addRow("format %d, mode %d, negative", format, mode) << format << mode << QRectF(200, 90, -99, -40);
        }
    }
}

// A repaint takes the clock, but does not ask for the next one.
void TestTavroDatetimeRealTime::shownRealTimeComesToRest()
{
    QFETCH(int, format);
    QFETCH(int, mode);
    QFETCH(QRectF, rect);
    DatetimeView form;
    QVERIFY(form.isActive());
    auto *made = new Counting;
    made->setBoundingRect(rect);
    made->setDateTimeFormat(static_cast<Datetime_Format>(format));
    made->setPaintMode(static_cast<Paint_Mode>(mode));
    made->setIsRealTime(true);
    form.scene().addItem(made);
    QTRY_VERIFY(made->m_paints > 0);
    QVERIFY(comesToRest(*made));
    made->setContentData(LongAgo);
    const int before = made->m_paints;
    form.scene().update();
    QTRY_VERIFY(made->m_paints > before);
    QVERIFY(made->contentData() != QVariant(LongAgo));
    QVERIFY(comesToRest(*made));
}

QTEST_MAIN(TestTavroDatetimeRealTime)
#include "tst_tavrodatetimerealtime.moc"

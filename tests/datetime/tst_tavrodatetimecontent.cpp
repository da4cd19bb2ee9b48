// SPDX-License-Identifier: MIT
// The content of a date/time object, and what follows it: preset, editors and their places.
#include "tests/datetime/datetimeview.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <functional>

using namespace editors;

namespace {

// Tells how often content went through the operation that kinds override.
class Counting : public TavroDatetime
{
public:
    void setContentData(const QVariant &content) override
    {
        ++m_calls;
        TavroDatetime::setContentData(content);
    }
    int m_calls = 0;
};

const QDateTime Later(QDate(2030, 11, 30), QTime(23, 59, 58));

} // namespace

class TestTavroDatetimeContent : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void contentIsADateTime_data();
    void contentIsADateTime();
    void presetSetsTheContent();
    void renewTakesThePreset();
    void syncContentData();
    void syncDateTime();
    void bothEditorsFollowTheRectangle_data();
    void bothEditorsFollowTheRectangle();
    void narrowObjectsAreFollowedWithTheFont();
    void whoFitsTheEditors_data();
    void whoFitsTheEditors();
};

void TestTavroDatetimeContent::contentIsADateTime_data()
{
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<QDateTime>("stored");
    QTest::newRow("date and time") << QVariant(aMoment()) << aMoment();
    QTest::newRow("date") << QVariant(QDate(2022, 1, 5)) << QDateTime(QDate(2022, 1, 5), QTime(0, 0));
    QTest::newRow("text of both") << QVariant(QStringLiteral("2022-01-05T08:05:09")) << aMoment();
    QTest::newRow("text of a date") << QVariant(QStringLiteral("2022-01-05"))
                                    << QDateTime(QDate(2022, 1, 5), QTime(0, 0));
    QTest::newRow("other text") << QVariant(QStringLiteral("tomorrow")) << QDateTime();
    QTest::newRow("no such date") << QVariant(QStringLiteral("2022-02-30")) << QDateTime();
    QTest::newRow("empty text") << QVariant(QString()) << QDateTime();
    QTest::newRow("nothing") << QVariant() << QDateTime();
    QTest::newRow("number") << QVariant(12.5) << QDateTime();
    QTest::newRow("time alone") << QVariant(QTime(8, 5, 9)) << QDateTime();
}

void TestTavroDatetimeContent::contentIsADateTime()
{
    QFETCH(QVariant, content);
    QFETCH(QDateTime, stored);
    TavroDatetime object;
    const Editors both(object);
    QSignalSpy changed(&object, &TavroDatetime::contentDataChanged);
    object.setContentData(content);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(object.isModified(), false);
    object.setPresetData(content);
    for (const QVariant &kept : {object.contentData(), object.presetData()}) {
        QCOMPARE(kept.userType(), static_cast<int>(QMetaType::QDateTime));
        QCOMPARE(kept.toDateTime(), stored);
    }
    QCOMPARE(both.dates->dateTime(), stored);
    QCOMPARE(both.times->dateTime(), stored);
    // Sections of an invalid content are empty, the separators are not.
    const bool isValid = stored.isValid();
    QCOMPARE(rowOf(*both.dates), isValid ? QStringLiteral("2022|年|01|月|05|日") : QStringLiteral("|年||月||日"));
    QCOMPARE(labelAt(*both.times, 0)->text().isEmpty(), !isValid);
    QCOMPARE(labelAt(*both.times, 1)->text(), QStringLiteral("时"));
}

void TestTavroDatetimeContent::presetSetsTheContent()
{
    Counting object;
    QSignalSpy changed(&object, &TavroDatetime::contentDataChanged);
    QVariant presetAtSignal;
    connect(&object, &TavroDatetime::contentDataChanged, [&] { presetAtSignal = object.presetData(); });
    object.setPresetData(QStringLiteral("2022-01-05T08:05:09"));
    QCOMPARE(object.m_calls, 1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(presetAtSignal, QVariant(aMoment()));
    QCOMPARE(object.contentData(), QVariant(aMoment()));
    QVERIFY(object.isModified());
}

void TestTavroDatetimeContent::renewTakesThePreset()
{
    Counting object;
    object.setPresetData(aMoment());
    object.setContentData(Later);
    object.m_calls = 0;
    object.setIsResetAtRenew(false);
    object.renew();
    QCOMPARE(object.contentData(), QVariant(Later));
    QCOMPARE(object.m_calls, 0);
    object.setIsResetAtRenew(true);
    object.renew();
    QCOMPARE(object.contentData(), QVariant(aMoment()));
    QCOMPARE(object.m_calls, 1);
    QCOMPARE(rowOf(*editorOf(object)), QStringLiteral("2022|年|1|月|5|日"));
    // Without a preset the form starts empty.
    TavroDatetime blank;
    blank.renew();
    QCOMPARE(blank.contentData().userType(), static_cast<int>(QMetaType::QDateTime));
    QVERIFY(!blank.contentData().toDateTime().isValid());
    QCOMPARE(rowOf(*editorOf(blank)), QStringLiteral("|年||月||日"));
}

void TestTavroDatetimeContent::syncContentData()
{
    Counting object;
    const Editors both(object);
    object.setContentData(aMoment());
    object.m_calls = 0;
    both.dates->setDateTime(Later);
    QSignalSpy changed(&object, &TavroDatetime::contentDataChanged);
    object.syncContentData();
    QCOMPARE(object.contentData(), QVariant(Later));
    QCOMPARE(changed.count(), 1);
    // Straight into the field: the time editor keeps what it had.
    QCOMPARE(object.m_calls, 0);
    QCOMPARE(both.times->dateTime(), aMoment());
}

void TestTavroDatetimeContent::syncDateTime()
{
    TavroDatetime object;
    const Editors both(object);
    object.setContentData(aMoment());
    both.dates->setDateTime(Later);
    both.times->setDateTime(Later);
    both.dates->setGeometry(1, 2, 400, 50);
    both.times->setGeometry(1, 2, 400, 50);
    object.syncDateTime();
    QCOMPARE(both.dates->dateTime(), aMoment());
    QCOMPARE(both.times->dateTime(), aMoment());
    QCOMPARE(both.dates->geometry().topLeft(), QPoint(0, 0));
    QCOMPARE(both.times->geometry().topLeft(), QPoint(0, 0));
}

void TestTavroDatetimeContent::bothEditorsFollowTheRectangle_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRect>("followed");
    QTest::newRow("whole pixels") << QRectF(10, 20, 300, 30) << QRect(10, 20, 300, 30);
    QTest::newRow("halves go up") << QRectF(10.5, 20.5, 300.5, 30.5) << QRect(11, 21, 301, 31);
    QTest::newRow("below the halves") << QRectF(10.49, 20.49, 300.49, 30.49) << QRect(10, 20, 300, 30);
    // Each on its own: the right edge at 301.2 plays no part.
    QTest::newRow("size apart from the place") << QRectF(0.6, 0.6, 300.6, 30.6) << QRect(1, 1, 301, 31);
    QTest::newRow("negative place") << QRectF(-10.5, -20.51, 300, 30) << QRect(-10, -21, 300, 30);
    QTest::newRow("low") << QRectF(0, 0, 300, 3) << QRect(0, 0, 300, 3);
    QTest::newRow("one pixel high") << QRectF(0, 0, 300, 1) << QRect(0, 0, 300, 1);
    QTest::newRow("no height") << QRectF(0, 0, 300, 0) << QRect(0, 0, 300, 0);
}

void TestTavroDatetimeContent::bothEditorsFollowTheRectangle()
{
    QFETCH(QRectF, rect);
    QFETCH(QRect, followed);
    TavroDatetime object;
    const Editors both(object);
    for (const int format : {3, 5, 6}) {
        for (const int mode : {2, 0, 1}) {
            object.setBoundingRect({});
            object.setDateTimeFormat(static_cast<Datetime_Format>(format));
            object.setPaintMode(static_cast<Paint_Mode>(mode));
            object.setBoundingRect(rect);
            QCOMPARE(object.boundingRect(), rect);
            QCOMPARE(both.dates->geometry(), followed);
            QCOMPARE(both.times->geometry(), followed);
            QCOMPARE(object.widgetPrxy()->geometry(), QRectF(followed));
        }
    }
    object.resize(Handle_BottomRight, QPointF(500, 400));
    QCOMPARE(both.dates->geometry().bottomRight(), both.times->geometry().bottomRight());
    QVERIFY(qAbs(both.dates->geometry().right() - 499) <= 1);
}

// Separators cannot shrink, but they come and go with the font.
void TestTavroDatetimeContent::narrowObjectsAreFollowedWithTheFont()
{
    TavroDatetime object;
    object.setTextFillingRule(Fill_NoWrap);
    const Editors both(object);
    object.setBoundingRect({5, 6, 60, 20});
    object.setFont(testFont(40));
    QVERIFY(both.dates->width() > 60);
    QCOMPARE(both.dates->geometry().topLeft(), QPoint(5, 6));
    object.setFont(testFont(7));
    QCOMPARE(both.dates->geometry(), QRect(5, 6, 60, 20));
    QCOMPARE(both.times->geometry(), QRect(5, 6, 60, 20));
}

void TestTavroDatetimeContent::whoFitsTheEditors_data()
{
    QTest::addColumn<int>("setter");
    QTest::addColumn<bool>("fits");
    QTest::newRow("separator type") << 0 << true;
    QTest::newRow("order") << 1 << true;
    QTest::newRow("content") << 2 << true;
    QTest::newRow("format of a date") << 3 << true;
    QTest::newRow("pattern") << 4 << false;
    QTest::newRow("shown separators") << 5 << false;
    QTest::newRow("order of dates") << 6 << false;
    QTest::newRow("order of times") << 7 << false;
}

void TestTavroDatetimeContent::whoFitsTheEditors()
{
    QFETCH(int, setter);
    QFETCH(bool, fits);
    const QVector<std::function<void(TavroDatetime &)>> setters{
        [](TavroDatetime &object) { object.setSeperatorType(Sep_Dash); },
        [](TavroDatetime &object) { object.setOrderType(1); },
        [](TavroDatetime &object) { object.setContentData(Later); },
        [](TavroDatetime &object) { object.setDateTimeFormat(Dt_Arabic); },
        [](TavroDatetime &object) { object.setDateTimeFormat(Dt_Custom); },
        [](TavroDatetime &object) { object.setIsShowSeperator(false); },
        [](TavroDatetime &object) { object.setDateOrderType(Order_DMY); },
        [](TavroDatetime &object) { object.setTimeOrderType(Order_HM); },
    };
    TavroDatetime object;
    object.setTextFillingRule(Fill_NoWrap);
    const Editors both(object);
    object.setBoundingRect({10, 20, 300, 30});
    const QRect moved(1, 2, 400, 50);
    both.dates->setGeometry(moved);
    both.times->setGeometry(moved);
    setters.at(setter)(object);
    const QRect expected = fits ? QRect(10, 20, 300, 30) : moved;
    QCOMPARE(both.dates->geometry(), expected);
    QCOMPARE(both.times->geometry(), expected);
}

QTEST_MAIN(TestTavroDatetimeContent)
#include "tst_tavrodatetimecontent.moc"

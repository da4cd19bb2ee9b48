// SPDX-License-Identifier: MIT
// The date and the time editor side by side: their labels, and what each setter does to them.
#include "tests/datetime/editorprobes.h"
#include "tests/support/stricttest.h"
#include "tests/support/virtualslots.h"

#include <QPointer>
#include <QTest>

using namespace editors;

namespace {

// Reaches the last slot of the splitter.
class EditorProbe : public DateTimeEditPrototype
{
public:
    QSplitterHandle *createHandle() override { return DateTimeEditPrototype::createHandle(); }
};

void addKindRows()
{
    QTest::addColumn<bool>("ofTime");
    QTest::newRow("date") << false;
    QTest::newRow("time") << true;
}

// Words between the values as shown; the same row with marks and with hidden separators follows from it.
struct Row
{
    int order;
    const char *withWords;
};

const QVector<Row> DateRows{
    {0, "2022|年|1|月|5|日"},
    {1, "5|日|1|月|2022|年"},
    {2, "2022|年|5|日|1|月"},
    {3, "2022|年|1|月"},
    {4, "1|月|5|日"},
    {5, "1|月|2022|年"},
    {6, "5|日|1|月"},
    {7, "2022|年"},
    {8, ""},
    {-1, ""},
    {1000000, ""},
};

const QVector<Row> TimeRows{{0, "8|时|5|分|9|秒"}, {1, "8|时|5|分"}, {2, ""}, {-1, ""}, {1000000, ""}};

// The row as a type of separator writes it.
QString expectedRow(const QString &withWords, int type, int typeOfWords, bool isShown)
{
    QStringList texts = withWords.split(QLatin1Char('|'), Qt::SkipEmptyParts);
    if (type == typeOfWords) {
        for (int i = 1; i < texts.size(); i += 2)
            texts[i] = isShown ? texts.at(i) : QStringLiteral("  ");
        return texts.join(QLatin1Char('|'));
    }
    const QStringList marks{QStringLiteral("-"), QStringLiteral("/"), QStringLiteral(":")};
    if (texts.isEmpty() || type < 2 || type > 4)
        return {};
    texts.removeLast();
    for (int i = 1; i < texts.size(); i += 2)
        texts[i] = isShown ? marks.at(type - 2) : QStringLiteral(" ");
    return texts.join(QLatin1Char('|'));
}

} // namespace

class TestSectionedEditors : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void constructor_data() { addKindRows(); }
    void constructor();
    void firstTextsAreOfTheCurrentTime();
    void prototypeStoresOnly();
    void virtualOperationsFollowTheSplitters();
    void labels_data();
    void labels();
    void labelsOfEachRow_data() { addKindRows(); }
    void labelsOfEachRow();
    void setFontReachesEveryLabel_data() { addKindRows(); }
    void setFontReachesEveryLabel();
    void textStyles_data();
    void textStyles();
    void textStyleBeyondTheStylesLeavesTheTexts_data();
    void textStyleBeyondTheStylesLeavesTheTexts();
    void timesHaveNoLeadingZeros_data();
    void timesHaveNoLeadingZeros();
    void invalidDateTimes_data();
    void invalidDateTimes();
    void yearsBeforeOurEra();
    void rightToLeftLanguagesChangeNothing_data() { addKindRows(); }
    void rightToLeftLanguagesChangeNothing();
};

void TestSectionedEditors::constructor()
{
    QFETCH(bool, ofTime);
    QWidget form;
    const QDateTime before = QDateTime::currentDateTime();
    DateTimeEditPrototype *made = nullptr;
    if (ofTime)
        made = new TimeEdit(&form);
    else
        made = new DateEdit(&form);
    const QDateTime after = QDateTime::currentDateTime();
    QCOMPARE(made->parentWidget(), &form);
    QCOMPARE(made->orientation(), Qt::Horizontal);
    QCOMPARE(made->handleWidth(), 2);
    QCOMPARE(made->childrenCollapsible(), false);
    QCOMPARE(made->styleSheet(), QStringLiteral("DateTimeEditPrototype{background-color: rgba(255, 255, 255, 80);}"
                                                "DateTimeEditPrototype::handle{background: #66CC99;}"));
    QCOMPARE(made->isShowSeperator(), true);
    QCOMPARE(static_cast<int>(made->seperatorType()), ofTime ? 1 : 0);
    QCOMPARE(made->font(), QFont());
    QVERIFY(made->dateTime() >= before && made->dateTime() <= after);
    QCOMPARE(made->count(), 6);
    if (const auto *dates = qobject_cast<DateEdit *>(made)) {
        QCOMPARE(dates->textStyle(), 4);
        QCOMPARE(static_cast<int>(dates->orderType()), 0);
    } else {
        QCOMPARE(static_cast<int>(qobject_cast<TimeEdit *>(made)->orderType()), 0);
    }
}

void TestSectionedEditors::firstTextsAreOfTheCurrentTime()
{
    const DateEdit dates;
    const QDate date = dates.dateTime().date();
    QCOMPARE(rowOf(dates), QStringLiteral("%1|年|%2|月|%3|日").arg(date.year()).arg(date.month()).arg(date.day()));
    const TimeEdit times;
    const QTime time = times.dateTime().time();
    QCOMPARE(rowOf(times), QStringLiteral("%1|时|%2|分|%3|秒").arg(time.hour()).arg(time.minute()).arg(time.second()));
}

void TestSectionedEditors::prototypeStoresOnly()
{
    QWidget form;
    auto *row = new DateTimeEditPrototype(&form);
    QCOMPARE(row->parentWidget(), &form);
    QCOMPARE(row->handleWidth(), 2);
    QCOMPARE(row->childrenCollapsible(), false);
    QCOMPARE(row->isShowSeperator(), true);
    row->setDateTime(aMoment());
    QCOMPARE(row->dateTime(), aMoment());
    for (const int type : {1, 4, -7}) {
        row->setSeperatorType(static_cast<Datetime_Seperator_Type>(type));
        QCOMPARE(static_cast<int>(row->seperatorType()), type);
    }
    for (const bool show : {false, true}) {
        row->setIsShowSeperator(show);
        QCOMPARE(row->isShowSeperator(), show);
    }
    row->setFont(testFont());
    QCOMPARE(row->font(), testFont());
    QCOMPARE(row->count(), 0);
}

void TestSectionedEditors::virtualOperationsFollowTheSplitters()
{
#if defined(__GXX_ABI_VERSION) && defined(__x86_64__)
    const std::ptrdiff_t lastOfSplitter = slotOf(&EditorProbe::createHandle);
    QVERIFY(lastOfSplitter > 0);
    QCOMPARE(slotOf(&DateTimeEditPrototype::setDateTime), lastOfSplitter + 1);
    QCOMPARE(slotOf(&DateTimeEditPrototype::setSeperatorType), lastOfSplitter + 2);
    QCOMPARE(slotOf(&DateTimeEditPrototype::setIsShowSeperator), lastOfSplitter + 3);
    // Both editors override all three and add none.
    QCOMPARE(slotOf(&DateEdit::setDateTime), lastOfSplitter + 1);
    QCOMPARE(slotOf(&DateEdit::setSeperatorType), lastOfSplitter + 2);
    QCOMPARE(slotOf(&DateEdit::setIsShowSeperator), lastOfSplitter + 3);
    QCOMPARE(slotOf(&TimeEdit::setDateTime), lastOfSplitter + 1);
    QCOMPARE(slotOf(&TimeEdit::setSeperatorType), lastOfSplitter + 2);
    QCOMPARE(slotOf(&TimeEdit::setIsShowSeperator), lastOfSplitter + 3);
    QCOMPARE(slotOf(&DateEdit::setOrderType), -1);
    QCOMPARE(slotOf(&TimeEdit::setOrderType), -1);
#else
    QSKIP("slots are read off pointers to members on x86-64 only");
#endif
}

void TestSectionedEditors::labels_data()
{
    QTest::addColumn<bool>("ofTime");
    QTest::addColumn<int>("order");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isShown");
    QTest::addColumn<QString>("row");
    for (const bool ofTime : {false, true}) {
        for (const Row &row : ofTime ? TimeRows : DateRows) {
            for (const int type : {0, 1, 2, 3, 4, 5, -1}) {
                for (const bool isShown : {true, false}) {
                    QTest::addRow("%s, order %d, type %d%s", ofTime ? "time" : "date", row.order, type,
                                  isShown ? "" : ", hidden")
                        << ofTime << row.order << type << isShown
                        << expectedRow(QString::fromUtf8(row.withWords), type, ofTime ? 1 : 0, isShown);
                }
            }
        }
    }
}

void TestSectionedEditors::labels()
{
    QFETCH(bool, ofTime);
    QFETCH(int, order);
    QFETCH(int, type);
    QFETCH(bool, isShown);
    QFETCH(QString, row);
    const auto made = editor(ofTime);
    setOrder(*made, order);
    made->setSeperatorType(static_cast<Datetime_Seperator_Type>(type));
    made->setIsShowSeperator(isShown);
    QCOMPARE(rowOf(*made), row);
    QCOMPARE(made->isShowSeperator(), isShown);
    QCOMPARE(static_cast<int>(made->seperatorType()), type);

    // The setters agree in every order, on an editor that had labels and on one that had none.
    made->setIsShowSeperator(true);
    made->setSeperatorType(static_cast<Datetime_Seperator_Type>(5));
    QCOMPARE(made->count(), 0);
    made->setIsShowSeperator(isShown);
    made->setSeperatorType(static_cast<Datetime_Seperator_Type>(type));
    setOrder(*made, order);
    QCOMPARE(rowOf(*made), row);
    QCOMPARE(made->findChildren<QLabel *>().size(), made->count());
}

void TestSectionedEditors::labelsOfEachRow()
{
    QFETCH(bool, ofTime);
    const auto made = editor(ofTime);
    for (const int type : {ofTime ? 1 : 0, 3}) {
        made->setSeperatorType(static_cast<Datetime_Seperator_Type>(type));
        for (int i = 0; i < made->count(); ++i) {
            const QLabel *label = labelAt(*made, i);
            QCOMPARE(label->alignment(), Qt::AlignCenter);
            QCOMPARE(label->margin(), 0);
            QCOMPARE(label->font().family(), testFont().family());
            QCOMPARE(label->font().pixelSize(), 14);
            QCOMPARE(label->font().hintingPreference(), QFont::PreferVerticalHinting);
            const int textWidth = QFontMetrics(testFont()).horizontalAdvance(label->text());
            const bool isValue = i % 2 == 0;
            QCOMPARE(label->minimumWidth(), isValue ? 0 : textWidth);
            QCOMPARE(label->maximumWidth(), isValue ? QWIDGETSIZE_MAX : textWidth);
        }
        // What room there is goes to the values alone.
        made->follow({0, 0, 700, 30});
        const QList<int> wide = made->sizes();
        made->follow({0, 0, 300, 30});
        for (int i = 0; i < made->count(); ++i)
            QVERIFY(i % 2 == 0 ? wide.at(i) > made->sizes().at(i) + 50 : wide.at(i) == made->sizes().at(i));
    }
    QCOMPARE(made->font().hintingPreference(), QFont::PreferDefaultHinting);
}

void TestSectionedEditors::setFontReachesEveryLabel()
{
    QFETCH(bool, ofTime);
    const auto made = editor(ofTime);
    QFont large = testFont(31);
    large.setBold(true);
    large.setItalic(true);
    made->setFont(large);
    QCOMPARE(made->font(), large);
    const auto check = [&] {
        for (int i = 0; i < made->count(); ++i) {
            const QLabel *label = labelAt(*made, i);
            QCOMPARE(label->font().pixelSize(), 31);
            QCOMPARE(label->font().bold(), true);
            QCOMPARE(label->font().italic(), true);
            QCOMPARE(label->font().hintingPreference(), QFont::PreferVerticalHinting);
            if (i % 2 == 1) {
                QCOMPARE(label->minimumWidth(), QFontMetrics(large).horizontalAdvance(label->text()));
                QCOMPARE(label->width(), label->minimumWidth());
            }
        }
    };
    check();
    made->setSeperatorType(Sep_Colon);
    QCOMPARE(made->count(), 5);
    check();
}

void TestSectionedEditors::textStyles_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("row");
    const QDate early(2022, 1, 5);
    const QDate late(2022, 12, 31);
    QTest::newRow("0") << 0 << early << QStringLiteral("贰零贰贰|年|零壹|月|零伍|日");
    QTest::newRow("1") << 1 << early << QStringLiteral("贰零贰贰|年|壹|月|伍|日");
    QTest::newRow("2") << 2 << early << QStringLiteral("二〇二二|年|一|月|五|日");
    QTest::newRow("3") << 3 << early << QStringLiteral("2022|年|01|月|05|日");
    QTest::newRow("4") << 4 << early << QStringLiteral("2022|年|1|月|5|日");
    QTest::newRow("0, last day") << 0 << late << QStringLiteral("贰零贰贰|年|壹拾贰|月|叁拾壹|日");
    QTest::newRow("2, last day") << 2 << late << QStringLiteral("二〇二二|年|十二|月|三十一|日");
}

void TestSectionedEditors::textStyles()
{
    QFETCH(int, style);
    QFETCH(QDate, date);
    QFETCH(QString, row);
    DateEdit dates;
    dates.setDateTime(QDateTime(date, QTime(1, 2, 3)));
    const QPointer<QWidget> labelBefore = dates.widget(0);
    dates.setTextStyle(style);
    QCOMPARE(dates.textStyle(), style);
    QCOMPARE(rowOf(dates), row);
    QVERIFY2(labelBefore.isNull(), "the sections were not built anew");
    // The style holds for the dates that follow, and for labels built later.
    dates.setDateTime(QDateTime(QDate(1999, 9, 9), QTime(0, 0)));
    dates.setDateTime(QDateTime(date, QTime(0, 0)));
    QCOMPARE(rowOf(dates), row);
    dates.setOrderType(Order_YMD);
    QCOMPARE(rowOf(dates), row);
}

void TestSectionedEditors::textStyleBeyondTheStylesLeavesTheTexts_data()
{
    QTest::addColumn<int>("style");
    for (const int style : {5, 6, 100, -1})
        QTest::addRow("%d", style) << style;
}

void TestSectionedEditors::textStyleBeyondTheStylesLeavesTheTexts()
{
    QFETCH(int, style);
    DateEdit dates;
    dates.setDateTime(aMoment());
    dates.setTextStyle(3);
    dates.setTextStyle(style);
    QCOMPARE(dates.textStyle(), style);
    const QString before = QStringLiteral("2022|年|01|月|05|日");
    QCOMPARE(rowOf(dates), before);
    const QDateTime later(QDate(2030, 11, 30), QTime(0, 0));
    dates.setDateTime(later);
    QCOMPARE(dates.dateTime(), later);
    QCOMPARE(rowOf(dates), before);
    dates.setTextStyle(4);
    QCOMPARE(rowOf(dates), QStringLiteral("2030|年|11|月|30|日"));
}

void TestSectionedEditors::timesHaveNoLeadingZeros_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QString>("row");
    QTest::newRow("morning") << QTime(8, 5, 9) << QStringLiteral("8|时|5|分|9|秒");
    QTest::newRow("midnight") << QTime(0, 0, 0) << QStringLiteral("0|时|0|分|0|秒");
    QTest::newRow("last second") << QTime(23, 59, 59, 999) << QStringLiteral("23|时|59|分|59|秒");
}

void TestSectionedEditors::timesHaveNoLeadingZeros()
{
    QFETCH(QTime, time);
    QFETCH(QString, row);
    TimeEdit times;
    times.setDateTime(QDateTime(QDate(2022, 1, 5), time));
    QCOMPARE(rowOf(times), row);
}

void TestSectionedEditors::invalidDateTimes_data()
{
    QTest::addColumn<bool>("ofTime");
    QTest::addColumn<QString>("row");
    QTest::newRow("date") << false << QStringLiteral("|年||月||日");
    QTest::newRow("time") << true << QStringLiteral("|时||分||秒");
}

void TestSectionedEditors::invalidDateTimes()
{
    QFETCH(bool, ofTime);
    QFETCH(QString, row);
    const auto made = editor(ofTime);
    made->setDateTime(QDateTime());
    QVERIFY(!made->dateTime().isValid());
    QCOMPARE(rowOf(*made), row);
    setOrder(*made, 0);
    QCOMPARE(rowOf(*made), row);
}

void TestSectionedEditors::yearsBeforeOurEra()
{
    DateEdit dates;
    dates.setDateTime(QDateTime(QDate(-44, 3, 15), QTime(12, 0)));
    QCOMPARE(rowOf(dates), QStringLiteral("-44|年|3|月|15|日"));
    dates.setTextStyle(0);
    QCOMPARE(rowOf(dates), QStringLiteral("-肆肆|年|零叁|月|壹拾伍|日"));
}

void TestSectionedEditors::rightToLeftLanguagesChangeNothing()
{
    QFETCH(bool, ofTime);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const auto made = editor(ofTime);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    for (int i = 1; i < made->count(); ++i)
        QVERIFY(made->widget(i - 1)->x() < made->widget(i)->x());
}

QTEST_MAIN(TestSectionedEditors)
#include "tst_sectionededitors.moc"

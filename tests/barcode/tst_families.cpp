// SPDX-License-Identifier: MIT
#include "barcode/families.h"

#include <QMap>
#include <QTest>
#include <limits>

using families::Family;

Q_DECLARE_METATYPE(families::Family)

namespace {

constexpr int Lowest = -5;
constexpr int Highest = 200;

const QMap<int, Family> &familiesByNumber()
{
    static const QMap<int, Family> numbers{
        {2, Family::PlainLinear},
        {3, Family::PlainLinear},
        {4, Family::PlainLinear},
        {6, Family::PlainLinear},
        {7, Family::PlainLinear},
        {8, Family::PlainLinear},
        {13, Family::Ean},
        {16, Family::PlainLinear},
        {20, Family::PlainLinear},
        {29, Family::PlainLinear},
        {30, Family::PlainLinear},
        {31, Family::PlainLinear},
        {32, Family::PlainLinear},
        {34, Family::UpcA},
        {37, Family::UpcE},
        {47, Family::PlainLinear},
        {55, Family::Stacked},
        {56, Family::Stacked},
        {58, Family::Matrix},
        {60, Family::PlainLinear},
        {71, Family::Matrix},
        {72, Family::PlainLinear},
        {79, Family::DataBarStacked},
        {80, Family::DataBarStackedRows},
        {81, Family::DataBarStackedRows},
        {84, Family::Stacked},
        {86, Family::PlainLinear},
        {92, Family::Matrix},
        {97, Family::Matrix},
        {98, Family::PlainLinear},
        {99, Family::PlainLinear},
        {102, Family::Matrix},
        {104, Family::Matrix},
        {106, Family::Stacked},
        {108, Family::Stacked},
        {112, Family::Matrix},
        {128, Family::Matrix},
        {130, Family::EanComposite},
        {131, Family::LinearComposite},
        {132, Family::LinearComposite},
        {133, Family::LinearComposite},
        {134, Family::LinearComposite},
        {135, Family::UpcComposite},
        {136, Family::UpcComposite},
        {137, Family::StackedComposite},
        {138, Family::StackedComposite},
        {139, Family::StackedComposite},
    };
    return numbers;
}

// Guards as ranges: "0 2 46-50".
QString guardsOf(const families::RetailLayout &layout)
{
    QStringList ranges;
    for (int column = -20; column <= 150; ++column) {
        if (!layout.isGuard(column))
            continue;
        int last = column;
        while (layout.isGuard(last + 1))
            ++last;
        ranges << (last == column ? QString::number(column) : QStringLiteral("%1-%2").arg(column).arg(last));
        column = last;
    }
    return ranges.join(QLatin1Char(' '));
}

QString nameOf(Qt::Alignment alignment)
{
    const QMap<int, QString> names{{Qt::AlignCenter, QStringLiteral("centre")},
                                   {Qt::AlignLeft, QStringLiteral("left")},
                                   {Qt::AlignRight, QStringLiteral("right")},
                                   {Qt::AlignLeft | Qt::AlignBottom, QStringLiteral("bottom left")},
                                   {Qt::AlignRight | Qt::AlignBottom, QStringLiteral("bottom right")}};
    return names.value(static_cast<int>(alignment), QStringLiteral("?"));
}

QStringList digitsOf(const families::RetailLayout &layout)
{
    QStringList groups;
    for (const families::DigitGroup &group : layout.digits) {
        const QString characters = group.count < 0
                                       ? QStringLiteral("%1 and on").arg(group.first)
                                       : QStringLiteral("%1-%2").arg(group.first).arg(group.first + group.count - 1);
        groups << QStringLiteral("%1 from %2, %3 wide, %4%5")
                      .arg(characters)
                      .arg(group.column)
                      .arg(group.span)
                      .arg(nameOf(group.alignment), group.isSmall ? QStringLiteral(", small") : QString());
    }
    return groups;
}

QStringList marksOf(const families::RetailLayout &layout)
{
    QStringList marks;
    for (const families::QuietZoneMark &mark : layout.marks)
        marks << QStringLiteral("%1 from %2, %3").arg(mark.text).arg(mark.column).arg(nameOf(mark.alignment));
    return marks;
}

// Heights of rows in modules, "bar" where they are as high as the bars.
QString heightsOf(const QVector<families::Row> &rows)
{
    QStringList heights;
    for (const families::Row &row : rows)
        heights << (row.isBar ? QStringLiteral("bar") : QString::number(row.modules));
    return heights.join(QLatin1Char(' '));
}

} // namespace

/// What is known about the symbologies without encoding anything.
class FamiliesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void familyOf_data();
    void familyOf();
    void farNumbersHaveNoFamily();
    void layouts_data();
    void layouts();
    void onlyRetailCodesHaveLayouts();
    void rows_data();
    void rows();
    void marginsAndTexts_data();
    void marginsAndTexts();
};

void FamiliesTest::familyOf_data()
{
    QTest::addColumn<int>("symbology");

    for (int symbology = Lowest; symbology <= Highest; ++symbology)
        QTest::addRow("%d", symbology) << symbology;
}

void FamiliesTest::familyOf()
{
    QFETCH(int, symbology);
    QCOMPARE(families::familyOf(symbology), familiesByNumber().value(symbology, Family::None));
}

void FamiliesTest::farNumbersHaveNoFamily()
{
    QCOMPARE(families::familyOf(std::numeric_limits<int>::min()), Family::None);
    QCOMPARE(families::familyOf(std::numeric_limits<int>::max()), Family::None);
}

void FamiliesTest::layouts_data()
{
    QTest::addColumn<int>("symbology");
    QTest::addColumn<int>("variant");
    QTest::addColumn<QString>("guards");
    QTest::addColumn<QStringList>("digits");
    QTest::addColumn<QStringList>("marks");

    const QString ean8Guards = QStringLiteral("0 2 32 34 64 66");
    const QStringList ean8Digits{QStringLiteral("0-3 from 3, 29 wide, centre"),
                                 QStringLiteral("4 and on from 35, 29 wide, centre")};
    const QStringList ean8Marks{QStringLiteral("< from -10, left"), QStringLiteral("> from 67, left")};
    const QString ean13Guards = QStringLiteral("0 2 46 48 92 94");
    const QStringList ean13Digits{QStringLiteral("0-0 from -10, 10 wide, left"),
                                  QStringLiteral("1-6 from 3, 43 wide, centre"),
                                  QStringLiteral("7 and on from 49, 43 wide, centre")};
    const QStringList ean13Marks{QStringLiteral("> from 95, right")};
    const QString upcAGuards = QStringLiteral("0-11 46-48 85-96");
    const QStringList upcADigits{QStringLiteral("0-0 from -10, 10 wide, bottom left, small"),
                                 QStringLiteral("1-5 from 11, 35 wide, centre"),
                                 QStringLiteral("6-10 from 49, 36 wide, centre"),
                                 QStringLiteral("11 and on from 95, 10 wide, bottom right, small")};
    const QString upcEGuards = QStringLiteral("0-2 46-50");
    const QStringList upcEDigits{QStringLiteral("0-0 from -10, 10 wide, bottom left, small"),
                                 QStringLiteral("1-6 from 3, 43 wide, centre"),
                                 QStringLiteral("7 and on from 51, 10 wide, bottom right, small")};

    QTest::newRow("EAN-8") << 13 << 2 << ean8Guards << ean8Digits << ean8Marks;
    QTest::newRow("EAN-13") << 13 << 3 << ean13Guards << ean13Digits << ean13Marks;
    QTest::newRow("UPC-A") << 34 << 3 << upcAGuards << upcADigits << QStringList();
    QTest::newRow("UPC-A has no variants") << 34 << 0 << upcAGuards << upcADigits << QStringList();
    QTest::newRow("UPC-E") << 37 << 3 << upcEGuards << upcEDigits << QStringList();
    QTest::newRow("EAN-8 composite") << 130 << 2 << ean8Guards << ean8Digits << ean8Marks;
    QTest::newRow("EAN-13 composite") << 130 << 3 << ean13Guards << ean13Digits << ean13Marks;
    QTest::newRow("UPC-A composite") << 135 << 3 << upcAGuards << upcADigits << QStringList();
    QTest::newRow("UPC-E composite") << 136 << 3 << upcEGuards << upcEDigits << QStringList();
}

void FamiliesTest::layouts()
{
    QFETCH(int, symbology);
    QFETCH(int, variant);
    const families::RetailLayout *layout = families::retailLayoutOf(symbology, variant);
    QVERIFY(layout);
    QTEST(guardsOf(*layout), "guards");
    QTEST(digitsOf(*layout), "digits");
    QTEST(marksOf(*layout), "marks");
}

void FamiliesTest::onlyRetailCodesHaveLayouts()
{
    for (int symbology = Lowest; symbology <= Highest; ++symbology) {
        for (int variant = -2; variant <= 5; ++variant) {
            const bool isEan = symbology == 13 || symbology == 130;
            const bool isUpc = symbology == 34 || symbology == 37 || symbology == 135 || symbology == 136;
            const bool expected = isUpc || (isEan && (variant == 2 || variant == 3));
            QVERIFY2((families::retailLayoutOf(symbology, variant) != nullptr) == expected,
                     qPrintable(QStringLiteral("%1, variant %2").arg(symbology).arg(variant)));
        }
    }
}

void FamiliesTest::rows_data()
{
    QTest::addColumn<Family>("family");
    QTest::addColumn<QVector<double>>("delivered");
    QTest::addColumn<QString>("heights");

    using Delivered = QVector<double>;
    const auto text = [](const char *heights) { return QString::fromLatin1(heights); };
    QTest::newRow("no family") << Family::None << Delivered{1, 1} << text("");
    QTest::newRow("plain linear") << Family::PlainLinear << Delivered{0} << text("bar");
    QTest::newRow("EAN") << Family::Ean << Delivered{0} << text("bar");
    QTest::newRow("UPC-A") << Family::UpcA << Delivered{0} << text("bar");
    QTest::newRow("UPC-E") << Family::UpcE << Delivered{0} << text("bar");
    QTest::newRow("linear codes draw their first row") << Family::PlainLinear << Delivered{0, 0, 0} << text("bar");
    QTest::newRow("stacked") << Family::Stacked << Delivered{0, 0, 0} << text("5 5 5");
    QTest::newRow("stacked with heights of its own") << Family::Stacked << Delivered{3, 2} << text("5 5");
    QTest::newRow("matrix") << Family::Matrix << Delivered{1, 1, 1} << text("1 1 1");
    QTest::newRow("DataBar stacked") << Family::DataBarStacked << Delivered{5, 1, 7} << text("bar 1 bar");
    QTest::newRow("DataBar stacked, more rows")
        << Family::DataBarStacked << Delivered{5, 1, 7, 1, 7} << text("bar 1 bar 1 1");
    QTest::newRow("DataBar stacked omnidirectional")
        << Family::DataBarStackedRows << Delivered{0, 1, 1, 1, 0} << text("bar 1 1 1 bar");
    QTest::newRow("DataBar expanded stacked")
        << Family::DataBarStackedRows << Delivered{0, 1, 1, 1, 0, 1, 1, 1, 0} << text("bar 1 1 1 bar 1 1 1 bar");
    QTest::newRow("EAN composite, CC-A") << Family::EanComposite << Delivered{2, 2, 2, 2, 2, 2, 0}
                                         << text("7 7 7 2 2 2 bar");
    QTest::newRow("UPC composite") << Family::UpcComposite << Delivered{2, 2, 2, 2, 2, 2, 2, 0}
                                   << text("7 7 7 7 2 2 2 bar");
    QTest::newRow("linear composite") << Family::LinearComposite << Delivered{2, 2, 2, 1, 0} << text("7 7 7 2 bar");
    QTest::newRow("linear composite, CC-C")
        << Family::LinearComposite << Delivered{3, 3, 3, 3, 1, 0} << text("7 7 7 7 2 bar");
    QTest::newRow("stacked composite") << Family::StackedComposite << Delivered{2, 2, 1, 5, 1, 7}
                                       << text("7 7 2 bar 1 bar");
    QTest::newRow("stacked omnidirectional composite")
        << Family::StackedComposite << Delivered{2, 2, 2, 1, 0, 1, 1, 1, 0} << text("7 7 7 2 bar 1 1 1 bar");
    QTest::newRow("nothing delivered") << Family::StackedComposite << Delivered{} << text("");
}

void FamiliesTest::rows()
{
    QFETCH(Family, family);
    QFETCH(QVector<double>, delivered);
    QTEST(heightsOf(families::rowsOf(family, delivered, {5, 7, 2})), "heights");
}

void FamiliesTest::marginsAndTexts_data()
{
    QTest::addColumn<Family>("family");
    QTest::addColumn<bool>("hasMargins");
    QTest::addColumn<bool>("hasText");

    QTest::newRow("no family") << Family::None << false << false;
    QTest::newRow("plain linear") << Family::PlainLinear << false << true;
    QTest::newRow("EAN") << Family::Ean << true << true;
    QTest::newRow("UPC-A") << Family::UpcA << true << true;
    QTest::newRow("UPC-E") << Family::UpcE << true << true;
    QTest::newRow("stacked") << Family::Stacked << false << false;
    QTest::newRow("matrix") << Family::Matrix << false << false;
    QTest::newRow("DataBar stacked") << Family::DataBarStacked << false << false;
    QTest::newRow("DataBar stacked rows") << Family::DataBarStackedRows << false << false;
    QTest::newRow("EAN composite") << Family::EanComposite << true << true;
    QTest::newRow("linear composite") << Family::LinearComposite << false << false;
    QTest::newRow("UPC composite") << Family::UpcComposite << true << true;
    QTest::newRow("stacked composite") << Family::StackedComposite << false << false;
}

void FamiliesTest::marginsAndTexts()
{
    QFETCH(Family, family);
    QTEST(families::hasMargins(family), "hasMargins");
    QTEST(families::hasText(family), "hasText");
}

QTEST_APPLESS_MAIN(FamiliesTest)
#include "tst_families.moc"

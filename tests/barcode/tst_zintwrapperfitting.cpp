// SPDX-License-Identifier: MIT
#include "barcode/zintwrapper.h"
#include "tests/barcode/barcodesamples.h"
#include "tests/support/stricttest.h"

#include <QFontMetricsF>
#include <QTest>
#include <cmath>

using barcodesamples::Sample;

namespace {

struct Fit
{
    double moduleWidth;
    double barHeight;
    QSizeF natural;
};

// What a symbol is fitted with.
struct Setup
{
    bool hasText;
    double gap;
    double guard;
    int stackedRow;
    int compositeRow;
    int separator;
};

constexpr Setup Setups[] = {{true, 0, 10, 3, 3, 1},
                            {false, 0, 10, 3, 3, 1},
                            {true, 4.5, 3, 5, 4, 2},
                            {false, 4.5, 30, 1, 2, 3},
                            {true, 0, 40, 2, 1, 1}};

void apply(ZintWrapper *barcode, const Setup &setup)
{
    barcode->setIsShowText(setup.hasText);
    barcode->setTextGap(setup.gap);
    barcode->setGuardExtension(setup.guard);
    barcode->setStackedRowModules(setup.stackedRow);
    barcode->setCompositeRowModules(setup.compositeRow);
    barcode->setCompositeSeparatorModules(setup.separator);
}

// The rules once more, one symbology after the other.
class Rules
{
public:
    Rules(const Sample &sample, const Setup &setup, const QFont &font)
        : m_sample(sample)
        , m_symbol(barcodesamples::encoded(sample))
        , m_setup(setup)
        , m_text(QFontMetricsF(font).horizontalAdvance(m_symbol.text()), QFontMetricsF(font).height())
    {
    }

    Fit fitted(double width, double height) const
    {
        const int symbology = m_sample.symbology;
        if (symbology == 13 || symbology == 34 || symbology == 37)
            return retail(width, height);
        if (symbology == 130 || symbology == 135 || symbology == 136)
            return retailComposite(width, height);
        if (symbology >= 131 && symbology <= 134)
            return linearComposite(width, height);
        if (symbology >= 137)
            return stackedComposite(width, height);
        if (symbology == 79)
            return dataBarStacked(width, height);
        if (symbology == 80 || symbology == 81)
            return dataBarRows(width, height);
        if (QVector<int>{55, 56, 84, 106, 108}.contains(symbology))
            return stacked(width, height);
        if (QVector<int>{58, 71, 92, 97, 102, 104, 112, 128}.contains(symbology))
            return matrix(width, height);
        return plain(width, height);
    }

private:
    Fit plain(double width, double height) const
    {
        const int columns = m_symbol.width();
        if (!m_setup.hasText)
            return {width / columns, height, {width, height}};
        const double module = std::max(width, m_text.width()) / columns;
        const double band = m_text.height() + m_setup.gap;
        const double bar = height >= band + module ? height - band : module;
        return {module, bar, {columns * module, bar + band}};
    }
    Fit retail(double width, double height) const
    {
        const int columns = m_symbol.width() + 20;
        const double module = (m_setup.hasText ? std::max(width, m_text.width()) : width) / columns;
        const double band = m_setup.gap + m_text.height();
        const double bar = std::max(module, height - band);
        return {module, bar, {columns * module, bar + band}};
    }
    Fit stacked(double width, double height) const
    {
        const int rowModules = m_setup.stackedRow;
        const double module = std::max(width / m_symbol.width(), height / (m_symbol.rows() * rowModules));
        return {module, rowModules * module, {m_symbol.width() * module, m_symbol.rows() * module * rowModules}};
    }
    Fit matrix(double width, double height) const
    {
        const double module = std::max(width / m_symbol.width(), height / m_symbol.rows());
        return {module, module, {m_symbol.width() * module, m_symbol.rows() * module}};
    }
    Fit dataBarStacked(double width, double height) const
    {
        const double module = width / m_symbol.width();
        const double bar = std::max(module, (height - module) * 0.5);
        return {module, bar, {width, 2 * bar + module}};
    }
    Fit dataBarRows(double width, double height) const
    {
        const double module = width / m_symbol.width();
        const int bars = (m_symbol.rows() + 3) / 4;
        const int separators = m_symbol.rows() - bars;
        const double bar = std::max(module, (height - separators * module) / bars);
        return {module, bar, {width, bars * bar + separators * module}};
    }
    Fit retailComposite(double width, double height) const
    {
        const int columns = m_symbol.width() + 20;
        const double module = (m_setup.hasText ? std::max(width, m_text.width()) : width) / columns;
        const double above =
            ((m_symbol.rows() - 4) * m_setup.compositeRow + 3 * m_setup.separator) * module; // three separators
        const double band = m_setup.gap + std::max(m_setup.guard, m_setup.hasText ? m_text.height() : 0);
        const double bar = std::max(module, height - above - band);
        return {module, bar, {columns * module, above + bar + band}};
    }
    Fit linearComposite(double width, double height) const
    {
        const double module = width / m_symbol.width();
        const double above = ((m_symbol.rows() - 2) * m_setup.compositeRow + m_setup.separator) * module;
        const double bar = std::max(module, height - above);
        return {module, bar, {width, above + bar}};
    }
    Fit stackedComposite(double width, double height) const
    {
        const double module = width / m_symbol.width();
        int modules = 0;
        int bars = 0;
        int separators = 0;
        for (int row = 0; row < m_symbol.rows(); ++row) {
            if (m_symbol.rowHeight(row) == 2)
                modules += m_setup.compositeRow;
            else if (m_symbol.rowHeight(row) == 1)
                modules += ++separators == 1 ? m_setup.separator : 1;
            else
                ++bars;
        }
        const double bar = std::max(module, (height - modules * module) / bars);
        return {module, bar, {width, modules * module + bars * bar}};
    }

    Sample m_sample;
    EncodedSymbol m_symbol;
    Setup m_setup;
    QSizeF m_text;
};

const double Widths[] = {10, 33.3, 57, 100, 200, 333.3, 1000};
const double Heights[] = {1, 5, 20, 50, 100, 400};

bool isSame(double a, double b)
{
    return std::abs(a - b) <= 1e-9 * std::max({1.0, std::abs(a), std::abs(b)});
}

bool isSame(const QSizeF &a, const QSizeF &b)
{
    return isSame(a.width(), b.width()) && isSame(a.height(), b.height());
}

QString described(double module, double bar, const QSizeF &natural)
{
    return QStringLiteral("modules of %1, bars of %2, in all %3 x %4")
        .arg(module)
        .arg(bar)
        .arg(natural.width())
        .arg(natural.height());
}

double textWidth(const char *text)
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(15);
    return QFontMetricsF(font).horizontalAdvance(QString::fromLatin1(text));
}

double textHeight()
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(15);
    return QFontMetricsF(font).height();
}

} // namespace

/// Module width and bar height for a size, and the size for them.
class ZintWrapperFittingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void rules_data();
    void rules();
    void fitsItsNaturalSize_data();
    void fitsItsNaturalSize();
    void signsDoNotCount_data();
    void signsDoNotCount();
    void naturalSizeOfGivenModules_data();
    void naturalSizeOfGivenModules();
    void qrOverflowsALowField();
    void textWiderThanTheField();
    void barsOverTheText();
    void barsAreNeverLowerThanAModule();
    void barsAloneFillTheField();
    void ean13InItsMargins();
    void pdf417InAWideField();
    void dataBarStacked();
    void lastNarrowRowsOfDataBar();
    void largerTextFont();
    void undrawnCodesFitToNothing_data();
    void undrawnCodesFitToNothing();
};

void ZintWrapperFittingTest::rules_data()
{
    barcodesamples::addRows();
}

void ZintWrapperFittingTest::rules()
{
    QFETCH(int, index);
    const Sample &sample = barcodesamples::all().at(index);
    for (const Setup &setup : Setups) {
        ZintWrapper barcode;
        barcodesamples::apply(&barcode, sample);
        apply(&barcode, setup);
        const Rules rules(sample, setup, barcode.textFont());
        for (const double width : Widths) {
            for (const double height : Heights) {
                const Fit expected = rules.fitted(width, height);
                QVERIFY(barcode.fitToSize({width, height}));
                const QSizeF natural = barcode.naturalSize();
                if (isSame(barcode.moduleWidth(), expected.moduleWidth) &&
                    isSame(barcode.barHeight(), expected.barHeight) && isSame(natural, expected.natural))
                    continue;
                QCOMPARE(described(barcode.moduleWidth(), barcode.barHeight(), natural),
                         described(expected.moduleWidth, expected.barHeight, expected.natural));
            }
        }
    }
}

void ZintWrapperFittingTest::fitsItsNaturalSize_data()
{
    barcodesamples::addRows();
}

void ZintWrapperFittingTest::fitsItsNaturalSize()
{
    QFETCH(int, index);
    for (const Setup &setup : Setups) {
        ZintWrapper barcode;
        barcodesamples::apply(&barcode, barcodesamples::all().at(index));
        apply(&barcode, setup);
        for (const double width : Widths) {
            for (const double height : Heights) {
                barcode.fitToSize({width, height});
                const double module = barcode.moduleWidth();
                const double bar = barcode.barHeight();
                const QSizeF natural = barcode.naturalSize();
                for (int round = 0; round < 3; ++round) {
                    barcode.fitToSize(barcode.naturalSize());
                    if (!isSame(barcode.moduleWidth(), module) || !isSame(barcode.barHeight(), bar) ||
                        !isSame(barcode.naturalSize(), natural))
                        QCOMPARE(described(barcode.moduleWidth(), barcode.barHeight(), barcode.naturalSize()),
                                 described(module, bar, natural));
                }
            }
        }
    }
}

void ZintWrapperFittingTest::signsDoNotCount_data()
{
    barcodesamples::addRows();
}

void ZintWrapperFittingTest::signsDoNotCount()
{
    QFETCH(int, index);
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::all().at(index));
    QVERIFY(barcode.fitToSize({200, 100}));
    const double module = barcode.moduleWidth();
    const double bar = barcode.barHeight();
    for (const QSizeF &size : {QSizeF(-200, 100), QSizeF(200, -100), QSizeF(-200, -100)}) {
        barcode.setModuleWidth(0);
        barcode.setBarHeight(0);
        QVERIFY(barcode.fitToSize(size));
        QCOMPARE(barcode.moduleWidth(), module);
        QCOMPARE(barcode.barHeight(), bar);
    }
}

void ZintWrapperFittingTest::naturalSizeOfGivenModules_data()
{
    QTest::addColumn<QByteArray>("sample");
    QTest::addColumn<QSizeF>("size");

    // Modules of 3 pixels and bars of 80.
    const auto row = [](const char *sample, double width, double height) {
        QTest::newRow(sample) << QByteArray(sample) << QSizeF(width, height);
    };
    const double text = textHeight();
    row("2 of 5 standard", 47 * 3, 80 + text);
    row("EAN-2 add-on", (20 + 20) * 3, 80 + text);
    row("EAN-8", (67 + 20) * 3, 80 + text);
    row("EAN-13", (95 + 20) * 3, 80 + text);
    row("UPC-A", (95 + 20) * 3, 80 + text);
    row("UPC-E", (51 + 20) * 3, 80 + text);
    row("PDF417", 103 * 3, 6 * 9);
    row("QR Code", 21 * 3, 21 * 3);
    row("Data Matrix", 32 * 3, 8 * 3);
    row("DataBar stacked", 50 * 3, 2 * 80 + 3);
    row("DataBar stacked omnidirectional", 50 * 3, 2 * 80 + 3 * 3);
    row("EAN-13 composite", (99 + 20) * 3, 3 * 9 + 3 * 3 + 80 + text);
    row("UPC-E composite", (55 + 20) * 3, 5 * 9 + 3 * 3 + 80 + text);
    row("GS1-128 composite", 145 * 3, 3 * 9 + 3 + 80);
    row("DataBar stacked composite", 56 * 3, 5 * 9 + 3 + 80 + 3 + 80);
}

void ZintWrapperFittingTest::naturalSizeOfGivenModules()
{
    QFETCH(QByteArray, sample);
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named(sample.constData()));
    barcode.setModuleWidth(3);
    barcode.setBarHeight(80);
    QTEST(barcode.naturalSize(), "size");
}

void ZintWrapperFittingTest::qrOverflowsALowField()
{
    ZintWrapper barcode;
    barcode.setSymbology(58);
    barcode.setData("1");
    QVERIFY(barcode.fitToSize({200, 100}));
    QCOMPARE(barcode.moduleWidth(), 200.0 / 21);
    QCOMPARE(barcode.barHeight(), 200.0 / 21);
    QCOMPARE(barcode.naturalSize(), QSizeF(200, 200));
}

void ZintWrapperFittingTest::textWiderThanTheField()
{
    ZintWrapper barcode;
    barcode.setData("Cheque 0042-77");
    const double width = textWidth("Cheque 0042-77");
    QVERIFY(width > 50);
    QVERIFY(barcode.fitToSize({50, 60}));
    QCOMPARE(barcode.moduleWidth(), width / barcode.symbolWidth());
    QCOMPARE(barcode.naturalSize(), QSizeF(width, 60));
    barcode.setIsShowText(false);
    QVERIFY(barcode.fitToSize({50, 60}));
    QCOMPARE(barcode.moduleWidth(), 50.0 / barcode.symbolWidth());
}

void ZintWrapperFittingTest::barsOverTheText()
{
    ZintWrapper barcode;
    barcode.setData("A");
    const int columns = barcode.symbolWidth();
    barcode.setTextGap(2.5);
    QVERIFY(barcode.fitToSize({2.0 * columns, 60}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), 60 - textHeight() - 2.5);
    QCOMPARE(barcode.naturalSize(), QSizeF(2.0 * columns, 60));
}

void ZintWrapperFittingTest::barsAreNeverLowerThanAModule()
{
    ZintWrapper barcode;
    barcode.setData("A");
    const double columns = barcode.symbolWidth();
    const double exact = textHeight() + 2;
    QVERIFY(barcode.fitToSize({2 * columns, exact}));
    QCOMPARE(barcode.barHeight(), 2.0);
    QVERIFY(barcode.fitToSize({2 * columns, exact + 0.25}));
    QCOMPARE(barcode.barHeight(), 2.25);
    for (const double height : {exact - 0.25, textHeight(), 1.0, 0.0}) {
        QVERIFY(barcode.fitToSize({2 * columns, height}));
        QCOMPARE(barcode.barHeight(), 2.0);
    }
}

void ZintWrapperFittingTest::barsAloneFillTheField()
{
    ZintWrapper barcode;
    barcode.setData("A");
    barcode.setIsShowText(false);
    barcode.setTextGap(5);
    const double columns = barcode.symbolWidth();
    for (const double height : {60.0, 1.0, 0.0}) {
        QVERIFY(barcode.fitToSize({2 * columns, height}));
        QCOMPARE(barcode.moduleWidth(), 2.0);
        QCOMPARE(barcode.barHeight(), height);
        QCOMPARE(barcode.naturalSize(), QSizeF(2 * columns, height));
    }
}

void ZintWrapperFittingTest::ean13InItsMargins()
{
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named("EAN-13"));
    QCOMPARE(barcode.symbolWidth(), 95);
    QVERIFY(barcode.fitToSize({230, 100}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), 100 - textHeight());
    QCOMPARE(barcode.naturalSize(), QSizeF(230, 100));
    // The guards reach below the bars without digits too.
    barcode.setIsShowText(false);
    QVERIFY(barcode.fitToSize({230, 100}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), 100 - textHeight());
    QCOMPARE(barcode.naturalSize(), QSizeF(230, 100));
    // The text with its check digit is wider than the field.
    barcode.setIsShowText(true);
    QVERIFY(barcode.fitToSize({23, 100}));
    QCOMPARE(barcode.moduleWidth(), textWidth("1234567890128") / 115);
}

void ZintWrapperFittingTest::pdf417InAWideField()
{
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named("PDF417"));
    const double columns = barcode.symbolWidth();
    const double rows = barcode.symbolRows();
    QVERIFY(barcode.fitToSize({columns * 2, 10}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), 6.0);
    QVERIFY(barcode.fitToSize({10, rows * 3 * 4}));
    QCOMPARE(barcode.moduleWidth(), 4.0);
    QCOMPARE(barcode.naturalSize(), QSizeF(columns * 4, rows * 12));
    barcode.setStackedRowModules(6);
    QVERIFY(barcode.fitToSize({10, rows * 3 * 4}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), 12.0);
}

void ZintWrapperFittingTest::dataBarStacked()
{
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named("DataBar stacked"));
    QCOMPARE(barcode.symbolWidth(), 50);
    QVERIFY(barcode.fitToSize({100, 51}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), 24.5);
    QCOMPARE(barcode.naturalSize(), QSizeF(100, 51));
}

void ZintWrapperFittingTest::lastNarrowRowsOfDataBar()
{
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named("DataBar stacked omnidirectional"));
    QCOMPARE(barcode.symbolRows(), 5);
    QVERIFY(barcode.fitToSize({100, 51}));
    QCOMPARE(barcode.moduleWidth(), 2.0);
    QCOMPARE(barcode.barHeight(), (51 - 3 * 2.0) / 2);
    QCOMPARE(barcode.naturalSize(), QSizeF(100, 51));
}

void ZintWrapperFittingTest::largerTextFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(40);
    const QFontMetricsF metrics(font);
    ZintWrapper barcode;
    barcode.setData("Cheque");
    barcode.setTextFont(font);
    QVERIFY(barcode.fitToSize({10, 100}));
    QCOMPARE(barcode.moduleWidth(), metrics.horizontalAdvance(QStringLiteral("Cheque")) / barcode.symbolWidth());
    QCOMPARE(barcode.barHeight(), 100 - metrics.height());
}

void ZintWrapperFittingTest::undrawnCodesFitToNothing_data()
{
    QTest::addColumn<int>("symbology");

    QTest::newRow("Code 11") << 1;
    QTest::newRow("Code 93") << 25;
    QTest::newRow("MaxiCode") << 57;
    QTest::newRow("DotCode") << 115;
    QTest::newRow("Han Xin") << 116;
}

void ZintWrapperFittingTest::undrawnCodesFitToNothing()
{
    QFETCH(int, symbology);
    ZintWrapper barcode;
    barcode.setSymbology(symbology);
    barcode.setData("123");
    barcode.setModuleWidth(3);
    barcode.setBarHeight(80);
    QVERIFY(barcode.symbolWidth() > 0);
    QCOMPARE(barcode.naturalSize(), QSizeF(0, 0));
    QVERIFY(barcode.fitToSize({200, 100}));
    QCOMPARE(barcode.moduleWidth(), 0.0);
    QCOMPARE(barcode.barHeight(), 0.0);
    QCOMPARE(barcode.naturalSize(), QSizeF(0, 0));
}

QTEST_MAIN(ZintWrapperFittingTest)
#include "tst_zintwrapperfitting.moc"

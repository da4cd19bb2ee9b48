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

QTEST_MAIN(ZintWrapperFittingTest)
#include "tst_zintwrapperfitting.moc"

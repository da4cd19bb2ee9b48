// SPDX-License-Identifier: MIT
// Each module on paper against the symbol of libzint: the only proof for symbologies and components that no program
// reads.
#include "barcode/tavrobarcode.h"
#include "tests/barcode/barcodesamples.h"
#include "tests/barcode/paper.h"
#include "tests/support/stricttest.h"

#include <QFontMetricsF>
#include <QTest>
#include <algorithm>

using barcodesamples::Sample;
using paper::PixelsPerMillimetre;

namespace {

constexpr double Module = 0.5; // millimetres
constexpr double Bars = 15;
constexpr double Margin = 10; // modules on both sides of EAN and UPC

bool isOneOf(int symbology, std::initializer_list<int> symbologies)
{
    return std::find(symbologies.begin(), symbologies.end(), symbology) != symbologies.end();
}

bool isRetail(int symbology)
{
    return isOneOf(symbology, {13, 34, 37, 130, 135, 136});
}

bool isAddOn(const Sample &sample)
{
    return sample.symbology == 13 && sample.eanVariant < 2;
}

// Height of a row in modules, 0 for bars.
double rowModules(int symbology, const EncodedSymbol &symbol, int row)
{
    constexpr double component = 3;
    const int fromBelow = symbol.rows() - 1 - row;
    if (isOneOf(symbology, {55, 56, 84, 106, 108}))
        return 3;
    if (isOneOf(symbology, {58, 71, 92, 97, 102, 104, 112, 128}))
        return 1;
    if (symbology == 79)
        return row == 1 ? 1 : 0;
    if (isOneOf(symbology, {80, 81}))
        return row % 4 == 0 ? 0 : 1;
    if (isOneOf(symbology, {137, 138, 139}))
        return symbol.rowHeight(row) == 2 ? component : symbol.rowHeight(row) == 1 ? 1 : 0;
    if (symbology >= 130)
        return fromBelow == 0 ? 0 : fromBelow <= (isRetail(symbology) ? 3 : 1) ? 1 : component;
    return 0;
}

// Below the bars, in millimetres.
double bandOf(int symbology)
{
    constexpr double guards = 10;
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(15);
    if (isOneOf(symbology, {130, 135, 136}))
        return guards / PixelsPerMillimetre;
    return isRetail(symbology) ? QFontMetricsF(font).height() / PixelsPerMillimetre : 0;
}

// Middles of the rows from the top of the symbol, in millimetres.
QVector<double> middlesOf(int symbology, const EncodedSymbol &symbol, double height)
{
    QVector<double> modules;
    for (int row = 0; row < symbol.rows(); ++row)
        modules.append(rowModules(symbology, symbol, row));
    double bars = height - bandOf(symbology);
    for (const double fixed : modules)
        bars -= fixed * Module;
    bars /= std::max(1, static_cast<int>(std::count(modules.cbegin(), modules.cend(), 0)));
    QVector<double> middles;
    double top = 0;
    for (const double fixed : qAsConst(modules)) {
        const double extent = fixed == 0 ? bars : fixed * Module;
        middles.append(top + extent / 2);
        top += extent;
    }
    return middles;
}

// The object prints what its settings can say, the engine the rest. Without text, which would widen narrow bars.
paper::Sheet sheetOf(const Sample &sample)
{
    if (!sample.primary.isEmpty() || isAddOn(sample))
        return paper::sheetOf({Module, Bars}, [&sample](ZintWrapper &engine) {
            engine.setIsShowText(false);
            barcodesamples::apply(&engine, sample);
        });
    const int symbology = sample.symbology != 13 ? sample.symbology : sample.eanVariant == 2 ? -1 : -2;
    return paper::sheetOf(symbology, QString::fromUtf8(sample.data), {Module},
                          [](TavroBarcode &barcode) { barcode.setHasReadableTxt(false); });
}

// The paper at a place of the symbol, in millimetres.
bool isDarkAt(const QImage &image, double dotsPerInch, double x, double y)
{
    const double dots = dotsPerInch / 25.4;
    const QPoint pixel(static_cast<int>((paper::QuietZone + x) * dots),
                       static_cast<int>((paper::QuietZone + y) * dots));
    return qGray(image.pixel(pixel)) < 128;
}

} // namespace

class TestPrintedModules : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void modules_data();
    void modules();
    void quietZone_data() { barcodesamples::addRows(); }
    void quietZone();
};

void TestPrintedModules::modules_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("resolution");
    for (int i = 0; i < barcodesamples::all().size(); ++i) {
        for (const int resolution : {203, 300, 600})
            QTest::addRow("%s, %d dpi", barcodesamples::all().at(i).name, resolution) << i << resolution;
    }
}

void TestPrintedModules::modules()
{
    QFETCH(int, index);
    QFETCH(int, resolution);
    const Sample &sample = barcodesamples::all().at(index);
    const EncodedSymbol symbol = barcodesamples::encoded(sample);
    QCOMPARE(symbol.result(), 0);
    const paper::Sheet sheet = sheetOf(sample);
    const QImage image = paper::printed(sheet, resolution);
    const QVector<double> middles = middlesOf(sample.symbology, symbol, sheet.size.height());
    const double left = isRetail(sample.symbology) && !isAddOn(sample) ? Margin * Module : 0;
    int wrong = 0;
    for (int row = 0; row < symbol.rows(); ++row) {
        for (int column = 0; column < symbol.width(); ++column) {
            const double x = left + (column + 0.5) * Module;
            wrong += isDarkAt(image, resolution, x, middles.at(row)) == symbol.isDark(row, column) ? 0 : 1;
        }
    }
    QCOMPARE(wrong, 0);
}

// Nothing is printed beyond the size that the symbol says it has.
void TestPrintedModules::quietZone()
{
    QFETCH(int, index);
    const paper::Sheet sheet = sheetOf(barcodesamples::all().at(index));
    constexpr int resolution = 300;
    QImage image = paper::printed(sheet, resolution);
    const double dots = resolution / 25.4;
    QPainter painter(&image);
    const QPointF corner(paper::QuietZone * dots, paper::QuietZone * dots);
    painter.fillRect(QRectF(corner, sheet.size * dots).toAlignedRect(), Qt::white);
    painter.end();
    QImage white(image.size(), image.format());
    white.fill(Qt::white);
    QCOMPARE(image, white);
}

QTEST_MAIN(TestPrintedModules)
#include "tst_printedmodules.moc"

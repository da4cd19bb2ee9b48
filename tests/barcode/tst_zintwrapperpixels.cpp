// SPDX-License-Identifier: MIT
// Modules as pixels: what stands side by side in a symbol stands side by side on the screen and on paper.
#include "barcode/zintwrapper.h"
#include "tests/barcode/barcodesamples.h"
#include "tests/support/stricttest.h"

#include <QImage>
#include <QTest>
#include <cmath>

using barcodesamples::Sample;

namespace {

// Dark and light modules of one row or column, with the places of their edges on the device.
struct Line
{
    QVector<bool> dark;
    double start;
    double module;
};

// First and last pixel that are dark beyond doubt within a run of modules: both edges may round to either side.
struct Run
{
    int first;
    int last;
};

QVector<Run> runsOf(const Line &line)
{
    QVector<Run> runs;
    for (int i = 0; i < line.dark.size(); ++i) {
        if (!line.dark.at(i))
            continue;
        int end = i;
        while (end < line.dark.size() && line.dark.at(end))
            ++end;
        const double left = line.start + i * line.module;
        const double right = line.start + end * line.module;
        runs.append({static_cast<int>(std::floor(left + 0.5)) + 1, static_cast<int>(std::floor(right - 0.5)) - 1});
        i = end;
    }
    return runs;
}

// Looked at along its middle, a row or column of less shows pixels of its neighbours.
constexpr double LeastPixels = 2;

bool isDark(const QImage &image, int x, int y)
{
    return !image.rect().contains(x, y) || qGray(image.pixel(x, y)) == 0;
}

struct Device
{
    double scale;
    QPointF origin;
};

QImage painted(ZintWrapper &barcode, const Device &device)
{
    const QSizeF size = barcode.naturalSize();
    QImage image(static_cast<int>((device.origin.x() + size.width()) * device.scale) + 2,
                 static_cast<int>((device.origin.y() + size.height()) * device.scale) + 2, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(device.scale, device.scale);
    barcode.paint(&painter, {device.origin, size});
    return image;
}

// Light pixels among dark modules that stand side by side, in every row.
int seamsAcross(const QImage &image, const EncodedSymbol &symbol, double left, double module, double rowHeight,
                const Device &device)
{
    int seams = 0;
    if (rowHeight * device.scale < LeastPixels)
        return seams;
    for (int row = 0; row < symbol.rows(); ++row) {
        Line line{{}, (device.origin.x() + left) * device.scale, module * device.scale};
        for (int column = 0; column < symbol.width(); ++column)
            line.dark.append(symbol.isDark(row, column));
        const int y = static_cast<int>((device.origin.y() + (row + 0.5) * rowHeight) * device.scale);
        for (const Run &run : runsOf(line)) {
            for (int x = run.first; x <= run.last; ++x)
                seams += isDark(image, x, y) ? 0 : 1;
        }
    }
    return seams;
}

// The same for dark modules that stand one above the other.
int seamsDown(const QImage &image, const EncodedSymbol &symbol, double left, double module, double rowHeight,
              const Device &device)
{
    int seams = 0;
    if (module * device.scale < LeastPixels)
        return seams;
    for (int column = 0; column < symbol.width(); ++column) {
        Line line{{}, device.origin.y() * device.scale, rowHeight * device.scale};
        for (int row = 0; row < symbol.rows(); ++row)
            line.dark.append(symbol.isDark(row, column));
        const int x = static_cast<int>((device.origin.x() + left + (column + 0.5) * module) * device.scale);
        for (const Run &run : runsOf(line)) {
            for (int y = run.first; y <= run.last; ++y)
                seams += isDark(image, x, y) ? 0 : 1;
        }
    }
    return seams;
}

} // namespace

/// Pixels of a barcode.
class ZintWrapperPixelsTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void noLightLines_data();
    void noLightLines();
    void widthsOfBars();
    void translucentModules();
};

void ZintWrapperPixelsTest::noLightLines_data()
{
    QTest::addColumn<QByteArray>("sample");
    QTest::addColumn<double>("scale");

    const struct
    {
        const char *name;
        double scale;
    } scales[] = {{"one to one", 1},       {"twice", 2},
                  {"a third", 1.0 / 3},    {"a half more", 1.5},
                  {"203 dpi", 203.0 / 96}, {"300 dpi", 300.0 / 96},
                  {"600 dpi", 600.0 / 96}};
    for (const char *sample : {"Code 128", "EAN-13", "QR Code", "PDF417", "Data Matrix"}) {
        for (const auto &scale : scales)
            QTest::addRow("%s, %s", sample, scale.name) << QByteArray(sample) << scale.scale;
    }
}

void ZintWrapperPixelsTest::noLightLines()
{
    QFETCH(QByteArray, sample);
    QFETCH(double, scale);
    const Sample &tested = barcodesamples::named(sample.constData());
    const EncodedSymbol symbol = barcodesamples::encoded(tested);
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, tested);
    barcode.setIsShowText(false);
    barcode.setBarHeight(4);
    const int left = tested.symbology == 13 ? 10 : 0;
    QVector<double> widths{1.0 / 3, 200.0 / 21, 200.0 / 95, 3.4999999, 3.5, 3.5000001};
    for (int i = 1; i <= 60; ++i)
        widths.append(i * 0.05);
    for (const double module : widths) {
        barcode.setModuleWidth(module);
        for (const QPointF &origin : {QPointF(0, 0), QPointF(10.37, 5.5), QPointF(0.3, 0.7)}) {
            const Device device{scale, origin};
            const double rowHeight = symbol.rows() == 1       ? 4
                                     : tested.symbology == 55 ? module * barcode.stackedRowModules()
                                                              : module;
            const QImage image = painted(barcode, device);
            const int seams = seamsAcross(image, symbol, left * module, module, rowHeight, device) +
                              seamsDown(image, symbol, left * module, module, rowHeight, device);
            QVERIFY2(seams == 0, qPrintable(QStringLiteral("%1 light pixels in modules of %2").arg(seams).arg(module)));
        }
    }
}

// Each bar is as wide as it should be, give or take the pixel to which its edges round.
void ZintWrapperPixelsTest::widthsOfBars()
{
    const Sample &tested = barcodesamples::named("Code 128");
    const EncodedSymbol symbol = barcodesamples::encoded(tested);
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, tested);
    barcode.setIsShowText(false);
    barcode.setBarHeight(4);
    for (const double module : {1.0, 2.0, 3.0, 2.5, 1.3, 7.77}) {
        barcode.setModuleWidth(module);
        const QImage image = painted(barcode, {1, {0, 0}});
        for (int column = 0; column < symbol.width(); ++column) {
            const int first = static_cast<int>(std::floor(column * module + 0.5 + 1e-3));
            const int last = static_cast<int>(std::floor((column + 1) * module + 0.5 - 1e-3)) - 1;
            for (int x = first; x <= last; ++x)
                QCOMPARE(isDark(image, x, 2), symbol.isDark(0, column));
        }
    }
}

// Modules share no pixel: it would be darker than the others.
void ZintWrapperPixelsTest::translucentModules()
{
    const Sample &tested = barcodesamples::named("QR Code");
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, tested);
    barcode.setForegroundColor(QColor(0, 0, 0, 128));
    for (const double module : {1.0, 2.0, 3.0, 2.6, 1.3, 7.77}) {
        barcode.setModuleWidth(module);
        const QImage image = painted(barcode, {1, {0, 0}});
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                colours.insert(image.pixel(x, y));
        }
        QCOMPARE(colours.size(), 2);
    }
}

QTEST_MAIN(ZintWrapperPixelsTest)
#include "tst_zintwrapperpixels.moc"

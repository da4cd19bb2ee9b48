// SPDX-License-Identifier: MIT
// Background and modules, command by command.
#include "barcode/zintwrapper.h"
#include "tests/barcode/barcodesamples.h"
#include "tests/support/stricttest.h"

#include <QSet>
#include <QTest>
#include <cmath>

using barcodesamples::described;
using barcodesamples::isNear;
using barcodesamples::modulesOf;
using barcodesamples::paintedBy;
using barcodesamples::Sample;

namespace {

constexpr QRectF Field(30, 20, 240, 120);

struct Setup
{
    QSizeF size;
    int stackedRow;
    int compositeRow;
    int separator;
    double guard;
};

const Setup Setups[] = {{{240, 120}, 3, 3, 1, 10}, {{333.3, 77.7}, 5, 4, 2, 4.5}, {{10, 10}, 1, 2, 3, 0}};

void apply(ZintWrapper *barcode, const Setup &setup)
{
    barcode->setStackedRowModules(setup.stackedRow);
    barcode->setCompositeRowModules(setup.compositeRow);
    barcode->setCompositeSeparatorModules(setup.separator);
    barcode->setGuardExtension(setup.guard);
    barcode->fitToSize(setup.size);
}

// Columns of guards, written out.
QSet<int> guardsOf(const Sample &sample)
{
    QSet<int> guards;
    const auto add = [&guards](int first, int last) {
        for (int column = first; column <= last; ++column)
            guards.insert(column);
    };
    const bool isEan = sample.symbology == 13 || sample.symbology == 130;
    if (isEan && sample.eanVariant == 2)
        guards = {0, 2, 32, 34, 64, 66};
    if (isEan && sample.eanVariant == 3)
        guards = {0, 2, 46, 48, 92, 94};
    if (sample.symbology == 34 || sample.symbology == 135) {
        add(0, 11);
        add(46, 48);
        add(85, 96);
    }
    if (sample.symbology == 37 || sample.symbology == 136) {
        add(0, 2);
        add(46, 50);
    }
    return guards;
}

// Where the modules of a symbol belong, out of what libzint encodes.
class Places
{
public:
    Places(const Sample &sample, const ZintWrapper &barcode, const Setup &setup)
        : m_sample(sample)
        , m_symbol(barcodesamples::encoded(sample))
        , m_setup(setup)
        , m_module(barcode.moduleWidth())
        , m_bar(barcode.barHeight())
    {
    }

    // Empty where a row is as high as the bars.
    QVector<QRectF> modules() const
    {
        const QSet<int> guards = guardsOf(m_sample);
        const double left = guards.isEmpty() ? 0 : 10 * m_module;
        QVector<QRectF> all;
        double y = 0;
        for (int row = 0; row < m_symbol.rows(); ++row) {
            const bool isBar = heightInModules(row) == 0;
            const double height = isBar ? m_bar : heightInModules(row) * m_module;
            for (int column = 0; column < m_symbol.width(); ++column) {
                if (!m_symbol.isDark(row, column))
                    continue;
                const bool isGuard = isBar && guards.contains(column - firstDark(row));
                all.append({left + column * m_module, y, m_module, height + (isGuard ? m_setup.guard : 0)});
            }
            y += height;
        }
        return all;
    }

private:
    // 0 for the height of the bars.
    double heightInModules(int row) const
    {
        const int symbology = m_sample.symbology;
        const int last = m_symbol.rows() - 1;
        if (QVector<int>{55, 56, 84, 106, 108}.contains(symbology))
            return m_setup.stackedRow;
        if (QVector<int>{58, 71, 92, 97, 102, 104, 112, 128}.contains(symbology))
            return 1;
        if (symbology == 79)
            return row == 0 || row == 2 ? 0 : 1;
        if (symbology == 80 || symbology == 81)
            return row % 4 == 0 ? 0 : 1;
        if (symbology == 130 || symbology == 135 || symbology == 136)
            return row == last ? 0 : row >= last - 3 ? m_setup.separator : m_setup.compositeRow;
        if (symbology >= 131 && symbology <= 134)
            return row == last ? 0 : row == last - 1 ? m_setup.separator : m_setup.compositeRow;
        if (symbology >= 137)
            return stackedCompositeHeight(row);
        return 0;
    }
    double stackedCompositeHeight(int row) const
    {
        if (m_symbol.rowHeight(row) == 2)
            return m_setup.compositeRow;
        if (m_symbol.rowHeight(row) != 1)
            return 0;
        // the one below the rows of the 2D component, or one of the linear component
        return m_symbol.rowHeight(row - 1) == 2 ? m_setup.separator : 1;
    }
    int firstDark(int row) const
    {
        int column = 0;
        while (!m_symbol.isDark(row, column))
            ++column;
        return column;
    }

    Sample m_sample;
    EncodedSymbol m_symbol;
    Setup m_setup;
    double m_module;
    double m_bar;
};

void compareModules(const QVector<QRectF> &painted, const QVector<QRectF> &expected)
{
    for (int i = 0; i < std::min(painted.size(), expected.size()); ++i) {
        if (!isNear(painted.at(i), expected.at(i)))
            QCOMPARE(described(painted.at(i)), described(expected.at(i)));
    }
    QCOMPARE(painted.size(), expected.size());
}

ZintWrapper *linear(ZintWrapper *barcode)
{
    barcode->setSymbology(20);
    barcode->setData("Cheque");
    return barcode;
}

} // namespace

/// What a barcode paints.
class ZintWrapperPaintingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void modules_data();
    void modules();
    void backgroundComesFirst_data();
    void backgroundComesFirst();
    void coloursReachTheBrushes();
    void nothingButTheBackground();
    void nothingLeavesTheNaturalSize_data();
    void nothingLeavesTheNaturalSize();
    void noPenAndNoSmoothing_data();
    void noPenAndNoSmoothing();
    void painterIsAsBefore_data();
    void painterIsAsBefore();
    void worksUnderATransform();
    void sizesStayAsFitted();
    void bandlessGuards();
};

void ZintWrapperPaintingTest::modules_data()
{
    barcodesamples::addRows();
}

void ZintWrapperPaintingTest::modules()
{
    QFETCH(int, index);
    const Sample &sample = barcodesamples::all().at(index);
    for (const Setup &setup : Setups) {
        for (const bool hasText : {false, true}) {
            ZintWrapper barcode;
            barcodesamples::apply(&barcode, sample);
            barcode.setIsShowText(hasText);
            apply(&barcode, setup);
            QVector<QRectF> expected = Places(sample, barcode, setup).modules();
            QVERIFY(!expected.isEmpty());
            const QVector<PaintCommand> commands = paintedBy(barcode, {QPointF(30, 20), setup.size});
            if (sample.symbology == 13 && sample.eanVariant < 2 && hasText) {
                // The margins that add-ons are fitted with but do not have leave them narrower than their text.
                const double shift = modulesOf(commands).at(0).x() - expected.at(0).x();
                QVERIFY(shift >= 0);
                for (QRectF &module : expected)
                    module.translate(shift, 0);
            }
            compareModules(modulesOf(commands), expected);
            for (const PaintCommand &command : commands.mid(1))
                QCOMPARE(command.transform, QTransform::fromTranslate(30, 20));
            if (QTest::currentTestFailed())
                return;
        }
    }
}

void ZintWrapperPaintingTest::backgroundComesFirst_data()
{
    barcodesamples::addRows();
}

void ZintWrapperPaintingTest::backgroundComesFirst()
{
    QFETCH(int, index);
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::all().at(index));
    barcode.fitToSize(Field.size());
    const QVector<PaintCommand> commands = paintedBy(barcode, Field);
    QCOMPARE(commands.at(0).kind, PaintCommand::Rect);
    QCOMPARE(commands.at(0).rect, Field);
    QCOMPARE(commands.at(0).brush, QBrush(Qt::white));
    QCOMPARE(commands.at(0).pen.style(), Qt::NoPen);
    QVERIFY(commands.at(0).transform.isIdentity());
    for (const PaintCommand &command : commands.mid(1)) {
        QVERIFY(command.kind == PaintCommand::Rect || command.kind == PaintCommand::Text);
        QVERIFY(command.kind == PaintCommand::Text || command.brush == QBrush(Qt::black));
        QCOMPARE(command.opacity, 1.0);
        QVERIFY(!command.hasClip);
    }
}

void ZintWrapperPaintingTest::coloursReachTheBrushes()
{
    ZintWrapper barcode;
    linear(&barcode)->fitToSize(Field.size());
    const auto brushes = [&barcode] {
        const QVector<PaintCommand> commands = paintedBy(barcode, Field);
        return QVector<QBrush>{commands.at(0).brush, commands.at(1).brush, QBrush(commands.last().pen.color())};
    };
    const QColor blue(10, 20, 30, 40);
    const QColor yellow(250, 240, 10, 200);
    QCOMPARE(brushes(), (QVector<QBrush>{QBrush(Qt::white), QBrush(Qt::black), QBrush(Qt::black)}));
    barcode.setForegroundColor(blue);
    QCOMPARE(brushes(), (QVector<QBrush>{QBrush(Qt::white), QBrush(blue), QBrush(blue)}));
    barcode.setBackgroundColor(yellow);
    QCOMPARE(brushes(), (QVector<QBrush>{QBrush(yellow), QBrush(blue), QBrush(blue)}));
    barcode.setForegroundColor(Qt::black);
    QCOMPARE(brushes(), (QVector<QBrush>{QBrush(yellow), QBrush(Qt::black), QBrush(Qt::black)}));
}

void ZintWrapperPaintingTest::nothingButTheBackground()
{
    QVector<int> undrawn;
    for (int symbology = -5; symbology <= 200; ++symbology) {
        if (families::familyOf(symbology) != families::Family::None)
            continue;
        for (const char *data : {"1", "12", "123", "1234567", "12345678901", "123456789012", "ABC"}) {
            ZintWrapper barcode;
            barcode.setSymbology(symbology);
            barcode.setData(data);
            barcode.setModuleWidth(3);
            barcode.setBarHeight(80);
            if (!barcode.encode())
                continue;
            QCOMPARE(paintedBy(barcode, Field).size(), 1);
            if (!undrawn.contains(symbology))
                undrawn.append(symbology);
        }
    }
    QVERIFY(undrawn.contains(1));  // Code 11
    QVERIFY(undrawn.contains(25)); // Code 93
    QVERIFY(undrawn.contains(57)); // MaxiCode
    QVERIFY(undrawn.size() > 25);
}

void ZintWrapperPaintingTest::nothingLeavesTheNaturalSize_data()
{
    barcodesamples::addRows();
}

void ZintWrapperPaintingTest::nothingLeavesTheNaturalSize()
{
    QFETCH(int, index);
    constexpr double rounding = 1e-4;
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::all().at(index));
    for (const bool hasText : {true, false}) {
        barcode.setIsShowText(hasText);
        for (const double width : {3.0, 20.0, 57.7, 100.0, 333.3, 1000.0}) {
            for (const double height : {1.0, 13.0, 33.3, 100.0, 500.0}) {
                // a mark is wider than the quiet zone of a tiny symbol
                barcode.setHasQuietZoneMarks(width >= 100);
                barcode.fitToSize({width, height});
                const QRectF natural =
                    QRectF(QPointF(), barcode.naturalSize()).adjusted(-rounding, -rounding, rounding, rounding);
                const QVector<PaintCommand> commands = paintedBy(barcode, {0, 0, width, height});
                QVERIFY(commands.size() > 10);
                for (const PaintCommand &command : commands.mid(1)) {
                    if (!natural.contains(command.rect))
                        QCOMPARE(command.text + described(command.rect), described(natural));
                }
            }
        }
    }
}

void ZintWrapperPaintingTest::noPenAndNoSmoothing_data()
{
    barcodesamples::addRows();
}

void ZintWrapperPaintingTest::noPenAndNoSmoothing()
{
    QFETCH(int, index);
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::all().at(index));
    barcode.fitToSize(Field.size());
    RecordingDevice device;
    QPainter painter(&device);
    painter.setPen(QPen(Qt::red, 4));
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    barcode.paint(&painter, Field);
    const QVector<PaintCommand> rects = device.commands(PaintCommand::Rect);
    QVERIFY(rects.size() > 10);
    for (const PaintCommand &command : rects) {
        QCOMPARE(command.pen.style(), Qt::NoPen);
        QVERIFY(!command.hints.testFlag(QPainter::Antialiasing));
    }
    const QVector<PaintCommand> texts = device.commands(PaintCommand::Text);
    for (const PaintCommand &command : texts)
        QVERIFY(command.hints.testFlag(QPainter::TextAntialiasing));
}

void ZintWrapperPaintingTest::painterIsAsBefore_data()
{
    QTest::addColumn<int>("symbology");
    QTest::addColumn<QByteArray>("data");

    QTest::newRow("plain linear") << 20 << QByteArray("Cheque");
    QTest::newRow("EAN") << 13 << QByteArray("123456789012");
    QTest::newRow("EAN of a wrong length") << 13 << QByteArray("1234567890128");
    QTest::newRow("UPC-A") << 34 << QByteArray("12345678901");
    QTest::newRow("matrix") << 58 << QByteArray("Cheque");
    QTest::newRow("nothing") << 58 << QByteArray();
    QTest::newRow("no family") << 57 << QByteArray("Cheque");
}

void ZintWrapperPaintingTest::painterIsAsBefore()
{
    QFETCH(int, symbology);
    QFETCH(QByteArray, data);
    ZintWrapper barcode;
    barcode.setSymbology(symbology);
    barcode.setData(data);
    barcode.setHasQuietZoneMarks(true);
    barcode.fitToSize(Field.size());
    for (const bool isSmooth : {false, true}) {
        RecordingDevice device;
        QPainter painter(&device);
        const QPen pen(Qt::magenta, 3, Qt::DashLine);
        const QBrush brush(Qt::green, Qt::Dense4Pattern);
        painter.setPen(pen);
        painter.setBrush(brush);
        painter.setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 33));
        const QFont font = painter.font(); // of this device
        painter.setOpacity(0.5);
        painter.setRenderHint(QPainter::Antialiasing, isSmooth);
        painter.setRenderHint(QPainter::TextAntialiasing, !isSmooth);
        const QPainter::RenderHints hints = painter.renderHints();
        painter.scale(2, 3);
        painter.rotate(30);
        const QTransform transform = painter.transform();
        barcode.paint(&painter, Field);
        QCOMPARE(painter.pen(), pen);
        QCOMPARE(painter.brush(), brush);
        QCOMPARE(painter.font(), font);
        QCOMPARE(painter.opacity(), 0.5);
        QCOMPARE(painter.renderHints(), hints);
        QCOMPARE(painter.transform(), transform);
        QVERIFY(!painter.hasClipping());
    }
}

void ZintWrapperPaintingTest::worksUnderATransform()
{
    ZintWrapper barcode;
    linear(&barcode)->fitToSize(Field.size());
    RecordingDevice device;
    QPainter painter(&device);
    painter.translate(7, 5);
    painter.scale(3, 2);
    const QTransform transform = painter.transform();
    barcode.paint(&painter, Field);
    QCOMPARE(device.commands().at(0).transform, transform);
    const QTransform inField = QTransform::fromTranslate(Field.x(), Field.y()) * transform;
    for (const PaintCommand &command : device.commands().mid(1))
        QCOMPARE(command.transform, inField);
}

void ZintWrapperPaintingTest::sizesStayAsFitted()
{
    ZintWrapper barcode;
    linear(&barcode)->fitToSize({240, 120});
    const double module = barcode.moduleWidth();
    const double bar = barcode.barHeight();
    paintedBy(barcode, {0, 0, 1000, 10});
    QCOMPARE(barcode.moduleWidth(), module);
    QCOMPARE(barcode.barHeight(), bar);
    barcode.setData("1");
    const QVector<QRectF> modules = modulesOf(paintedBy(barcode, Field));
    QVERIFY(isNear(modules.at(0), {0, 0, module, bar}));
}

// The guards reach down without any digits between them.
void ZintWrapperPaintingTest::bandlessGuards()
{
    ZintWrapper barcode;
    barcodesamples::apply(&barcode, barcodesamples::named("EAN-8"));
    barcode.setIsShowText(false);
    barcode.setGuardExtension(7.5);
    barcode.setModuleWidth(2);
    barcode.setBarHeight(40);
    QSet<double> guards;
    for (const QRectF &module : modulesOf(paintedBy(barcode, Field))) {
        if (module.height() > 41)
            guards.insert(std::round((module.x() - 20) / 2));
        QVERIFY(std::abs(module.height() - 40) < 1e-4 || std::abs(module.height() - 47.5) < 1e-4);
    }
    QCOMPARE(guards, (QSet<double>{0, 2, 32, 34, 64, 66}));
}

QTEST_MAIN(ZintWrapperPaintingTest)
#include "tst_zintwrapperpainting.moc"

// SPDX-License-Identifier: MIT
// Readable texts below the bars.
#include "barcode/zintwrapper.h"
#include "tests/barcode/barcodesamples.h"
#include "tests/support/stricttest.h"

#include <QFontMetricsF>
#include <QTest>
#include <cmath>

using barcodesamples::paintedBy;
using barcodesamples::Sample;

namespace {

constexpr QRectF Field(30, 20, 460, 120);
constexpr double Gap = 3;

QVector<PaintCommand> textsOf(const QVector<PaintCommand> &commands)
{
    QVector<PaintCommand> texts;
    for (const PaintCommand &command : commands) {
        if (command.kind == PaintCommand::Text)
            texts.append(command);
    }
    return texts;
}

// A text as it should be painted: in a span of columns, "left", "right" or in the middle of it.
struct Expected
{
    QString text;
    double column;
    double span;
    QString place;
    bool isSmall;
};

using Texts = QVector<Expected>;

struct Band
{
    double moduleWidth;
    double left;
    double top;
    double height;
};

// The rectangle of a painted text is as wide as the text and stands where the alignment puts it.
void compareText(const PaintCommand &painted, const Expected &expected, const Band &band)
{
    constexpr double rounding = 0.05; // texts stand at whole 64ths of a pixel
    QCOMPARE(painted.text, expected.text);
    QCOMPARE(painted.font.family(), QStringLiteral("Arial"));
    QCOMPARE(painted.font.pixelSize(), expected.isSmall ? 10 : 15); // seven tenths, without the fraction
    QCOMPARE(painted.pen.color(), QColor(Qt::darkBlue));
    QCOMPARE(painted.pen.widthF(), 1.0);
    QVERIFY(!painted.hasClip);
    const double left = band.left + expected.column * band.moduleWidth;
    const double right = left + expected.span * band.moduleWidth;
    if (expected.place == QLatin1String("left"))
        QVERIFY(std::abs(painted.rect.left() - left) < rounding);
    else if (expected.place == QLatin1String("right"))
        QVERIFY(std::abs(painted.rect.right() - right) < rounding);
    else
        QVERIFY(std::abs(painted.rect.center().x() - (left + right) / 2) < rounding);
    if (expected.isSmall)
        QVERIFY(std::abs(painted.rect.bottom() - (band.top + band.height)) < rounding);
    else
        QVERIFY(std::abs(painted.rect.top() - band.top) < rounding);
}

const QString Middle = QStringLiteral("middle");
const QString Left = QStringLiteral("left");
const QString Right = QStringLiteral("right");

Expected group(const char *text, double column, double span, const QString &place = Middle, bool isSmall = false)
{
    return {QString::fromLatin1(text), column, span, place, isSmall};
}

ZintWrapper *prepare(ZintWrapper *barcode, const Sample &sample)
{
    barcodesamples::apply(barcode, sample);
    barcode->setForegroundColor(Qt::darkBlue);
    barcode->setTextGap(Gap);
    return barcode;
}

// Bottom of the bars, from what is painted: the lowest edge of those that are no guards.
double bottomOfBars(const QVector<PaintCommand> &commands)
{
    const QVector<QRectF> modules = barcodesamples::modulesOf(commands);
    double top = 0;
    for (const QRectF &module : modules)
        top = std::max(top, module.top());
    double bottom = 1e9;
    for (const QRectF &module : modules) {
        if (module.top() >= top - 1e-9)
            bottom = std::min(bottom, module.bottom());
    }
    return bottom;
}

} // namespace

Q_DECLARE_METATYPE(Texts)

/// Readable texts of barcodes.
class ZintWrapperTextsTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void digitGroups_data();
    void digitGroups();
    void lineUnderTheBars_data();
    void lineUnderTheBars();
    void lineOfBarsThatAreShifted();
    void codesWithoutText_data();
    void codesWithoutText();
    void hiddenTexts_data();
    void hiddenTexts();
    void marksNeedTheText();
    void widerThanTheirSpan();
    void anyFont();
    void smallFontOfATinyOne();
};

void ZintWrapperTextsTest::digitGroups_data()
{
    QTest::addColumn<QByteArray>("sample");
    QTest::addColumn<bool>("hasMarks");
    QTest::addColumn<Texts>("texts");

    const auto row = [](const char *name, const char *sample, bool hasMarks, const Texts &texts) {
        QTest::newRow(name) << QByteArray(sample) << hasMarks << texts;
    };
    const Texts ean8{group("1234", 3, 29), group("5670", 35, 29)};
    const Texts ean13{group("1", -10, 10, Left), group("234567", 3, 43), group("890128", 49, 43)};
    const Texts upcA{group("1", -10, 10, Left, true), group("23456", 11, 35), group("78901", 49, 36),
                     group("2", 95, 10, Right, true)};
    const Texts upcE{group("1", -10, 10, Left, true), group("234567", 3, 43), group("0", 51, 10, Right, true)};
    Texts upcAWithAddOn = upcA;
    upcAWithAddOn.last().text = QStringLiteral("2+12");
    const Texts ean8Marks{group("<", -10, 10, Left), group(">", 67, 10, Left)};
    const Texts ean13Marks{group(">", 95, 10, Right)};

    row("EAN-8", "EAN-8", false, ean8);
    row("EAN-8 with marks", "EAN-8", true, ean8 + ean8Marks);
    row("EAN-13", "EAN-13", false, ean13);
    row("EAN-13 with marks", "EAN-13", true, ean13 + ean13Marks);
    row("UPC-A", "UPC-A", false, upcA);
    row("UPC-A has no marks", "UPC-A", true, upcA);
    row("UPC-A with add-on", "UPC-A with add-on", false, upcAWithAddOn);
    row("UPC-E", "UPC-E", false, upcE);
    row("UPC-E has no marks", "UPC-E", true, upcE);
    row("EAN-8 composite", "EAN-8 composite", false, ean8);
    row("EAN-8 composite with marks", "EAN-8 composite", true, ean8 + ean8Marks);
    row("EAN-13 composite", "EAN-13 composite", false, ean13);
    row("EAN-13 composite with marks", "EAN-13 composite", true, ean13 + ean13Marks);
    row("UPC-A composite", "UPC-A composite", false, upcA);
    row("UPC-E composite", "UPC-E composite", false, upcE);
}

void ZintWrapperTextsTest::digitGroups()
{
    QFETCH(QByteArray, sample);
    QFETCH(bool, hasMarks);
    QFETCH(Texts, texts);
    const Sample &tested = barcodesamples::named(sample.constData());
    const EncodedSymbol symbol = barcodesamples::encoded(tested);
    int firstBar = 0; // to the right of what stands above
    while (!symbol.isDark(symbol.rows() - 1, firstBar))
        ++firstBar;
    ZintWrapper barcode;
    prepare(&barcode, tested)->setHasQuietZoneMarks(hasMarks);
    for (const QSizeF &size : {QSizeF(460, 120), QSizeF(300, 200)}) {
        barcode.fitToSize(size);
        const QVector<PaintCommand> commands = paintedBy(barcode, Field);
        const QVector<PaintCommand> painted = textsOf(commands);
        QCOMPARE(painted.size(), texts.size());
        const double module = barcode.moduleWidth();
        const double top = bottomOfBars(commands) + Gap;
        const Band band{module, (10 + firstBar) * module, top, QFontMetricsF(barcode.textFont()).height()};
        for (int i = 0; i < texts.size(); ++i) {
            compareText(painted.at(i), texts.at(i), band);
            if (QTest::currentTestFailed())
                return;
        }
    }
}

void ZintWrapperTextsTest::lineUnderTheBars_data()
{
    QTest::addColumn<QByteArray>("sample");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *sample, const char *text) {
        QTest::newRow(sample) << QByteArray(sample) << QString::fromLatin1(text);
    };
    row("2 of 5 standard", "123");
    row("Code 39", "*CHEQUE 77*");
    row("GS1-128", "(01)12345678901231");
    row("Code 128", "Cheque 0042-77");
    row("DataBar omnidirectional", "(01)12345678901231");
    row("MSI Plessey", "1234");
    row("HIBC Code 39", "*+A1234I*");
    row("EAN-2 add-on", "12");
    row("EAN-5 add-on", "12345");
}

void ZintWrapperTextsTest::lineUnderTheBars()
{
    QFETCH(QByteArray, sample);
    QFETCH(QString, text);
    ZintWrapper barcode;
    prepare(&barcode, barcodesamples::named(sample.constData()))->fitToSize(Field.size());
    const QVector<PaintCommand> commands = paintedBy(barcode, Field);
    QCOMPARE(commands.last().kind, PaintCommand::Text);
    QCOMPARE(textsOf(commands).size(), 1);
    const Band band{barcode.moduleWidth(), 0, barcode.barHeight() + Gap, 0};
    compareText(commands.last(), {text, 0, double(barcode.symbolWidth()), Middle, false}, band);
}

void ZintWrapperTextsTest::lineOfBarsThatAreShifted()
{
    ZintWrapper barcode;
    prepare(&barcode, barcodesamples::named("Code 128"));
    barcode.setModuleWidth(0.25);
    barcode.setBarHeight(20);
    const QVector<PaintCommand> commands = paintedBy(barcode, Field);
    const QRectF bars = barcodesamples::modulesOf(commands).first().united(barcodesamples::modulesOf(commands).last());
    const QRectF text = commands.last().rect;
    QVERIFY(std::abs(text.left()) < 1e-3);
    QVERIFY(std::abs(text.top() - (20 + Gap)) < 1e-3);
    QVERIFY(std::abs(text.center().x() - bars.center().x()) < 1e-3);
    QVERIFY(bars.left() > 5);
}

void ZintWrapperTextsTest::codesWithoutText_data()
{
    barcodesamples::addRows();
}

void ZintWrapperTextsTest::codesWithoutText()
{
    QFETCH(int, index);
    const Sample &sample = barcodesamples::all().at(index);
    const QVector<int> withText{2,  3,  4,  6,  7,  8,  13, 16, 20, 29,  30,  31,
                                32, 34, 37, 47, 60, 72, 86, 98, 99, 130, 135, 136};
    ZintWrapper barcode;
    prepare(&barcode, sample)->fitToSize(Field.size());
    QCOMPARE(textsOf(paintedBy(barcode, Field)).isEmpty(), !withText.contains(sample.symbology));
}

void ZintWrapperTextsTest::hiddenTexts_data()
{
    barcodesamples::addRows();
}

void ZintWrapperTextsTest::hiddenTexts()
{
    QFETCH(int, index);
    ZintWrapper barcode;
    prepare(&barcode, barcodesamples::all().at(index))->setIsShowText(false);
    barcode.setHasQuietZoneMarks(true);
    barcode.fitToSize(Field.size());
    QVERIFY(textsOf(paintedBy(barcode, Field)).isEmpty());
}

void ZintWrapperTextsTest::marksNeedTheText()
{
    ZintWrapper barcode;
    prepare(&barcode, barcodesamples::named("EAN-8"))->setHasQuietZoneMarks(true);
    barcode.fitToSize(Field.size());
    QCOMPARE(textsOf(paintedBy(barcode, Field)).size(), 4);
    barcode.setIsShowText(false);
    QCOMPARE(textsOf(paintedBy(barcode, Field)).size(), 0);
    // add-ons have no quiet zone
    barcodesamples::apply(&barcode, barcodesamples::named("EAN-2 add-on"));
    barcode.setIsShowText(true);
    QCOMPARE(textsOf(paintedBy(barcode, Field)).size(), 1);
}

// Digits are never cut off, also where their span is too narrow for them.
void ZintWrapperTextsTest::widerThanTheirSpan()
{
    const Texts ean13{group("1", -10, 10, Left), group("234567", 3, 43), group("890128", 49, 43)};
    ZintWrapper barcode;
    prepare(&barcode, barcodesamples::named("EAN-13"))->fitToSize(Field.size());
    barcode.setModuleWidth(0.5);
    const QVector<PaintCommand> painted = textsOf(paintedBy(barcode, Field));
    QCOMPARE(painted.size(), 3);
    QVERIFY(painted.at(1).rect.width() > 43 * 0.5);
    for (int i = 0; i < ean13.size(); ++i)
        compareText(painted.at(i), ean13.at(i), {0.5, 5, barcode.barHeight() + Gap, 0});
}

void ZintWrapperTextsTest::anyFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(27);
    font.setBold(true);
    ZintWrapper barcode;
    prepare(&barcode, barcodesamples::named("UPC-A"))->setTextFont(font);
    barcode.fitToSize(Field.size());
    const QVector<PaintCommand> painted = textsOf(paintedBy(barcode, Field));
    QCOMPARE(painted.size(), 4);
    for (int i = 0; i < painted.size(); ++i) {
        QCOMPARE(painted.at(i).font.family(), QStringLiteral("DejaVu Sans"));
        QVERIFY(painted.at(i).font.bold());
        QCOMPARE(painted.at(i).font.pixelSize(), i == 0 || i == 3 ? 18 : 27);
    }
}

void ZintWrapperTextsTest::smallFontOfATinyOne()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(1);
    ZintWrapper barcode;
    prepare(&barcode, barcodesamples::named("UPC-E"))->setTextFont(font);
    barcode.fitToSize(Field.size());
    const QVector<PaintCommand> painted = textsOf(paintedBy(barcode, Field));
    QCOMPARE(painted.size(), 3);
    QCOMPARE(painted.at(0).font.pixelSize(), 1);
}

QTEST_MAIN(ZintWrapperTextsTest)
#include "tst_zintwrappertexts.moc"

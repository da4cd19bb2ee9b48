// SPDX-License-Identifier: MIT
#pragma once

#include "barcode/zintwrapper.h"
#include "tests/barcode/encodedsymbol.h"
#include "tests/support/recordingpaintengine.h"

#include <QTest>
#include <cmath>

/// A content for each symbology that is drawn.
namespace barcodesamples {

struct Sample
{
    const char *name;
    int symbology;
    QByteArray data;
    QByteArray primary;
    int eanVariant;
};

inline const QVector<Sample> &all()
{
    constexpr int none = 3;
    static const QByteArray component("[21]A12345678");
    static const QVector<Sample> samples{
        {"2 of 5 standard", 2, "123", {}, none},
        {"2 of 5 interleaved", 3, "1234", {}, none},
        {"2 of 5 IATA", 4, "1234", {}, none},
        {"2 of 5 data logic", 6, "1234", {}, none},
        {"2 of 5 industrial", 7, "1234", {}, none},
        {"Code 39", 8, "CHEQUE 77", {}, none},
        {"EAN-2 add-on", 13, "12", {}, 0},
        {"EAN-5 add-on", 13, "12345", {}, 1},
        {"EAN-8", 13, "1234567", {}, 2},
        {"EAN-13", 13, "123456789012", {}, 3},
        {"GS1-128", 16, "[01]12345678901231", {}, none},
        {"Code 128", 20, "Cheque 0042-77", {}, none},
        {"DataBar omnidirectional", 29, "1234567890123", {}, none},
        {"DataBar limited", 30, "1234567890123", {}, none},
        {"DataBar expanded", 31, "[01]12345678901231", {}, none},
        {"Telepen", 32, "Cheque", {}, none},
        {"UPC-A", 34, "12345678901", {}, none},
        {"UPC-A with add-on", 34, "12345678901+12", {}, none},
        {"UPC-E", 37, "1234567", {}, none},
        {"MSI Plessey", 47, "1234", {}, none},
        {"PDF417", 55, "Cheque 0042-77", {}, none},
        {"truncated PDF417", 56, "Cheque 0042-77", {}, none},
        {"QR Code", 58, "Cheque", {}, none},
        {"Code 128 B", 60, "Cheque", {}, none},
        {"Data Matrix", 71, "12345678901234567890", {}, none},
        {"EAN-14", 72, "1234567890123", {}, none},
        {"DataBar stacked", 79, "1234567890123", {}, none},
        {"DataBar stacked omnidirectional", 80, "1234567890123", {}, none},
        {"DataBar expanded stacked", 81, "[01]90012345678908[3103]001750[10]ABC", {}, none},
        {"MicroPDF417", 84, "Cheque 0042-77", {}, none},
        {"UK Plessey", 86, "1234", {}, none},
        {"Aztec", 92, "Cheque 0042-77 of 12 May", {}, none},
        {"Micro QR", 97, "CHEQUE", {}, none},
        {"HIBC Code 128", 98, "A1234", {}, none},
        {"HIBC Code 39", 99, "A1234", {}, none},
        {"HIBC Data Matrix", 102, "A1234", {}, none},
        {"HIBC QR", 104, "A1234", {}, none},
        {"HIBC PDF417", 106, "A1234", {}, none},
        {"HIBC MicroPDF417", 108, "A1234", {}, none},
        {"HIBC Aztec", 112, "A1234", {}, none},
        {"Aztec rune", 128, "123", {}, none},
        {"EAN-8 composite", 130, component, "1234567", 2},
        {"EAN-13 composite", 130, component, "123456789012", 3},
        {"GS1-128 composite", 131, component, "[01]12345678901231", none},
        {"DataBar composite", 132, component, "1234567890123", none},
        {"DataBar limited composite", 133, component, "1234567890123", none},
        {"DataBar expanded composite", 134, component, "[01]12345678901231", none},
        {"UPC-A composite", 135, component, "12345678901", none},
        {"UPC-E composite", 136, component, "1234567", none},
        {"DataBar stacked composite", 137, component, "1234567890123", none},
        {"DataBar stacked omnidirectional composite", 138, component, "1234567890123", none},
        {"DataBar expanded stacked composite", 139, component, "[01]12345678901231[10]ABCDEFGHIJKLMNO", none},
    };
    return samples;
}

/// Rows named after the samples; the column "index" leads back into the table.
inline void addRows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < all().size(); ++i)
        QTest::newRow(all().at(i).name) << i;
}

inline const Sample &named(const char *name)
{
    for (const Sample &sample : all()) {
        if (qstrcmp(sample.name, name) == 0)
            return sample;
    }
    qFatal("no sample of that name");
}

inline void apply(ZintWrapper *barcode, const Sample &sample)
{
    barcode->setSymbology(sample.symbology);
    barcode->setEanVariant(sample.eanVariant);
    barcode->setPrimary(sample.primary);
    barcode->setData(sample.data);
}

inline EncodedSymbol encoded(const Sample &sample)
{
    return {sample.symbology, sample.data, sample.primary};
}

inline QVector<PaintCommand> paintedBy(ZintWrapper &barcode, const QRectF &target)
{
    RecordingDevice device;
    QPainter painter(&device);
    barcode.paint(&painter, target);
    painter.end();
    return device.commands();
}

/// All rectangles after the background.
inline QVector<QRectF> modulesOf(const QVector<PaintCommand> &commands)
{
    QVector<QRectF> modules;
    for (int i = 1; i < commands.size(); ++i) {
        if (commands.at(i).kind == PaintCommand::Rect)
            modules.append(commands.at(i).rect);
    }
    return modules;
}

/// Dark modules as they are painted with modules of one pixel.
inline QVector<QRectF> patternOf(ZintWrapper &barcode)
{
    barcode.setIsShowText(false);
    barcode.setModuleWidth(1);
    barcode.setBarHeight(10);
    return modulesOf(paintedBy(barcode, {0, 0, 500, 500}));
}

inline QVector<QRectF> patternOf(const Sample &sample)
{
    ZintWrapper barcode;
    apply(&barcode, sample);
    return patternOf(barcode);
}

/// Within what is added to modules and what sums lose.
inline bool isNear(const QRectF &a, const QRectF &b)
{
    constexpr double near = 1e-4;
    return std::abs(a.x() - b.x()) < near && std::abs(a.y() - b.y()) < near && std::abs(a.width() - b.width()) < near &&
           std::abs(a.height() - b.height()) < near;
}

inline QString described(const QRectF &rect)
{
    return QStringLiteral("%1, %2, %3 x %4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

} // namespace barcodesamples

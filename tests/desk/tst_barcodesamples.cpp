// SPDX-License-Identifier: MIT
// What scanners read off the printed samples.
#include "desk/fonts.h"
#include "desk/formreader.h"
#include "desk/printing.h"
#include "desk/record.h"
#include "tests/barcode/decoders.h"
#include "tests/support/stricttest.h"

#include "core/tavroprototype.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using decoders::Program;

namespace {

constexpr int Dpi = 300;
constexpr double MillimetresPerInch = 25.4;

// A barcode of a sample as one program reads it.
struct Scanned
{
    const char *id;
    Program program;
    const char *format;
    QByteArray payload;
    const char *level = "";
};

using Readable = QVector<Scanned>;

const Readable &bill()
{
    static const QByteArray payment("某某物业缴费：3 栋 1202 室，账单 202611-03-1202，金额 386.78 元");
    static const Readable barcodes{{"paymentCode", Program::Zbar, "QR-Code", payment},
                                   {"paymentCode", Program::Zxing, "QRCode", payment, "M"},
                                   {"billCode", Program::Zbar, "EAN-13", "6901234120202"},
                                   {"billCode", Program::Zxing, "EAN-13", "6901234120202"}};
    return barcodes;
}

const Readable &bars()
{
    static const QByteArray item("0106901234567892");
    static const Readable barcodes{
        {"code128", Program::Zbar, "CODE-128", "Tavro-2026"},
        {"code128", Program::Zxing, "Code128", "Tavro-2026"},
        {"gs1128", Program::Zbar, "CODE-128", item},
        {"gs1128", Program::Zxing, "Code128", item},
        {"code39", Program::Zbar, "CODE-39", "CHEQUE 42"},
        {"code39", Program::Zxing, "Code39", "CHEQUE 42"},
        {"interleaved2of5", Program::Zbar, "I2/5", "1234567890"},
        {"interleaved2of5", Program::Zxing, "ITF", "1234567890"},
        {"ean13", Program::Zbar, "EAN-13", "6901234567892"},
        {"ean13", Program::Zxing, "EAN-13", "6901234567892"},
        {"ean8", Program::Zbar, "EAN-8", "69012341"},
        {"ean8", Program::Zxing, "EAN-8", "69012341"},
        {"upcA", Program::Zbar, "UPC-A", "012345678905"},
        {"upcA", Program::Zxing, "UPC-A", "012345678905"},
        {"upcE", Program::Zbar, "UPC-E", "01234565"},
        {"upcE", Program::Zxing, "UPC-E", "01234565"},
        {"dataBar", Program::Zbar, "DataBar", item},
        {"dataBar", Program::Zxing, "DataBar", item.mid(2)},
        {"dataBarExpanded", Program::Zbar, "DataBar-Exp", item + "3103001234"},
        {"dataBarExpanded", Program::Zxing, "DataBarExpanded", "(01)06901234567892(3103)001234"}};
    return barcodes;
}

const Readable &areas()
{
    static const QByteArray item("0106901234567892");
    static const QByteArray cheque("Tavro 44 cheque");
    static const QByteArray company("某某贸易有限公司");
    static const Readable barcodes{
        {"dataBarStacked", Program::Zbar, "DataBar", item},
        {"dataBarStacked", Program::ZxingPure, "DataBar", item.mid(2)},
        {"dataBarStackedOmni", Program::Zbar, "DataBar", item},
        {"dataBarStackedOmni", Program::ZxingPure, "DataBar", item.mid(2)},
        {"dataBarExpandedStacked", Program::ZxingPure, "DataBarExpanded", "(01)06901234567892(10)TAVRO42"},
        {"pdf417", Program::Zxing, "PDF417", cheque},
        {"pdf417Truncated", Program::Zxing, "PDF417", cheque},
        {"qr", Program::Zbar, "QR-Code", company},
        {"qr", Program::Zxing, "QRCode", company, "L"},
        {"microQr", Program::Zxing, "MicroQRCode", "TAVRO 42"},
        {"dataMatrix", Program::Zxing, "DataMatrix", "Tavro 42"},
        {"dataMatrix", Program::Dmtx, "", "Tavro 42"},
        {"hibcDataMatrix", Program::Zxing, "DataMatrix", "+A123BJC5D6E71G"},
        {"hibcDataMatrix", Program::Dmtx, "", "+A123BJC5D6E71G"},
        {"aztec", Program::Zxing, "Aztec", "Tavro 43"}};
    return barcodes;
}

// For which there is no program.
const QStringList &unreadable()
{
    static const QStringList ids{QStringLiteral("msiPlessey"), QStringLiteral("dataBarLimited"),
                                 QStringLiteral("microPdf417"), QStringLiteral("aztecRune")};
    return ids;
}

QString samplePath(const QString &name)
{
    return QDir(QStringLiteral(TAVRO_SAMPLES)).filePath(name);
}

std::unique_ptr<Form> filledForm(const QString &sample)
{
    formreader::Result read = formreader::read(samplePath(sample + QStringLiteral(".tform")));
    if (!read.form || !record::fill(read.form.get(), samplePath(sample + QStringLiteral(".json"))).error.isEmpty())
        return nullptr;
    return std::move(read.form);
}

// The file as a picture, null where it cannot be printed.
QImage printed(Form *form, const QString &file)
{
    if (!printing::write(form, file, Dpi).isEmpty())
        return {};
    if (file.endsWith(QLatin1String(".png")))
        return QImage(file);
    const QString base = file + QStringLiteral("-page");
    QProcess::execute(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QString::number(Dpi), QStringLiteral("-png"),
                                                   QStringLiteral("-singlefile"), file, base});
    return QImage(base + QStringLiteral(".png"));
}

// One barcode with white around it: a scanner is held over one after the other, and the names below are none.
QImage cut(const QImage &page, const QRectF &millimetres)
{
    constexpr double dots = Dpi / MillimetresPerInch;
    constexpr double around = 0.75;
    constexpr int quiet = 60;
    const QRectF place = millimetres.adjusted(-around, -around, around, around);
    const QImage part = page.copy(QRectF(place.topLeft() * dots, place.size() * dots).toAlignedRect());
    QImage picture(part.size() + QSize(2 * quiet, 2 * quiet), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter(&picture).drawImage(quiet, quiet, part);
    return picture;
}

} // namespace

class BarcodeSamplesTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { fonts::substituteMissing(); }
    void scans_data();
    void scans();
    void everyBarcodeIsScanned_data();
    void everyBarcodeIsScanned();

private:
    static Readable readableOf(const QString &sample)
    {
        return sample == QLatin1String("payment-bill") ? bill() : bars() + areas();
    }
};

void BarcodeSamplesTest::scans_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("suffix");
    for (const char *sample : {"payment-bill", "label-sheet"}) {
        for (const char *suffix : {"png", "pdf"})
            QTest::addRow("%s as %s", sample, suffix) << QString::fromLatin1(sample) << QString::fromLatin1(suffix);
    }
}

void BarcodeSamplesTest::scans()
{
    QFETCH(QString, sample);
    QFETCH(QString, suffix);
    const std::unique_ptr<Form> form = filledForm(sample);
    QVERIFY(form);
    const QTemporaryDir folder;
    const QImage page = printed(form.get(), folder.filePath(QStringLiteral("page.") + suffix));
    QVERIFY(!page.isNull());
    QStringList wrong;
    for (const Scanned &barcode : readableOf(sample)) {
        const TavroPrototype *object = form->objectWithId(QLatin1String(barcode.id));
        QVERIFY2(object, barcode.id);
        const QString file = folder.filePath(QLatin1String(barcode.id) + QStringLiteral(".png"));
        QVERIFY(cut(page, object->phyRect()).save(file));
        const decoders::Answer answer = decoders::read(barcode.program, {file});
        QVERIFY2(answer.error.isEmpty(), qPrintable(answer.error));
        const QVector<decoders::Reading> expected{
            {QLatin1String(barcode.format), barcode.payload, QLatin1String(barcode.level)}};
        const QVector<decoders::Reading> readings = answer.readings.value(file);
        if (readings != expected)
            wrong.append(
                QStringLiteral("%1: %2 reads %3")
                    .arg(QLatin1String(barcode.id), decoders::nameOf(barcode.program), decoders::inWords(readings)));
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
}

void BarcodeSamplesTest::everyBarcodeIsScanned_data()
{
    QTest::addColumn<QString>("sample");
    for (const char *sample : {"payment-bill", "label-sheet"})
        QTest::newRow(sample) << QString::fromLatin1(sample);
}

void BarcodeSamplesTest::everyBarcodeIsScanned()
{
    QFETCH(QString, sample);
    const std::unique_ptr<Form> form = filledForm(sample);
    QVERIFY(form);
    QStringList scanned = unreadable();
    for (const Scanned &barcode : readableOf(sample))
        scanned.append(QLatin1String(barcode.id));
    int barcodes = 0;
    for (const Form::Entry &entry : form->entries) {
        if (entry.object->objType() != Obj_Barcode)
            continue;
        QVERIFY2(scanned.contains(entry.object->tavroID()), qPrintable(entry.object->tavroID()));
        ++barcodes;
    }
    QVERIFY(barcodes > 1);
}

QTEST_MAIN(BarcodeSamplesTest)
#include "tst_barcodesamples.moc"

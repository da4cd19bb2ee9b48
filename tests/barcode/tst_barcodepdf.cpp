// SPDX-License-Identifier: MIT
// A form with barcodes as a PDF page: what a viewer or printer makes of it has to be readable.
#include "barcode/tavrobarcode.h"
#include "tests/barcode/decoders.h"
#include "tests/support/stricttest.h"

#include <QGraphicsScene>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <zint.h>

using decoders::Program;
using decoders::Reading;

namespace {

constexpr double PixelsPerMillimetre = 8;
const QSizeF Page(210, 148); // A5, landscape

// A barcode on the form, in millimetres, and its symbology as the programs call it: zbarimg reads some only.
struct Placed
{
    int symbology;
    const char *content;
    QRectF rect;
    int angle;
    const char *zbar;
    const char *zxing;
    QByteArray payload;
};

const QVector<Placed> &form()
{
    static const QVector<Placed> barcodes{
        {BARCODE_CODE128, "Tavro-2024/No.42", {15, 15, 75, 14}, 0, "CODE-128", "Code128", "Tavro-2024/No.42"},
        {BARCODE_CODE39, "CHEQUE 0042", {110, 15, 80, 14}, 0, "CODE-39", "Code39", "CHEQUE 0042"},
        {BARCODE_C25INTER, "1234567890", {15, 45, 45, 14}, 0, "I2/5", "ITF", "1234567890"},
        {-2, "690123456789", {110, 45, 40, 22}, 0, "EAN-13", "EAN-13", "6901234567892"},
        {-1, "6901234", {160, 45, 30, 22}, 0, "EAN-8", "EAN-8", "69012341"},
        {BARCODE_QRCODE, "壹万零伍佰元整", {15, 75, 25, 25}, 0, "QR-Code", "QRCode", "壹万零伍佰元整"},
        {BARCODE_QRCODE, "turned", {55, 80, 15, 15}, 30, "QR-Code", "QRCode", "turned"},
        {BARCODE_DATAMATRIX, "Tavro 42", {90, 80, 12, 12}, 0, "", "DataMatrix", "Tavro 42"},
        {BARCODE_AZTEC, "Tavro 43", {120, 80, 15, 15}, 0, "", "Aztec", "Tavro 43"},
        {BARCODE_PDF417, "Tavro 44 cheque", {15, 115, 60, 12}, 0, "", "PDF417", "Tavro 44 cheque"},
        {BARCODE_CODE128, "upright", {150, 85, 45, 12}, 90, "CODE-128", "Code128", "upright"},
    };
    return barcodes;
}

// Where the object stands on the page.
QRectF add(QGraphicsScene &scene, const Placed &placed)
{
    auto *barcode = new TavroBarcode;
    scene.addItem(barcode);
    barcode->setSymbology(placed.symbology);
    barcode->setContentData(QString::fromUtf8(placed.content));
    barcode->setBoundingRect({placed.rect.topLeft() * PixelsPerMillimetre, placed.rect.size() * PixelsPerMillimetre});
    barcode->setRotateAngle(placed.angle);
    barcode->updateObjRotation();
    barcode->setPaintMode(Paint_Print);
    return barcode->sceneBoundingRect();
}

bool print(QGraphicsScene &scene, const QString &file)
{
    QPdfWriter writer(file);
    writer.setPageSize(QPageSize(Page, QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
    writer.setPageMargins({0, 0, 0, 0});
    QPainter painter(&writer);
    scene.render(&painter);
    return painter.end();
}

// Path of the page at 300 dots per inch; the text of the failure in `error`.
QString pictureOf(const QString &pdf, QString &error)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("pdftoppm"));
    if (program.isEmpty())
        error = QStringLiteral("pdftoppm is not installed, see scripts/deps");
    const QString base = pdf.chopped(4);
    if (error.isEmpty() &&
        QProcess::execute(program, {QStringLiteral("-r"), QStringLiteral("300"), QStringLiteral("-png"),
                                    QStringLiteral("-singlefile"), pdf, base}) != 0)
        error = QStringLiteral("pdftoppm failed");
    return base + QStringLiteral(".png");
}

} // namespace

class TestBarcodePdf : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void scans_data();
    void scans();

private:
    void cut(const QImage &page, const QVector<QRectF> &places);

    QTemporaryDir m_folder;
    QStringList m_files; ///< one for each barcode
    decoders::Answer m_byZbar;
    decoders::Answer m_byZxing;
};

void TestBarcodePdf::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QGraphicsScene scene(QRectF(QPointF(), Page * PixelsPerMillimetre));
    QVector<QRectF> places;
    for (const Placed &placed : form())
        places.append(add(scene, placed));
    const QString pdf = m_folder.filePath(QStringLiteral("form.pdf"));
    QVERIFY(print(scene, pdf));
    QString error;
    const QImage page(pictureOf(pdf, error));
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QCOMPARE(page.width(), 2480);
    cut(page, places);
    m_byZbar = decoders::read(Program::Zbar, m_files);
    QVERIFY2(m_byZbar.error.isEmpty(), qPrintable(m_byZbar.error));
    m_byZxing = decoders::read(Program::Zxing, m_files);
    QVERIFY2(m_byZxing.error.isEmpty(), qPrintable(m_byZxing.error));
}

// A scanner is held over one barcode after the other.
void TestBarcodePdf::cut(const QImage &page, const QVector<QRectF> &places)
{
    const double dots = page.width() / (Page.width() * PixelsPerMillimetre);
    constexpr double quiet = 4 * PixelsPerMillimetre;
    for (int i = 0; i < places.size(); ++i) {
        const QRectF place = places.at(i).adjusted(-quiet, -quiet, quiet, quiet);
        const QRect part = QRectF(place.topLeft() * dots, place.size() * dots).toAlignedRect();
        m_files.append(m_folder.filePath(QStringLiteral("%1.png").arg(i)));
        QVERIFY(page.copy(part).save(m_files.last()));
    }
}

void TestBarcodePdf::scans_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < form().size(); ++i)
        QTest::addRow("%s, %d degrees", form().at(i).zxing, form().at(i).angle) << i;
}

void TestBarcodePdf::scans()
{
    QFETCH(int, index);
    const Placed &placed = form().at(index);
    QVector<Reading> readings = m_byZxing.readings.value(m_files.at(index));
    const QString level = placed.symbology == BARCODE_QRCODE ? QStringLiteral("L") : QString();
    const QVector<Reading> expected{{QLatin1String(placed.zxing), placed.payload, level}};
    QVERIFY2(readings == expected, qPrintable(QStringLiteral("ZXingReader reads ") + decoders::inWords(readings)));
    if (*placed.zbar == '\0')
        return;
    readings = m_byZbar.readings.value(m_files.at(index));
    const QVector<Reading> byZbar{{QLatin1String(placed.zbar), placed.payload, {}}};
    QVERIFY2(readings == byZbar, qPrintable(QStringLiteral("zbarimg reads ") + decoders::inWords(readings)));
}

QTEST_MAIN(TestBarcodePdf)
#include "tst_barcodepdf.moc"

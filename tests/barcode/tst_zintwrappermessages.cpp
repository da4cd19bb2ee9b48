// SPDX-License-Identifier: MIT
#include "barcode/zintwrapper.h"
#include "tests/barcode/barcodesamples.h"
#include "tests/support/stricttest.h"

#include <QFontMetricsF>
#include <QTest>
#include <cmath>

using barcodesamples::isNear;
using barcodesamples::modulesOf;
using barcodesamples::paintedBy;

namespace {

constexpr QRectF Field(30, 20, 240, 120);

// The only text, and where it stands.
void compareMessage(const QVector<PaintCommand> &commands, const QString &message)
{
    QFont font(QStringLiteral("Arial"));
    font.setPointSize(12);
    QCOMPARE(commands.size(), 2);
    QCOMPARE(commands.at(0).kind, PaintCommand::Rect);
    QCOMPARE(commands.at(1).kind, PaintCommand::Text);
    QCOMPARE(commands.at(1).text, message);
    QCOMPARE(commands.at(1).pen.color(), QColor(Qt::black));
    QCOMPARE(commands.at(1).pen.widthF(), 1.0);
    QCOMPARE(commands.at(1).font.family(), QStringLiteral("Arial"));
    QCOMPARE(commands.at(1).font.pointSize(), 12);
    QCOMPARE(commands.at(1).transform, QTransform::fromTranslate(Field.x(), Field.y()));
    QVERIFY(isNear(commands.at(1).rect, {QPointF(0, 0), QSizeF(QFontMetricsF(font).horizontalAdvance(message),
                                                               QFontMetricsF(font).height())}));
    QVERIFY(!commands.at(1).hasClip);
}

} // namespace

/// What a barcode says instead of its symbol.
class ZintWrapperMessagesTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void messageOfLibzint();
    void messageInAnyFont();
    void lengthsOfEan_data();
    void lengthsOfEan();
    void lengthsInEanComposites_data();
    void lengthsInEanComposites();
    void ean13WithItsCheckDigit();
};

void ZintWrapperMessagesTest::messageOfLibzint()
{
    for (const int symbology : {13, 20, 34, 58, 57, 79, 130, 199}) {
        ZintWrapper barcode;
        barcode.setSymbology(symbology);
        barcode.fitToSize(Field.size());
        const QVector<PaintCommand> commands = paintedBy(barcode, Field);
        QVERIFY(barcode.errorText().startsWith(QLatin1String("Error ")));
        compareMessage(commands, barcode.errorText());
    }
}

void ZintWrapperMessagesTest::messageInAnyFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(70);
    font.setItalic(true);
    ZintWrapper barcode;
    barcode.setErrorFont(font);
    barcode.setForegroundColor(Qt::red);
    const PaintCommand message = paintedBy(barcode, Field).last();
    QCOMPARE(message.font.family(), QStringLiteral("DejaVu Sans"));
    QVERIFY(message.font.italic());
    QCOMPARE(message.font.pointSize(), 12);
    QCOMPARE(message.pen.color(), QColor(Qt::black));
    QVERIFY(std::abs(message.rect.width() - barcode.errorTextSize().width()) < 1e-4);
}

void ZintWrapperMessagesTest::lengthsOfEan_data()
{
    QTest::addColumn<int>("variant");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("fits");

    const QByteArray digits("1234567890123");
    for (int length = 1; length <= 13; ++length) {
        QTest::addRow("two-digit add-on, %d digits", length) << 0 << digits.left(length) << (length <= 2);
        QTest::addRow("five-digit add-on, %d digits", length) << 1 << digits.left(length) << (length <= 5);
        QTest::addRow("EAN-8, %d digits", length) << 2 << digits.left(length) << (length == 7);
        QTest::addRow("EAN-13, %d digits", length) << 3 << digits.left(length) << (length == 12);
        QTest::addRow("variant below, %d digits", length) << -1 << digits.left(length) << false;
        QTest::addRow("variant above, %d digits", length) << 4 << digits.left(length) << false;
    }
}

void ZintWrapperMessagesTest::lengthsOfEan()
{
    QFETCH(int, variant);
    QFETCH(QByteArray, data);
    QFETCH(bool, fits);
    ZintWrapper barcode;
    barcode.setSymbology(13);
    barcode.setEanVariant(variant);
    barcode.setData(data);
    barcode.fitToSize(Field.size());
    const QVector<PaintCommand> commands = paintedBy(barcode, Field);
    if (!barcode.encode()) // the last of 13 digits is not the check digit
        compareMessage(commands, barcode.errorText());
    else if (!fits)
        compareMessage(commands, QStringLiteral("error: Invalid Length Input!"));
    QCOMPARE(modulesOf(commands).isEmpty(), !fits);
}

void ZintWrapperMessagesTest::lengthsInEanComposites_data()
{
    QTest::addColumn<int>("variant");
    QTest::addColumn<QByteArray>("primary");
    QTest::addColumn<bool>("fits");

    QTest::newRow("EAN-8") << 2 << QByteArray("1234567") << true;
    QTest::newRow("EAN-13") << 3 << QByteArray("123456789012") << true;
    QTest::newRow("EAN-8 for EAN-13") << 3 << QByteArray("1234567") << false;
    QTest::newRow("EAN-13 for EAN-8") << 2 << QByteArray("123456789012") << false;
    QTest::newRow("EAN-13 with check digit") << 3 << QByteArray("1234567890128") << false;
    QTest::newRow("EAN-8 with check digit") << 2 << QByteArray("12345670") << false;
    QTest::newRow("EAN-13 for an add-on") << 0 << QByteArray("123456789012") << false;
    QTest::newRow("EAN-8 for an add-on") << 1 << QByteArray("1234567") << false;
    QTest::newRow("variant below") << -1 << QByteArray("123456789012") << false;
    QTest::newRow("variant above") << 4 << QByteArray("1234567") << false;
}

void ZintWrapperMessagesTest::lengthsInEanComposites()
{
    QFETCH(int, variant);
    QFETCH(QByteArray, primary);
    QFETCH(bool, fits);
    ZintWrapper barcode;
    barcode.setSymbology(130);
    barcode.setEanVariant(variant);
    barcode.setPrimary(primary);
    barcode.setData("[21]A12345678");
    QVERIFY(barcode.fitToSize(Field.size()));
    const QVector<PaintCommand> commands = paintedBy(barcode, Field);
    if (!fits)
        compareMessage(commands, QStringLiteral("error: Invalid Length Input in Linear Component!"));
    QCOMPARE(modulesOf(commands).isEmpty(), !fits);
}

void ZintWrapperMessagesTest::ean13WithItsCheckDigit()
{
    ZintWrapper barcode;
    barcode.setSymbology(13);
    barcode.setData("1234567890128");
    QVERIFY(barcode.fitToSize({230, 100}));
    compareMessage(paintedBy(barcode, Field), QStringLiteral("error: Invalid Length Input!"));
    barcode.setData("123456789012");
    QVERIFY(barcode.fitToSize({230, 100}));
    const QVector<QRectF> modules = modulesOf(paintedBy(barcode, Field));
    QVERIFY(isNear(modules.first(), {20, 0, 2, barcode.barHeight() + 10}));
    QVERIFY(isNear(modules.last(), {20 + 94 * 2, 0, 2, barcode.barHeight() + 10}));
}

QTEST_MAIN(ZintWrapperMessagesTest)
#include "tst_zintwrappermessages.moc"

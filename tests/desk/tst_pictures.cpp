// SPDX-License-Identifier: MIT
#include "desk/formwriter.h"
#include "tests/desk/pictureforms.h"
#include "tests/support/stricttest.h"

#include <QImageWriter>
#include <QJsonDocument>
#include <QTest>

using pictureforms::base64;
using pictureforms::bytesOf;
using pictureforms::picture;
using pictureforms::pictureOf;

namespace {

// Two images of one pixel, red and blue. Qt writes no GIF.
QByteArray animation()
{
    return QByteArray::fromHex("474946383961010001008000"
                               "00ff00000000ff"
                               "2c000000000100010000020244010"
                               "02c00000000010001000002024c01003b");
}

} // namespace

class PicturesTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void settings_data();
    void settings();
    void formats_data();
    void formats();
    void pngStaysAsItIs();
    void noPicture();
};

void PicturesTest::settings_data()
{
    QTest::addColumn<QByteArray>("fill");
    QTest::addColumn<int>("mode");
    QTest::newRow("fit") << QByteArray("\"fit\"") << int(Picture_Fit);
    QTest::newRow("stretch") << QByteArray("\"stretch\"") << int(Picture_Stretch);
    QTest::newRow("actual") << QByteArray("\"actual\"") << int(Picture_Actual);
    QTest::newRow("number without a name") << QByteArray("9") << 9;
}

void PicturesTest::settings()
{
    QFETCH(QByteArray, fill);
    QFETCH(int, mode);
    const QByteArray text = "{\"angle\":-22.5,\"canQuery\":true,\"readOnly\":true,\"fill\":" + fill + "}";
    const std::unique_ptr<Form> form = deskforms::formWith(
        {deskforms::object("picture", {10, 10, 30, 20}, deskforms::value(text.constData()).toObject())});
    QVERIFY(form);
    QCOMPARE(int(pictureOf(*form).fillMode()), mode);
    QCOMPARE(pictureOf(*form).angle(), -22.5);
    QVERIFY(pictureOf(*form).canQuery());
    QVERIFY(pictureOf(*form).isReadOnly());
}

void PicturesTest::formats_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QSize>("size");
    QTest::newRow("PNG") << bytesOf("png") << QSize(12, 8);
    QTest::newRow("JPEG") << bytesOf("jpg") << QSize(12, 8);
    QTest::newRow("BMP") << bytesOf("bmp") << QSize(12, 8);
    QTest::newRow("GIF") << animation() << QSize(1, 1);
}

// Whatever the format, the form holds PNG, which it writes as it was read.
void PicturesTest::formats()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QSize, size);
    const std::unique_ptr<Form> form = deskforms::formWith({picture(base64(bytes))});
    QVERIFY(form);
    QCOMPARE(pictureOf(*form).image().size(), size);
    QVERIFY(pictureOf(*form).image().pixelColor(0, 0).red() > 250);
    QVERIFY(pictureOf(*form).presetData().toByteArray().startsWith("\x89PNG"));
    const QByteArray written = formwriter::toBytes(*form);
    const std::unique_ptr<Form> again = deskforms::readFile(QJsonDocument::fromJson(written).object());
    QVERIFY(again);
    QCOMPARE(formwriter::toBytes(*again), written);
    QCOMPARE(pictureOf(*again).image(), pictureOf(*form).image());
}

// Other encoders make other bytes of the same picture; a form does not change by being read.
void PicturesTest::pngStaysAsItIs()
{
    QImage image(30, 20, QImage::Format_ARGB32);
    image.fill(QColor(10, 20, 30, 40));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "png");
    writer.setCompression(0);
    QVERIFY(writer.write(image));
    const std::unique_ptr<Form> form = deskforms::formWith({picture(base64(buffer.data()))});
    QVERIFY(form);
    QCOMPARE(pictureOf(*form).presetData().toByteArray(), buffer.data());
    QVERIFY(formwriter::toBytes(*form).contains(buffer.data().toBase64()));
    QCOMPARE(pictureOf(*form).image(), image);
}

void PicturesTest::noPicture()
{
    const std::unique_ptr<Form> form = deskforms::formWith({picture(QString())});
    QVERIFY(form);
    QVERIFY(pictureOf(*form).image().isNull());
    QVERIFY(!formwriter::toBytes(*form).contains("preset"));
}

QTEST_MAIN(PicturesTest)
#include "tst_pictures.moc"

// SPDX-License-Identifier: MIT
#include "graphic/imagecoding.h"
#include "tests/graphic/imagesamples.h"

#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <QTest>

namespace {

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

bool isRed(QRgb pixel)
{
    return qRed(pixel) > 250 && qGreen(pixel) < 5 && qBlue(pixel) < 5;
}

} // namespace

/// Images from bytes and files, and into bytes.
class TestImageCoding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormatIsAvailable();
    void format_data();
    void format();
    void noImage_data();
    void noImage();
    void firstOfAnAnimation();
    void photographsAreNotTurned();
    void noFile_data();
    void noFile();
    void formatIsFoundFromTheContent();
    void most_data();
    void most();
    void mostOfASide();
    void drawings_data();
    void drawings();
    void drawingsReadNoFiles();
    void drawingsMayDeclareWhatTheyAre();
    void drawingsReadNoStyleSheets_data();
    void drawingsReadNoStyleSheets();
    void pngBytes();
    void pngKeepsEveryPixel();
};

void TestImageCoding::everyFormatIsAvailable()
{
    for (const QByteArray &format : samples::Formats)
        QVERIFY2(QImageReader::supportedImageFormats().contains(format), format);
}

void TestImageCoding::format_data()
{
    QTest::addColumn<QByteArray>("bytes");
    for (const QByteArray &format : samples::Formats)
        QTest::newRow(format) << samples::of(format);
}

void TestImageCoding::format()
{
    QFETCH(QByteArray, bytes);
    const QByteArray format = QTest::currentDataTag();
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("stamp.") + QString::fromLatin1(format));
    write(path, bytes);
    for (const QImage &image : {imagecoding::decoded(bytes), imagecoding::loaded(path)}) {
        QCOMPARE(image.size(), QSize(16, 8));
        const QRgb pixel = image.pixel(0, 0);
        if (format == "pbm" || format == "xbm")
            QCOMPARE(qGray(pixel), 0);
        else if (format == "pgm")
            QVERIFY(qRed(pixel) == qBlue(pixel) && qRed(pixel) > 60);
        else
            QVERIFY(isRed(pixel));
    }
}

void TestImageCoding::noImage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("null") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("text") << QByteArray("a signature");
    QTest::newRow("markup of another kind") << QByteArray("<?xml version=\"1.0\"?><form><field/></form>");
    QTest::newRow("megabytes of nothing") << QByteArray(20 << 20, '\0');
}

void TestImageCoding::noImage()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(imagecoding::decoded(bytes).isNull());
}

void TestImageCoding::firstOfAnAnimation()
{
    const QByteArray both = samples::gif({1, 1}, {1, 1}, 2);
    QBuffer buffer;
    buffer.setData(both);
    QCOMPARE(QImageReader(&buffer).imageCount(), 2);
    QCOMPARE(imagecoding::decoded(both).pixel(0, 0), qRgb(255, 0, 0));
}

void TestImageCoding::photographsAreNotTurned()
{
    QByteArray bytes = samples::heldOnItsSide(samples::of("jpeg"));
    QBuffer buffer(&bytes);
    QCOMPARE(QImageReader(&buffer).transformation(), QImageIOHandler::TransformationRotate90);
    QCOMPARE(imagecoding::decoded(bytes).size(), QSize(16, 8));
}

void TestImageCoding::noFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing.png");
    QTest::newRow("in a missing folder") << QStringLiteral("missing/logo.png");
    QTest::newRow("folder") << QString();
    QTest::newRow("folder named like an image") << QStringLiteral("folder.png");
    QTest::newRow("empty file") << QStringLiteral("empty.png");
    QTest::newRow("empty file of a drawing") << QStringLiteral("empty.svg");
    QTest::newRow("text") << QStringLiteral("text.png");
}

void TestImageCoding::noFile()
{
    QFETCH(QString, name);
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder.png")));
    write(folder.filePath(QStringLiteral("empty.png")), {});
    write(folder.filePath(QStringLiteral("empty.svg")), {});
    write(folder.filePath(QStringLiteral("text.png")), "no image");
    QVERIFY(imagecoding::loaded(folder.filePath(name)).isNull());
    QVERIFY(imagecoding::loaded({}).isNull());
}

void TestImageCoding::formatIsFoundFromTheContent()
{
    QTemporaryDir folder;
    for (const char *name : {"a.png", "b.txt", "c", "d.svg", "e.ico"}) {
        const QString path = folder.filePath(QString::fromLatin1(name));
        for (const char *format : {"bmp", "svg", "ico"}) {
            write(path, samples::of(format));
            QCOMPARE(imagecoding::loaded(path).size(), QSize(16, 8));
        }
    }
}

void TestImageCoding::most_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isTooBig");
    QTest::newRow("square") << QSize(8192, 8192) << false;
    QTest::newRow("a column more") << QSize(8193, 8192) << true;
    QTest::newRow("long and flat") << QSize(32767, 2048) << false;
    QTest::newRow("long and a row more") << QSize(32767, 2049) << true;
}

// Black and white, so that the limit is reached with little.
void TestImageCoding::most()
{
    QFETCH(QSize, size);
    QFETCH(bool, isTooBig);
    const QByteArray header =
        "P4\n" + QByteArray::number(size.width()) + ' ' + QByteArray::number(size.height()) + '\n';
    const QByteArray bytes = header + QByteArray((size.width() + 7) / 8 * size.height(), '\xFF');
    QCOMPARE(imagecoding::decoded(bytes).size(), isTooBig ? QSize(0, 0) : size);
}

// What can be loaded can be stored.
void TestImageCoding::mostOfASide()
{
    for (const QSize &size : {QSize(1000000, 1), QSize(1, 1000000)}) {
        const QImage longest = imagecoding::decoded(samples::written("bmp", samples::image(size)));
        QCOMPARE(longest.size(), size);
        QCOMPARE(imagecoding::decoded(imagecoding::pngBytes(longest)), longest);
    }
    for (const QSize &size : {QSize(1000001, 1), QSize(1, 1000001)}) {
        const QByteArray tooLong = samples::written("bmp", samples::image(size));
        QVERIFY(!tooLong.isEmpty());
        QVERIFY(imagecoding::decoded(tooLong).isNull());
    }
}

void TestImageCoding::drawings_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isTooBig");

    using samples::linkedData;
    const QByteArray half = samples::written("png", QImage(8192, 4096, QImage::Format_Mono));
    const QByteArray inside = samples::written("png", samples::image());
    QTest::newRow("image inside") << linkedData("png", inside) << false;
    QTest::newRow("two images, as many pixels as one may have")
        << linkedData("png", half) + linkedData("png", half) << false;
    QTest::newRow("a pixel more") << linkedData("png", half) + linkedData("png", half) + linkedData("png", inside)
                                  << true;
    QTest::newRow("drawing inside") << linkedData("svg+xml", samples::svg()) << true;
    QTest::newRow("compressed drawing inside") << linkedData("svg+xml", samples::of("svgz")) << true;
    QTest::newRow("icon inside") << linkedData("x-icon", samples::of("ico")) << true;
    QTest::newRow("no image inside") << linkedData("png", "no image") << true;
    QTest::newRow("no link") << QByteArray("<image width=\"16\" height=\"8\"/>") << true;
    QTest::newRow("a file") << samples::linkedImage("/usr/share/stamp.png") << true;
    QTest::newRow("a file named like data") << samples::linkedImage("data/stamp.png") << true;
    QTest::newRow("a million elements") << QByteArray("<g/>").repeated(1 << 20) << true;
    QTest::newRow("32 MB") << QByteArray(1 << 25, ' ') << true;
    QTest::newRow("broken off") << QByteArray("<rect") << true;
}

void TestImageCoding::drawings()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isTooBig);
    const QByteArray drawing = samples::svg("width=\"16\" height=\"8\"", content);
    const QSize size = isTooBig ? QSize(0, 0) : QSize(16, 8);
    QCOMPARE(imagecoding::decoded(drawing).size(), size);
    QCOMPARE(imagecoding::decoded(samples::zipped(drawing)).size(), size);
}

void TestImageCoding::drawingsReadNoFiles()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("secret.png"));
    write(path, samples::of("png"));
    QVERIFY(!imagecoding::loaded(path).isNull());
    for (const QByteArray &link : {path.toUtf8(), "file://" + path.toUtf8(), QByteArray("secret.png")}) {
        const QByteArray drawing = samples::svg("width=\"16\" height=\"8\"", samples::linkedImage(link));
        QVERIFY(imagecoding::decoded(drawing).isNull());
    }
}

void TestImageCoding::drawingsMayDeclareWhatTheyAre()
{
    const QByteArray drawing =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE svg>\n<!-- a stamp -->" + samples::svg();
    QCOMPARE(imagecoding::decoded(drawing).size(), QSize(16, 8));
    QCOMPARE(imagecoding::decoded(samples::zipped(drawing)).size(), QSize(16, 8));
}

void TestImageCoding::drawingsReadNoStyleSheets_data()
{
    QTest::addColumn<QByteArray>("link");
    QTest::addColumn<bool>("isZipped");
    for (const bool isZipped : {false, true}) {
        const char *kind = isZipped ? "svgz" : "svg";
        QTest::addRow("%s, path", kind) << QByteArray("%1") << isZipped;
        QTest::addRow("%s, address", kind) << QByteArray("file://%1") << isZipped;
    }
}

// The style sheet would paint the drawing blue.
void TestImageCoding::drawingsReadNoStyleSheets()
{
    QFETCH(QByteArray, link);
    QFETCH(bool, isZipped);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("colours.css"));
    write(path, "rect { fill: #0000ff }");
    link.replace("%1", path.toUtf8());
    const QByteArray drawing = "<?xml-stylesheet type=\"text/css\" href=\"" + link + "\"?>" + samples::svg();
    const QByteArray bytes = isZipped ? samples::zipped(drawing) : drawing;
    QVERIFY(imagecoding::decoded(bytes).isNull());
    const QString file = folder.filePath(QStringLiteral("drawing.svg"));
    write(file, bytes);
    QVERIFY(imagecoding::loaded(file).isNull());
}

void TestImageCoding::pngBytes()
{
    QVERIFY(imagecoding::pngBytes({}).isNull());
    const QImage image = samples::image();
    QCOMPARE(imagecoding::pngBytes(image), samples::written("png", image));
    QVERIFY(imagecoding::pngBytes(image).startsWith("\x89PNG"));
}

void TestImageCoding::pngKeepsEveryPixel()
{
    QImage image(3, 2, QImage::Format_ARGB32);
    for (int i = 0; i < 6; ++i)
        image.setPixel(i % 3, i / 3, qRgba(40 * i, 255 - i, i, 50 * i));
    QCOMPARE(imagecoding::decoded(imagecoding::pngBytes(image)), image);
}

QTEST_GUILESS_MAIN(TestImageCoding)
#include "tst_imagecoding.moc"

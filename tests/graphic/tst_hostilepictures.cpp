// SPDX-License-Identifier: MIT
#include "graphic/tavropicture.h"
#include "tests/graphic/imagesamples.h"

#include <QFile>
#include <QTest>

namespace {

using samples::svg;

// Address space that the process ever had, in kB; 0 where the system does not tell. Pages that were asked for and never
// touched count too.
qint64 mostMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArrayList lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmPeak:"))
            return line.simplified().split(' ').at(1).toLongLong();
    }
    return 0;
}

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

// What is loaded stands in the value too.
void load(TavroPicture *picture, const QByteArray &bytes)
{
    picture->setContentData(bytes);
    QCOMPARE(picture->contentData().toByteArray().isEmpty(), picture->image().isNull());
}

} // namespace

/// Pictures from damaged bytes, and from bytes that announce more than they hold. What Qt says about them is ignored.
class TestHostilePictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_previous = qInstallMessageHandler(ignoreMessage); }
    void cleanup() { qInstallMessageHandler(m_previous); }
    void announced_data();
    void announced();
    void cutOff_data() { addFormats(); }
    void cutOff();
    void flipped_data() { addFormats(); }
    void flipped();
    void stretched_data() { addFormats(); }
    void stretched();
    void twentyMegabytes_data();
    void twentyMegabytes();

private:
    static void addFormats();

    QtMessageHandler m_previous = nullptr;
};

void TestHostilePictures::addFormats()
{
    QTest::addColumn<QByteArray>("bytes");
    for (const QByteArray &format : samples::Formats)
        QTest::newRow(format) << samples::of(format);
}

void TestHostilePictures::announced_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QSize>("size");

    const QSize none(0, 0);
    const QSize one(1, 1);
    const QSize large(30000, 30000);
    const QByteArray png = samples::pngHeader(large);
    const QByteArray sides = "30000 30000\n";
    const QByteArray small = "width=\"16\" height=\"8\"";
    const auto add = [none](const char *name, const QByteArray &bytes) { QTest::newRow(name) << bytes << none; };
    add("png", png);
    add("png, as large as may be, without pixels", samples::pngHeader({8192, 8192}));
    add("bmp", samples::bmpFile(large));
    add("bmp from the top", samples::bmpFile({30000, -30000}));
    const QSize beyond(16000, 16000); // Qt would allocate it
    add("gif, screen", samples::gif(large, one));
    add("gif, screen out of proportion to the frame", samples::gif(beyond, one));
    add("gif, height of the screen alone", samples::gif({0, 16000}, {16000, 1}));
    add("gif, width of the screen alone", samples::gif({16000, 0}, {1, 16000}));
    add("gif, greatest height of the screen alone", samples::gif({0, 65535}, {8192, 1}));
    QTest::newRow("gif, frame beyond the screen") << samples::gif(one, large) << one;
    add("gif, both", samples::gif(large, large));
    add("gif, greatest", samples::gif({65535, 65535}, {65535, 65535}));
    add("gif, no screen", samples::gif({0, 0}, large));
    QTest::newRow("gif, screen without height") << samples::gif({10, 0}, large) << QSize(10, 30000);
    add("jpeg", samples::jpegHeader(large, false));
    add("jpeg, progressive", samples::jpegHeader(large, true));
    add("jpeg, greatest", samples::jpegHeader({65535, 65535}, true));
    add("pbm", "P4\n" + sides);
    add("pgm", "P5\n" + sides + "255\n");
    add("ppm", "P6\n" + sides + "255\n");
    add("ppm as text", "P3\n" + sides + "255\n1 2 3\n");
    add("xbm", "#define a_width 30000\n#define a_height 30000\nstatic char a_bits[] = {\n0x00, 0x00};\n");
    add("xpm",
        "/* XPM */\nstatic char *a[] = {\n\"30000 30000 2 1\",\n\"a c #000000\",\n\"b c #ffffff\",\n\"aaaa\"};\n");
    add("xpm, colours", "/* XPM */\nstatic char *a[] = {\n\"3 3 2000000000 4\",\n\"a c #000000\",\n\"aaa\"};\n");
    add("ico, png inside", samples::icon(png));
    add("cur, png inside", samples::icon(png, 2));
    add("ico, bmp inside", samples::icon(samples::bmpHeader({30000, 60000}, 32) + QByteArray(500, '\0')));
    add("ico, bmp of one bit inside", samples::icon(samples::bmpHeader({30000, 60000}, 1) + QByteArray(500, '\0')));
    add("svg, width and height", svg("width=\"30000\" height=\"30000\"", {}));
    add("svg, millimetres", svg("width=\"9000mm\" height=\"9000mm\"", {}));
    add("svg, view box", svg("viewBox=\"0 0 30000 30000\"", {}));
    add("svg, beyond whole numbers", svg("width=\"3000000000\" height=\"3000000000\"", {}));
    add("svg, image inside", svg(small, samples::linkedData("png", png)));
    add("svg, gif inside", svg(small, samples::linkedData("gif", samples::gif(beyond, one))));
    add("svg, sizes in an svg inside",
        svg(small, samples::linkedData("svg+xml", svg("width=\"30000\" height=\"30000\"", {}))));
    add("svg, many images inside",
        svg(small, samples::linkedData("png", samples::pngHeader({5000, 5000})).repeated(3)));
    add("svg, nested a hundred thousand deep",
        svg(small, QByteArray("<g>").repeated(100000) + QByteArray("</g>").repeated(100000)));
    add("svgz, width and height", samples::zipped(svg("width=\"30000\" height=\"30000\"", {})));
    add("svgz, image inside", samples::zipped(svg(small, samples::linkedData("png", png))));
    add("svgz, 40 MB unpacked", samples::zipped(svg(small, QByteArray(40 << 20, ' '))));
}

void TestHostilePictures::announced()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(bytes.size() < 2 << 20);
    TavroPicture picture;
    const qint64 before = mostMemory();
    if (before == 0)
        QSKIP("the system does not tell how much memory is used");
    load(&picture, bytes);
    QTEST(picture.image().size(), "size");
    // One image of the greatest size takes 256 MB.
    QVERIFY2(mostMemory() - before < 600 << 10, qPrintable(QString::number(mostMemory() - before)));
}

void TestHostilePictures::cutOff()
{
    QFETCH(QByteArray, bytes);
    TavroPicture picture;
    load(&picture, bytes);
    QVERIFY(!picture.image().isNull());
    for (int size = 0; size < bytes.size(); size += 1 + bytes.size() / 300) {
        load(&picture, bytes.left(size));
        QVERIFY(picture.image().isNull() || picture.image().size() == QSize(16, 8));
    }
    load(&picture, bytes.left(2));
    QVERIFY(picture.image().isNull());
}

void TestHostilePictures::flipped()
{
    QFETCH(QByteArray, bytes);
    TavroPicture picture;
    const qint64 before = mostMemory();
    // Headers in every bit, the rest here and there.
    for (int bit = 0; bit < bytes.size() * 8; bit += bit < 64 * 8 ? 1 : 1 + bytes.size() / 50) {
        QByteArray damaged = bytes;
        damaged[bit / 8] = char(damaged.at(bit / 8) ^ (1 << (bit % 8)));
        load(&picture, damaged);
        const QSize size = picture.image().size();
        QVERIFY(qint64(size.width()) * size.height() <= 1 << 26);
    }
    QVERIFY2(mostMemory() - before < 1200 << 10, qPrintable(QString::number(mostMemory() - before)));
}

// Whole bytes of the greatest and the smallest values, in pairs.
void TestHostilePictures::stretched()
{
    QFETCH(QByteArray, bytes);
    TavroPicture picture;
    for (const char value : {'\0', '\xFF', '\x7F', '\x80'}) {
        for (int i = 0; i + 1 < bytes.size(); i += i < 64 ? 1 : 1 + bytes.size() / 50) {
            QByteArray damaged = bytes;
            damaged[i] = value;
            damaged[i + 1] = value;
            load(&picture, damaged);
        }
    }
    load(&picture, bytes);
    QCOMPARE(picture.image().size(), QSize(16, 8));
}

void TestHostilePictures::twentyMegabytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QSize>("size");
    constexpr int much = 20 << 20;
    QImage noise(2600, 2100, QImage::Format_RGB32);
    quint32 state = 1;
    for (int y = 0; y < noise.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(noise.scanLine(y));
        for (int x = 0; x < noise.width(); ++x)
            line[x] = state = state * 1664525U + 1013904223U;
    }
    QTest::newRow("bmp") << samples::written("bmp", noise) << noise.size();
    QTest::newRow("ppm") << samples::written("ppm", noise.scaled(2700, 2700)) << QSize(2700, 2700);
    QTest::newRow("zeros") << QByteArray(much, '\0') << QSize(0, 0);
    QTest::newRow("letters") << QByteArray(much, 'P') << QSize(0, 0);
    for (const QByteArray &format : samples::Formats) {
        if (format == "svg" || format == "svgz")
            continue;
        QTest::newRow(format + " with a long tail") << samples::of(format) + QByteArray(much, ' ') << QSize(16, 8);
    }
    QTest::newRow("svg with a long comment")
        << svg("width=\"16\" height=\"8\"", "<!--" + QByteArray(much, 'x') + "-->") << QSize(16, 8);
}

void TestHostilePictures::twentyMegabytes()
{
    QFETCH(QByteArray, bytes);
    TavroPicture picture;
    const qint64 before = mostMemory();
    load(&picture, bytes);
    QTEST(picture.image().size(), "size");
    QVERIFY2(mostMemory() - before < 600 << 10, qPrintable(QString::number(mostMemory() - before)));
}

QTEST_MAIN(TestHostilePictures)
#include "tst_hostilepictures.moc"

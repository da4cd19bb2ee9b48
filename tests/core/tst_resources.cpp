// SPDX-License-Identifier: MIT
#include "tests/support/stricttest.h"

#include <QDir>
#include <QImageReader>
#include <QTest>

/// Images that are compiled into the library.
class ResourcesTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void names();
    void clearOnLightGround_data();
    void clearOnLightGround();
    void marksAreCrisp_data();
    void marksAreCrisp();
    void marksInBlackAndWhite_data();
    void marksInBlackAndWhite();
};

namespace {

const QString folder = QStringLiteral(":/image/image/");

const QVector<const char *> marks{"tick", "cross", "circle", "block"};

// Darkness of each pixel on white paper, 0 to 255. The colours of the marks are not looked at.
QVector<QVector<int>> inkOf(const QString &name, int size)
{
    QImageReader reader(folder + name + QStringLiteral(".svg"));
    reader.setScaledSize({size, size});
    const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
    QVector<QVector<int>> rows(size, QVector<int>(size));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            rows[y][x] = (255 - qGray(image.pixel(x, y))) * qAlpha(image.pixel(x, y)) / 255;
    }
    return rows;
}

// Black patches, or white ones: pixels that touch, blacks by their corners too.
int patches(QVector<QVector<int>> ink, bool black)
{
    const int size = ink.size();
    int found = 0;
    const auto isPart = [&](int x, int y) {
        return x >= 0 && y >= 0 && x < size && y < size && ink[y][x] >= 0 && (ink[y][x] > 127) == black;
    };
    for (int start = 0; start < size * size; ++start) {
        if (!isPart(start % size, start / size))
            continue;
        ++found;
        QVector<QPoint> open{{start % size, start / size}};
        ink[start / size][start % size] = -1;
        while (!open.isEmpty()) {
            const QPoint at = open.takeLast();
            for (const QPoint &way : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1), QPoint(1, 1),
                                      QPoint(-1, -1), QPoint(1, -1), QPoint(-1, 1)}) {
                const QPoint next = at + way;
                if ((black || way.x() == 0 || way.y() == 0) && isPart(next.x(), next.y())) {
                    ink[next.y()][next.x()] = -1;
                    open.append(next);
                }
            }
        }
    }
    return found;
}

// Black pixels in a part of the image, given as shares of its sides.
int blackIn(const QVector<QVector<int>> &ink, const QRectF &part)
{
    const int size = ink.size();
    int black = 0;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x)
            black += part.contains((x + 0.5) / size, (y + 0.5) / size) && ink[y][x] > 127;
    }
    return black;
}

} // namespace

void ResourcesTest::names()
{
    const QStringList files = QDir(folder).entryList();
    for (const char *name :
         {"block.svg", "circle.svg", "close.svg", "cross.svg", "locked.png", "tick.svg", "today.svg", "triangle.svg"})
        QVERIFY2(files.contains(QLatin1String(name)), name);
}

void ResourcesTest::clearOnLightGround_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("size");
    const QStringList files = QDir(folder).entryList();
    for (const QString &file : files) {
        for (const int size : {16, 20, 24, 32})
            QTest::addRow("%s, %d px", qPrintable(file), size) << folder + file << size;
    }
}

// Dark and light both cover a part of the image, so that it is neither empty nor a blot.
void ResourcesTest::clearOnLightGround()
{
    QFETCH(QString, path);
    QFETCH(int, size);
    QImageReader reader(path);
    reader.setScaledSize({size, size});
    const QImage source = reader.read().convertToFormat(QImage::Format_ARGB32);
    QVERIFY2(!source.isNull(), qPrintable(reader.errorString()));
    QCOMPARE(source.size(), QSize(size, size));
    int dark = 0;
    int light = 0;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const QRgb pixel = source.pixel(x, y);
            const int grey = 255 - (255 - qGray(pixel)) * qAlpha(pixel) / 255; // on white
            dark += grey < 112;
            light += grey > 192;
        }
    }
    const int all = size * size;
    QVERIFY2(dark * 32 >= all, qPrintable(QStringLiteral("%1 of %2 pixels are dark").arg(dark).arg(all)));
    QVERIFY2(light * 5 >= all, qPrintable(QStringLiteral("%1 of %2 pixels are light").arg(light).arg(all)));
}

void ResourcesTest::marksAreCrisp_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("size");
    for (const char *name : marks) {
        for (const int size : {10, 13, 16, 24, 32, 48, 96, 200})
            QTest::addRow("%s, %d px", name, size) << QString::fromLatin1(name) << size;
    }
}

// Pure black, apart from the pixels on an outline, which grows with the side and not with the area. A printer without
// grey has nothing to dither.
void ResourcesTest::marksAreCrisp()
{
    QFETCH(QString, name);
    QFETCH(int, size);
    const QVector<QVector<int>> ink = inkOf(name, size);
    int darkest = 0;
    int full = 0;
    int partial = 0;
    for (const QVector<int> &row : ink) {
        for (const int dark : row) {
            darkest = qMax(darkest, dark);
            full += dark == 255;
            partial += dark > 0 && dark < 255;
        }
    }
    QVERIFY2(darkest > 191, qPrintable(QString::number(darkest)));
    QVERIFY2(partial <= 6 * size, qPrintable(QStringLiteral("%1 pixels are grey").arg(partial)));
    QVERIFY(size < 96 || full > 3 * partial);
    // Nothing is cut off at the edges.
    constexpr int hint = 48;
    for (int i = 0; i < size; ++i)
        QVERIFY(qMax(qMax(ink[0][i], ink[size - 1][i]), qMax(ink[i][0], ink[i][size - 1])) <= hint);
}

void ResourcesTest::marksInBlackAndWhite_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("size");
    for (const char *name : marks) {
        for (const int size : {10, 16, 24})
            QTest::addRow("%s, %d px", name, size) << QString::fromLatin1(name) << size;
    }
}

// In one piece, and no mark passes for another: a ring has a hole, a block is full, a cross is open on its four sides,
// a tick is open at its upper left.
void ResourcesTest::marksInBlackAndWhite()
{
    QFETCH(QString, name);
    QFETCH(int, size);
    const QVector<QVector<int>> ink = inkOf(name, size);
    QCOMPARE(patches(ink, true), 1);
    QCOMPARE(patches(ink, false), name == QLatin1String("circle") ? 2 : 1);

    const auto isBlack = [&](double x, double y) { return blackIn(ink, QRectF(x - 0.1, y - 0.1, 0.2, 0.2)) > 0; };
    const bool isCross = name == QLatin1String("cross");
    const bool isTick = name == QLatin1String("tick");
    QCOMPARE(isBlack(0.5, 0.5), name != QLatin1String("circle"));
    // the four sides
    QCOMPARE(isBlack(0.5, 0.15), !isCross && !isTick);
    QCOMPARE(isBlack(0.15, 0.5), !isCross);
    QCOMPARE(isBlack(0.85, 0.5), !isCross && !isTick);
    QCOMPARE(isBlack(0.5, 0.85), !isCross);
    // the corners
    QCOMPARE(isBlack(0.25, 0.25), !isTick);
    QVERIFY(isBlack(0.75, 0.25));
    // strokes, not splotches
    const double share = double(blackIn(ink, QRectF(0, 0, 1, 1))) / (size * size);
    QVERIFY2(share > 0.1 && share < 0.5, qPrintable(QString::number(share)));
}

QTEST_MAIN(ResourcesTest)
#include "tst_resources.moc"

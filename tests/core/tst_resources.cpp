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
};

namespace {

const QString folder = QStringLiteral(":/image/image/");

} // namespace

void ResourcesTest::names()
{
    const QStringList files = QDir(folder).entryList();
    for (const char *name : {"close.svg", "locked.png", "today.svg", "triangle.svg"})
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

QTEST_MAIN(ResourcesTest)
#include "tst_resources.moc"

// SPDX-License-Identifier: MIT
#include "graphic/tavropicture.h"
#include "tests/graphic/imagesamples.h"
#include "tests/support/stricttest.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

/// Pictures: from bytes, images and files to the value and back.
class TestTavroPictureContent : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void valueIsEncodedAnew_data();
    void valueIsEncodedAnew();
    void bothSignals();
    void signalOfAnImage();
    void signalOfAFile();
    void imagesOfManyPixels_data();
    void imagesOfManyPixels();
    void whatIsNoImage_data();
    void whatIsNoImage();
    void bytesOfImages();
    void path();
    void pathWithoutImage_data();
    void pathWithoutImage();
    void renew();
    void renewWithoutReset();
};

void TestTavroPictureContent::valueIsEncodedAnew_data()
{
    QTest::addColumn<QByteArray>("bytes");
    for (const char *format : {"bmp", "gif", "ico", "jpeg", "pbm", "png", "svg", "svgz", "xpm"})
        QTest::newRow(format) << samples::of(format);
}

void TestTavroPictureContent::valueIsEncodedAnew()
{
    QFETCH(QByteArray, bytes);
    TavroPicture picture;
    picture.setContentData(bytes);
    QCOMPARE(picture.image().size(), QSize(16, 8));
    QVERIFY(picture.contentData().toByteArray().startsWith("\x89PNG\r\n"));
    QCOMPARE(picture.contentData(), QVariant(samples::written("png", picture.image())));
    // What is stored loads again, and stays what it is.
    const QVariant stored = picture.contentData();
    picture.setContentData(stored);
    QCOMPARE(picture.contentData(), stored);
}

void TestTavroPictureContent::bothSignals()
{
    TavroPicture picture;
    picture.setBoundingRect(QRectF(0, 0, 100, 100));
    const QByteArray jpeg = samples::of("jpeg");
    QVector<QByteArray> values;
    QVector<QSize> images;
    connect(&picture, &TavroPrototype::contentDataChanged, &picture, [&] {
        values.append(picture.contentData().toByteArray());
        images.append(picture.image().size());
        QVERIFY(!picture.isModified());
        QCOMPARE(picture.imageRect(), QRect());
    });
    picture.setContentData(jpeg);
    QCOMPARE(values, (QVector<QByteArray>{jpeg, samples::written("png", picture.image())}));
    QCOMPARE(images, (QVector<QSize>{QSize(0, 0), QSize(16, 8)}));
    QVERIFY(picture.isModified());
    QCOMPARE(picture.imageRect().size(), QSize(100, 50));
}

void TestTavroPictureContent::signalOfAnImage()
{
    TavroPicture picture;
    QSignalSpy changed(&picture, &TavroPrototype::contentDataChanged);
    const QImage image = samples::image();
    picture.setImage(image);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(picture.contentData(), QVariant(picture.imageToByteArray(&image)));
    picture.setImage(image);
    QCOMPARE(changed.count(), 2);
    picture.setImage({});
    QCOMPARE(changed.count(), 3);
    QCOMPARE(picture.contentData(), QVariant(QByteArray()));
}

void TestTavroPictureContent::signalOfAFile()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("logo.png"));
    QVERIFY(samples::image().save(path));
    TavroPicture picture;
    int count = 0;
    connect(&picture, &TavroPrototype::contentDataChanged, &picture, [&] {
        ++count;
        QCOMPARE(picture.imgPath(), path);
        QCOMPARE(picture.image().size(), QSize(16, 8));
        QVERIFY(!picture.isModified());
    });
    picture.setImgPath(path);
    QCOMPARE(count, 1);
    QVERIFY(picture.isModified());
}

void TestTavroPictureContent::imagesOfManyPixels_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isTooBig");
    QTest::newRow("longest side") << QSize(1000000, 1) << false;
    QTest::newRow("longer by one") << QSize(1000001, 1) << true;
    QTest::newRow("most pixels") << QSize(8192, 8192) << false;
    QTest::newRow("a column more") << QSize(8193, 8192) << true;
}

// What is stored can be loaded again.
void TestTavroPictureContent::imagesOfManyPixels()
{
    QFETCH(QSize, size);
    QFETCH(bool, isTooBig);
    QImage image(size, QImage::Format_Mono);
    image.fill(1);
    TavroPicture picture;
    picture.setImage(samples::image());
    picture.setIsModified(false);
    QSignalSpy changed(&picture, &TavroPrototype::contentDataChanged);
    picture.setImage(image);
    QCOMPARE(picture.image().size(), isTooBig ? QSize(0, 0) : size);
    QCOMPARE(picture.contentData().toByteArray().isEmpty(), isTooBig);
    QCOMPARE(changed.count(), 1);
    QVERIFY(picture.isModified());
}

void TestTavroPictureContent::whatIsNoImage_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("null") << QVariant();
    QTest::newRow("empty") << QVariant(QByteArray());
    QTest::newRow("bytes") << QVariant(QByteArray("no image"));
    QTest::newRow("text") << QVariant(QStringLiteral("no image"));
    QTest::newRow("number") << QVariant(12.5);
    QTest::newRow("an image itself, which has no bytes") << QVariant(samples::image());
}

void TestTavroPictureContent::whatIsNoImage()
{
    QFETCH(QVariant, value);
    TavroPicture picture;
    picture.setImage(samples::image());
    picture.setIsModified(false);
    QSignalSpy changed(&picture, &TavroPrototype::contentDataChanged);
    picture.setContentData(value);
    QVERIFY(picture.image().isNull());
    QCOMPARE(picture.contentData().userType(), int(QMetaType::QByteArray));
    QVERIFY(picture.contentData().toByteArray().isEmpty());
    QCOMPARE(changed.count(), 2);
    QVERIFY(picture.isModified());
}

void TestTavroPictureContent::bytesOfImages()
{
    const TavroPicture picture;
    const QImage null;
    const QImage image = samples::image();
    QVERIFY(picture.imageToByteArray(nullptr).isEmpty());
    QVERIFY(picture.imageToByteArray(&null).isEmpty());
    QCOMPARE(picture.imageToByteArray(&image), samples::written("png", image));
}

void TestTavroPictureContent::path()
{
    QTemporaryDir folder;
    for (const char *format : {"jpeg", "svg", "gif", "png"}) {
        const QString path = folder.filePath(QStringLiteral("logo.") + QString::fromLatin1(format));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(samples::of(format));
        file.close();
        TavroPicture picture;
        QSignalSpy changed(&picture, &TavroPrototype::contentDataChanged);
        picture.setImgPath(path);
        QCOMPARE(picture.imgPath(), path);
        QCOMPARE(picture.image().size(), QSize(16, 8));
        QVERIFY(picture.contentData().toByteArray().startsWith("\x89PNG"));
        QCOMPARE(changed.count(), 1);
        // A value of another origin does not change where the last file was.
        picture.setContentData(QVariant());
        QCOMPARE(picture.imgPath(), path);
    }
}

void TestTavroPictureContent::pathWithoutImage_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty") << QString();
    QTest::newRow("missing") << QStringLiteral("/missing/logo.png");
    QTest::newRow("folder") << QDir::rootPath();
}

void TestTavroPictureContent::pathWithoutImage()
{
    QFETCH(QString, path);
    TavroPicture picture;
    picture.setImage(samples::image());
    picture.setImgPath(path);
    QCOMPARE(picture.imgPath(), path);
    QVERIFY(picture.image().isNull());
    QCOMPARE(picture.contentData(), QVariant(QByteArray()));
}

void TestTavroPictureContent::renew()
{
    TavroPicture picture;
    picture.setPresetData(samples::of("jpeg"));
    picture.setImage(samples::image({3, 3}));
    QSignalSpy changed(&picture, &TavroPrototype::contentDataChanged);
    picture.renew();
    QCOMPARE(picture.image().size(), QSize(16, 8));
    QVERIFY(picture.contentData().toByteArray().startsWith("\x89PNG"));
    QCOMPARE(picture.presetData(), QVariant(samples::of("jpeg")));
    QCOMPARE(changed.count(), 2);
    picture.setPresetData(QVariant());
    picture.renew();
    QVERIFY(picture.image().isNull());
    QCOMPARE(picture.contentData(), QVariant(QByteArray()));
}

void TestTavroPictureContent::renewWithoutReset()
{
    TavroPicture picture;
    picture.setPresetData(samples::of("jpeg"));
    picture.setImage(samples::image({3, 3}));
    picture.setIsResetAtRenew(false);
    QSignalSpy changed(&picture, &TavroPrototype::contentDataChanged);
    picture.renew();
    QCOMPARE(picture.image().size(), QSize(3, 3));
    QCOMPARE(changed.count(), 0);
}

QTEST_MAIN(TestTavroPictureContent)
#include "tst_tavropicturecontent.moc"

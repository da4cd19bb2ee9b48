// SPDX-License-Identifier: MIT
#include "graphic/tavropicture.h"
#include "tests/graphic/imagesamples.h"
#include "tests/support/stricttest.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTest>
#include <limits>

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

QImage paper()
{
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

// Red, green, blue and black quarters.
QImage quarters(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const int w = size.width() / 2;
    const int h = size.height() / 2;
    painter.fillRect(0, 0, w, h, Qt::red);
    painter.fillRect(w, 0, w, h, Qt::green);
    painter.fillRect(0, h, w, h, Qt::blue);
    painter.fillRect(w, h, w, h, Qt::black);
    return image;
}

// On paper whose middle is the origin of the picture.
QImage printed(TavroPicture &picture)
{
    QImage image = paper();
    QPainter painter(&image);
    painter.translate(100, 100);
    const QStyleOptionGraphicsItem option;
    picture.setPaintMode(Paint_Print);
    picture.paint(&painter, &option, nullptr);
    return image;
}

QColor at(const QImage &image, int x, int y)
{
    return image.pixelColor(100 + x, 100 + y);
}

} // namespace

/// Pictures as they stand on paper.
class TestTavroPicturePixels : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void fitStandsInTheMiddle();
    void actualIsClipped();
    void upright_data();
    void upright();
    void turnsAboutTheOrigin();
    void turnsOutOfTheClip();
    void anyNumbers_data();
    void anyNumbers();
};

void TestTavroPicturePixels::fitStandsInTheMiddle()
{
    TavroPicture picture;
    picture.setBoundingRect(QRectF(-50, -50, 100, 100));
    picture.setImage(quarters({200, 100}));
    const QImage image = printed(picture);
    QCOMPARE(at(image, 0, -30), QColor(Qt::white));
    QCOMPARE(at(image, -20, -15), QColor(Qt::red));
    QCOMPARE(at(image, 20, -15), QColor(Qt::green));
    QCOMPARE(at(image, -20, 15), QColor(Qt::blue));
    QCOMPARE(at(image, 20, 15), QColor(Qt::black));
    QCOMPARE(at(image, 0, 30), QColor(Qt::white));
}

void TestTavroPicturePixels::actualIsClipped()
{
    TavroPicture picture;
    picture.setBoundingRect(QRectF(-50, -40, 60, 30));
    picture.setFillMode(Picture_Actual);
    picture.setImage(samples::image({140, 130}));
    const QImage image = printed(picture);
    QRect colored;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::red))
                colored |= QRect(x - 100, y - 100, 1, 1);
        }
    }
    QCOMPARE(colored, QRect(-50, -40, 60, 30));
}

void TestTavroPicturePixels::upright_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QRectF>("rect");
    for (const int mode : {0, 1}) {
        QTest::addRow("mode %d, right and down", mode) << mode << QRectF(-40, -40, 80, 80);
        QTest::addRow("mode %d, left and down", mode) << mode << QRectF(40, -40, -80, 80);
        QTest::addRow("mode %d, right and up", mode) << mode << QRectF(-40, 40, 80, -80);
        QTest::addRow("mode %d, left and up", mode) << mode << QRectF(40, 40, -80, -80);
    }
}

void TestTavroPicturePixels::upright()
{
    QFETCH(int, mode);
    QFETCH(QRectF, rect);
    TavroPicture picture;
    picture.setBoundingRect(rect);
    picture.setFillMode(static_cast<Picture_Fill_Mode>(mode));
    picture.setImage(quarters({200, 200}));
    const QImage image = printed(picture);
    QCOMPARE(at(image, -36, -36), QColor(Qt::red));
    QCOMPARE(at(image, 36, -36), QColor(Qt::green));
    QCOMPARE(at(image, -36, 36), QColor(Qt::blue));
    QCOMPARE(at(image, 36, 36), QColor(Qt::black));
    for (const QPoint &outside : {QPoint(-43, 0), QPoint(43, 0), QPoint(0, -43), QPoint(0, 43)})
        QCOMPARE(at(image, outside.x(), outside.y()), QColor(Qt::white));
}

void TestTavroPicturePixels::turnsAboutTheOrigin()
{
    TavroPicture picture;
    picture.setBoundingRect(QRectF(-50, -50, 100, 100));
    picture.setFillMode(Picture_Stretch);
    picture.setImage(quarters({100, 100}));
    picture.setAngle(90); // clockwise
    const QImage image = printed(picture);
    QCOMPARE(at(image, 20, -20), QColor(Qt::red));
    QCOMPARE(at(image, 20, 20), QColor(Qt::green));
    QCOMPARE(at(image, -20, -20), QColor(Qt::blue));
    QCOMPARE(at(image, -20, 20), QColor(Qt::black));
}

void TestTavroPicturePixels::turnsOutOfTheClip()
{
    TavroPicture picture;
    picture.setFillMode(Picture_Stretch);
    picture.setBoundingRect(QRectF(0, 0, 80, 80));
    picture.setImage(samples::image());
    picture.setAngle(90);
    QCOMPARE(printed(picture), paper());
    // Half of the clip is swung over.
    picture.setAngle(45);
    const QImage image = printed(picture);
    QCOMPARE(at(image, 20, 60), QColor(Qt::red));
    QCOMPARE(at(image, 60, 20), QColor(Qt::white));
    QCOMPARE(at(image, -20, 60), QColor(Qt::white));
    QCOMPARE(at(image, 30, 90), QColor(Qt::white));
}

void TestTavroPicturePixels::anyNumbers_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("angle");
    const QRectF usual(-50, -50, 100, 100);
    for (const double angle : {NoNumber, Infinity, -Infinity, 1e300, -1e-300})
        QTest::addRow("angle %g", angle) << usual << angle;
    for (const double length : {NoNumber, Infinity, -Infinity, 1e300, -1e300, 1e9, 1e-300}) {
        for (const double angle : {0.0, 30.0, NoNumber}) {
            QTest::addRow("place %g, angle %g", length, angle) << QRectF(length, length, 100, 100) << angle;
            QTest::addRow("size %g, angle %g", length, angle) << QRectF(-50, -50, length, length) << angle;
            QTest::addRow("all %g, angle %g", length, angle) << QRectF(length, length, length, length) << angle;
            QTest::addRow("width %g, angle %g", length, angle) << QRectF(-50, -50, length, 5) << angle;
        }
    }
}

// Whatever is drawn: the picture is painted afterwards like before.
void TestTavroPicturePixels::anyNumbers()
{
    QFETCH(QRectF, rect);
    QFETCH(double, angle);
    TavroPicture picture;
    picture.setHasBorder(false);
    picture.setImage(quarters({20, 20}));
    for (int mode = 0; mode <= 3; ++mode) {
        picture.setFillMode(static_cast<Picture_Fill_Mode>(mode));
        picture.setBoundingRect(rect);
        picture.setAngle(angle);
        QCOMPARE(printed(picture).size(), QSize(200, 200));
    }
    picture.setFillMode(Picture_Stretch);
    picture.setBoundingRect(QRectF(-50, -50, 100, 100));
    picture.setAngle(0);
    QCOMPARE(at(printed(picture), -20, -20), QColor(Qt::red));
}

QTEST_MAIN(TestTavroPicturePixels)
#include "tst_tavropicturepixels.moc"

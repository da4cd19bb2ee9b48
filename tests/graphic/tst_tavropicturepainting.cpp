// SPDX-License-Identifier: MIT
#include "graphic/tavropicture.h"
#include "tests/graphic/imagesamples.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <cmath>

namespace {

QVector<PaintCommand::Kind> kinds(const QVector<PaintCommand> &commands)
{
    QVector<PaintCommand::Kind> found;
    for (const PaintCommand &command : commands)
        found.append(command.kind);
    return found;
}

} // namespace

/// Pictures as they are painted.
class TestTavroPicturePainting : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void modes_data();
    void modes();
    void lockedSign();
    void command_data();
    void command();
    void replacesTheClip();
    void stateOfThePainterIsKept();
    void repainting();
};

void TestTavroPicturePainting::modes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("print");
    QTest::addColumn<bool>("image");
    QTest::addColumn<bool>("border");
    QTest::newRow("design") << 0 << true << true << true;
    QTest::newRow("design, not printed") << 0 << false << true << true;
    QTest::newRow("input") << 1 << true << true << true;
    QTest::newRow("input, not printed") << 1 << false << true << true;
    QTest::newRow("print") << 2 << true << true << false;
    QTest::newRow("print, not printed") << 2 << false << false << false;
    QTest::newRow("beyond") << 3 << true << false << false;
}

void TestTavroPicturePainting::modes()
{
    QFETCH(int, mode);
    QFETCH(bool, print);
    QFETCH(bool, image);
    QFETCH(bool, border);
    TavroPicture picture;
    picture.setBoundingRect(QRectF(10, 20, 60, 40));
    picture.setIsPrint(print);
    picture.setPaintMode(static_cast<Paint_Mode>(mode));
    for (const bool hasImage : {true, false}) {
        picture.setImage(hasImage ? samples::image() : QImage());
        for (const bool hasBorder : {true, false}) {
            picture.setHasBorder(hasBorder);
            QVector<PaintCommand::Kind> expected;
            if (image && hasImage)
                expected.append(PaintCommand::Image);
            if (border && hasBorder)
                expected.append(PaintCommand::Rect);
            QCOMPARE(kinds(probes::paintedBy(picture)), expected);
        }
    }
}

void TestTavroPicturePainting::lockedSign()
{
    TavroPicture picture;
    picture.setBoundingRect(QRectF(10, 20, 60, 40));
    picture.setImage(samples::image());
    picture.setIsLocked(true);
    picture.setSelected(true);
    const QVector<PaintCommand> painted = probes::paintedBy(picture);
    QCOMPARE(kinds(painted),
             (QVector<PaintCommand::Kind>{PaintCommand::Image, PaintCommand::Rect, PaintCommand::Image}));
    QCOMPARE(painted.last().rect.topLeft(), QPointF(10, 20));
    QVERIFY(!painted.last().hasClip);
    picture.setPaintMode(Paint_Input);
    picture.setFlag(QGraphicsItem::ItemIsSelectable);
    picture.setSelected(true);
    QCOMPARE(probes::paintedBy(picture).size(), 2);
}

void TestTavroPicturePainting::command_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("angle");
    QTest::addColumn<QRectF>("drawn");

    const QRectF square(10, 20, 100, 100);
    const QRectF negative(110, 120, -100, -100);
    QTest::newRow("fit") << 0 << square << 0.0 << QRectF(11, 46, 100, 50);
    QTest::newRow("stretch") << 1 << square << 0.0 << square;
    QTest::newRow("actual") << 2 << square << 0.0 << QRectF(10, 20, 200, 100);
    QTest::newRow("turned") << 1 << square << 30.0 << square;
    QTest::newRow("turned to the left") << 1 << square << -12.5 << square;
    QTest::newRow("turned twice round") << 1 << square << 750.0 << square;
    QTest::newRow("fit, negative size") << 0 << negative << 0.0 << QRectF(10, 45, 100, 50);
    QTest::newRow("stretch, negative size") << 1 << negative << 30.0 << square;
    QTest::newRow("clip of fractions") << 1 << QRectF(0.25, 0.25, 9.5, 9.5) << 0.0 << QRectF(0, 0, 10, 10);
}

void TestTavroPicturePainting::command()
{
    QFETCH(int, mode);
    QFETCH(QRectF, rect);
    QFETCH(double, angle);
    TavroPicture picture;
    picture.setFillMode(static_cast<Picture_Fill_Mode>(mode));
    picture.setBoundingRect(rect);
    picture.setImage(samples::image({200, 100}));
    picture.setAngle(angle);
    const QVector<PaintCommand> painted = probes::paintedBy(picture);
    QCOMPARE(painted.size(), 2);
    const PaintCommand &image = painted.first();
    QTEST(image.rect, "drawn");
    QCOMPARE(image.source, QRectF(0, 0, 200, 100));
    QCOMPARE(image.transform, QTransform().rotate(angle));
    QVERIFY(image.hasClip);
    const QRectF difference(image.clip.topLeft() - rect.normalized().topLeft(),
                            image.clip.size() - rect.normalized().size());
    QVERIFY(std::abs(difference.x()) + std::abs(difference.y()) < 1e-6);
    QVERIFY(std::abs(difference.width()) + std::abs(difference.height()) < 1e-6);
    QVERIFY(image.hints.testFlag(QPainter::SmoothPixmapTransform));
    // The border neither turns nor is clipped.
    QVERIFY(painted.last().transform.isIdentity());
    QVERIFY(!painted.last().hasClip);
}

void TestTavroPicturePainting::replacesTheClip()
{
    TavroPicture picture;
    picture.setBoundingRect(QRectF(10, 20, 60, 40));
    picture.setImage(samples::image());
    RecordingDevice device;
    QPainter painter(&device);
    painter.setClipRect(QRectF(0, 0, 15, 25));
    for (const bool on : {true, false}) {
        painter.setClipping(on);
        picture.drawPicture(&painter);
        QCOMPARE(painter.hasClipping(), on);
        QVERIFY(device.commands().last().hasClip);
        QCOMPARE(device.commands().last().clip, QRectF(10, 20, 60, 40));
    }
    painter.setClipping(true);
    QCOMPARE(painter.clipBoundingRect(), QRectF(0, 0, 15, 25));
}

void TestTavroPicturePainting::stateOfThePainterIsKept()
{
    TavroPicture picture;
    picture.setBoundingRect(QRectF(10, 20, 60, 40));
    picture.setImage(samples::image());
    picture.setAngle(30);
    RecordingDevice device;
    QPainter painter(&device);
    const QPen pen(QColor(1, 2, 3), 5);
    painter.setPen(pen);
    painter.translate(3, 4);
    const QTransform before = painter.transform();
    picture.drawPicture(&painter);
    QCOMPARE(painter.transform(), before);
    QCOMPARE(painter.pen(), pen);
    QVERIFY(!painter.hasClipping());
    // About the origin of the item, wherever that stands.
    QCOMPARE(device.commands().first().transform, QTransform::fromTranslate(3, 4).rotate(30));
}

void TestTavroPicturePainting::repainting()
{
    QGraphicsScene scene;
    auto *picture = new TavroPicture;
    picture->setBoundingRect(QRectF(0, 0, 60, 40));
    scene.addItem(picture);
    QSignalSpy changed(&scene, &QGraphicsScene::changed);
    const auto repaints = [&](const std::function<void()> &change) {
        QCoreApplication::processEvents();
        changed.clear();
        change();
        QCoreApplication::processEvents();
        return changed.count() > 0;
    };
    QVERIFY(!repaints([] {}));
    for (const QImage &image : {QImage(), samples::image(), QImage()}) {
        QVERIFY(repaints([&] { picture->setImage(image); }));
        QVERIFY(repaints([&] { picture->setFillMode(Picture_Stretch); }));
        QVERIFY(repaints([&] { picture->setFillMode(Picture_Fill_Mode(9)); }));
        QVERIFY(repaints([&] { picture->scaleImageRect(); }));
        QVERIFY(repaints([&] { picture->setImgPath(QString()); }));
        QVERIFY(!repaints([&] { picture->setAngle(30); }));
        QVERIFY(!repaints([&] { picture->setCanQuery(true); }));
    }
}

QTEST_MAIN(TestTavroPicturePainting)
#include "tst_tavropicturepainting.moc"

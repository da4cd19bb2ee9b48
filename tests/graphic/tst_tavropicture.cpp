// SPDX-License-Identifier: MIT
#include "graphic/tavropicture.h"
#include "tests/graphic/imagesamples.h"
#include "tests/support/itemprobes.h"
#include "tests/support/settingtable.h"
#include "tests/support/stricttest.h"
#include "tests/support/virtualslots.h"

#include <QTest>
#include <climits>
#include <limits>

namespace {

QVector<Setting<TavroPicture>> settings()
{
    using P = TavroPicture;
    const QVariant png = samples::written("png", samples::image());
    return {
        setting<P>("fillMode", &P::fillMode, &P::setFillMode, Picture_Fit, Picture_Actual, true),
        setting<P>("fillMode beyond", &P::fillMode, &P::setFillMode, Picture_Fit, Picture_Fill_Mode(-7), true),
        setting<P>("image", &P::image, &P::setImage, QImage(), samples::image(), true),
        setting<P>("null image", &P::image, &P::setImage, QImage(), QImage(), true),
        setting<P>("imgPath", &P::imgPath, &P::setImgPath, QString(), QStringLiteral("missing.png"), true),
        setting<P>("no imgPath", &P::imgPath, &P::setImgPath, QString(), QString(), true),
        setting<P>("angle", &P::angle, &P::setAngle, 0.0, -12.5, true),
        setting<P>("canQuery", &P::canQuery, &P::setCanQuery, false, true, true),
        setting<P>("contentData", &P::contentData, &P::setContentData, QVariant(), png, true),
        setting<P>("boundingRect", &P::boundingRect, &P::setBoundingRect, QRectF(), QRectF(1, 2, -3, 4), false),
    };
}

} // namespace

/// Pictures: settings, and where the image is drawn.
class TestTavroPicture : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void settings_data() { addSettingRows(::settings()); }
    void settings()
    {
        QFETCH(int, index);
        checkSetting(::settings().at(index));
    }
    void virtualOperations();
    void imageRect_data();
    void imageRect();
    void otherFillModesLeaveTheImageRectangle_data();
    void otherFillModesLeaveTheImageRectangle();
    void withoutImage();
    void geometryChangesBeforeTheImageRectangle();
    void everySetterOfGeometryScales();
};

void TestTavroPicture::construction()
{
    const TavroPicture picture;
    QCOMPARE(picture.objType(), Obj_Picture);
    QCOMPARE(int(picture.objType()), 10);
    QCOMPARE(picture.type(), 65535);
    QVERIFY(!picture.isModified());
    QCOMPARE(int(picture.fillMode()), 0);
    QVERIFY(picture.image().isNull());
    QCOMPARE(picture.imageRect(), QRect());
    QCOMPARE(picture.imgPath(), QString());
    QCOMPARE(picture.angle(), 0.0);
    QVERIFY(!picture.canQuery());
    QVERIFY(picture.contentData().isNull());
    const QMetaObject &own = TavroPicture::staticMetaObject;
    QCOMPARE(own.propertyCount(), own.propertyOffset());
    QCOMPARE(own.methodCount(), own.methodOffset());
}

void TestTavroPicture::virtualOperations()
{
#if defined(__GXX_ABI_VERSION) && defined(__x86_64__)
    using P = TavroPicture;
    using Base = TavroPrototype;
    QCOMPARE(slotOf(&P::setBoundingRect), slotOf(&Base::setBoundingRect));
    QCOMPARE(slotOf(&P::setContentData), slotOf(&Base::setContentData));
    QCOMPARE(slotOf(&P::designPaint), slotOf(&Base::designPaint));
    QCOMPARE(slotOf(&P::inputPaint), slotOf(&Base::inputPaint));
    QCOMPARE(slotOf(&P::printPaint), slotOf(&Base::printPaint));
    QCOMPARE(slotOf(&P::setImage), -1);
    QCOMPARE(slotOf(&P::setImgPath), -1);
    QCOMPARE(slotOf(&P::imageToByteArray), -1);
    QCOMPARE(slotOf(&P::scaleImageRect), -1);
    QCOMPARE(slotOf(&P::drawPicture), -1);
#else
    QSKIP("slots are read off pointers to members on x86-64 only");
#endif
}

void TestTavroPicture::imageRect_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("imageRect");

    constexpr double inf = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr int most = (1 << 24) - 1;
    const QRectF square(0, 0, 100, 100);
    const auto add = [](const char *name, int mode, const QRectF &rect, const QSize &size, const QRect &expected) {
        QTest::newRow(name) << mode << rect << size << expected;
    };
    // The centre of an even side is the pixel before its middle, so that it stands a pixel to the right.
    add("fit, wide", 0, square, {200, 100}, {1, 26, 100, 50});
    add("fit, high", 0, square, {100, 200}, {26, 1, 50, 100});
    add("fit, enlarged", 0, {10, 20, 100, 100}, {2, 1}, {11, 46, 100, 50});
    add("fit, same size", 0, {0, 0, 200, 100}, {200, 100}, {1, 1, 200, 100});
    add("fit, odd", 0, {0, 0, 101, 51}, {101, 51}, {1, 1, 101, 51});
    add("fit, odd in even", 0, {0, 0, 10, 10}, {3, 1}, {1, 4, 10, 3});
    add("fit, fractions", 0, {0.5, 0.4, 99.5, 99.4}, {10, 10}, {1, 1, 99, 99});
    add("fit, negative place", 0, {-0.5, -1.5, 10, 10}, {10, 10}, {1, 0, 10, 10});
    add("fit, negative size", 0, {100, 100, -100, -100}, {200, 100}, {100, 75, -100, -50});
    add("fit, negative size, high", 0, {100, 100, -100, -100}, {100, 200}, {75, 100, -50, -100});
    add("fit, negative width", 0, {100, 0, -100, 100}, {200, 100}, {100, 26, -100, 50});
    add("fit, negative height", 0, {0, 100, 100, -100}, {200, 100}, {1, 75, 100, -50});
    add("fit, no width", 0, {0, 0, 0, 100}, {200, 100}, {0, 50, 0, 0});
    add("fit, no height", 0, {0, 0, 100, 0}, {200, 100}, {50, 0, 0, 0});
    add("fit, nothing", 0, {7, 8, 0, 0}, {200, 100}, {7, 8, 0, 0});
    add("fit, too flat for a pixel", 0, square, {1000, 1}, {1, 50, 100, 0});
    add("fit, huge", 0, {0, 0, 1e300, 1e300}, {1, 1}, {8388608, 8388608, most, most});
    add("fit, infinite", 0, {0, 0, inf, inf}, {1, 1}, {8388608, 8388608, most, most});
    add("fit, no number", 0, {nan, nan, nan, nan}, {200, 100}, {0, 0, 0, 0});
    add("stretch", 1, square, {200, 100}, {0, 0, 100, 100});
    add("stretch, halves upwards", 1, {0.5, 1.5, 10.5, 20.4}, {200, 100}, {1, 2, 11, 20});
    add("stretch, negative halves upwards", 1, {-0.5, -1.5, -3.5, -4.6}, {200, 100}, {0, -1, -3, -5});
    add("stretch, nothing", 1, {7, 8, 0, 0}, {200, 100}, {7, 8, 0, 0});
    add("stretch, huge", 1, {-1e300, 1e10, 1e10, -1e300}, {200, 100}, {-most, most, most, -most});
    add("stretch, infinite", 1, {-inf, inf, inf, -inf}, {200, 100}, {-most, most, most, -most});
    add("stretch, no number", 1, {nan, 1, nan, 2}, {200, 100}, {0, 1, 0, 2});
    add("actual, larger", 2, square, {200, 150}, {0, 0, 200, 150});
    add("actual, smaller", 2, {10, 20, 100, 100}, {2, 1}, {10, 20, 2, 1});
    add("actual, fractions", 2, {0.5, -1.5, 3, 3}, {200, 100}, {1, -1, 200, 100});
    add("actual, negative size", 2, {100, 100, -100, -100}, {20, 10}, {100, 100, 20, 10});
    add("actual, nothing", 2, {7, 8, 0, 0}, {20, 10}, {7, 8, 20, 10});
    add("actual, no number", 2, {nan, nan, nan, nan}, {20, 10}, {0, 0, 20, 10});
}

// Whichever of rectangle, mode and image comes last.
void TestTavroPicture::imageRect()
{
    QFETCH(int, mode);
    QFETCH(QRectF, rect);
    QFETCH(QSize, size);
    for (int last = 0; last < 3; ++last) {
        TavroPicture picture;
        for (int step = 1; step <= 3; ++step) {
            const int what = (last + step) % 3;
            if (what == 0)
                picture.setBoundingRect(rect);
            else if (what == 1)
                picture.setFillMode(static_cast<Picture_Fill_Mode>(mode));
            else
                picture.setImage(samples::image(size));
        }
        QTEST(picture.imageRect(), "imageRect");
    }
}

void TestTavroPicture::otherFillModesLeaveTheImageRectangle_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {-1, 3, 100, INT_MAX, INT_MIN})
        QTest::addRow("%d", mode) << mode;
}

void TestTavroPicture::otherFillModesLeaveTheImageRectangle()
{
    QFETCH(int, mode);
    TavroPicture picture;
    picture.setFillMode(Picture_Stretch);
    picture.setBoundingRect(QRectF(1, 2, 30, 40));
    picture.setImage(samples::image());
    picture.setFillMode(static_cast<Picture_Fill_Mode>(mode));
    picture.setBoundingRect(QRectF(5, 6, 70, 80));
    picture.setImage(samples::image({3, 3}));
    QCOMPARE(picture.imageRect(), QRect(1, 2, 30, 40));
    picture.setFillMode(Picture_Stretch);
    QCOMPARE(picture.imageRect(), QRect(5, 6, 70, 80));
}

void TestTavroPicture::withoutImage()
{
    TavroPicture picture;
    for (const QRect &kept : {QRect(), QRect(1, 2, 30, 40)}) {
        for (const Picture_Fill_Mode mode : {Picture_Fit, Picture_Actual, Picture_Stretch}) {
            picture.setFillMode(mode);
            picture.setBoundingRect(QRectF(9, 9, 9, 9));
            picture.setContentData(QByteArray("no image"));
            QCOMPARE(picture.imageRect(), kept);
        }
        // The rectangle of the image that goes stays.
        picture.setBoundingRect(QRectF(1, 2, 30, 40));
        picture.setImage(samples::image());
        picture.setImage({});
    }
}

void TestTavroPicture::geometryChangesBeforeTheImageRectangle()
{
    TavroPicture picture;
    picture.setFillMode(Picture_Stretch);
    picture.setImage(samples::image());
    QSignalSpy changed(&picture, &TavroPrototype::boundingRectChanged);
    connect(&picture, &TavroPrototype::boundingRectChanged, &picture, [&picture] {
        QCOMPARE(picture.boundingRect(), QRectF(1, 2, 30, 40));
        QCOMPARE(picture.imageRect(), QRect(0, 0, 0, 0));
    });
    picture.setBoundingRect(QRectF(1, 2, 30, 40));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(probes::handlesOf(picture).last()->pos(), QPointF(-3, 18));
}

void TestTavroPicture::everySetterOfGeometryScales()
{
    TavroPicture picture;
    picture.setFillMode(Picture_Stretch);
    picture.setImage(samples::image());
    picture.setBoundingRect(QRectF(1, 2, 30, 40));
    picture.setObjX(10);
    picture.setHeight(50);
    QCOMPARE(picture.imageRect(), QRect(10, 2, 30, 50));
    picture.resize(Handle_Right, QPointF(110, 0));
    QCOMPARE(picture.imageRect(), QRect(10, 2, 100, 50));
}

QTEST_MAIN(TestTavroPicture)
#include "tst_tavropicture.moc"

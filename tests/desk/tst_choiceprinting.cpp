// SPDX-License-Identifier: MIT
#include "desk/printing.h"
#include "desk/record.h"
#include "tests/desk/pictureforms.h"
#include "tests/support/stricttest.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int Dpi = 254; // ten pixels a millimetre

// Half a pixel of the form and one of the paper.
constexpr double Tolerance = 0.2; // mm

QJsonObject json(const QByteArray &text)
{
    return deskforms::value(text.constData()).toObject();
}

// What is not white on the page, mm; null for a white page.
QRectF inkOf(const QImage &page)
{
    QRect ink;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            if (qGray(page.pixel(x, y)) < 192)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return {QPointF(ink.topLeft()) / 10, QSizeF(ink.size()) / 10};
}

bool isNear(const QRectF &found, const QRectF &expected)
{
    return qAbs(found.left() - expected.left()) <= Tolerance && qAbs(found.top() - expected.top()) <= Tolerance &&
           qAbs(found.right() - expected.right()) <= Tolerance && qAbs(found.bottom() - expected.bottom()) <= Tolerance;
}

QByteArray described(const QRectF &rect)
{
    return QStringLiteral("%1 %2 %3 %4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height()).toUtf8();
}

} // namespace

class ChoicePrintingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void marks_data();
    void marks();
    void pictures_data();
    void pictures();
    void comboBox_data();
    void comboBox();
    void whitePaper_data();
    void whitePaper();

private:
    QImage printed(const QJsonObject &object, const QJsonObject &record = {})
    {
        const std::unique_ptr<Form> form = deskforms::formWith({object});
        const QString name = m_folder.filePath(QStringLiteral("page.png"));
        if (!form || !record::fillFromJson(form.get(), record, QStringLiteral("r")).error.isEmpty() ||
            !printing::write(form.get(), name, Dpi).isEmpty())
            return {};
        return QImage(name);
    }

    QTemporaryDir m_folder;
};

void ChoicePrintingTest::marks_data()
{
    QTest::addColumn<QByteArray>("style");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("isMarked");
    for (const char *style : {"tick", "tickOrCross", "circle", "circleOrCross", "block"}) {
        const bool hasCross = QByteArray(style).endsWith("OrCross");
        QTest::addRow("%s, ticked", style) << QByteArray(style) << QByteArray("true") << true;
        QTest::addRow("%s, partially", style) << QByteArray(style) << QByteArray("1") << true;
        QTest::addRow("%s, open", style) << QByteArray(style) << QByteArray("false") << hasCross;
    }
}

// The mark fills its square, and leaves the paper beside it white.
void ChoicePrintingTest::marks()
{
    QFETCH(QByteArray, style);
    QFETCH(QByteArray, value);
    QFETCH(bool, isMarked);
    const QRectF place(30, 20, 8, 8);
    const QImage page =
        printed(deskforms::object("checkBox", place, json("{\"id\":\"a\",\"style\":\"" + style + "\"}")),
                json("{\"a\":" + value + "}"));
    QCOMPARE(page.size(), QSize(1000, 600));
    const QRectF ink = inkOf(page);
    QCOMPARE(!ink.isEmpty(), isMarked);
    if (isMarked) {
        QVERIFY2(place.adjusted(-Tolerance, -Tolerance, Tolerance, Tolerance).contains(ink), described(ink));
        QVERIFY2(ink.width() > 4 && ink.height() > 4, described(ink));
    }
}

void ChoicePrintingTest::pictures_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRectF>("ink");

    const auto add = [](const char *name, const char *settings, const QSize &size, const QRectF &ink) {
        QTest::newRow(name) << QByteArray(settings) << size << ink;
    };
    add("fitted", "{}", {50, 50}, {35, 20, 10, 10});
    add("fitted, wide", "{}", {100, 25}, {30, 22.5, 20, 5});
    add("stretched", R"({"fill":"stretch"})", {50, 50}, {30, 20, 20, 10});
    add("actual", R"({"fill":"actual"})", {80, 40}, {30, 20, 10, 5});
    add("actual, cut off", R"({"fill":"actual"})", {800, 40}, {30, 20, 20, 5});
    add("upright", R"({"fill":"stretch","rotation":90})", {50, 50}, {35, 15, 10, 20});
}

void ChoicePrintingTest::pictures()
{
    QFETCH(QByteArray, settings);
    QFETCH(QSize, size);
    QFETCH(QRectF, ink);
    QJsonObject object = deskforms::object("picture", {30, 20, 20, 10}, json(settings));
    object.insert(QStringLiteral("preset"), pictureforms::base64(pictureforms::bytesOf("png", size)));
    const QImage page = printed(object);
    QVERIFY2(isNear(inkOf(page), ink), described(inkOf(page)));
    QCOMPARE(page.pixelColor((ink.center() * 10).toPoint()), QColor(Qt::red));
}

void ChoicePrintingTest::comboBox_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<double>("middle"); ///< of the ink, mm from the left

    const auto add = [](const char *name, const char *settings, const char *value, double middle) {
        QTest::newRow(name) << QByteArray(settings) << QByteArray(value) << middle;
    };
    add("option", R"({"id":"a","align":"center","options":["HHH","b"]})", R"({"a":"HHH"})", 50);
    add("any text", R"({"id":"a","align":"center","options":["b"]})", R"({"a":"HHH"})", 50);
    add("preset", R"({"id":"a","align":"center","preset":"HHH"})", "{}", 50);
    add("right", R"({"id":"a","align":"right","options":["HHH"]})", R"({"a":"HHH"})", 76.5);
}

void ChoicePrintingTest::comboBox()
{
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, value);
    QFETCH(double, middle);
    const QImage page = printed(deskforms::text("comboBox", {20, 20, 60, 8}, json(settings)), json(value));
    const QRectF ink = inkOf(page);
    QVERIFY2(qAbs(ink.center().x() - middle) < 0.5 && qAbs(ink.center().y() - 24) < 0.5, described(ink));
    // Three capitals of nine points, and neither frame nor arrow.
    QVERIFY2(ink.width() < 8 && ink.height() < 3, described(ink));
}

void ChoicePrintingTest::whitePaper_data()
{
    QTest::addColumn<QJsonObject>("object");

    const auto add = [](const char *name, const char *kind, const char *settings) {
        QTest::newRow(name) << deskforms::object(kind, {30, 20, 20, 10}, json(settings));
    };
    add("open check box with its border", "checkBox", R"({"border":true})");
    add("check box of the screen", "checkBox", R"({"preset":true,"print":false})");
    add("invisible check box", "checkBox", R"({"preset":true,"visible":false})");
    add("empty combo box with options", "comboBox", R"({"options":["a","b"],"border":true})");
    add("combo box of the screen", "comboBox", R"({"preset":"a","print":false})");
    add("invisible combo box", "comboBox", R"({"preset":"a","visible":false})");
    add("no picture", "picture", R"({"border":true})");
    add("table", "table", R"({"locked":true})");
    QJsonObject picture = deskforms::object("picture", {30, 20, 20, 10}, json(R"({"print":false})"));
    picture.insert(QStringLiteral("preset"), pictureforms::base64(pictureforms::bytesOf("png")));
    QTest::newRow("picture of the screen") << picture;
}

void ChoicePrintingTest::whitePaper()
{
    QFETCH(QJsonObject, object);
    const QImage page = printed(object);
    QCOMPARE(page.size(), QSize(1000, 600));
    QVERIFY2(inkOf(page).isEmpty(), described(inkOf(page)));
}

QTEST_MAIN(ChoicePrintingTest)
#include "tst_choiceprinting.moc"

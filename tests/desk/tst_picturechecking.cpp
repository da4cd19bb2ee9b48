// SPDX-License-Identifier: MIT
#include "desk/checking/checking.h"
#include "desk/record.h"
#include "graphic/tavropicture.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QBuffer>
#include <QImage>
#include <QTest>

namespace {

QJsonObject json(const QByteArray &text)
{
    return deskforms::value(text.constData()).toObject();
}

QString pictureOf(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return QString::fromLatin1(buffer.data().toBase64());
}

std::unique_ptr<Form> formOf(const QRectF &place, const QByteArray &settings, const QString &preset)
{
    QJsonObject object = deskforms::object("picture", place, json(settings));
    object.insert(QStringLiteral("id"), QStringLiteral("stamp"));
    object.insert(QStringLiteral("preset"), preset);
    return deskforms::formWith({object});
}

QStringList named(const QString &problem)
{
    return problem.isEmpty() ? QStringList() : QStringList(QStringLiteral("objects[0] \"stamp\": ") + problem);
}

} // namespace

class PictureCheckingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void missing();
    void records_data();
    void records();
    void pictureAgain();
    void place_data();
    void place();
};

void PictureCheckingTest::missing()
{
    const QRectF place(10, 10, 20, 10);
    QCOMPARE(checking::problems(*formOf(place, "{}", QString())), QStringList());
    const QStringList problem = named(QStringLiteral("required, but missing"));
    QCOMPARE(checking::problems(*formOf(place, R"({"required":true})", QString())), problem);
    QCOMPARE(checking::problems(*formOf(place, R"({"required":true,"print":false})", QString())), problem);
    QCOMPARE(checking::problems(*formOf(place, R"({"required":true})", deskforms::smallPicture())), QStringList());
}

void PictureCheckingTest::records_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("problem");

    const auto add = [](const char *name, const char *value, const char *problem) {
        QTest::newRow(name) << QByteArray(value) << QString::fromUtf8(problem);
    };
    add("no base64", "\"stamp.png\"", "expected a picture in base64, found \"stamp.png\"");
    add("no picture", "\"aGVsbG8=\"",
        "expected a PNG, JPEG, BMP or GIF picture of at most 8192 x 8192 pixels, found \"aGVsbG8=\"");
    add("no file", R"({"file":"no such\n.png"})", R"(expected a file that exists, found "no such\n.png")");
    add("file elsewhere", R"({"file":"../a.png"})",
        "expected a relative path that stays in the folder of this file, found \"../a.png\"");
}

// A value that is no picture leaves the form readable, as a date that is none does.
void PictureCheckingTest::records()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, problem);
    const std::unique_ptr<Form> form = formOf({10, 10, 20, 10}, R"({"required":true})", deskforms::smallPicture());
    QVERIFY(form);
    QCOMPARE(record::fillFromJson(form.get(), json("{\"stamp\":" + value + "}"), QStringLiteral("r")).error, QString());
    QVERIFY(form->entries.front().object->contentData().toByteArray().isEmpty());
    QCOMPARE(checking::problems(*form), named(QStringLiteral("picture cannot be loaded: ") + problem));
}

void PictureCheckingTest::pictureAgain()
{
    const std::unique_ptr<Form> form = formOf({10, 10, 20, 10}, "{}", QString());
    QVERIFY(form);
    const auto fill = [&form](const QJsonValue &value) {
        record::fillFromJson(form.get(), {{QStringLiteral("stamp"), value}}, QStringLiteral("r"));
        return checking::problems(*form).size();
    };
    QCOMPARE(fill(QStringLiteral("?")), 1);
    QCOMPARE(fill(deskforms::smallPicture()), 0);
    QCOMPARE(fill(QStringLiteral("?")), 1);
    QCOMPARE(fill(QJsonValue()), 0);
    QCOMPARE(fill(QStringLiteral("?")), 1);
    static_cast<TavroPicture &>(*form->entries.front().object).setImage(QImage(4, 4, QImage::Format_RGB32));
    QCOMPARE(checking::problems(*form), QStringList());
}

void PictureCheckingTest::place_data()
{
    QTest::addColumn<QRectF>("place");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("problem");

    const auto add = [](const char *name, const QRectF &place, const QSize &size, const char *settings,
                        const char *problem) {
        QTest::newRow(name) << place << size << QByteArray(settings) << QString::fromLatin1(problem);
    };
    // 80 x 40 px.
    const QRectF place(10, 10, 10, 5);
    const char *tooLarge = "picture does not fit its rectangle";
    const char *nothing = "picture prints nothing";
    add("fitted", place, {500, 500}, "{}", "");
    add("stretched", place, {500, 500}, R"({"fill":"stretch"})", "");
    add("between pixels", {10.07, 10.07, 9.93, 5.06}, {33, 77}, "{}", "");
    add("middle between pixels", {10, 10.075, 27, 27}, {420, 420}, "{}", "");
    add("fitted over its corner", {20, 15, -10, -5}, {50, 50}, R"({"fill":"stretch"})", "");
    add("actual", place, {80, 40}, R"({"fill":"actual"})", "");
    add("actual with what rounding takes", place, {82, 42}, R"({"fill":"actual"})", "");
    add("too wide", place, {83, 40}, R"({"fill":"actual"})", tooLarge);
    add("too high", place, {80, 43}, R"({"fill":"actual"})", tooLarge);
    add("too wide on the screen alone", place, {83, 40}, R"({"fill":"actual","print":false})", "");
    add("turned about the corner of the page", {0.5, 0.5, 10, 5}, {80, 40}, R"({"angle":5})", tooLarge);
    add("turned out of its rectangle", {50, 30, 10, 5}, {80, 40}, R"({"angle":90})", nothing);
    add("turned all around", place, {80, 40}, R"({"angle":360})", "");
    add("turned with its rectangle", {50, 30, 10, 5}, {80, 40}, R"({"rotation":90})", "");
    add("fill that puts it nowhere", place, {80, 40}, R"({"fill":3})", nothing);
    add("without a pixel", {10, 10, 10, 0.05}, {80, 40}, R"({"fill":"stretch"})", nothing);
}

void PictureCheckingTest::place()
{
    QFETCH(QRectF, place);
    QFETCH(QSize, size);
    QFETCH(QByteArray, settings);
    QFETCH(QString, problem);
    const std::unique_ptr<Form> form = formOf(place, settings, pictureOf(size));
    QVERIFY(form);
    QCOMPARE(checking::problems(*form), named(problem));
}

QTEST_MAIN(PictureCheckingTest)
#include "tst_picturechecking.moc"

// SPDX-License-Identifier: MIT
#include "desk/checking/checking.h"
#include "desk/formreader.h"
#include "desk/formwriter.h"
#include "desk/record.h"
#include "tests/desk/pictureforms.h"
#include "tests/graphic/imagesamples.h"
#include "tests/support/stricttest.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using pictureforms::base64;
using pictureforms::bytesOf;
using pictureforms::fileNamed;
using pictureforms::picture;
using pictureforms::pictureOf;

namespace {

const char *AnyPicture = "a PNG, JPEG, BMP or GIF picture of at most 8192 x 8192 pixels";
const char *AnySource = "a picture in base64, or an object with the name of its \"file\" alone";

void addRefusedFiles(const std::function<void(const QString &name, const QString &expected)> &add)
{
    const QString inside = QStringLiteral("a relative path that stays in the folder of this file");
    const QString existing = QStringLiteral("a file that exists");
    add(QStringLiteral("missing.png"), existing);
    add(QString(), existing);
    add(QStringLiteral("."), existing);
    add(QStringLiteral("logos"), existing);
    add(QStringLiteral(":/image/image/tick.svg"), inside);
    add(QStringLiteral("file:logo.png"), existing);
    add(QStringLiteral("../outside.png"), inside);
    add(QStringLiteral("logos/../../outside.png"), inside);
    add(QStringLiteral(".."), inside);
    add(QStringLiteral("/dev/zero"), inside);
    add(QStringLiteral("logo.png\u0000"), inside);
    add(QStringLiteral("huge.png"), QStringLiteral("a file of at most 67108864 bytes"));
    for (const char *name : {"empty.png", "text.png", "half.png", "drawing.svg"})
        add(QLatin1String(name), QLatin1String(AnyPicture));
}

} // namespace

class PictureFilesTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void formWithItsFiles_data();
    void formWithItsFiles();
    void refuses_data();
    void refuses();
    void records_data();
    void records();
    void recordRefuses_data();
    void recordRefuses();
    void recordOfAnotherFolder();

private:
    QString inFolder(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    QTemporaryDir m_folder;
};

void PictureFilesTest::initTestCase()
{
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("forms/logos")));
    QVERIFY(deskforms::write(inFolder("forms/logo.png"), bytesOf("png")));
    QVERIFY(deskforms::write(inFolder("forms/logos/标志.jpg"), bytesOf("jpg")));
    QVERIFY(deskforms::write(inFolder("forms/empty.png"), QByteArray()));
    QVERIFY(deskforms::write(inFolder("forms/text.png"), "no picture"));
    QVERIFY(deskforms::write(inFolder("forms/half.png"), bytesOf("png").left(60)));
    const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
    QVERIFY(deskforms::write(inFolder("forms/drawing.svg"), drawing));
    QVERIFY(deskforms::write(inFolder("outside.png"), bytesOf("png")));
    QVERIFY(QFile::link(inFolder("outside.png"), inFolder("forms/link.png")));
    QFile huge(inFolder("forms/huge.png"));
    QVERIFY(huge.open(QIODevice::WriteOnly) && huge.write(bytesOf("png")) > 0 && huge.resize(64 * 1024 * 1024 + 1));
}

void PictureFilesTest::formWithItsFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("beside") << QStringLiteral("logo.png");
    QTest::newRow("below") << QStringLiteral("logos/标志.jpg");
    QTest::newRow("link in the folder") << QStringLiteral("link.png");
    QTest::newRow("way around") << QStringLiteral("./logos/..//logo.png");
}

// The written form has its pictures inside, and can be moved alone.
void PictureFilesTest::formWithItsFiles()
{
    QFETCH(QString, file);
    const QString name = inFolder("forms/form.tform");
    QVERIFY(deskforms::write(name, deskforms::bytesOf(deskforms::file({picture(fileNamed(file))}))));
    const formreader::Result read = formreader::read(name);
    QVERIFY2(read.form, qPrintable(read.error));
    QCOMPARE(pictureOf(*read.form).image().size(), QSize(12, 8));
    const QString moved = inFolder("moved.tform");
    QCOMPARE(formwriter::write(*read.form, moved), QString());
    const formreader::Result again = formreader::read(moved);
    QVERIFY2(again.form, qPrintable(again.error));
    QCOMPARE(pictureOf(*again.form).image(), pictureOf(*read.form).image());
}

void PictureFilesTest::refuses_data()
{
    QTest::addColumn<QJsonValue>("preset");
    QTest::addColumn<QString>("error"); ///< behind the path of the object

    const auto add = [](const QString &row, const QJsonValue &preset, const QString &error) {
        QTest::newRow(qPrintable(row)) << preset << error;
    };
    addRefusedFiles([&add](const QString &name, const QString &expected) {
        const QString shown = QString(name).replace(QChar(0), QStringLiteral("\\u0000"));
        add(QStringLiteral("file ") + shown, fileNamed(name),
            QStringLiteral("preset.file: expected %1, found \"%2\"").arg(expected, shown));
    });
    const QString picture = QStringLiteral("preset: expected %1, found %2").arg(QLatin1String(AnyPicture));
    const QString source = QStringLiteral("preset: expected %1, found %2").arg(QLatin1String(AnySource));
    const QString noBase64 = QStringLiteral("preset: expected a picture in base64, found \"%1\"");
    add(QStringLiteral("text"), QStringLiteral("logo.png"), noBase64.arg(QStringLiteral("logo.png")));
    add(QStringLiteral("line end"), QStringLiteral("iVBO\n"), noBase64.arg(QStringLiteral("iVBO\\n")));
    add(QStringLiteral("Chinese"), QStringLiteral("标志"), noBase64.arg(QStringLiteral("标志")));
    add(QStringLiteral("no image"), QStringLiteral("aGVsbG8="), picture.arg(QStringLiteral("\"aGVsbG8=\"")));
    add(QStringLiteral("zeros"), QStringLiteral("AAAA"), picture.arg(QStringLiteral("\"AAAA\"")));
    add(QStringLiteral("drawing"), base64("<svg/>"), picture.arg(QStringLiteral("\"PHN2Zy8+\"")));
    add(QStringLiteral("number"), 1, source.arg(QStringLiteral("1")));
    add(QStringLiteral("null"), QJsonValue(), source.arg(QStringLiteral("null")));
    add(QStringLiteral("list"), QJsonArray{QStringLiteral("a")}, source.arg(QStringLiteral("an array of 1")));
    add(QStringLiteral("empty object"), QJsonObject(), source.arg(QStringLiteral("an object")));
    add(QStringLiteral("file as a number"), QJsonObject{{QStringLiteral("file"), 1}},
        source.arg(QStringLiteral("an object")));
    add(QStringLiteral("more than a file"),
        QJsonObject{{QStringLiteral("file"), QStringLiteral("logo.png")}, {QStringLiteral("page"), 2}},
        source.arg(QStringLiteral("an object")));
    // Some bytes that announce 30000 x 30000 pixels.
    const QString giant =
        QStringLiteral("iVBORw0KGgoAAAANSUhEUgAAdTAAAHUwAQAAAABOXMUXAAAADElEQVR42mNgoD0AAABkAAG4me+Z");
    const auto addTooBig = [&add, &picture](const char *row, const QString &text) {
        add(QLatin1String(row), text, picture.arg(QStringLiteral("\"%1...\"").arg(text.left(60))));
    };
    addTooBig("giant", giant);
    QByteArray bitmap = bytesOf("bmp", {1, 1});
    bitmap.replace(18, 8, QByteArray::fromHex("3075000030750000"));
    addTooBig("giant bitmap", base64(bitmap));
    addTooBig("screen out of proportion to its frame", base64(samples::gif({16000, 16000}, {1, 1}, 2)));
    const QImage longer(1000001, 1, QImage::Format_Mono);
    addTooBig("longer than can be stored", base64(samples::written("bmp", longer)));
}

void PictureFilesTest::refuses()
{
    QFETCH(QJsonValue, preset);
    QFETCH(QString, error);
    const QString name = inFolder("forms/form.tform");
    const formreader::Result read = formreader::fromJson(deskforms::file({picture(preset)}), name);
    QVERIFY(!read.form);
    QCOMPARE(read.error, QStringLiteral("%1: objects[0].%2").arg(name, error));
}

void PictureFilesTest::records_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QSize>("size");
    QTest::newRow("base64") << QJsonValue(base64(bytesOf("jpg", {5, 7}))) << QSize(5, 7);
    QTest::newRow("file") << QJsonValue(fileNamed(QStringLiteral("logos/标志.jpg"))) << QSize(12, 8);
    QTest::newRow("empty text") << QJsonValue(QString()) << QSize(0, 0);
    QTest::newRow("null") << QJsonValue() << QSize(0, 0);
}

void PictureFilesTest::records()
{
    QFETCH(QJsonValue, value);
    QFETCH(QSize, size);
    const std::unique_ptr<Form> form = deskforms::formWith({picture(deskforms::smallPicture())});
    QVERIFY(form);
    const QString name = inFolder("forms/record.json");
    QVERIFY(deskforms::write(name, deskforms::bytesOf({{QStringLiteral("logo"), value}})));
    QCOMPARE(record::fill(form.get(), name).error, QString());
    QCOMPARE(pictureOf(*form).image().size(), size);
    QCOMPARE(checking::problems(*form), QStringList());
    // The content belongs to the record, the preset to the form.
    QVERIFY(formwriter::toBytes(*form).contains(deskforms::smallPicture().toLatin1()));
}

void PictureFilesTest::recordRefuses_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("error");
    const QString source = QStringLiteral("r: logo: expected %1, found %2").arg(QLatin1String(AnySource));
    QTest::newRow("number") << QJsonValue(1) << source.arg(QStringLiteral("1"));
    QTest::newRow("true") << QJsonValue(true) << source.arg(QStringLiteral("true"));
    QTest::newRow("object") << QJsonValue(QJsonObject()) << source.arg(QStringLiteral("an object"));
}

void PictureFilesTest::recordRefuses()
{
    QFETCH(QJsonValue, value);
    QFETCH(QString, error);
    const std::unique_ptr<Form> form = deskforms::formWith({picture(deskforms::smallPicture())});
    QVERIFY(form);
    QCOMPARE(record::fillFromJson(form.get(), {{QStringLiteral("logo"), value}}, QStringLiteral("r")).error, error);
    QCOMPARE(pictureOf(*form).image().size(), QSize(2, 1));
}

// Names are those of the folder of the record, wherever the form is.
void PictureFilesTest::recordOfAnotherFolder()
{
    const std::unique_ptr<Form> form = deskforms::formWith({picture(QString())});
    QVERIFY(form);
    const QJsonObject json{{QStringLiteral("logo"), fileNamed(QStringLiteral("logo.png"))}};
    record::fillFromJson(form.get(), json, inFolder("record.json"));
    QVERIFY(pictureOf(*form).image().isNull());
    record::fillFromJson(form.get(), json, inFolder("forms/record.json"));
    QCOMPARE(pictureOf(*form).image().size(), QSize(12, 8));
}

QTEST_MAIN(PictureFilesTest)
#include "tst_picturefiles.moc"

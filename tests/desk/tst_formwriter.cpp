// SPDX-License-Identifier: MIT
#include "desk/formwriter.h"

#include "core/tavroprototype.h"
#include "desk/settings/catalogue.h"
#include "entry/tavroedit.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <sys/resource.h>

namespace {

const QRectF Place(10, 20, 40, 8);

QJsonObject settings(const char *json)
{
    return deskforms::value(json).toObject();
}

QJsonObject written(const Form &form)
{
    return QJsonDocument::fromJson(formwriter::toBytes(form)).object();
}

QJsonObject writtenObject(const QJsonObject &object)
{
    const std::unique_ptr<Form> form = deskforms::formWith({object});
    return form ? written(*form).value(QStringLiteral("objects")).toArray().first().toObject() : QJsonObject();
}

} // namespace

class FormWriterTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void sameBytesAgain_data();
    void sameBytesAgain();
    void everySettingIsWritten();
    void defaultsAreLeftOut_data();
    void defaultsAreLeftOut();
    void marginsOfZeroAreLeftOut();
    void unknownIsKept();
    void orderIsKept();
    void contentIsNotWritten();
    void gapIsThatOfItsMode_data();
    void gapIsThatOfItsMode();
    void rowsOfAllModesSideBySide();
    void normalForm_data();
    void normalForm();
    void writesAFile();
    void failureLeavesTheFile();
    void failureNames_data();
    void failureNames();
};

void FormWriterTest::sameBytesAgain_data()
{
    QTest::addColumn<QJsonObject>("file");

    QTest::newRow("empty form") << deskforms::file({});
    QTest::newRow("every setting of every kind") << deskforms::fullFile();
    QTest::newRow("numbers") << deskforms::file(
        {deskforms::object("line", {0.1, 1.0 / 3, -1e-9, 9999.999}, settings(R"({"z":0.1,"lineWidth":1e-300})")),
         deskforms::object("rect", {-0.0, 0, 1e-20, 0}, settings(R"({"z":-0.0})"))});
    QTest::newRow("texts") << deskforms::file({deskforms::object(
        "label", Place,
        settings(R"({"text":"a\n\"b\"\\ \t 合计 \ud842\udfb7\u0000\u2028/","id":" ","prefix":"\u0001￥"})"))});
    QTest::newRow("unknown") << deskforms::file({deskforms::object(
        "hologram", Place, settings(R"({"a":[1,2.5,1e300,null,{"b":[]}],"n":12345678901234567890,"":false})"))});
}

void FormWriterTest::sameBytesAgain()
{
    QFETCH(QJsonObject, file);
    const std::unique_ptr<Form> form = deskforms::readFile(file);
    QVERIFY(form);
    const QByteArray first = formwriter::toBytes(*form);
    const std::unique_ptr<Form> again = deskforms::readFile(QJsonDocument::fromJson(first).object());
    QVERIFY(again);
    QCOMPARE(formwriter::toBytes(*again), first);
    QVERIFY(first.endsWith("}\n"));
}

// The full file holds each setting of the catalogue at another value than a new object's.
void FormWriterTest::everySettingIsWritten()
{
    const QJsonObject file = deskforms::fullFile();
    const std::unique_ptr<Form> form = deskforms::readFile(file);
    QVERIFY(form);
    QCOMPARE(written(*form), file);
    for (const QJsonValue &value : written(*form).value(QStringLiteral("objects")).toArray()) {
        const QJsonObject object = value.toObject();
        const ObjType kind = catalogue::kindOf(object.value(QStringLiteral("kind")).toString());
        QCOMPARE(object.size(), 2 + catalogue::settingsOf(kind).size());
    }
}

void FormWriterTest::defaultsAreLeftOut_data()
{
    QTest::addColumn<QString>("kind");
    for (const QString &kind : catalogue::kindNames())
        QTest::newRow(qPrintable(kind)) << kind;
}

void FormWriterTest::defaultsAreLeftOut()
{
    QFETCH(QString, kind);
    const QJsonObject bare = deskforms::object(kind.toLatin1().constData(), Place);
    QCOMPARE(writtenObject(bare), bare);

    // A value of a new object that stands in the file goes, too.
    QJsonObject wordy = bare;
    const std::unique_ptr<Form> form = deskforms::formWith({bare});
    QVERIFY(form);
    const TavroPrototype &object = *form->entries.front().object;
    for (const Setting &setting : catalogue::settingsOf(object.objType()))
        wordy.insert(setting.key, setting.toJson(setting.get(object)));
    QVERIFY(wordy.size() > bare.size());
    QCOMPARE(writtenObject(wordy), bare);
}

void FormWriterTest::marginsOfZeroAreLeftOut()
{
    QJsonObject page{{QStringLiteral("width"), 100}, {QStringLiteral("height"), 60}};
    QJsonObject file = deskforms::file({});
    QJsonObject withMargins = page;
    withMargins.insert(QStringLiteral("margins"), QJsonArray{0, 0, 0, 0});
    file.insert(QStringLiteral("page"), withMargins);
    const std::unique_ptr<Form> form = deskforms::readFile(file);
    QVERIFY(form);
    QCOMPARE(written(*form).value(QStringLiteral("page")), QJsonValue(page));
}

void FormWriterTest::unknownIsKept()
{
    QJsonObject file = deskforms::file(
        {deskforms::object("line", Place, settings(R"({"glow":{"colour":[1,2]},"prefix":"not of a line"})")),
         deskforms::object("hologram", Place, settings(R"({"rect":"anything","depth":null})"))});
    file.insert(QStringLiteral("author"), QStringLiteral("柜台"));
    QJsonObject page = file.value(QStringLiteral("page")).toObject();
    page.insert(QStringLiteral("watermark"), QJsonArray{true});
    file.insert(QStringLiteral("page"), page);
    const std::unique_ptr<Form> form = deskforms::readFile(file);
    QVERIFY(form);
    QCOMPARE(written(*form), file);
}

void FormWriterTest::orderIsKept()
{
    const QJsonArray objects{deskforms::object("rect", {5, 0, 1, 1}), deskforms::object("hologram", {4, 0, 1, 1}),
                             deskforms::object("label", {3, 0, 1, 1}, settings(R"({"z":9})")),
                             deskforms::object("line", {2, 0, 1, 1}),
                             deskforms::object("edit", {1, 0, 1, 1}, settings(R"({"z":-9})"))};
    const std::unique_ptr<Form> form = deskforms::formWith(objects);
    QVERIFY(form);
    QCOMPARE(written(*form).value(QStringLiteral("objects")), QJsonValue(objects));
}

// What is filled in belongs to a record; the form keeps its preset.
void FormWriterTest::contentIsNotWritten()
{
    const QJsonObject object = deskforms::object("edit", Place, settings(R"({"preset":"before"})"));
    const std::unique_ptr<Form> form = deskforms::formWith({object});
    QVERIFY(form);
    form->entries.front().object->setContentData(QStringLiteral("filled in"));
    QCOMPARE(written(*form).value(QStringLiteral("objects")).toArray().first(), QJsonValue(object));
}

void FormWriterTest::gapIsThatOfItsMode_data()
{
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<QByteArray>("expected");

    const auto add = [](const char *name, const char *given, const char *expected) {
        QTest::newRow(name) << QByteArray(given) << QByteArray(expected);
    };
    add("amount", R"({"mode":"amount","separatorWidth":5})", "{}");
    add("amount without gaps", R"({"separatorWidth":0})", R"({"separatorWidth":0})");
    add("18 digits", R"({"mode":"digits18","separatorWidth":0})", R"({"mode":"digits18"})");
    add("18 digits with the gap of an amount", R"({"mode":"digits18","separatorWidth":5})",
        R"({"mode":"digits18","separatorWidth":5})");
    add("6 digits", R"({"mode":"digits6"})", R"({"mode":"digits6"})");
    add("6 characters", R"({"mode":"chars6","separatorWidth":5})", R"({"mode":"chars6"})");
    add("6 characters without gaps", R"({"mode":"chars6","separatorWidth":0})",
        R"({"mode":"chars6","separatorWidth":0})");
    add("mode without a name", R"({"mode":77,"separatorWidth":0})", R"({"mode":77})");
}

void FormWriterTest::gapIsThatOfItsMode()
{
    QFETCH(QByteArray, given);
    QFETCH(QByteArray, expected);
    QCOMPARE(writtenObject(deskforms::object("separatedEdit", Place, settings(given.constData()))),
             deskforms::object("separatedEdit", Place, settings(expected.constData())));
}

void FormWriterTest::rowsOfAllModesSideBySide()
{
    QJsonArray objects;
    for (const char *json : {R"({"mode":"digits18"})", R"({"highestUnit":8})", R"({"mode":"chars6"})", "{}",
                             R"({"mode":"digits6","lowestUnit":2})", R"({"lowestUnit":1})", R"({"mode":77})"})
        objects.append(deskforms::object("separatedEdit", Place, settings(json)));
    const std::unique_ptr<Form> form = deskforms::formWith(objects);
    QVERIFY(form);
    QCOMPARE(written(*form).value(QStringLiteral("objects")), QJsonValue(objects));
}

void FormWriterTest::normalForm_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<QByteArray>("expected");

    const auto add = [](const char *name, const char *key, const char *given, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(key) << QByteArray(given) << QByteArray(expected);
    };
    add("number of a choice", "align", "2", "\"right\"");
    add("number without a name", "align", "77", "77");
    add("colour in capitals", "fontColor", "\"#AABBCC\"", "\"#aabbcc\"");
    add("whole number with a point", "tabOrder", "7.0", "7");
}

void FormWriterTest::normalForm()
{
    QFETCH(QString, key);
    QFETCH(QByteArray, given);
    QFETCH(QByteArray, expected);
    QJsonObject object = deskforms::object("edit", Place);
    object.insert(key, deskforms::value(given.constData()));
    QCOMPARE(writtenObject(object).value(key), deskforms::value(expected.constData()));
}

void FormWriterTest::writesAFile()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("form.tform"));
    QVERIFY(deskforms::write(name, QByteArray(100000, 'x')));
    const std::unique_ptr<Form> form = deskforms::readFile(deskforms::fullFile());
    QVERIFY(form);
    QCOMPARE(formwriter::write(*form, name), QString());
    QCOMPARE(deskforms::content(name), formwriter::toBytes(*form));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

// A disk that is full in the middle of the file.
void FormWriterTest::failureLeavesTheFile()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("form.tform"));
    QVERIFY(deskforms::write(name, "as it was"));
    const std::unique_ptr<Form> form = deskforms::readFile(deskforms::fullFile());
    QVERIFY(form);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{100, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const QString error = formwriter::write(*form, name);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
    QVERIFY2(error.startsWith(name + QStringLiteral(": cannot be written: ")), qPrintable(error));
    QCOMPARE(deskforms::content(name), QByteArrayLiteral("as it was"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void FormWriterTest::failureNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("folder is missing") << QStringLiteral("/nowhere/form.tform");
    QTest::newRow("folder takes no files") << QStringLiteral("/proc/form.tform");
    QTest::newRow("name of a folder") << QDir::tempPath();
}

void FormWriterTest::failureNames()
{
    QFETCH(QString, name);
    const std::unique_ptr<Form> form = deskforms::formWith({});
    QVERIFY(form);
    const QString error = formwriter::write(*form, name);
    QVERIFY2(error.startsWith(name + QStringLiteral(": cannot be written: ")), qPrintable(error));
}

QTEST_MAIN(FormWriterTest)
#include "tst_formwriter.moc"

// SPDX-License-Identifier: MIT
#include "desk/checking/checking.h"
#include "desk/commandline.h"
#include "desk/formreader.h"
#include "desk/formwriter.h"
#include "desk/jsonfile.h"
#include "desk/printing.h"
#include "desk/record.h"
#include "desk/settings/catalogue.h"
#include "tests/desk/deskforms.h"
#include "tests/support/recordingpaintengine.h"
#include "tests/support/stricttest.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QMap>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>
#include <algorithm>

namespace {

constexpr char FileName[] = "f.tform";

// What a value is replaced by; undefined takes it away.
QVector<QJsonValue> strangers()
{
    return {QJsonValue(),
            true,
            false,
            -1,
            0.5,
            1e15,
            1e308,
            -1e308,
            QStringLiteral("x"),
            QString(),
            QJsonArray(),
            QJsonArray{1},
            QJsonObject(),
            QJsonValue(QJsonValue::Undefined)};
}

// A place inside a JSON value: names and indexes from the outside inwards.
using Path = QVector<QVariant>;

QString textOf(const Path &path)
{
    QString text;
    for (const QVariant &step : path) {
        if (step.userType() == QMetaType::Int)
            text += QStringLiteral("[%1]").arg(step.toInt());
        else
            text += (text.isEmpty() ? QString() : QStringLiteral(".")) + step.toString();
    }
    return text;
}

void collectPaths(const QJsonValue &value, const Path &path, QVector<Path> *paths)
{
    if (!path.isEmpty())
        paths->append(path);
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i)
        collectPaths(array.at(i), path + Path{i}, paths);
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it)
        collectPaths(it.value(), path + Path{it.key()}, paths);
}

QJsonValue replaced(const QJsonValue &value, const Path &path, const QJsonValue &stranger)
{
    if (path.isEmpty())
        return stranger;
    const QVariant &step = path.first();
    if (value.isArray()) {
        QJsonArray array = value.toArray();
        const QJsonValue inner = replaced(array.at(step.toInt()), path.mid(1), stranger);
        if (inner.isUndefined())
            array.removeAt(step.toInt());
        else
            array[step.toInt()] = inner;
        return array;
    }
    QJsonObject object = value.toObject();
    // Inserting an undefined value removes the name.
    object.insert(step.toString(), replaced(object.value(step.toString()), path.mid(1), stranger));
    return object;
}

bool isOneLine(const QString &text)
{
    return !text.isEmpty() && !text.contains(QLatin1Char('\n'));
}

// The error names the place that was replaced, one inside what stands there now, or what the place belongs to.
bool namesPlace(const QString &error, const Path &path)
{
    const QString inside = QStringLiteral("%1: %2").arg(QLatin1String(FileName), textOf(path));
    if (error.startsWith(inside + QLatin1Char('[')) || error.startsWith(inside + QLatin1Char('.')))
        return true;
    for (int size = path.size(); size > 0; --size) {
        if (error.startsWith(QStringLiteral("%1: %2: ").arg(QLatin1String(FileName), textOf(path.mid(0, size)))))
            return true;
    }
    return false;
}

// The sections of a date are as many, and its orders those, that its other settings lead to.
bool namesWhatFollows(const QString &error, const Path &path)
{
    static const QMap<QString, QStringList> following{
        {QStringLiteral("format"), {QStringLiteral("order"), QStringLiteral("sections")}},
        {QStringLiteral("separator"), {QStringLiteral("sections")}},
        {QStringLiteral("order"), {QStringLiteral("sections")}}};
    const QStringList keys = following.value(path.last().toString());
    return std::any_of(keys.begin(), keys.end(), [&](const QString &key) {
        return namesPlace(error, path.mid(0, path.size() - 1) << QVariant(key));
    });
}

// Whatever was accepted can be checked, painted, written and read again.
void useForm(Form *form)
{
    for (const QString &problem : checking::problems(*form))
        QVERIFY2(isOneLine(problem), qPrintable(problem));
    RecordingDevice device;
    QPainter painter(&device);
    printing::prepare(form);
    printing::paintPage(&painter, form, QRectF(0, 0, 400, 240));
    const QByteArray bytes = formwriter::toBytes(*form);
    const std::unique_ptr<Form> again = deskforms::readFile(QJsonDocument::fromJson(bytes).object());
    QVERIFY(again);
    QCOMPARE(formwriter::toBytes(*again), bytes);
}

struct Outcome
{
    int code;
    QString out;
    QString err;
};

Outcome run(const QStringList &arguments)
{
    Outcome outcome;
    QTextStream out(&outcome.out);
    QTextStream err(&outcome.err);
    outcome.code = commandline::run(QStringList(QStringLiteral("tavro-desk")) + arguments, out, err);
    return outcome;
}

QByteArray utf16(const QByteArray &utf8, bool isBigEndian)
{
    QByteArray bytes(isBigEndian ? "\xFE\xFF" : "\xFF\xFE");
    for (const QChar unit : QString::fromUtf8(utf8)) {
        bytes.append(char(isBigEndian ? unit.row() : unit.cell()));
        bytes.append(char(isBigEndian ? unit.cell() : unit.row()));
    }
    return bytes;
}

QByteArray garbage(int size)
{
    QRandomGenerator random(20261120);
    QByteArray bytes;
    for (int i = 0; i < size; ++i)
        bytes.append(char(random.bounded(256)));
    return bytes;
}

} // namespace

class HostileFilesTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPrefix_data();
    void everyPrefix();
    void everyValueReplaced_data();
    void everyValueReplaced();
    void everyRecordValueReplaced();
    void bytes_data();
    void bytes();
    void acceptedBytes_data();
    void acceptedBytes();
    void nestingThatIsKept();
    void manyObjects();
    void manyDuplicates();

private:
    QString inFolder(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

void HostileFilesTest::everyPrefix_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("form") << deskforms::bytesOf(deskforms::fullFile());
    QTest::newRow("record") << deskforms::bytesOf(
        {{QStringLiteral("edit 1"), QStringLiteral("金额 \"10\"")}, {QStringLiteral("label 1"), 10500.5}});
}

// A file that was cut off while it was copied.
void HostileFilesTest::everyPrefix()
{
    QFETCH(QByteArray, bytes);
    const int whole = bytes.trimmed().size();
    for (int size = 0; size < whole; ++size) {
        const jsonfile::Content content = jsonfile::parse(bytes.left(size), QLatin1String(FileName));
        QVERIFY2(isOneLine(content.error), qPrintable(QString::number(size)));
        QVERIFY2(content.error.startsWith(QStringLiteral("f.tform: line ")), qPrintable(content.error));
        QVERIFY(content.object.isEmpty());
    }
    QCOMPARE(jsonfile::parse(bytes.left(whole), QLatin1String(FileName)).error, QString());
}

void HostileFilesTest::everyValueReplaced_data()
{
    QTest::addColumn<QJsonObject>("file");
    const QJsonObject full = deskforms::fullFile();
    QJsonObject head = full;
    head.insert(QStringLiteral("objects"), QJsonArray());
    QTest::newRow("page") << head;
    for (const QJsonValue &object : full.value(QStringLiteral("objects")).toArray()) {
        QJsonObject file = deskforms::file({object});
        QTest::newRow(qPrintable(object.toObject().value(QStringLiteral("kind")).toString())) << file;
    }
}

void HostileFilesTest::everyValueReplaced()
{
    QFETCH(QJsonObject, file);
    QVector<Path> paths;
    collectPaths(file, Path(), &paths);
    QVERIFY(paths.size() > 8);
    int refused = 0;
    int accepted = 0;
    for (const Path &path : qAsConst(paths)) {
        for (const QJsonValue &stranger : strangers()) {
            const QJsonObject changed = replaced(file, path, stranger).toObject();
            const formreader::Result result = formreader::fromJson(changed, QLatin1String(FileName));
            if (result.form) {
                ++accepted;
                QVERIFY2(result.error.isEmpty(), qPrintable(result.error));
                useForm(result.form.get());
            } else {
                ++refused;
                QVERIFY2(isOneLine(result.error) &&
                             (namesPlace(result.error, path) || namesWhatFollows(result.error, path)),
                         qPrintable(result.error));
            }
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(textOf(path)));
        }
    }
    QVERIFY(refused > 0);
    QVERIFY(accepted > 0);
}

namespace {

// Whether a record may hold the value for an object of the kind.
bool isValueOf(ObjType kind, const QJsonValue &value)
{
    if (value.isNull() || value.isUndefined())
        return true;
    const double number = value.toDouble(-1);
    if (kind == Obj_CheckBox)
        return value.isBool() || number == 0 || number == 1 || number == 2;
    if (kind == Obj_Picture)
        return value.isString();
    return kind != Obj_Table && (value.isString() || (value.isDouble() && qAbs(value.toDouble()) < 1e13));
}

} // namespace

void HostileFilesTest::everyRecordValueReplaced()
{
    const std::unique_ptr<Form> form = deskforms::readFile(deskforms::fullFile());
    QVERIFY(form);
    for (const QString &kind : catalogue::kindNames()) {
        for (const QJsonValue &stranger : strangers()) {
            const QJsonObject json{{kind + QStringLiteral(" 1"), stranger}};
            const record::Result result = record::fillFromJson(form.get(), json, QStringLiteral("r.json"));
            QCOMPARE(result.error.isEmpty(), isValueOf(catalogue::kindOf(kind), stranger));
            QCOMPARE(result.unknownIds, QStringList());
            useForm(form.get());
            if (QTest::currentTestFailed())
                return;
        }
    }
}

void HostileFilesTest::bytes_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray good = deskforms::bytesOf(deskforms::fullFile());
    const auto with = [&good](const char *what, const char *instead) {
        QByteArray bytes = good;
        const int at = bytes.indexOf(what);
        return at < 0 ? QByteArray() : bytes.replace(at, int(qstrlen(what)), instead);
    };
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("line end") << QByteArray("\n");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("number") << QByteArray("1");
    QTest::newRow("text") << QByteArray("\"form\"");
    QTest::newRow("half a form") << good.left(good.size() / 2);
    QTest::newRow("array") << QByteArray("[]");
    QTest::newRow("object") << QByteArray("{}");
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("zero behind") << good + '\0';
    QTest::newRow("garbage") << garbage(65536);
    QTest::newRow("garbage behind") << good + garbage(64);
    QTest::newRow("twice") << good + good;
    QTest::newRow("UTF-16, little-endian") << utf16(good, false);
    QTest::newRow("UTF-16, big-endian") << utf16(good, true);
    QTest::newRow("Latin-1 text") << with("DejaVu Sans", "D\xE9j\xE0 Vu");
    QTest::newRow("open brackets") << QByteArray(5000, '[');
    QTest::newRow("closed brackets") << QByteArray(5000, '[') + QByteArray(5000, ']');
    QTest::newRow("open objects") << QByteArray("{\"a\":").repeated(5000);
    QTest::newRow("closed objects") << QByteArray("{\"a\":").repeated(5000) + '1' + QByteArray(5000, '}');
    QTest::newRow("brackets inside") << with("\"version\": 1", "\"version\": 1, \"x\": ").chopped(2) +
                                            QByteArray(5000, '[');
    QTest::newRow("closing brackets only") << QByteArray(5000, ']');
    QTest::newRow("number beyond all") << with("\"version\": 1", "\"version\": 1e999");
    QTest::newRow("number of a million digits")
        << with("\"version\": 1", "\"version\": @").replace("@", QByteArray(1000000, '9'));
    QTest::newRow("NaN") << with("\"version\": 1", "\"version\": NaN");
    QTest::newRow("Infinity") << with("\"version\": 1", "\"version\": Infinity");
    QTest::newRow("hexadecimal") << with("\"version\": 1", "\"version\": 0x1");
    QTest::newRow("comment") << with("\"version\": 1", "\"version\": 1 // one");
    QTest::newRow("name twice") << with("\"version\": 1", "\"version\": 1, \"version\": 1");
    QTest::newRow("kind twice") << with("\"kind\": \"line\"", "\"kind\": \"line\", \"kind\": \"rect\"");
    QTest::newRow("identifier twice") << with("\"id\": \"rect 1\"", "\"id\": \"line 1\"");
    QTest::newRow("half a surrogate pair") << with("\"id\": \"rect 1\"", "\"id\": \"\\ud800\"");
    QTest::newRow("page script") << QByteArray("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n1 0 obj\n<< /Type /Catalog >>\n");
}

// One clear line that starts with the file, exit code 2, and the output as it was.
void HostileFilesTest::bytes()
{
    QFETCH(QByteArray, bytes);
    const QString name = inFolder("hostile.tform");
    const QString output = inFolder("output.pdf");
    QVERIFY(deskforms::write(name, bytes));
    QVERIFY(deskforms::write(output, "as it was"));
    const int files = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden).size();
    for (const QStringList &arguments :
         {QStringList{QStringLiteral("check"), name},
          QStringList{QStringLiteral("print"), name, QStringLiteral("--force"), QStringLiteral("--output"), output}}) {
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.code, 2);
        QCOMPARE(outcome.out, QString());
        QVERIFY2(outcome.err.startsWith(QStringLiteral("tavro-desk: %1: ").arg(name)), qPrintable(outcome.err));
        QVERIFY2(outcome.err.contains(QStringLiteral(": expected ")), qPrintable(outcome.err));
        QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
        QVERIFY2(outcome.err.size() < 400, "the line is too long to be read");
    }
    QCOMPARE(deskforms::content(output), QByteArrayLiteral("as it was"));
    QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden).size(), files);
}

void HostileFilesTest::acceptedBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = deskforms::bytesOf(deskforms::fullFile());
    QTest::newRow("as written") << good;
    QTest::newRow("byte order mark") << "\xEF\xBB\xBF" + good;
    QTest::newRow("line ends of two characters") << QByteArray(good).replace("\n", "\r\n");
    QTest::newRow("one line") << QJsonDocument(deskforms::fullFile()).toJson(QJsonDocument::Compact);
}

void HostileFilesTest::acceptedBytes()
{
    QFETCH(QByteArray, bytes);
    const QString name = inFolder("accepted.tform");
    QVERIFY(deskforms::write(name, bytes));
    const formreader::Result read = formreader::read(name);
    QCOMPARE(read.error, QString());
    QCOMPARE(formwriter::toBytes(*read.form), deskforms::bytesOf(deskforms::fullFile()));
}

// Deep, but not too deep for what the file may hold: kept as it stands.
void HostileFilesTest::nestingThatIsKept()
{
    QJsonValue deep = 1;
    for (int i = 0; i < 500; ++i)
        deep = i % 2 ? QJsonValue(QJsonArray{deep}) : QJsonValue(QJsonObject{{QStringLiteral("a"), deep}});
    QJsonObject file = deskforms::file({});
    file.insert(QStringLiteral("deep"), deep);
    const QString name = inFolder("deep.tform");
    QVERIFY(deskforms::write(name, deskforms::bytesOf(file)));
    const formreader::Result read = formreader::read(name);
    QCOMPARE(read.error, QString());
    QCOMPARE(read.form->unknownNames(), QStringList(QStringLiteral("setting \"deep\"")));
    QCOMPARE(formwriter::toBytes(*read.form), deskforms::bytesOf(file));
}

namespace {

QJsonArray manyRects(int count)
{
    QJsonArray objects;
    for (int i = 0; i < count; ++i)
        objects.append(deskforms::object("rect", QRectF(i % 100, i / 200, 1, 1),
                                         {{QStringLiteral("id"), QStringLiteral("r%1").arg(i)}}));
    return objects;
}

} // namespace

void HostileFilesTest::manyObjects()
{
    constexpr int count = 10000;
    QJsonArray objects = manyRects(count);
    for (int i = 0; i < 100; ++i)
        objects.append(deskforms::text("edit", QRectF(i, 50, 8, 4),
                                       {{QStringLiteral("id"), QStringLiteral("e%1").arg(i)},
                                        {QStringLiteral("fill"), QStringLiteral("shrink")}}));
    const QString name = inFolder("many.tform");
    const QString data = inFolder("many.json");
    QVERIFY(deskforms::write(name, deskforms::bytesOf(deskforms::file(objects))));
    QJsonObject values;
    for (int i = 0; i < 100; ++i)
        values.insert(QStringLiteral("e%1").arg(i), i);
    values.insert(QStringLiteral("r10000"), QStringLiteral("no object"));
    QVERIFY(deskforms::write(data, deskforms::bytesOf(values)));

    const Outcome outcome = run({QStringLiteral("check"), name, QStringLiteral("--data"), data});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, name + QStringLiteral(": no object has the identifier \"r10000\" of the record\n"));
    QCOMPARE(outcome.code, 1);
    const formreader::Result read = formreader::read(name);
    QVERIFY(read.form);
    QCOMPARE(read.form->entries.size(), std::size_t(count + 100));
    QCOMPARE(formwriter::toBytes(*read.form), deskforms::bytesOf(deskforms::file(objects)));
    QCOMPARE(printing::write(read.form.get(), inFolder("many.pdf"), 300), QString());
}

void HostileFilesTest::manyDuplicates()
{
    QJsonArray objects = manyRects(10000);
    objects.append(objects.at(5000));
    const QString name = inFolder("duplicate.tform");
    QVERIFY(deskforms::write(name, deskforms::bytesOf(deskforms::file(objects))));
    QCOMPARE(formreader::read(name).error,
             name + QStringLiteral(": objects[10000].id: expected an identifier of its own, that of objects[5000] is "
                                   "the same, found \"r5000\""));
}

QTEST_MAIN(HostileFilesTest)
#include "tst_hostilefiles.moc"

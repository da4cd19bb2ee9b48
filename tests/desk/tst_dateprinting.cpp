// SPDX-License-Identifier: MIT
#include "datetime/tavrodatetime.h"
#include "desk/fonts.h"
#include "desk/formreader.h"
#include "desk/printing.h"
#include "desk/record.h"
#include "tests/desk/deskforms.h"
#include "tests/desk/measuring.h"
#include "tests/support/stricttest.h"

#include <QGraphicsProxyWidget>
#include <QLabel>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

namespace {

constexpr double MostError = 0.2;

QString error(const QString &what, double measured, double expected)
{
    // Not a number is an error too.
    if (std::abs(measured - expected) <= MostError)
        return {};
    return QStringLiteral("%1 is at %2 mm instead of %3 mm").arg(what).arg(measured).arg(expected);
}

QString errorOfWord(const QMultiMap<QString, QRectF> &words, const QString &text, const QPointF &centre)
{
    const QList<QRectF> found = words.values(text);
    if (found.size() != 1)
        return QStringLiteral("%1 is printed %2 times").arg(text).arg(found.size());
    const QString across = error(text, found.first().center().x(), centre.x());
    return across.isEmpty() ? error(text, found.first().center().y(), centre.y()) : across;
}

// A font may share a glyph between a character and the radical of its shape, and then a reader finds either.
QMultiMap<QString, QRectF> withoutRadicals(const QMultiMap<QString, QRectF> &words)
{
    QMultiMap<QString, QRectF> plain;
    for (auto word = words.begin(); word != words.end(); ++word)
        plain.insert(word.key().normalized(QString::NormalizationForm_KC), word.value());
    return plain;
}

QMultiMap<QString, QRectF> printedWords(Form *form, int dpi)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("page.pdf"));
    if (!printing::write(form, file, dpi).isEmpty())
        return {};
    return withoutRadicals(measuring::wordsOfPdf(file));
}

struct Value
{
    QString text;
    QPointF centre; ///< of its box on the paper, mm
};

} // namespace

Q_DECLARE_METATYPE(Value)

class DatePrintingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { fonts::substituteMissing(); }
    void sectionsWhereTheEditorHasThem_data();
    void sectionsWhereTheEditorHasThem();
    void samples_data();
    void samples();
    void nothingOfTheScreen();
};

void DatePrintingTest::sectionsWhereTheEditorHasThem_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<int>("dpi");
    const QVector<const char *> rows{
        R"({"preset":"2022-11-05"})",
        R"({"preset":"2022-11-05","sections":[12,3,30,3,9,3]})",
        R"({"preset":"2022-11-05","separator":"slash","order":"dmy","sections":[30,2,9,2,14]})",
        R"({"preset":"2022-11-05","showSeparator":false,"sections":[12,3,9,3,30,3]})",
        R"({"preset":"2022-11-05","format":"capitalFormal"})",
        R"({"preset":"08:45:09","format":"time","sections":[30,3,9,3,9,3]})"};
    for (const char *row : rows) {
        for (const int dpi : {96, 300, 1200})
            QTest::addRow("%s at %d dpi", row, dpi) << QByteArray(row) << dpi;
    }
}

// On the screen the labels show the sections; in a PDF they stand at the same place of the paper.
void DatePrintingTest::sectionsWhereTheEditorHasThem()
{
    QFETCH(QByteArray, settings);
    QFETCH(int, dpi);
    QJsonObject object =
        deskforms::object("datetime", {13.3, 21.7, 70, 8}, deskforms::value(settings.constData()).toObject());
    object.insert(QStringLiteral("fill"), QStringLiteral("noWrap"));
    const std::unique_ptr<Form> form = deskforms::formWith({object});
    QVERIFY(form);
    auto *date = qobject_cast<TavroDatetime *>(form->entries.front().object);
    date->setPaintMode(Paint_Design);
    QVector<Value> shown;
    const auto *row = qobject_cast<QSplitter *>(date->widgetPrxy()->widget());
    for (int i = 0; i < row->count(); ++i) {
        const auto *label = qobject_cast<QLabel *>(row->widget(i));
        const QRectF place(QPointF(label->geometry().topLeft()) + date->widgetPrxy()->pos(), label->geometry().size());
        if (!label->text().trimmed().isEmpty())
            shown.append({label->text(), place.center() / form->scale});
    }
    QVERIFY(shown.size() >= 3);
    const QMultiMap<QString, QRectF> words = printedWords(form.get(), dpi);
    QCOMPARE(words.size(), shown.size());
    // Two marks are one text at two places.
    for (const Value &value : qAsConst(shown)) {
        if (value.text == QLatin1String("/"))
            continue;
        const QString found = errorOfWord(words, value.text, value.centre);
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }
}

void DatePrintingTest::samples_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QVector<Value>>("values");
    QTest::newRow("cheque") << QStringLiteral("chinese-cheque")
                            << QVector<Value>{{QStringLiteral("贰零贰陆"), {100, 18.45}},
                                              {QStringLiteral("壹拾壹"), {122.25, 18.45}},
                                              {QStringLiteral("零贰拾"), {142.75, 18.45}},
                                              {QStringLiteral("2026"), {23.8, 42.55}},
                                              {QStringLiteral("11"), {35.4, 42.55}},
                                              {QStringLiteral("20"), {46, 42.55}}};
    QTest::newRow("deposit slip") << QStringLiteral("deposit-slip")
                                  << QVector<Value>{{QStringLiteral("2026"), {75.5, 23.5}},
                                                    {QStringLiteral("11"), {91.5, 23.5}},
                                                    {QStringLiteral("20"), {106, 23.5}},
                                                    {QStringLiteral("15"), {122, 23.5}},
                                                    {QStringLiteral("42"), {136.5, 23.5}}};
}

// Between the words that the paper has.
void DatePrintingTest::samples()
{
    QFETCH(QString, sample);
    QFETCH(QVector<Value>, values);
    const QString path = QStringLiteral(TAVRO_SAMPLES "/") + sample;
    const formreader::Result read = formreader::read(path + QStringLiteral(".tform"));
    QVERIFY2(read.form, qPrintable(read.error));
    QCOMPARE(record::fill(read.form.get(), path + QStringLiteral(".json")).error, QString());
    const QMultiMap<QString, QRectF> words = printedWords(read.form.get(), 300);
    for (const Value &value : qAsConst(values)) {
        const QString found = errorOfWord(words, value.text, value.centre);
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }
}

// Borders, handles and the ground of the editor belong to the screen.
void DatePrintingTest::nothingOfTheScreen()
{
    const auto date = [](double y, const char *json) {
        return deskforms::text("datetime", {10, y, 80, 6}, deskforms::value(json).toObject());
    };
    const std::unique_ptr<Form> form =
        deskforms::formWith({date(2, R"({"preset":"2022-01-05","separator":"dash"})"),
                             date(12, R"({"preset":"08:05:09","format":"time","separator":"colon"})"),
                             date(22, R"({"preset":"2022-01-05","format":"custom","customPattern":"M/yyyy"})"),
                             date(32, R"({"preset":"2023-01-05","print":false})")});
    QVERIFY(form);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("page.svg"));
    QCOMPARE(printing::write(form.get(), file, 300), QString());
    const measuring::Drawing drawing = measuring::drawingOfSvg(file);
    QCOMPARE(drawing.rects.size(), 0);
    QCOMPARE(drawing.lines.size(), 0);
    QCOMPARE(QStringList(drawing.texts.keys()).join(QLatin1Char(' ')), QStringLiteral("- 01 05 1/2022 2022 5 8 9 :"));
}

QTEST_MAIN(DatePrintingTest)
#include "tst_dateprinting.moc"

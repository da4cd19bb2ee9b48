// SPDX-License-Identifier: MIT
#include "desk/fonts.h"
#include "desk/formreader.h"
#include "desk/printing.h"
#include "desk/record.h"
#include "tests/desk/measuring.h"
#include "tests/support/stricttest.h"

#include <QTemporaryDir>
#include <QTest>
#include <cmath>

namespace {

// True size, as it is promised.
constexpr double MostError = 0.1;

constexpr int PictureDpi = 600;

// Boxes of a preprinted row, which the form draws too, and what is filled into them; a space leaves a box empty.
struct BoxRow
{
    QString name;
    QRectF first;
    double pitch; ///< from one box to the next
    QString texts;

    QRectF box(int index) const { return first.translated(index * pitch, 0); }
};

QVector<BoxRow> voucherRows()
{
    QVector<BoxRow> rows;
    const QVector<QPair<const char *, const char *>> lines{{"   8600000", "          "}, {"   1118000", "          "},
                                                           {"    245050", "          "}, {"          ", "   9000000"},
                                                           {"          ", "    963050"}, {"          ", "          "},
                                                           {"  ¥9963050", "  ¥9963050"}};
    for (int i = 0; i < lines.size(); ++i) {
        const double top = 41.5 + 11 * i;
        rows.append({QStringLiteral("debit, line %1").arg(i + 1),
                     {126, top, 4.5, 11},
                     4.5,
                     QString::fromUtf8(lines.at(i).first)});
        rows.append({QStringLiteral("credit, line %1").arg(i + 1),
                     {171, top, 4.5, 11},
                     4.5,
                     QString::fromUtf8(lines.at(i).second)});
    }
    return rows;
}

QVector<BoxRow> slipRows()
{
    return {{QStringLiteral("account"), {40, 30.5, 7, 7}, 7, QStringLiteral("622200001234567890")},
            {QStringLiteral("name"), {40, 41.5, 7, 7}, 8, QStringLiteral("欧阳某某  ")},
            {QStringLiteral("post code"), {126, 41.5, 7, 7}, 7, QStringLiteral("100032")},
            {QStringLiteral("amount in capitals"), {40, 52.5, 9, 9}, 14.5, QStringLiteral("ⓧ捌陆零零伍零")},
            {QStringLiteral("amount in figures"), {142, 55, 4.5, 8.5}, 4.5, QStringLiteral(" ¥860050")}};
}

QVector<BoxRow> chequeRows()
{
    return {{QStringLiteral("amount in figures"), {175, 34.2, 4, 7.4}, 4, QStringLiteral("  ¥10500050")}};
}

const QVector<QPair<QString, QVector<BoxRow>>> &samples()
{
    static const QVector<QPair<QString, QVector<BoxRow>>> all{{QStringLiteral("chinese-voucher"), voucherRows()},
                                                              {QStringLiteral("deposit-slip"), slipRows()},
                                                              {QStringLiteral("chinese-cheque"), chequeRows()}};
    return all;
}

QString error(const QString &what, double measured, double expected)
{
    // Not a number is an error too.
    if (std::abs(measured - expected) <= MostError)
        return {};
    return QStringLiteral("%1 is at %2 mm instead of %3 mm").arg(what).arg(measured).arg(expected);
}

// Left and right line of a box, seen where no text comes near.
QString errorOfLines(const measuring::Picture &page, const QRectF &box)
{
    constexpr double reach = 0.45;
    const QRectF area(-reach, box.top() + 1, 2 * reach, box.height() - 2);
    const QString left = error(QStringLiteral("left line"), page.strokeX(area.translated(box.left(), 0)), box.left());
    return left.isEmpty()
               ? error(QStringLiteral("right line"), page.strokeX(area.translated(box.right(), 0)), box.right())
               : left;
}

// The text alone in its box, and in the middle of it.
QString errorOfText(const QMultiMap<QString, QRectF> &words, const QRectF &box, const QString &text)
{
    QStringList found;
    QRectF place;
    for (auto word = words.begin(); word != words.end(); ++word) {
        if (box.intersects(word.value())) {
            found.append(word.key());
            place = word.value();
        }
    }
    if (found.join(QString()) != text.trimmed())
        return QStringLiteral("holds \"%1\" instead of \"%2\"").arg(found.join(QLatin1Char(' ')), text);
    if (found.isEmpty())
        return {};
    const QString across = error(QStringLiteral("middle of the text"), place.center().x(), box.center().x());
    return across.isEmpty() ? error(QStringLiteral("height of the text"), place.center().y(), box.center().y())
                            : across;
}

} // namespace

Q_DECLARE_METATYPE(BoxRow)

class CellPrintingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { fonts::substituteMissing(); }
    void everyTextInTheMiddleOfItsBox_data();
    void everyTextInTheMiddleOfItsBox();

private:
    QTemporaryDir m_folder;
};

void CellPrintingTest::everyTextInTheMiddleOfItsBox_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<int>("dpi");
    QTest::addColumn<QVector<BoxRow>>("rows");
    for (const auto &[name, rows] : samples()) {
        for (const int dpi : {96, 300, 1200})
            QTest::addRow("%s at %d dpi", qPrintable(name), dpi) << name << dpi << rows;
    }
}

void CellPrintingTest::everyTextInTheMiddleOfItsBox()
{
    QFETCH(QString, sample);
    QFETCH(int, dpi);
    QFETCH(QVector<BoxRow>, rows);
    const QString path = QStringLiteral(TAVRO_SAMPLES "/") + sample;
    const formreader::Result read = formreader::read(path + QStringLiteral(".tform"));
    QVERIFY2(read.form, qPrintable(read.error));
    QCOMPARE(record::fill(read.form.get(), path + QStringLiteral(".json")).error, QString());
    const QString file = m_folder.filePath(QStringLiteral("page.pdf"));
    QCOMPARE(printing::write(read.form.get(), file, dpi), QString());
    const QMultiMap<QString, QRectF> words = measuring::wordsOfPdf(file);
    const measuring::Picture page = measuring::Picture::ofPdf(file, PictureDpi);
    QVERIFY2(!page.isNull(), "pdftoppm shows no page");
    for (const BoxRow &row : rows) {
        for (int i = 0; i < row.texts.size(); ++i) {
            QString found = errorOfLines(page, row.box(i));
            if (found.isEmpty())
                found = errorOfText(words, row.box(i), row.texts.mid(i, 1));
            QVERIFY2(found.isEmpty(), qPrintable(QStringLiteral("%1, box %2: %3").arg(row.name).arg(i).arg(found)));
        }
    }
}

QTEST_MAIN(CellPrintingTest)
#include "tst_cellprinting.moc"

// SPDX-License-Identifier: MIT
#include "core/textfitting.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QHash>
#include <QTest>
#include <QTextLayout>
#include <numeric>

namespace {

QFont fontOfSize(int pixels)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    return font;
}

struct Fitted
{
    int size;
    int lineCount;
};

// Both rules one pixel at a time, each size measured with fresh objects. Measures are kept: a row asks for the same
// ones for hundreds of start sizes.
class StepByStep
{
public:
    StepByStep(const QString &text, const QSizeF &box)
        : m_text(text)
        , m_box(box)
    {
    }

    int shrunkToWidth(int size)
    {
        while (width(size) > m_box.width()) {
            size = size > 2 ? size - 1 : 1;
            if (size < 2)
                break;
        }
        return size;
    }

    Fitted wrappedAndShrunk(int size)
    {
        int lineCount = 0;
        do {
            const Lines lines = layOut(size);
            lineCount = lines.count;
            if (lines.count < 2 || m_box.height() > lines.height)
                break;
            size = size > 2 ? size - 1 : 1;
        } while (size > 1);
        return {size, lineCount};
    }

private:
    struct Lines
    {
        int count;
        qreal height;
    };

    qreal width(int size)
    {
        if (!m_widths.contains(size))
            m_widths.insert(size, QFontMetricsF(fontOfSize(size)).horizontalAdvance(m_text));
        return m_widths.value(size);
    }

    Lines layOut(int size)
    {
        if (!m_lines.contains(size)) {
            QTextOption option;
            option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
            QTextLayout layout(m_text, fontOfSize(size));
            layout.setTextOption(option);
            Lines lines{0, 0};
            layout.beginLayout();
            for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
                line.setLineWidth(m_box.width());
                line.setPosition(QPointF(0, lines.height));
                lines.height += line.height();
                ++lines.count;
            }
            layout.endLayout();
            m_lines.insert(size, lines);
        }
        return m_lines.value(size);
    }

    QString m_text;
    QSizeF m_box;
    QHash<int, qreal> m_widths;
    QHash<int, Lines> m_lines;
};

void compareWithStepByStep(const QString &text, const QSizeF &box, const QVector<int> &starts)
{
    StepByStep expected(text, box);
    for (const int start : starts) {
        const QFont font = fontOfSize(start);
        QCOMPARE(textfitting::shrunkToWidth(font, text, box.width()).pixelSize(), expected.shrunkToWidth(start));
        const textfitting::WrappedFit fit = textfitting::wrappedAndShrunk(font, text, box, Qt::AlignLeft);
        const Fitted wrapped = expected.wrappedAndShrunk(start);
        QCOMPARE(fit.font.pixelSize(), wrapped.size);
        QCOMPARE(fit.lineCount, wrapped.lineCount);
    }
}

const QString Sentence = QStringLiteral("Pay to the order of the Harbour Trading Company, Ltd.");
const QString Amount = QStringLiteral("1234567890.00");
const QString Chinese = QStringLiteral("人民币壹佰贰拾叁万肆仟伍佰陆拾柒元捌角玖分");
const QString Mixed = QStringLiteral("Account 0042-77 开户银行 Harbour Branch");

} // namespace

/// Fonts shrunk to a width, or wrapped and shrunk to a box.
class TestTextFitting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void sameAsStepByStep_data();
    void sameAsStepByStep();
    void everyStartSize_data();
    void everyStartSize();
    void hugeSizesAreTheSame_data();
    void hugeSizesAreTheSame();
    void exactWidthFits();
    void exactHeightDoesNotFit();
    void oneLineIsNeverShrunk();
    void endsAtOnePixel();
    void onlyTheSizeChanges();
};

void TestTextFitting::initTestCase()
{
    QCOMPARE(QFontInfo(fontOfSize(20)).family(), QStringLiteral("DejaVu Sans"));
}

void TestTextFitting::sameAsStepByStep_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSizeF>("box");

    QTest::newRow("sentence in a wide box") << Sentence << QSizeF(600, 120);
    QTest::newRow("sentence in a field") << Sentence << QSizeF(220, 60);
    QTest::newRow("sentence in a tall box") << Sentence << QSizeF(90, 400);
    QTest::newRow("sentence in a low box") << Sentence << QSizeF(2000, 30);
    QTest::newRow("sentence in a fractional box") << Sentence << QSizeF(333.3, 77.7);
    QTest::newRow("amount in a field") << Amount << QSizeF(150, 40);
    QTest::newRow("amount in a column") << Amount << QSizeF(40, 300);
    QTest::newRow("Chinese in a field") << Chinese << QSizeF(300, 80);
    QTest::newRow("mixed scripts") << Mixed << QSizeF(260, 90);
    QTest::newRow("line separators") << QStringLiteral("a\u2028b\u2028c") << QSizeF(300, 200);
    QTest::newRow("tabs") << QStringLiteral("a\tbc\td") << QSizeF(400, 150);
    QTest::newRow("spaces at the end") << QStringLiteral("Harbour          ") << QSizeF(400, 100);
    QTest::newRow("only spaces") << QStringLiteral("        ") << QSizeF(60, 30);
    QTest::newRow("empty text") << QString() << QSizeF(100, 20);
    QTest::newRow("one glyph") << QStringLiteral("W") << QSizeF(30, 20);
    QTest::newRow("one glyph in no width") << QStringLiteral("W") << QSizeF(0, 20);
    QTest::newRow("no width") << Amount << QSizeF(0, 900);
    QTest::newRow("no height") << QStringLiteral("ab") << QSizeF(100, 0);
    QTest::newRow("no box") << QStringLiteral("ab") << QSizeF(0, 0);
    QTest::newRow("negative width") << QStringLiteral("ab") << QSizeF(-100, 100);
    QTest::newRow("negative height") << QStringLiteral("ab") << QSizeF(60, -100);
    QTest::newRow("negative box") << QStringLiteral("ab") << QSizeF(-60, -100);
}

void TestTextFitting::sameAsStepByStep()
{
    QFETCH(QString, text);
    QFETCH(QSizeF, box);
    QVector<int> starts{30, 60, 120};
    for (int start = 1; start <= 20; ++start)
        starts.append(start);
    compareWithStepByStep(text, box, starts);
}

void TestTextFitting::everyStartSize_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSizeF>("box");

    // Boxes in which the fonts end between a few pixels below and above the size from which sizes are skipped.
    QTest::newRow("sentence") << Sentence << QSizeF(4600, 760);
    QTest::newRow("amount") << Amount << QSizeF(2450, 500);
}

void TestTextFitting::everyStartSize()
{
    QFETCH(QString, text);
    QFETCH(QSizeF, box);
    QVector<int> starts(400);
    std::iota(starts.begin(), starts.end(), 1);
    compareWithStepByStep(text, box, starts);
}

void TestTextFitting::hugeSizesAreTheSame_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSizeF>("box");

    // Boxes in which the text fits far above the usual sizes.
    QTest::newRow("sentence in a poster") << Sentence << QSizeF(9000, 3000);
    QTest::newRow("sentence over a wall") << Sentence << QSizeF(20000, 700);
    QTest::newRow("amount in a poster") << Amount << QSizeF(5000, 500);
    QTest::newRow("Chinese in a poster") << Chinese << QSizeF(6000, 2500);
    QTest::newRow("mixed scripts in a poster") << Mixed << QSizeF(7000, 1400);
    QTest::newRow("wide glyphs after narrow ones") << QStringLiteral("中 aaaaa aaaaa aaaaa") << QSizeF(4000, 1050);
    QTest::newRow("spaces at the end, wide")
        << QStringLiteral("Harbour") + QString(100, QLatin1Char(' ')) << QSizeF(2500, 100);
    QTest::newRow("spaces at the start, wide")
        << QString(8, QLatin1Char(' ')) + QStringLiteral("Harbour") << QSizeF(2500, 100);
    QTest::newRow("tabs, wide") << QStringLiteral("\ta\tb") << QSizeF(900, 100);
    QTest::newRow("many tabs, wide") << QStringLiteral("\t\t\t\t\t\t\t\ta\t\t\t\t\tb") << QSizeF(1600, 100);
    QTest::newRow("line separators, wide") << QStringLiteral("a\u2028b\u2028c") << QSizeF(3000, 1900);
    QTest::newRow("line separator at the end") << QStringLiteral("Harbour\u2028") << QSizeF(3000, 1200);
    QTest::newRow("soft hyphens, wide") << QStringLiteral("Har\u00ADbour\u00ADmas\u00ADter") << QSizeF(2600, 1300);
    QTest::newRow("combining marks, wide") << QStringLiteral("e\u0301e\u0301e\u0301 e\u0301") << QSizeF(1300, 900);
    QTest::newRow("line feeds, wide") << QStringLiteral("Harbour\nBranch") << QSizeF(2800, 1200);
    QTest::newRow("no-break spaces, wide") << QStringLiteral("Harbour\u00A0Branch\u00A0") << QSizeF(2800, 1200);
}

void TestTextFitting::hugeSizesAreTheSame()
{
    QFETCH(QString, text);
    QFETCH(QSizeF, box);
    QVector<int> starts{300, 700};
    if (text.size() < 20) // every size of every glyph above that is a large outline to load
        starts.append(1500);
    compareWithStepByStep(text, box, starts);
}

void TestTextFitting::exactWidthFits()
{
    const QFont font = fontOfSize(20);
    const qreal width = QFontMetricsF(font).horizontalAdvance(Sentence);
    QCOMPARE(textfitting::shrunkToWidth(font, Sentence, width).pixelSize(), 20);
    QVERIFY(textfitting::shrunkToWidth(font, Sentence, width - 0.01).pixelSize() < 20);
    QCOMPARE(textfitting::shrunkToWidth(font, Sentence, 10 * width).pixelSize(), 20);
}

void TestTextFitting::exactHeightDoesNotFit()
{
    const QFont font = fontOfSize(20);
    const QString text = QStringLiteral("a\u2028b");
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(100);
    const qreal height = 2 * line.height();
    layout.endLayout();

    const auto fitted = [&](qreal boxHeight) {
        return textfitting::wrappedAndShrunk(font, text, QSizeF(100, boxHeight), Qt::AlignLeft).font.pixelSize();
    };
    QCOMPARE(fitted(height + 0.01), 20);
    QVERIFY(fitted(height) < 20);
}

void TestTextFitting::oneLineIsNeverShrunk()
{
    const auto wide = textfitting::wrappedAndShrunk(fontOfSize(40), Sentence, QSizeF(5000, 1), Qt::AlignLeft);
    QCOMPARE(wide.font.pixelSize(), 40);
    QCOMPARE(wide.lineCount, 1);
    // A glyph cannot be broken into two lines.
    const auto glyph = textfitting::wrappedAndShrunk(fontOfSize(40), QStringLiteral("W"), QSizeF(5, 5), Qt::AlignLeft);
    QCOMPARE(glyph.font.pixelSize(), 40);
    QCOMPARE(glyph.lineCount, 1);
    const auto empty = textfitting::wrappedAndShrunk(fontOfSize(40), QString(), QSizeF(5, 5), Qt::AlignLeft);
    QCOMPARE(empty.font.pixelSize(), 40);
}

// The lines counted are those of the layout at two pixels, the last one made.
void TestTextFitting::endsAtOnePixel()
{
    const QString text = QStringLiteral("Harbour Branch");
    const QSizeF box(12, 1);
    const auto fit = textfitting::wrappedAndShrunk(fontOfSize(15), text, box, Qt::AlignLeft);
    QCOMPARE(fit.font.pixelSize(), 1);
    const auto atTwo = textfitting::wrappedAndShrunk(fontOfSize(2), text, QSizeF(12, 1000), Qt::AlignLeft);
    const auto atOne = textfitting::wrappedAndShrunk(fontOfSize(1), text, QSizeF(12, 1000), Qt::AlignLeft);
    QVERIFY(atTwo.lineCount > atOne.lineCount);
    QCOMPARE(fit.lineCount, atTwo.lineCount);

    QCOMPARE(textfitting::shrunkToWidth(fontOfSize(15), text, 1).pixelSize(), 1);
    QCOMPARE(textfitting::shrunkToWidth(fontOfSize(1), text, -1).pixelSize(), 1);
}

void TestTextFitting::onlyTheSizeChanges()
{
    QFont font = fontOfSize(40);
    font.setWeight(QFont::Bold);
    font.setItalic(true);
    font.setStrikeOut(true);
    const QFont shrunk = textfitting::shrunkToWidth(font, Sentence, 200);
    QVERIFY(shrunk.pixelSize() < 40);
    font.setPixelSize(shrunk.pixelSize());
    QCOMPARE(shrunk, font);
    const auto wrapped = textfitting::wrappedAndShrunk(font, Sentence, QSizeF(30, 30), Qt::AlignLeft);
    QVERIFY(wrapped.font.pixelSize() < font.pixelSize());
    font.setPixelSize(wrapped.font.pixelSize());
    QCOMPARE(wrapped.font, font);
}

QTEST_MAIN(TestTextFitting)
#include "tst_textfitting.moc"

// SPDX-License-Identifier: MIT
#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "tests/cells/cellview.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <functional>

using Answer = std::function<QString()>;
Q_DECLARE_METATYPE(Answer)

namespace {

const QRectF Place(10, 20, 240, 60);
constexpr int YuanCell = 4;

QString textAt(const TavroSeperateEdit &edit, int index)
{
    return edit.charAt(index);
}

QString textAt(const TavroFinancialEdit &edit, int index)
{
    return edit.digitAt(index);
}

void setTextAt(TavroSeperateEdit &edit, int index, const QString &text)
{
    edit.setCharAt(index, text);
}

void setTextAt(TavroFinancialEdit &edit, int index, const QString &text)
{
    edit.setDigitAt(index, text);
}

// Only a grid knows a limit.
void limitTo(TavroSeperateEdit &, int) {}

void limitTo(TavroFinancialEdit &edit, int unit)
{
    edit.setIsShowLimit(true);
    edit.setLimitUnit(unit);
}

// The cells as one word, "_" where one is empty.
template <typename Edit>
QString cellsOf(const Edit &edit)
{
    QString word;
    for (int i = 0; i < edit.numOfEditable(); ++i)
        word += textAt(edit, i).isEmpty() ? QStringLiteral("_") : textAt(edit, i);
    return word;
}

template <typename Edit>
void setCells(Edit &edit, const char *word)
{
    for (int i = 0; word[i] != 0; ++i)
        setTextAt(edit, i, word[i] == '_' ? QString() : QString(QLatin1Char(word[i])));
}

// What a row of 万 to 分 writes back for its cells.
template <typename Edit>
QString contentOf(Edit &edit, const char *cells)
{
    setCells(edit, cells);
    edit.syncContentData();
    return edit.contentData().toString();
}

// Both kinds alike: 万 to 分, with room for the words.
template <typename Edit>
void setUp(Edit &edit)
{
    edit.setUnitRange(0, 6);
    edit.setPhyRect({0, 0, 120, 30});
    edit.setBoundingRect(Place);
    edit.setFontColor(0x123456);
    edit.setPaintMode(Paint_Input);
}

// The question to an object that nobody sees.
template <typename Edit, typename Question>
Answer alone(Question question)
{
    return [question] {
        Edit edit;
        setUp(edit);
        return question(edit);
    };
}

// The question to an object in a shown form that has the keyboard.
template <typename Edit, typename Question>
Answer edited(Question question)
{
    return [question]() -> QString {
        CellView form;
        auto *edit = form.add<Edit>(Place);
        setUp(*edit);
        edit->setFocus();
        return form.isActive() ? question(form, *edit) : QStringLiteral("no keyboard");
    };
}

template <typename Question>
void ask(const char *name, Question question, const char *separated, const char *grid)
{
    QTest::newRow(name) << alone<TavroSeperateEdit>(question) << QString::fromUtf8(separated)
                        << alone<TavroFinancialEdit>(question) << QString::fromUtf8(grid);
}

template <typename Question>
void askEdited(const char *name, Question question, const char *separated, const char *grid)
{
    QTest::newRow(name) << edited<TavroSeperateEdit>(question) << QString::fromUtf8(separated)
                        << edited<TavroFinancialEdit>(question) << QString::fromUtf8(grid);
}

template <typename Edit>
QVector<PaintCommand> textsOf(Edit &edit)
{
    QVector<PaintCommand> texts;
    for (const PaintCommand &command : probes::paintedBy(edit)) {
        if (command.kind == PaintCommand::Text)
            texts << command;
    }
    return texts;
}

template <typename Edit>
QString wordsOf(Edit &edit)
{
    QString words;
    for (const PaintCommand &text : textsOf(edit))
        words += text.text;
    return words;
}

bool isCursor(const PaintCommand &command)
{
    return command.brush.color().rgb() == qRgb(102, 204, 153);
}

} // namespace

/// A separated row and a grid work alike, but for these. Each is meant: do not make them equal.
class TestCellDifferences : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void differences_data();
    void differences();
    void gridMayShowZerosLikeASeparatedRow();

private:
    static void addSettings();
    static void addContents();
    static void addKeys();
    static void addPainting();
};

void TestCellDifferences::differences_data()
{
    QTest::addColumn<Answer>("inSeparatedRow");
    QTest::addColumn<QString>("separatedRow");
    QTest::addColumn<Answer>("inGrid");
    QTest::addColumn<QString>("grid");
    addSettings();
    addContents();
    addKeys();
    addPainting();
}

void TestCellDifferences::addSettings()
{
    const auto accepts = [](int start, int end) {
        return [start, end](auto &edit) {
            return edit.setUnitRange(start, end) ? QStringLiteral("accepted") : QStringLiteral("rejected");
        };
    };
    ask("range of jiao and fen", accepts(0, 1), "rejected", "accepted");
    ask("range of jiao alone", accepts(1, 1), "rejected", "accepted");
    ask("range up to jiao", accepts(-3, 1), "rejected", "accepted");
    ask(
        "mark in front of a new amount", [](auto &edit) { return edit.prefix(); }, "ⓧ", "");
    ask(
        "units of a new object",
        [](auto &edit) { return QString::number(std::decay_t<decltype(edit)>().numOfEditable()); }, "7", "12");
    ask(
        "pixels between cells",
        [](auto &edit) { return QString::number(edit.rectAt(1).left() - edit.rectAt(0).right()); }, "10", "0");
    ask(
        "pixels above cells", [](auto &edit) { return QString::number(edit.rectAt(0).top() - Place.top()); }, "0",
        "10");
}

void TestCellDifferences::addContents()
{
    const auto joined = [](const char *cells) { return [cells](auto &edit) { return contentOf(edit, cells); }; };
    ask("amount below 1", joined("_____50"), "0.50", ".500");
    ask("no digit", joined("_______"), "", ".00");
    ask("single digit", joined("______5"), "0.5", ".050");
    ask(
        "no digit, without fen",
        [](auto &edit) {
            edit.setUnitRange(1, 6);
            return contentOf(edit, "");
        },
        "", ".000");
    const auto spread = [](const char *content) {
        return [content](auto &edit) {
            edit.setContentData(QString::fromLatin1(content));
            return cellsOf(edit);
        };
    };
    ask("zeros of 0.05", spread("0.05"), "____005", "______5");
    ask("zeros of 0.50", spread("0.50"), "____050", "_____50");
    ask("zeros of 0", spread("0"), "____000", "_______");
    ask("zeros of nothing", spread(""), "____000", "_______");
}

void TestCellDifferences::addKeys()
{
    const auto pressed = [](int key, const char *text, const char *cells, int cursor) {
        return [key, text, cells, cursor](CellView &form, auto &edit) {
            setCells(edit, cells);
            edit.moveCursorTo(cursor);
            const QSignalSpy announced(&edit, &TavroPrototype::contentDataChanged);
            form.press(key, QString::fromLatin1(text));
            return QStringLiteral("%1 %2 at %3, announced %4")
                .arg(cellsOf(edit), edit.contentData().toString())
                .arg(edit.cursorIndx())
                .arg(announced.count());
        };
    };
    askEdited("Backspace on a digit", pressed(Qt::Key_Backspace, "\b", "1234567", 2),
              "12_4567 1245.67 at 2, announced 1", "1234567 12345.67 at 2, announced 1");
    askEdited("Backspace on an empty cell", pressed(Qt::Key_Backspace, "\b", "123____", 3),
              "12_____ 0.12 at 2, announced 1", "1230000 1.23 at 2, announced 1");
    askEdited("letter", pressed(Qt::Key_A, "a", "1234567", 2), "1234567 12345.67 at 2, announced 1",
              "1234567  at 2, announced 0");
    askEdited("zero in the first cell", pressed(Qt::Key_0, "0", "_______", 0), "____000 0.00 at 1, announced 1",
              "_______ .00 at 1, announced 1");
    askEdited("digit in the last cell", pressed(Qt::Key_5, "5", "_______", 6), "______5 0.5 at 6, announced 1",
              "______5 .050 at 6, announced 1");
    // A new range finds 元 again, but not the limit.
    const auto goneLeft = [](bool newRange) {
        return [newRange](CellView &form, auto &edit) {
            limitTo(edit, 4);
            if (newRange)
                edit.setUnitRange(0, 5);
            edit.moveCursorTo(5);
            for (int i = 0; i < 5; ++i)
                form.press(Qt::Key_Left);
            return QString::number(edit.cursorIndx());
        };
    };
    askEdited("Left as far as it goes", goneLeft(false), "0", "2");
    askEdited("Left as far as it goes in a range set later", goneLeft(true), "0", "2");
    askEdited(
        "input method, allowed by the host",
        [](CellView &form, auto &edit) {
            edit.setFlag(QGraphicsItem::ItemAcceptsInputMethod);
            form.commit(QStringLiteral("12"));
            return cellsOf(edit);
        },
        "12_____", "_______");
}

void TestCellDifferences::addPainting()
{
    const auto words = [](auto &edit) {
        edit.setIsDrawMonetaryUnit(false);
        edit.setContentData(QStringLiteral("12.5"));
        return wordsOf(edit);
    };
    ask("digits without the keyboard", words, "壹贰伍零ⓧ", "1250");
    ask(
        "digits on paper",
        [words](auto &edit) {
            edit.setPaintMode(Paint_Print);
            return words(edit);
        },
        "壹贰伍零ⓧ", "1250");
    ask(
        "colour of digits without the keyboard",
        [](auto &edit) {
            edit.setContentData(QStringLiteral("5"));
            return textsOf(edit).last().pen.color().name();
        },
        "#000000", "#123456");
    ask(
        "word of 元, from the middle of its cell",
        [](auto &edit) {
            const PaintCommand word = textsOf(edit).at(YuanCell);
            const QPoint off = ((word.rect.center() - edit.rectAt(YuanCell).center()) / 5).toPoint();
            return off.x() > 0 && off.y() == 0 ? QStringLiteral("to the right")
                                               : (off.x() == 0 && off.y() < 0 ? QStringLiteral("above") : QString());
        },
        "to the right", "above");
    ask(
        "frame",
        [](auto &edit) {
            QMap<QString, int> counts;
            for (const PaintCommand &command : probes::paintedBy(edit)) {
                if (command.pen.style() == Qt::DotLine && command.kind != PaintCommand::Text)
                    ++counts[command.kind == PaintCommand::Line ? QStringLiteral("lines") : QStringLiteral("boxes")];
            }
            return counts.isEmpty() ? QString() : QStringLiteral("%1 %2").arg(counts.first()).arg(counts.firstKey());
        },
        "7 boxes", "8 lines");
    ask(
        "pieces of background",
        [](auto &edit) {
            const QVector<PaintCommand> commands = probes::paintedBy(edit);
            return QString::number(std::count_if(commands.cbegin(), commands.cend(), [](const PaintCommand &command) {
                return command.opacity < 1 && command.brush.color() == QColor(Qt::white);
            }));
        },
        "7", "1");
    ask(
        "opacity of the cursor",
        [](auto &edit) {
            edit.triggerDrawCursor();
            for (const PaintCommand &command : probes::paintedBy(edit)) {
                if (isCursor(command))
                    return QString::number(command.brush.color().alpha());
            }
            return QString();
        },
        "200", "127");
    ask(
        "place of the cursor",
        [](auto &edit) {
            edit.triggerDrawCursor();
            return isCursor(probes::paintedBy(edit).first()) ? QStringLiteral("below the frame")
                                                             : QStringLiteral("above the frame");
        },
        "below the frame", "above the frame");
}

void TestCellDifferences::differences()
{
    QFETCH(Answer, inSeparatedRow);
    QFETCH(QString, separatedRow);
    QFETCH(Answer, inGrid);
    QFETCH(QString, grid);
    QCOMPARE(inSeparatedRow(), separatedRow);
    QCOMPARE(inGrid(), grid);
    QVERIFY(separatedRow != grid);
}

void TestCellDifferences::gridMayShowZerosLikeASeparatedRow()
{
    TavroSeperateEdit row;
    TavroFinancialEdit grid;
    setUp(row);
    setUp(grid);
    grid.setIsShowZero(true);
    for (const char *content : {"0.05", "0.50", "0", "", "12.5", "100"}) {
        row.setContentData(QString::fromLatin1(content));
        grid.setContentData(QString::fromLatin1(content));
        QCOMPARE(cellsOf(grid), cellsOf(row));
    }
}

QTEST_MAIN(TestCellDifferences)
#include "tst_celldifferences.moc"

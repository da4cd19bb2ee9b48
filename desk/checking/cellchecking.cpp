// SPDX-License-Identifier: MIT
#include "desk/checking/cellchecking.h"

#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "desk/checking/textfit.h"
#include "desk/messages.h"
#include "desk/printing.h"

#include <algorithm>
#include <array>

namespace cellchecking {

namespace {

constexpr int Yuan = 2;

// What an amount is printed with outside of its editor. Index: the digit.
constexpr QStringView CapitalDigits = u"零壹贰叁肆伍陆柒捌玖";

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool isDigits(const QString &text)
{
    return std::all_of(text.begin(), text.end(), isDigit);
}

bool isAmount(const QString &text)
{
    const int point = text.indexOf(QLatin1Char('.'));
    const QString digits = point < 0 ? text : text.left(point) + text.mid(point + 1);
    return !digits.isEmpty() && isDigits(digits);
}

// No key writes a line end or another control character into a cell.
bool isTyped(const QString &text)
{
    return std::none_of(text.begin(), text.end(), [](QChar character) {
        const QChar::Category category = character.category();
        return category == QChar::Other_Control || category == QChar::Separator_Line ||
               category == QChar::Separator_Paragraph;
    });
}

// Index: SeperateMode.
constexpr std::array<bool (*)(const QString &), 4> AcceptedByMode = {isAmount, isDigits, isDigits, isTyped};

// Modes beyond the named ones show no value.
bool isAccepted(SeperateMode mode, const QString &text)
{
    const auto index = static_cast<std::size_t>(mode);
    return index < AcceptedByMode.size() && AcceptedByMode[index](text);
}

// The number without the zeros that do not count, so that equal numbers are equal texts.
QString plainNumber(const QString &whole, const QString &decimals)
{
    int first = 0;
    while (first < whole.size() && whole.at(first) == QLatin1Char('0'))
        ++first;
    int end = decimals.size();
    while (end > 0 && decimals.at(end - 1) == QLatin1Char('0'))
        --end;
    return whole.mid(first) + QLatin1Char('.') + decimals.left(end);
}

QString plainNumber(const QString &amount)
{
    const int point = amount.indexOf(QLatin1Char('.'));
    return point < 0 ? plainNumber(amount, QString()) : plainNumber(amount.left(point), amount.mid(point + 1));
}

bool isZero(const QString &amount)
{
    return plainNumber(amount) == QLatin1String(".");
}

// The number that a reader sees who goes through the cells, from the highest unit of the range down. Units without a
// cell read as zeros.
QString numberInCells(const QStringList &cells, const _UnitRange &range)
{
    QString whole;
    QString decimals;
    for (int unit = range.end; unit >= 0; --unit) {
        const QString digit = cells.value(range.end - unit);
        (unit < Yuan ? decimals : whole) += digit.isEmpty() ? QStringLiteral("0") : digit;
    }
    return plainNumber(whole, decimals);
}

int firstFilled(const QStringList &cells)
{
    const auto found = std::find_if(cells.begin(), cells.end(), [](const QString &text) { return !text.isEmpty(); });
    return found == cells.end() ? -1 : static_cast<int>(found - cells.begin());
}

QStringList cellsOf(const TavroSeperateEdit &edit)
{
    QStringList cells;
    for (int i = 0; i < edit.numOfEditable(); ++i)
        cells.append(edit.charAt(i));
    return cells;
}

QStringList cellsOf(const TavroFinancialEdit &edit)
{
    QStringList cells;
    for (int i = 0; i < edit.numOfEditable(); ++i)
        cells.append(edit.digitAt(i));
    return cells;
}

QStringList filled(const QStringList &cells)
{
    QStringList texts = cells;
    texts.removeAll(QString());
    return texts;
}

QStringList inCapitals(const QStringList &digits)
{
    QStringList capitals;
    for (const QString &digit : digits)
        capitals.append(CapitalDigits.mid(digit.toInt(), 1).toString());
    return capitals;
}

// The mark of an amount of nothing is printed only where it fills all cells.
bool printsMark(const TavroSeperateEdit &edit, int firstFilled)
{
    return firstFilled > 0 || (firstFilled < 0 && edit.isPrefixAll());
}

// Zeros above the limit, such as the 元 of 0.50, are no amount.
bool isAboveLimit(const TavroFinancialEdit &edit, const QStringList &cells)
{
    if (!edit.isShowLimit() || edit.limitUnit() < edit.unitStart() || edit.limitUnit() >= edit.unitEnd())
        return false;
    const QStringList above = filled(cells.mid(0, edit.unitEnd() - edit.limitUnit()));
    return std::any_of(above.begin(), above.end(), [](const QString &text) { return text != QLatin1String("0"); });
}

// A row of either kind: what of it comes to paper, and what is wrong with its value alone.
struct Row
{
    const TavroText &object;
    QRectF cell; ///< the first one; all of them have its size
    QString valueProblem;
    QStringList digits; ///< or other characters
    QString mark;       ///< in front of the first digit
};

// `isWhole` says whether the cells hold all of the value.
QString valueProblem(const QString &content, bool isAccepted, bool isWhole)
{
    if (content.isEmpty() || (isAccepted && isWhole))
        return {};
    const QString problem =
        isAccepted ? QStringLiteral("value does not fit its cells: %1") : QStringLiteral("invalid value %1");
    return problem.arg(messages::quoted(content));
}

Row rowOf(const TavroSeperateEdit &edit)
{
    const QStringList cells = cellsOf(edit);
    const QString content = edit.contentData().toString();
    const bool isAmountMode = edit.seperateMode() == Sep_Amount;
    const bool isWhole = isAmountMode ? numberInCells(cells, edit.unitRange()) == plainNumber(content)
                                      : cells.join(QString()) == content;
    Row row{edit, edit.rectAt(0), valueProblem(content, isAccepted(edit.seperateMode(), content), isWhole), {}, {}};
    if (!isAmountMode) {
        row.digits = filled(cells);
    } else if (!isZero(content) || edit.isPrefixAll()) {
        row.digits = inCapitals(filled(cells));
        row.mark = printsMark(edit, firstFilled(cells)) ? edit.prefix() : QString();
    }
    return row;
}

Row rowOf(const TavroFinancialEdit &edit)
{
    const QStringList cells = cellsOf(edit);
    const QString content = edit.contentData().toString();
    const bool isWhole = numberInCells(cells, edit.unitRange()) == plainNumber(content);
    Row row{edit, edit.rectAt(0), valueProblem(content, isAmount(content), isWhole), filled(cells), {}};
    if (row.valueProblem.isEmpty() && isAboveLimit(edit, cells))
        row.valueProblem = QStringLiteral("value above the limit of its cells: %1").arg(messages::quoted(content));
    row.mark = firstFilled(cells) > 0 ? edit.prefix() : QString();
    return row;
}

QString problemOf(const Row &row)
{
    const QString content = row.object.contentData().toString();
    if (row.object.isRequired() && content.trimmed().isEmpty())
        return QStringLiteral("required, but missing");
    if (!row.valueProblem.isEmpty())
        return row.valueProblem;
    if (row.object.isRequired() && row.digits.isEmpty())
        return QStringLiteral("required, but %1 prints nothing").arg(messages::quoted(content));
    if (!printing::isPrinted(row.object))
        return {};
    for (const QString &text : row.digits + QStringList(row.mark)) {
        if (!textfit::fitsCell(row.cell, row.object.font(), text))
            return QStringLiteral("text does not fit its cell: %1").arg(messages::quoted(text));
    }
    return {};
}

} // namespace

QString problemOf(const TavroSeperateEdit &edit)
{
    return problemOf(rowOf(edit));
}

QString problemOf(const TavroFinancialEdit &edit)
{
    return problemOf(rowOf(edit));
}

} // namespace cellchecking

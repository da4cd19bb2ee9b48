// SPDX-License-Identifier: MIT
#include "desk/checking/barcodechecking.h"

#include "barcode/tavrobarcode.h"
#include "desk/messages.h"
#include "desk/printing.h"
#include "desk/settings/barcodesettings.h"

#include <QFontMetricsF>
#include <QRegularExpression>

namespace barcodechecking {

namespace {

// Guard bars reach this far below the others, px.
constexpr int GuardExtension = 10;

// Office printers and hand-held scanners do not tell finer modules apart.
constexpr double FinestModule = 0.19; // mm

// Lower bars are missed by hand-held scanners, or are no more than a line.
constexpr double LeastBars = 2; // mm

// Lengths come out of divisions by the scale.
constexpr double Rounding = 1e-6;

// What a symbology takes, where the engine would print something else without a word: it fills values up, replaces
// digits, makes capitals of small letters.
struct Rule
{
    QVector<int> symbologies;
    QRegularExpression accepted;
    QString expectation;
};

const Rule *ruleOf(int symbology)
{
    const auto exactly = [](const char *pattern) { return QRegularExpression(QLatin1String(pattern)); };
    static const QVector<Rule> rules{
        {{-2}, exactly("\\A[0-9]{12}\\z"), QStringLiteral("12 digits")},
        {{-1}, exactly("\\A[0-9]{7}\\z"), QStringLiteral("7 digits")},
        {{34}, exactly("\\A[0-9]+\\z"), QStringLiteral("digits")},
        {{37}, exactly("\\A(?:[0-9]{1,6}|[01][0-9]{6,})\\z"), QStringLiteral("7 digits, the first of them 0 or 1")},
        {{3}, exactly("\\A(?:[0-9]{2})+\\z|[^0-9]"), QStringLiteral("an even number of digits")},
        {{8, 98, 99, 102, 104, 106, 108, 112}, exactly("\\A[^a-z]*\\z"), QStringLiteral("capitals")},
    };
    for (const Rule &rule : rules) {
        if (rule.symbologies.contains(symbology))
            return &rule;
    }
    return nullptr;
}

// Whether the symbol is one row of bars.
bool hasBars(int symbology)
{
    static const QVector<int> all{-2, -1, 2, 3, 4, 6, 7, 8, 16, 20, 29, 30, 31, 32, 34, 37, 47, 60, 72, 86, 98, 99};
    return all.contains(symbology);
}

// Digits of a symbology that stand in one group between guards, and the modules that they have.
struct DigitGroup
{
    int symbology;
    int digits;
    int modules;
};

const DigitGroup *digitGroupOf(int symbology)
{
    static const QVector<DigitGroup> groups{{-2, 6, 43}, {-1, 4, 29}, {34, 5, 35}, {37, 6, 43}};
    for (const DigitGroup &group : groups) {
        if (group.symbology == symbology)
            return &group;
    }
    return nullptr;
}

// Modules of the symbol from left to right, 0 without a symbol. A symbology starts with modules of a known width.
double columnsOf(const TavroBarcode &object)
{
    constexpr double startingModule = 3;
    TavroBarcode twin;
    twin.setContentData(object.contentData());
    twin.setQRcodeVersion(object.QRcodeVersion());
    twin.setQRcodeErrCorrection(object.QRcodeErrCorrection());
    // A text may be wider than the modules.
    twin.setHasReadableTxt(false);
    twin.setSymbology(object.symbology());
    return twin.width() / startingModule;
}

// Without a symbol a message is printed in its place.
QString problemOfValue(const TavroBarcode &object, double columns)
{
    const QString content = object.contentData().toString();
    if (content.trimmed().isEmpty() && object.isRequired())
        return QStringLiteral("required, but missing");
    if (content.isEmpty())
        return printing::isPrinted(object) ? QStringLiteral("no value to make a symbol of") : QString();
    if (!barcodesettings::isNamed(object.symbology()))
        return QStringLiteral("no symbol is printed in symbology %1").arg(object.symbology());
    const Rule *rule = ruleOf(object.symbology());
    if (rule && !rule->accepted.match(content).hasMatch())
        return QStringLiteral("invalid value %1, the symbology takes %2")
            .arg(messages::quoted(content), rule->expectation);
    if (columns <= 0)
        return QStringLiteral("value cannot be encoded: %1").arg(messages::quoted(content));
    return {};
}

// The readable text, in the size in which it is printed.
QFontMetricsF textMetrics(const TavroBarcode &object)
{
    constexpr double points = 9;
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(object.pointSzToPixSz(points));
    return QFontMetricsF(font);
}

// Height of the bars alone, px. Those of EAN and UPC leave room for digits with digits and without.
double barsOf(const TavroBarcode &object, double symbolHeight)
{
    const bool hasBand = object.hasReadableTxt() || digitGroupOf(object.symbology());
    return symbolHeight - (hasBand ? textMetrics(object).height() : 0);
}

QString problemOfDigits(const TavroBarcode &object, double module)
{
    const DigitGroup *group = digitGroupOf(object.symbology());
    if (!group)
        return {};
    const QFontMetricsF metrics = textMetrics(object);
    if (metrics.height() < GuardExtension)
        return QStringLiteral("guard bars stick out of the rectangle, the form has too few pixels per millimetre");
    const double width = metrics.horizontalAdvance(QString(group->digits, QLatin1Char('0')));
    if (object.hasReadableTxt() && width > group->modules * module)
        return QStringLiteral("digits run into each other below modules of this width");
    return {};
}

QString problemOfSize(TavroBarcode &object, double columns)
{
    const QSizeF room = object.boundingRect().normalized().size();
    const QSizeF symbol = object.actualSzFromExpectSz(room);
    const double module = symbol.width() / columns;
    const double most = module / 2 + Rounding;
    const QString content = messages::quoted(object.contentData().toString());
    if (symbol.width() > room.width() + most || symbol.height() > room.height() + most)
        return QStringLiteral("symbol does not fit its rectangle: %1").arg(content);
    const double scale = room.width() > 0 ? qAbs(object.phyRect().width()) / room.width() : 0;
    const double millimetres = module * scale;
    if (millimetres < FinestModule - Rounding)
        return QStringLiteral("symbol too fine to be read, with modules of %1 mm: %2")
            .arg(QString::number(millimetres, 'f', 3), content);
    if (hasBars(object.symbology()) && barsOf(object, symbol.height()) * scale < LeastBars - Rounding)
        return QStringLiteral("bars too low to be read: %1").arg(content);
    const QString problem = problemOfDigits(object, module);
    return problem.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(problem, content);
}

} // namespace

QString problemOf(TavroBarcode &object)
{
    const double columns = columnsOf(object);
    const QString problem = problemOfValue(object, columns);
    if (!problem.isEmpty() || columns <= 0 || !printing::isPrinted(object))
        return problem;
    return problemOfSize(object, columns);
}

} // namespace barcodechecking

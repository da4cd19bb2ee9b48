// SPDX-License-Identifier: MIT
#include "desk/barcodechecking.h"

#include "barcode/tavrobarcode.h"
#include "desk/barcodesettings.h"
#include "desk/messages.h"
#include "desk/printing.h"

#include <algorithm>

namespace barcodechecking {

namespace {

constexpr int Ean13 = -2;
constexpr int Ean8 = -1;

// Office printers and hand-held scanners do not tell finer modules apart.
constexpr double FinestModule = 0.19; // mm

// Lengths come out of divisions by the scale.
constexpr double Rounding = 1e-6;

// Digits that a symbology takes without its check digit, 0 where it does not say.
int digitsOf(int symbology)
{
    constexpr int ean13Digits = 12;
    constexpr int ean8Digits = 7;
    return symbology == Ean13 ? ean13Digits : symbology == Ean8 ? ean8Digits : 0;
}

bool isDigits(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar character) { return character >= QLatin1Char('0') && character <= QLatin1Char('9'); });
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
    const int digits = digitsOf(object.symbology());
    if (digits > 0 && (content.size() != digits || !isDigits(content)))
        return QStringLiteral("invalid value %1, the symbology takes %2 digits")
            .arg(messages::quoted(content))
            .arg(digits);
    if (columns <= 0)
        return QStringLiteral("value cannot be encoded: %1").arg(messages::quoted(content));
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
    const double millimetres = room.width() > 0 ? module * qAbs(object.phyRect().width()) / room.width() : 0;
    if (millimetres < FinestModule - Rounding)
        return QStringLiteral("symbol too fine to be read, with modules of %1 mm: %2")
            .arg(QString::number(millimetres, 'f', 3), content);
    return {};
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

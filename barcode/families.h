// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

/// How the symbols of each family of symbologies are laid out: fitting, natural size and painting read the same tables,
/// so that they cannot disagree. Lengths in modules unless they say otherwise.
namespace families {

enum class Family {
    None, ///< encoded, but neither fitted nor drawn
    PlainLinear,
    Ean,
    UpcA,
    UpcE,
    Stacked,
    Matrix,
    DataBarStacked,
    DataBarStackedRows, ///< stacked omnidirectional and expanded stacked
    EanComposite,
    LinearComposite,
    UpcComposite,
    StackedComposite
};

/// Family of a symbology number of libzint.
Family familyOf(int symbology);

/// Symbology numbers that the library itself tells apart.
constexpr int EanSymbology = 13;
constexpr int Code128Symbology = 20;
constexpr int QrCodeSymbology = 58;
constexpr int UpcACompositeSymbology = 135;

/// Forms of the EAN family.
enum EanVariant : int { Ean2AddOn = 0, Ean5AddOn = 1, Ean8 = 2, Ean13 = 3 };

/// Quiet zone on each side of EAN and UPC symbols, drawn into the symbol because digits stand in it.
constexpr int Margin = 10;

/// A run of columns whose bars reach down between the digits.
struct Guard
{
    int first;
    int last;
};

/// Characters of the readable text in a span of columns. Columns count from the first bar.
struct DigitGroup
{
    int first;  ///< character
    int count;  ///< characters, -1 for all that follow
    int column; ///< -Margin for the left margin
    int span;
    Qt::Alignment alignment;
    bool isSmall; ///< 0.7 of the text font
};

/// A sign for the width of the quiet zone.
struct QuietZoneMark
{
    QString text;
    int column;
    Qt::Alignment alignment;
};

/// Bars with guards and split digits.
struct RetailLayout
{
    QVector<Guard> guards;
    QVector<DigitGroup> digits;
    QVector<QuietZoneMark> marks;

    bool isGuard(int column) const;
};

/// Layout of the bars of a symbol, null where it has no guards: for add-ons, and outside of EAN and UPC.
const RetailLayout *retailLayoutOf(int symbology, int eanVariant);

/// One row of a symbol, from the top: a fixed number of modules high, or as high as the bars.
struct Row
{
    double modules;
    bool isBar;
};

/// Heights that the host can set.
struct RowHeights
{
    int stackedRow;
    int compositeRow;
    int separator;
};

/// Rows of a symbol from the heights with which libzint delivers them (0: as high as the bars).
QVector<Row> rowsOf(Family family, const QVector<double> &delivered, const RowHeights &heights);

/// Whether margins belong to the symbol.
bool hasMargins(Family family);
/// Whether the text of the symbol is drawn in one line or in groups below its bars.
bool hasText(Family family);

} // namespace families

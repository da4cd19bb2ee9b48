// SPDX-License-Identifier: MIT
#include "barcode/families.h"

#include <algorithm>

namespace families {

namespace {

struct Members
{
    Family family;
    QVector<int> symbologies;
};

const QVector<Members> &members()
{
    static const QVector<Members> all{
        {Family::PlainLinear, {2, 3, 4, 6, 7, 8, 16, 20, 29, 30, 31, 32, 47, 60, 72, 86, 98, 99}},
        {Family::Ean, {13}},
        {Family::UpcA, {34}},
        {Family::UpcE, {37}},
        {Family::Stacked, {55, 56, 84, 106, 108}},
        {Family::Matrix, {58, 71, 92, 97, 102, 104, 112, 128}},
        {Family::DataBarStacked, {79}},
        {Family::DataBarStackedRows, {80, 81}},
        {Family::EanComposite, {130}},
        {Family::LinearComposite, {131, 132, 133, 134}},
        {Family::UpcComposite, {135, 136}},
        {Family::StackedComposite, {137, 138, 139}},
    };
    return all;
}

constexpr Qt::Alignment BottomLeft = Qt::AlignLeft | Qt::AlignBottom;
constexpr Qt::Alignment BottomRight = Qt::AlignRight | Qt::AlignBottom;

const RetailLayout &ean8()
{
    static const RetailLayout layout{
        {{0, 0}, {2, 2}, {32, 32}, {34, 34}, {64, 64}, {66, 66}},
        {{0, 4, 3, 29, Qt::AlignCenter, false}, {4, -1, 35, 29, Qt::AlignCenter, false}},
        {{QStringLiteral("<"), -Margin, Qt::AlignLeft}, {QStringLiteral(">"), 67, Qt::AlignLeft}}};
    return layout;
}

const RetailLayout &ean13()
{
    static const RetailLayout layout{{{0, 0}, {2, 2}, {46, 46}, {48, 48}, {92, 92}, {94, 94}},
                                     {{0, 1, -Margin, Margin, Qt::AlignLeft, false},
                                      {1, 6, 3, 43, Qt::AlignCenter, false},
                                      {7, -1, 49, 43, Qt::AlignCenter, false}},
                                     {{QStringLiteral(">"), 95, Qt::AlignRight}}};
    return layout;
}

const RetailLayout &upcA()
{
    static const RetailLayout layout{{{0, 11}, {46, 48}, {85, 96}},
                                     {{0, 1, -Margin, Margin, BottomLeft, true},
                                      {1, 5, 11, 35, Qt::AlignCenter, false},
                                      {6, 5, 49, 36, Qt::AlignCenter, false},
                                      {11, -1, 95, Margin, BottomRight, true}},
                                     {}};
    return layout;
}

const RetailLayout &upcE()
{
    static const RetailLayout layout{{{0, 2}, {46, 50}},
                                     {{0, 1, -Margin, Margin, BottomLeft, true},
                                      {1, 6, 3, 43, Qt::AlignCenter, false},
                                      {7, -1, 51, Margin, BottomRight, true}},
                                     {}};
    return layout;
}

// libzint delivers three separators above the bars of EAN and UPC composites, one above others.
int separatorsOf(Family family)
{
    return family == Family::EanComposite || family == Family::UpcComposite ? 3 : 1;
}

Row stackedCompositeRow(double delivered, bool isFirstSeparator, const RowHeights &heights)
{
    constexpr double twoDimensional = 2;
    constexpr double separator = 1;
    if (delivered == twoDimensional)
        return {static_cast<double>(heights.compositeRow), false};
    if (delivered == separator)
        return {isFirstSeparator ? static_cast<double>(heights.separator) : separator, false};
    return {0, true};
}

QVector<Row> stackedCompositeRows(const QVector<double> &delivered, const RowHeights &heights)
{
    QVector<Row> rows;
    bool isFirstSeparator = true;
    for (const double height : delivered) {
        rows.append(stackedCompositeRow(height, isFirstSeparator, heights));
        isFirstSeparator = isFirstSeparator && height != 1;
    }
    return rows;
}

Row rowOf(Family family, int index, int count, const RowHeights &heights)
{
    const Row bar{0, true};
    const Row module{1, false};
    switch (family) {
    case Family::Stacked:
        return {static_cast<double>(heights.stackedRow), false};
    case Family::DataBarStacked:
        return index == 0 || index == 2 ? bar : module;
    case Family::DataBarStackedRows:
        return index % 4 == 0 ? bar : module;
    case Family::EanComposite:
    case Family::UpcComposite:
    case Family::LinearComposite:
        if (index == count - 1)
            return bar;
        return {
            static_cast<double>(index < count - 1 - separatorsOf(family) ? heights.compositeRow : heights.separator),
            false};
    default:
        return module;
    }
}

} // namespace

Family familyOf(int symbology)
{
    for (const Members &group : members()) {
        if (group.symbologies.contains(symbology))
            return group.family;
    }
    return Family::None;
}

bool RetailLayout::isGuard(int column) const
{
    return std::any_of(guards.cbegin(), guards.cend(),
                       [column](const Guard &guard) { return column >= guard.first && column <= guard.last; });
}

const RetailLayout *retailLayoutOf(int symbology, int eanVariant)
{
    switch (familyOf(symbology)) {
    case Family::Ean:
    case Family::EanComposite:
        return eanVariant == Ean13 ? &ean13() : eanVariant == Ean8 ? &ean8() : nullptr;
    case Family::UpcA:
        return &upcA();
    case Family::UpcE:
        return &upcE();
    case Family::UpcComposite:
        return symbology == UpcACompositeSymbology ? &upcA() : &upcE();
    default:
        return nullptr;
    }
}

QVector<Row> rowsOf(Family family, const QVector<double> &delivered, const RowHeights &heights)
{
    switch (family) {
    case Family::None:
        return {};
    case Family::PlainLinear:
    case Family::Ean:
    case Family::UpcA:
    case Family::UpcE:
        return {{0, true}};
    case Family::StackedComposite:
        return stackedCompositeRows(delivered, heights);
    default:
        break;
    }
    QVector<Row> rows;
    for (int i = 0; i < delivered.size(); ++i)
        rows.append(rowOf(family, i, delivered.size(), heights));
    return rows;
}

bool hasMargins(Family family)
{
    switch (family) {
    case Family::Ean:
    case Family::UpcA:
    case Family::UpcE:
    case Family::EanComposite:
    case Family::UpcComposite:
        return true;
    default:
        return false;
    }
}

bool hasText(Family family)
{
    return hasMargins(family) || family == Family::PlainLinear;
}

} // namespace families

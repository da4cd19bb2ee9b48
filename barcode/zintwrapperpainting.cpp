// SPDX-License-Identifier: MIT
// Drawing of encoded symbols.
#include "barcode/zintwrapper.h"

#include "core/paintersaver.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <zint.h>

using families::Family;

namespace {

constexpr double SmallFont = 0.7;

// Modules are that part of a module too large. Otherwise the edge between two dark ones, which comes out of two
// different sums, may round to two different pixels and leave a light line.
constexpr double Overlap = 1e-6;

// Clipped text could not be checked against what was scanned.
void drawText(QPainter *painter, const QRectF &rect, Qt::Alignment alignment, const QString &text)
{
    painter->drawText(rect, static_cast<int>(alignment) | Qt::TextDontClip, text);
}

} // namespace

void ZintWrapper::paint(QPainter *painter, const QRectF &target)
{
    const PainterSaver saver(painter);
    const QTransform transform = painter->transform();
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_backgroundBrush);
    // Modules that share an edge share its pixels: smoothed edges would leave a gray line between them.
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->fillRect(target, m_backgroundBrush);
    painter->translate(target.topLeft());
    if (!encode())
        drawErrorText(painter, errorText());
    else if (const QString error = lengthError(); !error.isEmpty())
        drawErrorText(painter, error);
    else
        drawSymbol(painter);
    painter->setTransform(transform);
}

// The digits are counted as they are typed, without the check digit.
QString ZintWrapper::lengthError() const
{
    const int data = QString::fromUtf8(m_data.constData()).size();
    const int primary = QString::fromUtf8(m_primary.constData()).size();
    if (family() == Family::EanComposite) {
        const bool fits =
            (primary == 7 && m_eanVariant == families::Ean8) || (primary == 12 && m_eanVariant == families::Ean13);
        return fits ? QString() : QStringLiteral("error: Invalid Length Input in Linear Component!");
    }
    if (family() != Family::Ean)
        return {};
    const bool fits = (m_eanVariant == families::Ean2AddOn && data <= 2) ||
                      (m_eanVariant == families::Ean5AddOn && data <= 5) ||
                      (m_eanVariant == families::Ean8 && data == 7) || (m_eanVariant == families::Ean13 && data == 12);
    return fits ? QString() : QStringLiteral("error: Invalid Length Input!");
}

void ZintWrapper::updateTextOffset()
{
    const double bars = m_moduleWidth * m_symbol->width;
    const double text = textSize().width();
    m_textOffset = m_isShowText && bars <= text ? (text - bars) * 0.5 : 0;
}

void ZintWrapper::drawSymbol(QPainter *painter)
{
    const families::RetailLayout *layout = families::retailLayoutOf(m_symbology, m_eanVariant);
    const bool hasTextLine = families::hasText(family()) && !layout;
    if (hasTextLine)
        updateTextOffset();
    const bool isShifted = family() == Family::Matrix || family() == Family::DataBarStacked || hasTextLine;
    // The shift of a matrix code is the one that the last line of text left.
    const double left = layout ? families::Margin * m_moduleWidth : isShifted ? m_textOffset : 0;
    drawRows(painter, left, layout);
}

void ZintWrapper::drawRows(QPainter *painter, double left, const families::RetailLayout *layout)
{
    const QVector<families::Row> all = rows();
    const double overlap = Overlap * m_moduleWidth;
    double y = 0;
    for (int row = 0; row < all.size(); ++row) {
        const double height = rowHeight(all.at(row));
        const int first = layout && all.at(row).isBar ? firstBar(row) : 0;
        for (int x = 0; x < m_symbol->width; ++x) {
            if (!isDark(row, x))
                continue;
            const bool isGuard = layout && all.at(row).isBar && layout->isGuard(x - first);
            const QRectF module(x * m_moduleWidth + left, y, m_moduleWidth + overlap,
                                height + overlap + (isGuard ? m_guardExtension : 0));
            painter->fillRect(module, m_foregroundBrush);
        }
        y += height;
    }
    if (!m_isShowText || !families::hasText(family()))
        return;
    if (layout)
        drawDigitGroups(painter, {left + firstBar(all.size() - 1) * m_moduleWidth, y + m_textGap}, *layout);
    else
        drawTextLine(painter, y + m_textGap);
}

// Below the components of a composite symbol the bars start some columns further right.
int ZintWrapper::firstBar(int row) const
{
    int column = 0;
    while (column < m_symbol->width && !isDark(row, column))
        ++column;
    return column;
}

void ZintWrapper::drawTextLine(QPainter *painter, double top)
{
    const QSizeF size = textSize();
    const double left = m_textOffset == 0 ? (m_moduleWidth * m_symbol->width - size.width()) * 0.5 : 0;
    painter->setPen(m_foregroundColor);
    painter->setFont(m_textFont);
    drawText(painter, {QPointF(left, top), size}, Qt::AlignCenter, text());
}

void ZintWrapper::drawDigitGroups(QPainter *painter, const QPointF &firstColumn, const families::RetailLayout &layout)
{
    const double height = textSize().height();
    const auto span = [this, &firstColumn, height](int column, int modules) {
        return QRectF(firstColumn.x() + column * m_moduleWidth, firstColumn.y(), modules * m_moduleWidth, height);
    };
    QFont smallFont = m_textFont;
    smallFont.setPixelSize(std::max(1, static_cast<int>(SmallFont * m_textFont.pixelSize())));
    painter->setPen(QPen(m_foregroundColor, 1));
    for (const families::DigitGroup &group : layout.digits) {
        painter->setFont(group.isSmall ? smallFont : m_textFont);
        drawText(painter, span(group.column, group.span), group.alignment, text().mid(group.first, group.count));
    }
    if (!m_hasQuietZoneMarks)
        return;
    painter->setFont(m_textFont);
    for (const families::QuietZoneMark &mark : layout.marks)
        drawText(painter, span(mark.column, families::Margin), mark.alignment, mark.text);
}

void ZintWrapper::drawErrorText(QPainter *painter, const QString &text)
{
    const QFont font = messageFont();
    const QFontMetricsF metrics(font);
    painter->setPen(QPen(Qt::black, 1));
    painter->setFont(font);
    drawText(painter, {0, 0, metrics.horizontalAdvance(text), metrics.height()}, Qt::AlignLeft, text);
}

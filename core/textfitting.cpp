// SPDX-License-Identifier: MIT
#include "core/textfitting.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace textfitting {

namespace {

// Above this size widths and heights grow in proportion to the font size, give or take a pixel for each character, so
// sizes that cannot fit are skipped. Without the skip a size typed with too many zeros would hang the program.
constexpr int ProportionalSize = 256;

struct Lines
{
    int count;
    qreal height;
};

Lines brokenLines(QTextLayout &layout, qreal width)
{
    Lines result{0, 0};
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, result.height));
        result.height += line.height();
        ++result.count;
    }
    layout.endLayout();
    return result;
}

int nextSize(int size)
{
    return size > 2 ? size - 1 : 1;
}

// Largest size below `size` whose extent can come down to `wanted`, when `size` pixels give `extent`, of which
// `constant` does not shrink with the font, and the rounding of each of `parts` glyphs or lines is worth a pixel.
int largestCandidate(int size, qreal extent, qreal constant, qreal wanted, int parts)
{
    const qreal perPixel = (extent - constant - parts) / size;
    if (!(perPixel > 0))
        return size - 1;
    const qreal candidate = std::ceil((wanted + parts) / perPixel) + 1;
    // Written so that "not a number" fails it, as nothing fits into a box of such a size.
    if (!(candidate > 1))
        return 1;
    return static_cast<int>(std::min<qreal>(candidate, size - 1));
}

// The same for `text` on one line.
int largestOneLineCandidate(const QFont &font, const QString &text, qreal width)
{
    constexpr qreal tabDistance = 80;
    const qreal tabs = tabDistance * text.count(QLatin1Char('\t'));
    return largestCandidate(font.pixelSize(), QFontMetricsF(font).horizontalAdvance(text), tabs, width, text.size());
}

QString withoutTrailingSpaces(const QString &text)
{
    int length = text.size();
    while (length > 0 && text.at(length - 1).isSpace())
        --length;
    return text.left(length);
}

} // namespace

QFont shrunkToWidth(const QFont &font, const QString &text, qreal width)
{
    QFont fitted = font;
    for (;;) {
        const int size = fitted.pixelSize();
        const qreal textWidth = QFontMetricsF(fitted).horizontalAdvance(text);
        if (!(textWidth > width))
            return fitted;
        int next = nextSize(size);
        if (size > ProportionalSize)
            next = std::max(largestOneLineCandidate(fitted, text, width), ProportionalSize);
        fitted.setPixelSize(next);
        if (next < 2)
            return fitted;
    }
}

WrappedFit wrappedAndShrunk(const QFont &font, const QString &text, const QSizeF &box, Qt::Alignment alignment)
{
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    WrappedFit fit{font, 0};
    QTextLayout layout(text, font);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    for (;;) {
        layout.setFont(fit.font);
        const Lines lines = brokenLines(layout, box.width());
        fit.lineCount = lines.count;
        if (lines.count < 2 || box.height() > lines.height)
            return fit;
        const int size = fit.font.pixelSize();
        int next = nextSize(size);
        if (size > ProportionalSize) {
            // A smaller size stops on one line, beyond which spaces at the end may hang, or with at least two lines
            // inside the box, whichever comes first. Other fonts that stand in for missing glyphs only add height.
            const qreal twoLines = 2 * QFontMetricsF(fit.font).height();
            next = std::max({largestOneLineCandidate(fit.font, withoutTrailingSpaces(text), box.width()),
                             largestCandidate(size, twoLines, 0, box.height(), 2), ProportionalSize});
        }
        fit.font.setPixelSize(next);
        if (next < 2)
            return fit;
    }
}

} // namespace textfitting

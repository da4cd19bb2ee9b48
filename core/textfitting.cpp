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

struct Layout
{
    int lineCount;
    qreal height;
};

Layout layOut(QTextLayout &layout, qreal width)
{
    Layout result{0, 0};
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, result.height));
        result.height += line.height();
        ++result.lineCount;
    }
    layout.endLayout();
    return result;
}

int nextSize(int size)
{
    return size > 2 ? size - 1 : 1;
}

// Largest size below `size` whose extent can come down to `wanted`, when `size` pixels give `extent` and the rounding
// of each of `parts` glyphs or lines is worth a pixel.
int largestCandidate(int size, qreal extent, qreal wanted, int parts)
{
    const qreal perPixel = (extent - parts) / size;
    if (!(perPixel > 0))
        return size - 1;
    const qreal candidate = std::ceil((wanted + parts) / perPixel) + 1;
    return static_cast<int>(std::clamp<qreal>(candidate, 1, size - 1));
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
        if (size > ProportionalSize) {
            const int candidate = largestCandidate(size, textWidth, width, text.size());
            next = std::max(candidate, ProportionalSize);
        }
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
        const Layout lines = layOut(layout, box.width());
        fit.lineCount = lines.lineCount;
        if (lines.lineCount < 2 || box.height() > lines.height)
            return fit;
        const int size = fit.font.pixelSize();
        int next = nextSize(size);
        if (size > ProportionalSize) {
            // A smaller size stops on one line or with at least two lines inside the box, whichever comes first.
            const qreal oneLine = QFontMetricsF(fit.font).horizontalAdvance(text);
            const qreal twoLines = 2 * lines.height / lines.lineCount;
            next = std::max({largestCandidate(size, oneLine, box.width(), text.size()),
                             largestCandidate(size, twoLines, box.height(), 2), ProportionalSize});
        }
        fit.font.setPixelSize(next);
        if (next < 2)
            return fit;
    }
}

} // namespace textfitting

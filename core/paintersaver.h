// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

/// Keeps pen and brush of a painter for the length of a scope.
class PenSaver
{
public:
    explicit PenSaver(QPainter *painter)
        : m_painter(painter)
        , m_pen(painter->pen())
        , m_brush(painter->brush())
    {
    }
    ~PenSaver()
    {
        m_painter->setPen(m_pen);
        m_painter->setBrush(m_brush);
    }
    Q_DISABLE_COPY(PenSaver)

private:
    QPainter *m_painter;
    QPen m_pen;
    QBrush m_brush;
};

/// Keeps for the length of a scope what form objects change on a painter: pen, brush, font, opacity and render hints.
/// Not the clip, not the transform. QPainter::save() would keep them too, but flushes the state into the device each
/// time: on paper that writes a pen that nothing is drawn with, for every line of every form.
class PainterSaver
{
public:
    explicit PainterSaver(QPainter *painter)
        : m_painter(painter)
        , m_penSaver(painter)
        , m_font(painter->font())
        , m_opacity(painter->opacity())
        , m_hints(painter->renderHints())
    {
    }
    ~PainterSaver()
    {
        if (m_painter->font() != m_font)
            m_painter->setFont(m_font);
        if (m_painter->opacity() != m_opacity)
            m_painter->setOpacity(m_opacity);
        const QPainter::RenderHints changed = m_painter->renderHints() ^ m_hints;
        if (changed) {
            m_painter->setRenderHints(changed & m_hints, true);
            m_painter->setRenderHints(changed & ~m_hints, false);
        }
    }
    Q_DISABLE_COPY(PainterSaver)

private:
    QPainter *m_painter;
    PenSaver m_penSaver;
    QFont m_font;
    qreal m_opacity;
    QPainter::RenderHints m_hints;
};

/// Keeps everything of a painter for the length of a scope, where the clip or the transform changes too.
class WholePainterSaver
{
public:
    explicit WholePainterSaver(QPainter *painter)
        : m_painter(painter)
    {
        m_painter->save();
    }
    ~WholePainterSaver() { m_painter->restore(); }
    Q_DISABLE_COPY(WholePainterSaver)

private:
    QPainter *m_painter;
};

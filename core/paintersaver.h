// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

/// Keeps a painter's state for the length of a scope.
class PainterSaver
{
public:
    explicit PainterSaver(QPainter *painter)
        : m_painter(painter)
    {
        m_painter->save();
    }
    ~PainterSaver() { m_painter->restore(); }
    Q_DISABLE_COPY(PainterSaver)

private:
    QPainter *m_painter;
};

// SPDX-License-Identifier: MIT
#include "cells/typedtext.h"

#include <QKeyEvent>

namespace typedtext {

QString textOf(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    // Control and Alt together are how some keyboards write their third level.
    const bool isOrder = held != Qt::NoModifier && held != (Qt::ControlModifier | Qt::AltModifier);
    const QString text = event.text();
    if (isOrder || text.isEmpty() || text.at(0).category() == QChar::Other_Control)
        return {};
    return text;
}

bool isDigitKey(int key)
{
    return key >= Qt::Key_0 && key <= Qt::Key_9;
}

} // namespace typedtext

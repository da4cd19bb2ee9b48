// SPDX-License-Identifier: MIT
#pragma once

#include "datetime/dateedit.h"
#include "datetime/timeedit.h"
#include "tests/support/recordingpaintengine.h"

#include <QLabel>
#include <memory>

/// What tests ask the row of labels of a date or time editor.
namespace editors {

/// Family that every machine has which runs the tests.
inline QFont testFont(int pixels = 14)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    return font;
}

/// The child at a place as the label that it has to be, null for anything else.
inline QLabel *labelAt(const QSplitter &editor, int index)
{
    return qobject_cast<QLabel *>(editor.widget(index));
}

/// Texts of all labels, from the left, with a bar between two.
inline QString rowOf(const QSplitter &editor)
{
    QStringList texts;
    for (int i = 0; i < editor.count(); ++i)
        texts.append(labelAt(editor, i) ? labelAt(editor, i)->text() : QStringLiteral("no label"));
    return texts.join(QLatin1Char('|'));
}

/// Everything that the editor paints over a rectangle.
inline QVector<PaintCommand> paintedSections(DateTimeEditPrototype &editor, const QRectF &rect)
{
    RecordingDevice device;
    QPainter painter(&device);
    editor.paintSections(&painter, rect);
    painter.end();
    return device.commands();
}

/// Texts of the commands, from the first, with a bar between two.
inline QString textsOf(const QVector<PaintCommand> &commands)
{
    QStringList texts;
    for (const PaintCommand &command : commands)
        texts.append(command.kind == PaintCommand::Text ? command.text : QStringLiteral("no text"));
    return texts.join(QLatin1Char('|'));
}

inline QDateTime aMoment()
{
    return {QDate(2022, 1, 5), QTime(8, 5, 9)};
}

/// An editor of either kind, 8:05:09 on the 5th of January 2022, in the font of the tests, over a rectangle.
inline std::unique_ptr<DateTimeEditPrototype> editor(bool ofTime, const QRect &rect = QRect(0, 0, 300, 30))
{
    std::unique_ptr<DateTimeEditPrototype> made;
    if (ofTime)
        made = std::make_unique<TimeEdit>();
    else
        made = std::make_unique<DateEdit>();
    made->setDateTime(aMoment());
    made->setFont(testFont());
    made->follow(rect);
    return made;
}

inline void setOrder(DateTimeEditPrototype &editor, int order)
{
    if (auto *dates = qobject_cast<DateEdit *>(&editor))
        dates->setOrderType(static_cast<DateOrderType>(order));
    else if (auto *times = qobject_cast<TimeEdit *>(&editor))
        times->setOrderType(static_cast<TimeOrderType>(order));
}

} // namespace editors

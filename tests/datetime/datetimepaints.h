// SPDX-License-Identifier: MIT
#pragma once

#include "tests/datetime/datetimeview.h"
#include "tests/support/itemprobes.h"

/// What tests ask about the paintings of a date/time object.
namespace datetimepaints {

inline const QRectF Boxes(40, 20, 300, 30);

/// Content with which no clock runs any more.
inline const QDateTime LongAgo(QDate(1999, 12, 31), QTime(1, 2, 3));

/// Texts as they are written, other commands by name.
inline QString sequence(const QVector<PaintCommand> &commands)
{
    QStringList names;
    for (const PaintCommand &command : commands) {
        if (command.kind == PaintCommand::Text)
            names << command.text;
        else if (command.kind == PaintCommand::Rect)
            names << QStringLiteral("border");
        else if (command.kind == PaintCommand::Image)
            names << QStringLiteral("lock");
        else
            names << QStringLiteral("other");
    }
    return names.join(QLatin1Char(' '));
}

/// An object, 8:05:09 on the 5th of January 2022, in a format and a paint mode.
inline std::unique_ptr<TavroDatetime> object(int format, int mode)
{
    auto made = std::make_unique<TavroDatetime>();
    made->setTextFillingRule(Fill_NoWrap);
    made->setBoundingRect(Boxes);
    made->setContentData(editors::aMoment());
    made->setDateTimeFormat(static_cast<Datetime_Format>(format));
    made->setPaintMode(static_cast<Paint_Mode>(mode));
    return made;
}

/// Tells how often it was painted, and how often its content was set.
class Counting : public TavroDatetime
{
public:
    void setContentData(const QVariant &content) override
    {
        ++m_contents;
        TavroDatetime::setContentData(content);
    }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override
    {
        ++m_paints;
        TavroDatetime::paint(painter, option, widget);
    }
    int m_contents = 0;
    int m_paints = 0;
};

/// Lets the event loop turn until nothing was painted for a while. Answers whether that came.
inline bool comesToRest(const Counting &object)
{
    constexpr int mostTurns = 200;
    constexpr int quietTurns = 20;
    int quiet = 0;
    for (int turn = 0; turn < mostTurns && quiet < quietTurns; ++turn) {
        const int before = object.m_paints;
        QCoreApplication::processEvents();
        quiet = object.m_paints == before ? quiet + 1 : 0;
    }
    return quiet == quietTurns;
}

inline void addFormatAndModeRows()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("mode");
    for (const int format : {0, 3, 5, 6}) {
        for (const int mode : {0, 1, 2})
            QTest::addRow("format %d, mode %d", format, mode) << format << mode;
    }
}

} // namespace datetimepaints

// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QString>
#include <QVector>

class TavroDatetime;

/// What a date or time prints, and where.
namespace datetimesections {

struct Section
{
    QRectF rect; ///< in the middle of which the text stands, in pixels
    QString text;
    bool isSeparator; ///< as wide as its text by itself
};

/// Values and, where they are shown, separators from the left; one section for a pattern.
QVector<Section> printed(const TavroDatetime &object);

} // namespace datetimesections

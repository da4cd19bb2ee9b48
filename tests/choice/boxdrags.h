// SPDX-License-Identifier: MIT
#pragma once

#include "choice/tavrocheckbox.h"

#include <QTest>
#include <QVector>
#include <cmath>

Q_DECLARE_METATYPE(HandleDirect)

/// Handles of a tick field and where they are dragged to.
namespace boxdrags {

inline bool isNear(double a, double b)
{
    return std::abs(a - b) < 1e-6;
}

inline bool isNear(const QRectF &a, const QRectF &b)
{
    return isNear(a.x(), b.x()) && isNear(a.y(), b.y()) && isNear(a.width(), b.width()) &&
           isNear(a.height(), b.height());
}

inline QByteArray text(const QRectF &rect)
{
    return QStringLiteral("(%1, %2, %3, %4)")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height())
        .toLatin1();
}

// The square of the tests: edges at 100 and 140, and at 200 and 240.
inline const QRectF start(100, 200, 40, 40);

// On a scene the handle is dragged to a point given in item coordinates.
inline void dragTo(TavroCheckBox &box, HandleDirect direction, const QPointF &point)
{
    box.resize(direction, box.mapToScene(point));
}

struct Corner
{
    const char *name;
    HandleDirect direction;
    QPointF fixed;
    QPointF outwards; // signs of the way from the fixed corner to the handle
};

inline const QVector<Corner> corners{{"top left", Handle_TopLeft, {140, 240}, {-1, -1}},
                                     {"top right", Handle_TopRight, {100, 240}, {1, -1}},
                                     {"bottom right", Handle_BottomRight, {100, 200}, {1, 1}},
                                     {"bottom left", Handle_BottomLeft, {140, 200}, {-1, 1}}};

inline void addCornerRows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < corners.size(); ++i)
        QTest::newRow(corners.at(i).name) << i;
}

} // namespace boxdrags

// SPDX-License-Identifier: MIT
#include "desk/checking/picturechecking.h"

#include "desk/picturevalues.h"
#include "desk/printing.h"
#include "graphic/tavropicture.h"

#include <QPolygonF>
#include <QTransform>

namespace picturechecking {

namespace {

// Pictures stand on whole pixels, their places do not: size and centre are rounded, and the middle of an even number of
// pixels is one of two.
constexpr qreal Rounding = 2; // px

QString problemOfPlace(const TavroPicture &object)
{
    const QRectF place = object.boundingRect().normalized();
    const QRectF image = QRectF(object.imageRect()).normalized();
    const QPolygonF drawn = QTransform().rotate(object.angle()).map(QPolygonF(image));
    if (image.isEmpty() || drawn.intersected(place).isEmpty())
        return QStringLiteral("picture prints nothing");
    const QRectF extent = drawn.boundingRect();
    if (!place.adjusted(-Rounding, -Rounding, Rounding, Rounding).contains(extent))
        return QStringLiteral("picture does not fit its rectangle");
    return {};
}

} // namespace

QString problemOf(const TavroPicture &object)
{
    const QString problem = picturevalues::problemOf(object);
    if (!problem.isEmpty())
        return QStringLiteral("picture cannot be loaded: %1").arg(problem);
    if (object.image().isNull())
        return object.isRequired() ? QStringLiteral("required, but missing") : QString();
    return printing::isPrinted(object) ? problemOfPlace(object) : QString();
}

} // namespace picturechecking

// SPDX-License-Identifier: MIT
#include "desk/datetimesections.h"

#include "datetime/tavrodatetime.h"

#include <QGraphicsProxyWidget>
#include <QLabel>
#include <QSplitter>

namespace datetimesections {

QVector<Section> printed(const TavroDatetime &object)
{
    const QRectF rect = object.boundingRect();
    if (object.isCustomSection())
        return {{rect, object.contentData().toDateTime().toString(object.customDatetimeFormat()), false}};
    const auto *row = qobject_cast<const QSplitter *>(object.widgetPrxy()->widget());
    QVector<Section> sections;
    int x = qRound(rect.x());
    for (int i = 0; row && i < row->count(); ++i) {
        const int width = row->sizes().at(i);
        const auto *label = qobject_cast<const QLabel *>(row->widget(i));
        // Values and separators alternate. A hidden separator only takes its room.
        if (label && (i % 2 == 0 || object.isShowSeperator()))
            sections.append({QRectF(x, qRound(rect.y()), width, qRound(rect.height())), label->text(), i % 2 != 0});
        x += width + row->handleWidth();
    }
    return sections;
}

} // namespace datetimesections

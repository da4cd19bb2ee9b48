// SPDX-License-Identifier: MIT
#include "tests/support/imagecompare.h"

#include "core/tavroprototype.h"

#include <QDir>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <cstdlib>

namespace imagecompare {

namespace {

int farthestChannel(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

// Pixels that differ, black on white.
QImage differingPixels(const QImage &actual, const QImage &expected, int tolerance, int &count)
{
    QImage marks(actual.size(), QImage::Format_RGB32);
    marks.fill(Qt::white);
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            if (farthestChannel(actual.pixel(x, y), expected.pixel(x, y)) > tolerance) {
                marks.setPixel(x, y, qRgb(0, 0, 0));
                ++count;
            }
        }
    }
    return marks;
}

} // namespace

QImage painted(TavroPrototype &object, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(QRectF(QPointF(), size).center() - object.boundingRect().center());
    const QStyleOptionGraphicsItem option;
    object.paint(&painter, &option, nullptr);
    return image;
}

QString difference(const QImage &actual, const QString &name, int tolerance)
{
    const QString path = QStringLiteral(TAVRO_BASELINES "/%1.png").arg(name);
    if (qEnvironmentVariableIsSet("TAVRO_WRITE_BASELINES")) {
        const bool written = actual.save(path);
        return (written ? QStringLiteral("%1 is written") : QStringLiteral("%1 cannot be written")).arg(path);
    }
    const QImage expected(path);
    if (expected.isNull())
        return QStringLiteral("%1 cannot be read").arg(path);
    int count = 0;
    if (expected.size() == actual.size()) {
        const QImage marks = differingPixels(actual, expected, tolerance, count);
        if (count == 0)
            return {};
        marks.save(QStringLiteral("%1-difference.png").arg(name));
    }
    actual.save(QStringLiteral("%1-actual.png").arg(name));
    return QStringLiteral("%1 differs in %2 pixels, see %3")
        .arg(name, count == 0 ? QStringLiteral("all") : QString::number(count), QDir::currentPath());
}

} // namespace imagecompare

// SPDX-License-Identifier: MIT
#pragma once

#include <QBrush>
#include <QFont>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>
#include <QTransform>
#include <QVector>

/// One paint command as it reached the device, with the painter state under which it was given.
struct PaintCommand
{
    enum Kind { Rect, Line, Path, Polygon, Ellipse, Text, Image, Pixmap };

    Kind kind;
    QRectF rect;  ///< geometry in logical coordinates (a line: start point and extent)
    QString text; ///< texts only
    QPen pen;
    QBrush brush;
    QFont font;
    QTransform transform;
    qreal opacity;
    bool hasClip;
    QPainter::RenderHints hints;
    QRectF clip;   ///< around what is clipped to, in device coordinates; null without a clip
    QRectF source; ///< images and pixmaps only: the part that is drawn
};

class RecordingPaintEngine;

/// Paint device that keeps what is painted on it as a list of commands. 96 dots per inch.
class RecordingDevice : public QPaintDevice
{
public:
    explicit RecordingDevice(const QSize &size = QSize(2000, 2000));
    ~RecordingDevice() override;

    QPaintEngine *paintEngine() const override;
    const QVector<PaintCommand> &commands() const;
    QVector<PaintCommand> commands(PaintCommand::Kind kind) const;
    void clear();

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    QSize m_size;
    RecordingPaintEngine *m_engine;
};

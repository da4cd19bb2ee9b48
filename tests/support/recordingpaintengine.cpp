// SPDX-License-Identifier: MIT
#include "tests/support/recordingpaintengine.h"

#include <QPainterPath>

#include <algorithm>
#include <iterator>

class RecordingPaintEngine : public QPaintEngine
{
public:
    RecordingPaintEngine()
        : QPaintEngine(QPaintEngine::AllFeatures)
    {
    }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override {}

    void drawRects(const QRectF *rects, int count) override
    {
        for (int i = 0; i < count; ++i)
            record(PaintCommand::Rect, rects[i]);
    }
    void drawRects(const QRect *rects, int count) override
    {
        for (int i = 0; i < count; ++i)
            record(PaintCommand::Rect, rects[i]);
    }
    void drawLines(const QLineF *lines, int count) override
    {
        for (int i = 0; i < count; ++i)
            record(PaintCommand::Line, QRectF(lines[i].x1(), lines[i].y1(), lines[i].dx(), lines[i].dy()));
    }
    void drawLines(const QLine *lines, int count) override
    {
        for (int i = 0; i < count; ++i)
            record(PaintCommand::Line, QRectF(lines[i].x1(), lines[i].y1(), lines[i].dx(), lines[i].dy()));
    }
    void drawPath(const QPainterPath &path) override { record(PaintCommand::Path, path.boundingRect()); }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode) override
    {
        QPolygonF polygon;
        std::copy(points, points + count, std::back_inserter(polygon));
        record(PaintCommand::Polygon, polygon.boundingRect());
    }
    void drawEllipse(const QRectF &rect) override { record(PaintCommand::Ellipse, rect); }
    void drawEllipse(const QRect &rect) override { record(PaintCommand::Ellipse, rect); }
    void drawPixmap(const QRectF &rect, const QPixmap &, const QRectF &source) override
    {
        record(PaintCommand::Pixmap, rect);
        commands.last().source = source;
    }
    void drawImage(const QRectF &rect, const QImage &, const QRectF &source, Qt::ImageConversionFlags) override
    {
        record(PaintCommand::Image, rect);
        commands.last().source = source;
    }
    void drawTextItem(const QPointF &position, const QTextItem &item) override
    {
        // The rectangle stands on the base line: its top is the ascent above it.
        record(PaintCommand::Text,
               QRectF(position.x(), position.y() - item.ascent(), item.width(), item.ascent() + item.descent()),
               item.text(), item.font());
    }

    QVector<PaintCommand> commands;

private:
    void record(PaintCommand::Kind kind, const QRectF &rect, const QString &text = QString(),
                const QFont &font = QFont())
    {
        const QPainter *p = painter();
        const QRectF clip = p->hasClipping() ? p->combinedTransform().map(p->clipPath()).boundingRect() : QRectF();
        commands.append({kind, rect, text, p->pen(), p->brush(), font, p->combinedTransform(), p->opacity(),
                         p->hasClipping(), p->renderHints(), clip, QRectF()});
    }
};

RecordingDevice::RecordingDevice(const QSize &size)
    : m_size(size)
    , m_engine(new RecordingPaintEngine)
{
}

RecordingDevice::~RecordingDevice()
{
    delete m_engine;
}

QPaintEngine *RecordingDevice::paintEngine() const
{
    return m_engine;
}

const QVector<PaintCommand> &RecordingDevice::commands() const
{
    return m_engine->commands;
}

QVector<PaintCommand> RecordingDevice::commands(PaintCommand::Kind kind) const
{
    QVector<PaintCommand> found;
    std::copy_if(m_engine->commands.cbegin(), m_engine->commands.cend(), std::back_inserter(found),
                 [kind](const PaintCommand &command) { return command.kind == kind; });
    return found;
}

void RecordingDevice::clear()
{
    m_engine->commands.clear();
}

int RecordingDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmWidthMM:
        return qRound(m_size.width() * 25.4 / 96);
    case PdmHeightMM:
        return qRound(m_size.height() * 25.4 / 96);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return 96;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return qRound(devicePixelRatioFScale());
    case PdmDepth:
        return 32;
    case PdmNumColors:
        return 0x7fffffff;
    default:
        return QPaintDevice::metric(metric);
    }
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QImageReader>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QVector>

/// An image as it reached the device.
struct DrawnImage
{
    QImage image;
    QRectF target;
    QRectF source;
};

/// Keeps the images that are drawn, and nothing else.
class ImageEngine : public QPaintEngine
{
public:
    ImageEngine()
        : QPaintEngine(QPaintEngine::AllFeatures)
    {
    }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawImage(const QRectF &target, const QImage &image, const QRectF &source, Qt::ImageConversionFlags) override
    {
        images.append({image, target, source});
    }

    QVector<DrawnImage> images;
};

/// Device on which images are looked at instead of painted.
class ImageDevice : public QPaintDevice
{
public:
    explicit ImageDevice(int pixelRatio = 1)
        : m_pixelRatio(pixelRatio)
    {
    }
    QPaintEngine *paintEngine() const override { return &m_engine; }
    const QVector<DrawnImage> &images() const { return m_engine.images; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        constexpr int side = 4000;
        constexpr int dotsPerInch = 96;
        if (metric == PdmWidth || metric == PdmHeight)
            return side;
        if (metric == PdmDpiX || metric == PdmDpiY || metric == PdmPhysicalDpiX || metric == PdmPhysicalDpiY)
            return dotsPerInch;
        if (metric == PdmDevicePixelRatio)
            return m_pixelRatio;
        if (metric == PdmDevicePixelRatioScaled)
            return static_cast<int>(m_pixelRatio * devicePixelRatioFScale());
        return QPaintDevice::metric(metric);
    }

private:
    int m_pixelRatio;
    mutable ImageEngine m_engine;
};

/// The images that a function draws with a painter.
template <typename Draw>
QVector<DrawnImage> imagesOf(Draw draw)
{
    ImageDevice device;
    QPainter painter(&device);
    draw(&painter);
    painter.end();
    return device.images();
}

/// One of the marks as the resources hold it; null for an empty name.
inline QImage markImage(const QString &name, const QSize &size)
{
    if (name.isEmpty())
        return {};
    QImageReader reader(QStringLiteral(":/image/image/%1.svg").arg(name));
    reader.setScaledSize(size);
    return reader.read();
}

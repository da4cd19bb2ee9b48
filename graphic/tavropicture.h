// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroprototype.h"

#include <QByteArray>
#include <QImage>
#include <QRect>

/// Picture: a logo, a stamp, a scanned signature. The content is the image as PNG bytes, whatever format it was given
/// in, so that a form that stores its values stores the picture. What cannot be loaded, and what has more than 8192 ×
/// 8192 pixels or a side of over a million, is a null image with an empty content. A new object counts as not modified.
class TAVRO_EXPORT TavroPicture : public TavroPrototype
{
    Q_OBJECT

public:
    explicit TavroPicture(QGraphicsItem *parent = nullptr);
    ~TavroPicture() override;

    // operations of the base
    void setBoundingRect(const QRectF &rect) override;
    /// Bytes of an image in any format that Qt has a plug-in for. Emits contentDataChanged() twice: with the bytes as
    /// they were given, and encoded anew. Marks modified.
    void setContentData(const QVariant &content) override;
    void designPaint(QPainter *painter) override;
    void inputPaint(QPainter *painter) override;
    void printPaint(QPainter *painter) override;

    QImage image() const;
    /// Also the content. An image with too many pixels is taken for a null one. Marks modified, emits
    /// contentDataChanged().
    void setImage(const QImage &image);
    /// PNG; empty for a null image and for a null pointer.
    QByteArray imageToByteArray(const QImage *image) const;
    QString imgPath() const;
    /// Loads the file. Marks modified.
    void setImgPath(const QString &path);
    Picture_Fill_Mode fillMode() const;
    /// Marks modified.
    void setFillMode(const Picture_Fill_Mode &mode);
    double angle() const;
    /// Degrees, clockwise about the origin of the item; only the drawing turns, not the rectangle to which it is
    /// clipped. Marks modified, repaints nothing.
    void setAngle(const double &degrees);
    bool canQuery() const;
    /// Kept for the host. Marks modified.
    void setCanQuery(bool can);

    /// Where the image is drawn, in item coordinates; stays as it was while there is no image.
    QRect imageRect() const;
    /// Fits the image rectangle to the bounding rectangle.
    void scaleImageRect();
    void drawPicture(QPainter *painter);

private:
    Picture_Fill_Mode m_fillMode = Picture_Fit;
    QImage m_image;
    QRect m_imageRect;
    QString m_imgPath;
    double m_angle = 0;
    bool m_canQuery = false;
};

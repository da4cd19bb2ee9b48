// SPDX-License-Identifier: MIT
#include "graphic/tavropicture.h"

#include "core/paintersaver.h"
#include "core/pixels.h"
#include "graphic/imagecoding.h"

namespace {

// As large as fits, with the signs of the box: a box dragged over its opposite side is as wide as its width says.
QSize scaledInto(const QSize &box, const QSize &size)
{
    const QSize scaled = size.scaled(qAbs(box.width()), qAbs(box.height()), Qt::KeepAspectRatio);
    return {box.width() < 0 ? -scaled.width() : scaled.width(), box.height() < 0 ? -scaled.height() : scaled.height()};
}

} // namespace

TavroPicture::TavroPicture(QGraphicsItem *parent)
    : TavroPrototype(parent)
{
    setObjType(Obj_Picture);
}

TavroPicture::~TavroPicture() = default;

void TavroPicture::setBoundingRect(const QRectF &rect)
{
    TavroPrototype::setBoundingRect(rect);
    scaleImageRect();
}

void TavroPicture::setContentData(const QVariant &content)
{
    TavroPrototype::setContentData(content);
    setImage(imagecoding::decoded(content.toByteArray()));
}

void TavroPicture::designPaint(QPainter *painter)
{
    drawPicture(painter);
    TavroPrototype::designPaint(painter);
}

void TavroPicture::inputPaint(QPainter *painter)
{
    drawPicture(painter);
    drawBorder(painter);
}

void TavroPicture::printPaint(QPainter *painter)
{
    if (isPrint())
        drawPicture(painter);
}

QImage TavroPicture::image() const
{
    return m_image;
}

void TavroPicture::setImage(const QImage &image)
{
    m_image = imagecoding::isBounded(image.size()) ? image : QImage();
    TavroPrototype::setContentData(imageToByteArray(&m_image));
    scaleImageRect();
    setIsModified(true);
}

QByteArray TavroPicture::imageToByteArray(const QImage *image) const
{
    return image ? imagecoding::pngBytes(*image) : QByteArray();
}

QString TavroPicture::imgPath() const
{
    return m_imgPath;
}

void TavroPicture::setImgPath(const QString &path)
{
    m_imgPath = path;
    setImage(imagecoding::loaded(path));
}

Picture_Fill_Mode TavroPicture::fillMode() const
{
    return m_fillMode;
}

void TavroPicture::setFillMode(const Picture_Fill_Mode &mode)
{
    storeSetting(m_fillMode, mode);
    scaleImageRect();
}

double TavroPicture::angle() const
{
    return m_angle;
}

void TavroPicture::setAngle(const double &degrees)
{
    storeSetting(m_angle, degrees);
}

bool TavroPicture::canQuery() const
{
    return m_canQuery;
}

void TavroPicture::setCanQuery(bool can)
{
    storeSetting(m_canQuery, can);
}

QRect TavroPicture::imageRect() const
{
    return m_imageRect;
}

void TavroPicture::scaleImageRect()
{
    if (!m_image.isNull()) {
        const QRectF rect = boundingRect();
        const QRect whole = pixels::rounded(rect);
        if (m_fillMode == Picture_Fit) {
            m_imageRect = QRect(whole.topLeft(), scaledInto(whole.size(), m_image.size()));
            m_imageRect.moveCenter(pixels::rounded(rect.center()));
        } else if (m_fillMode == Picture_Stretch) {
            m_imageRect = whole;
        } else if (m_fillMode == Picture_Actual) {
            m_imageRect = QRect(whole.topLeft(), m_image.size());
        }
    }
    repaint();
}

void TavroPicture::drawPicture(QPainter *painter)
{
    if (m_image.isNull())
        return;
    const WholePainterSaver saver(painter);
    painter->setClipRect(boundingRect().normalized());
    painter->rotate(m_angle);
    // A rectangle that was dragged over its opposite side shows the image upright, not mirrored.
    painter->drawImage(QRectF(m_imageRect).normalized(), m_image);
}

// SPDX-License-Identifier: MIT
#include "barcode/tavrobarcode.h"

#include "barcode/zintwrapper.h"
#include "core/resizing.h"

namespace {

// Numbers of the interface for two forms of EAN.
constexpr int Ean8Symbology = -1;
constexpr int Ean13Symbology = -2;

constexpr double ResetModuleWidth = 3;
constexpr double ResetBarHeight = 80;

// Whether an edge was dragged past the opposite one. One that is dropped exactly on it has not passed, and stays so
// through the rounding of a point that is mapped into a turned object.
bool hasPassed(double extent)
{
    constexpr double rounding = 1e-9;
    return extent < -rounding;
}

} // namespace

TavroBarcode::TavroBarcode(QGraphicsItem *parent)
    : TavroPrototype(parent)
    , m_wrapper(std::make_unique<ZintWrapper>())
{
    setObjType(Obj_Barcode);
    const QString text = QStringLiteral("Barcode");
    TavroPrototype::setPresetData(text);
    storeContent(text);
    setSymbology(families::QrCodeSymbology);
    setWidth(10);
    setHeight(10);
}

TavroBarcode::~TavroBarcode() = default;

void TavroBarcode::setBoundingRect(const QRectF &rect)
{
    TavroPrototype::setBoundingRect(rect);
    m_wrapper->fitToSize(rect.size());
}

void TavroBarcode::setContentData(const QVariant &content)
{
    TavroPrototype::setContentData(content);
    syncEncodeData();
    syncBarcodeRect(false);
}

void TavroBarcode::setPresetData(const QVariant &preset)
{
    TavroPrototype::setPresetData(preset);
    setContentData(preset);
}

void TavroBarcode::resize(HandleDirect direction, const QPointF &scenePoint)
{
    if (direction < Handle_TopLeft || direction > Handle_Left)
        return;
    const QRectF rect = boundingRect();
    const QRectF dragged = resizing::resized(rect, direction, mapFromScene(scenePoint));
    const QSizeF actual = actualSzFromExpectSz(dragged.size());
    // The symbol stands at the edges that stay, on the side to which the others were dragged.
    const double width = hasPassed(dragged.width()) ? -actual.width() : actual.width();
    const double height = hasPassed(dragged.height()) ? -actual.height() : actual.height();
    const QPointF corner(resizing::movesLeftEdge(direction) ? rect.right() - width : rect.left(),
                         resizing::movesTopEdge(direction) ? rect.bottom() - height : rect.top());
    setBoundingRect(QRectF(corner, QSizeF(width, height)).normalized());
}

void TavroBarcode::designPaint(QPainter *painter)
{
    m_wrapper->paint(painter, boundingRect().normalized());
}

void TavroBarcode::inputPaint(QPainter *painter)
{
    m_wrapper->paint(painter, boundingRect().normalized());
}

void TavroBarcode::printPaint(QPainter *painter)
{
    if (!isPrint())
        return;
    TavroPrototype::printPaint(painter);
    // The symbol on paper is the one that was encoded last.
    m_wrapper->setIsReencoding(false);
    m_wrapper->paint(painter, boundingRect().normalized());
    m_wrapper->setIsReencoding(true);
}

int TavroBarcode::symbology() const
{
    const bool isEan = m_wrapper->symbology() == families::EanSymbology;
    if (isEan && m_wrapper->eanVariant() == families::Ean8)
        return Ean8Symbology;
    if (isEan && m_wrapper->eanVariant() == families::Ean13)
        return Ean13Symbology;
    return m_wrapper->symbology();
}

void TavroBarcode::setSymbology(int symbology)
{
    const bool isEan8 = symbology == Ean8Symbology;
    const bool isEan13 = symbology == Ean13Symbology;
    if (isEan8 || isEan13)
        m_wrapper->setEanVariant(isEan8 ? families::Ean8 : families::Ean13);
    m_wrapper->setSymbology(isEan8 || isEan13 ? families::EanSymbology : symbology);
    setProportional(symbology == families::QrCodeSymbology);
    syncEncodeData();
    syncBarcodeRect(true);
    setIsModified(true);
}

bool TavroBarcode::hasReadableTxt() const
{
    return m_wrapper->isShowText();
}

void TavroBarcode::setHasReadableTxt(bool has)
{
    m_wrapper->setIsShowText(has);
    setIsModified(true);
    repaint();
}

int TavroBarcode::QRcodeVersion() const
{
    return m_wrapper->qrVersion();
}

void TavroBarcode::setQRcodeVersion(int version)
{
    m_wrapper->setQrVersion(version);
    setIsModified(true);
    repaint();
}

int TavroBarcode::QRcodeErrCorrection() const
{
    return m_wrapper->qrErrorCorrection();
}

void TavroBarcode::setQRcodeErrCorrection(int level)
{
    m_wrapper->setQrErrorCorrection(level);
    setIsModified(true);
    repaint();
}

bool TavroBarcode::isKeepAtCenter() const
{
    return m_isKeepAtCenter;
}

void TavroBarcode::setIsKeepAtCenter(bool keep)
{
    storeSetting(m_isKeepAtCenter, keep);
}

bool TavroBarcode::isKeepRegionSz() const
{
    return m_isKeepRegionSz;
}

void TavroBarcode::setIsKeepRegionSz(bool keep)
{
    m_isKeepRegionSz = keep;
}

bool TavroBarcode::isProportional() const
{
    return m_wrapper->symbology() == families::QrCodeSymbology;
}

void TavroBarcode::syncEncodeData()
{
    m_wrapper->setData(contentData().toByteArray());
}

void TavroBarcode::syncReadableTextPixSz()
{
    QFont font = m_wrapper->textFont();
    font.setPixelSize(pointSzToPixSz(m_readableTextPtSz));
    m_wrapper->setTextFont(font);
    m_wrapper->fitToSize({width(), height()});
    repaint();
}

QSizeF TavroBarcode::actualSzFromExpectSz(const QSizeF &size)
{
    m_wrapper->fitToSize(size);
    return m_wrapper->naturalSize();
}

void TavroBarcode::syncBarcodeRect(bool reset)
{
    const QRectF rect = boundingRect();
    if (!reset && m_isKeepRegionSz) {
        m_wrapper->fitToSize(rect.size());
        repaint();
        return;
    }
    if (reset) {
        m_wrapper->setModuleWidth(ResetModuleWidth);
        m_wrapper->setBarHeight(ResetBarHeight);
    }
    QRectF followed(rect.topLeft(), actualSzFromExpectSz(m_wrapper->naturalSize()));
    if (m_isKeepAtCenter)
        followed.moveTopLeft(rect.topLeft() + QPointF(rect.width() * 0.5 - followed.width() * 0.5,
                                                      rect.height() * 0.5 - followed.height() * 0.5));
    setBoundingRect(followed);
}

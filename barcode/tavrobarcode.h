// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroprototype.h"

#include <memory>

class ZintWrapper;

/// Content as a barcode. The rectangle follows the symbol and not the other way: a new symbology, and where
/// isKeepRegionSz() is off a new content too, gives the object the size of the symbol, and dragging a handle snaps to
/// whole symbols. What cannot be encoded shows the message of libzint instead. Starts as a QR Code of 10 × 10 px.
class TAVRO_EXPORT TavroBarcode : public TavroPrototype
{
    Q_OBJECT

public:
    explicit TavroBarcode(QGraphicsItem *parent = nullptr);
    ~TavroBarcode() override;

    // operations of the base
    void setBoundingRect(const QRectF &rect) override;
    void setContentData(const QVariant &content) override;
    /// Sets the content too.
    void setPresetData(const QVariant &preset) override;
    void resize(HandleDirect direction, const QPointF &scenePoint) override;
    void designPaint(QPainter *painter) override;
    void inputPaint(QPainter *painter) override;
    void printPaint(QPainter *painter) override;

    /// Number of libzint, or -1 for EAN-8 and -2 for EAN-13.
    int symbology() const;
    /// Also gives the object the size of the new symbol, with modules of 3 px; nothing where the content cannot be
    /// encoded. Marks modified.
    void setSymbology(int symbology);
    bool hasReadableTxt() const;
    /// Marks modified.
    void setHasReadableTxt(bool has);
    int QRcodeVersion() const;
    /// 1 to 40, 0 for the smallest that holds the content. Marks modified.
    void setQRcodeVersion(int version);
    int QRcodeErrCorrection() const;
    /// 1 to 4 for levels L to H. Marks modified.
    void setQRcodeErrCorrection(int level);
    bool isKeepAtCenter() const;
    /// Whether the rectangle keeps its centre where it follows the symbol, else its top left corner. Marks modified.
    void setIsKeepAtCenter(bool keep);
    bool isKeepRegionSz() const;
    /// Whether a new content is fitted into the rectangle. Does not mark modified.
    void setIsKeepRegionSz(bool keep);
    /// Whether the symbol is a QR Code; hides what was set with setProportional().
    bool isProportional() const;

    /// Content to the symbol.
    void syncEncodeData();
    /// Font of the readable text, 9 points on paper.
    void syncReadableTextPixSz();
    /// Size of the symbol that is fitted to a size.
    QSizeF actualSzFromExpectSz(const QSizeF &size);
    /// Rectangle and symbol to one size; `reset` starts from modules of 3 px.
    void syncBarcodeRect(bool reset);

private:
    std::unique_ptr<ZintWrapper> m_wrapper;
    bool m_isKeepAtCenter = true;
    bool m_isKeepRegionSz = true;
    double m_readableTextPtSz = 9.0;
};

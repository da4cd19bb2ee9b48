// SPDX-License-Identifier: MIT
#pragma once

#include "barcode/families.h"

#include <QBrush>
#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QObject>
#include <QRectF>
#include <memory>

class QPainter;
struct zint_symbol;

/// One barcode: its settings, the symbol that libzint makes of them, and the drawing of that symbol. libzint encodes
/// and does nothing else. Every question about the symbol encodes it anew, unless that is switched off. First
/// fitToSize(), which computes module width and bar height, then paint(). Lengths in pixels.
class ZintWrapper : public QObject
{
    Q_OBJECT

public:
    explicit ZintWrapper(QObject *parent = nullptr);
    ~ZintWrapper() override;

    /// Whether there is a symbol that can be drawn.
    bool encode();
    /// 0 without a symbol.
    int symbolRows();
    /// Modules, 0 without a symbol.
    int symbolWidth();
    /// Computes module width and bar height for a size, whose signs do not count. False without a symbol, which leaves
    /// them as they were. Symbols of matrix and stacked codes fill the size in one direction and may overflow the
    /// other.
    bool fitToSize(const QSizeF &size);
    /// What the symbol takes at the module width and the bar height that are set; (0, 0) without a symbol.
    QSizeF naturalSize();
    /// Of the message of libzint, at 12 points, while the last encoding failed; (0, 0) otherwise.
    QSizeF errorTextSize() const;
    /// Background over the whole rectangle, then the symbol or a message from its top left corner on.
    void paint(QPainter *painter, const QRectF &target);

    int lastResult() const { return m_lastResult; }
    /// Message of libzint about the last encoding.
    QString errorText() const;
    /// Whether a question encodes anew.
    bool isReencoding() const { return m_isReencoding; }
    void setIsReencoding(bool reencoding) { m_isReencoding = reencoding; }

    // settings; they are stored, and act with the next operation
    int symbology() const { return m_symbology; }
    void setSymbology(int symbology) { m_symbology = symbology; }
    int inputMode() const { return m_inputMode; }
    void setInputMode(int mode) { m_inputMode = mode; }
    double moduleWidth() const { return m_moduleWidth; }
    void setModuleWidth(double width) { m_moduleWidth = width; }
    double barHeight() const { return m_barHeight; }
    void setBarHeight(double height) { m_barHeight = height; }
    /// Messages are drawn in its family and style, at 12 points.
    QFont errorFont() const { return m_errorFont; }
    void setErrorFont(const QFont &font) { m_errorFont = font; }
    /// Sized in pixels.
    QFont textFont() const { return m_textFont; }
    void setTextFont(const QFont &font) { m_textFont = font; }
    /// Bytes of the linear component of a composite symbol, 127 at most.
    QByteArray primary() const { return m_primary; }
    void setPrimary(const QByteArray &primary);
    QByteArray data() const { return m_data; }
    void setData(const QByteArray &data);
    QColor foregroundColor() const { return m_foregroundColor; }
    void setForegroundColor(const QColor &color);
    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);
    bool isShowText() const { return m_isShowText; }
    void setIsShowText(bool show) { m_isShowText = show; }
    double textGap() const { return m_textGap; }
    void setTextGap(double gap) { m_textGap = gap; }
    int eanVariant() const { return m_eanVariant; }
    void setEanVariant(int variant) { m_eanVariant = variant; }
    double guardExtension() const { return m_guardExtension; }
    void setGuardExtension(double extension) { m_guardExtension = extension; }
    /// Marks of EAN symbols, shown with the text.
    bool hasQuietZoneMarks() const { return m_hasQuietZoneMarks; }
    void setHasQuietZoneMarks(bool has) { m_hasQuietZoneMarks = has; }
    int stackedRowModules() const { return m_stackedRowModules; }
    void setStackedRowModules(int modules) { m_stackedRowModules = modules; }
    int compositeRowModules() const { return m_compositeRowModules; }
    void setCompositeRowModules(int modules) { m_compositeRowModules = modules; }
    int compositeSeparatorModules() const { return m_compositeSeparatorModules; }
    void setCompositeSeparatorModules(int modules) { m_compositeSeparatorModules = modules; }

    // options of the symbologies, as numbers of libzint
    int pdf417Columns() const { return m_pdf417Columns; }
    void setPdf417Columns(int columns) { m_pdf417Columns = columns; }
    int pdf417Security() const { return m_pdf417Security; }
    void setPdf417Security(int level) { m_pdf417Security = level; }
    int microQrVersion() const { return m_microQrVersion; }
    void setMicroQrVersion(int version) { m_microQrVersion = version; }
    int microQrErrorCorrection() const { return m_microQrErrorCorrection; }
    void setMicroQrErrorCorrection(int level) { m_microQrErrorCorrection = level; }
    int qrVersion() const { return m_qrVersion; }
    void setQrVersion(int version) { m_qrVersion = version; }
    int qrErrorCorrection() const { return m_qrErrorCorrection; }
    void setQrErrorCorrection(int level) { m_qrErrorCorrection = level; }
    int aztecErrorCorrection() const { return m_aztecErrorCorrection; }
    void setAztecErrorCorrection(int level) { m_aztecErrorCorrection = level; }
    int aztecSize() const { return m_aztecSize; }
    void setAztecSize(int size) { m_aztecSize = size; }
    int dataMatrixSize() const { return m_dataMatrixSize; }
    void setDataMatrixSize(int size) { m_dataMatrixSize = size; }
    int dataMatrixSquareOnly() const { return m_dataMatrixSquareOnly; }
    void setDataMatrixSquareOnly(int square) { m_dataMatrixSquareOnly = square; }
    int compositeMode() const { return m_compositeMode; }
    void setCompositeMode(int mode) { m_compositeMode = mode; }
    int expandedStackedColumns() const { return m_expandedStackedColumns; }
    void setExpandedStackedColumns(int columns) { m_expandedStackedColumns = columns; }
    int code39CheckDigit() const { return m_code39CheckDigit; }
    void setCode39CheckDigit(int check) { m_code39CheckDigit = check; }
    int msiCheckDigit() const { return m_msiCheckDigit; }
    void setMsiCheckDigit(int scheme) { m_msiCheckDigit = scheme; }

private:
    /// Results above it are warnings and errors of libzint. A symbol that it only warns about is not drawn either: on a
    /// bill nobody sees the warning.
    static constexpr int MostResult = 1;

    struct SymbolDeleter
    {
        void operator()(zint_symbol *symbol) const;
    };

    // the symbol as it is, without encoding
    bool isUsable() const { return m_symbol && m_lastResult <= MostResult; }
    families::Family family() const { return families::familyOf(m_symbology); }
    bool isDark(int row, int column) const;
    QVector<families::Row> rows() const;
    QString text() const;
    QSizeF textSize() const;
    QFont messageFont() const;
    /// Columns including the margins.
    int columns() const;
    /// Room below the bars for text and guards.
    double bandHeight() const;
    double fittedModuleWidth(const QSizeF &size) const;
    double fittedBarHeight(double height) const;
    double rowHeight(const families::Row &row) const;

    void applyOptions();
    void applyCharacterSet();
    int encodeSymbol();

    QString lengthError() const;
    void updateTextOffset();
    void drawSymbol(QPainter *painter);
    void drawRows(QPainter *painter, double left, const families::RetailLayout *layout);
    int firstBar(int row) const;
    void drawTextLine(QPainter *painter, double top);
    void drawDigitGroups(QPainter *painter, const QPointF &firstColumn, const families::RetailLayout &layout);
    void drawErrorText(QPainter *painter, const QString &text);

    QBrush m_foregroundBrush;
    QBrush m_backgroundBrush;
    int m_lastResult;
    QFont m_errorFont;
    bool m_isReencoding;
    double m_textOffset = 0;
    std::unique_ptr<zint_symbol, SymbolDeleter> m_symbol;
    int m_symbology = families::Code128Symbology;
    int m_inputMode;
    double m_moduleWidth = 0;
    double m_barHeight = 0;
    QFont m_textFont;
    QByteArray m_primary;
    QByteArray m_data;
    QColor m_foregroundColor;
    QColor m_backgroundColor;
    bool m_isShowText = true;
    double m_textGap = 0;
    int m_eanVariant = families::Ean13;
    double m_guardExtension = 10;
    bool m_hasQuietZoneMarks = false;
    int m_stackedRowModules = 3;
    int m_pdf417Columns = 0;
    int m_pdf417Security = 0;
    int m_microQrVersion = 0;
    int m_microQrErrorCorrection = 0;
    int m_qrVersion = 0;
    int m_qrErrorCorrection = 1;
    int m_aztecErrorCorrection = 0;
    int m_aztecSize = 0;
    int m_dataMatrixSize = 0;
    int m_dataMatrixSquareOnly = 0;
    int m_compositeMode = 0;
    int m_compositeRowModules = 3;
    int m_compositeSeparatorModules = 1;
    int m_expandedStackedColumns = 0;
    int m_code39CheckDigit = 0;
    int m_msiCheckDigit = 0;
};

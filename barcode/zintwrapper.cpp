// SPDX-License-Identifier: MIT
#include "barcode/zintwrapper.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <zint.h>

using families::Family;

namespace {

// libzint packs eight modules into a byte where its rows have 144 bytes, seven where they have 143.
constexpr int ModulesPerByte = sizeof(zint_symbol::encoded_data[0]) == 144 ? 8 : 7;
constexpr int MostRows = sizeof(zint_symbol::encoded_data) / sizeof(zint_symbol::encoded_data[0]);
constexpr int MostColumns = static_cast<int>(sizeof(zint_symbol::encoded_data[0])) * ModulesPerByte;

// Results of an encoding.
constexpr int NotEncoded = 2;
constexpr int TooLong = 5;

constexpr int Utf8Eci = 26;

constexpr int MessagePointSize = 12;

double magnitude(double value)
{
    return std::isfinite(value) ? std::abs(value) : 0;
}

} // namespace

void ZintWrapper::SymbolDeleter::operator()(zint_symbol *symbol) const
{
    ZBarcode_Delete(symbol);
}

ZintWrapper::ZintWrapper(QObject *parent)
    : QObject(parent)
    , m_lastResult(NotEncoded)
    , m_errorFont(QStringLiteral("Arial"))
    , m_isReencoding(true)
    , m_inputMode(UNICODE_MODE)
    , m_textFont(QStringLiteral("Arial"))
{
    setForegroundColor(Qt::black);
    setBackgroundColor(Qt::white);
    m_textFont.setPixelSize(15);
}

ZintWrapper::~ZintWrapper() = default;

void ZintWrapper::setForegroundColor(const QColor &color)
{
    m_foregroundColor = color;
    m_foregroundBrush = QBrush(color);
}

void ZintWrapper::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    m_backgroundBrush = QBrush(color);
}

// A copy that ends with a NUL, which libzint looks for: bytes that belong to somebody else need not.
void ZintWrapper::setPrimary(const QByteArray &primary)
{
    m_primary = QByteArray(primary.constData(), primary.size());
}

void ZintWrapper::setData(const QByteArray &data)
{
    m_data = QByteArray(data.constData(), data.size());
}

bool ZintWrapper::encode()
{
    if (!m_isReencoding && m_symbol)
        return isUsable();
    m_symbol.reset();
    m_symbol.reset(ZBarcode_Create());
    m_lastResult = m_symbol ? encodeSymbol() : NotEncoded;
    return isUsable();
}

int ZintWrapper::encodeSymbol()
{
    constexpr int mostPrimary = sizeof(m_symbol->primary) - 1;
    if (m_primary.size() > mostPrimary) {
        std::strcpy(m_symbol->errtxt, "error: Linear Component Too Long!");
        return TooLong;
    }
    m_symbol->symbology = m_symbology;
    m_symbol->input_mode = m_inputMode;
    std::memcpy(m_symbol->primary, m_primary.constData(), static_cast<std::size_t>(m_primary.size()) + 1);
    applyOptions();
    applyCharacterSet();
    return ZBarcode_Encode(m_symbol.get(), reinterpret_cast<const unsigned char *>(m_data.constData()), m_data.size());
}

void ZintWrapper::applyOptions()
{
    switch (m_symbology) {
    case BARCODE_CODE39:
        m_symbol->option_2 = m_code39CheckDigit;
        break;
    case BARCODE_MSI_PLESSEY:
        m_symbol->option_2 = m_msiCheckDigit;
        break;
    case BARCODE_PDF417:
    case BARCODE_PDF417TRUNC:
    case BARCODE_MICROPDF417:
    case BARCODE_HIBC_MICPDF:
        m_symbol->option_1 = m_pdf417Security;
        m_symbol->option_2 = m_pdf417Columns;
        break;
    case BARCODE_QRCODE:
    case BARCODE_HIBC_QR:
        m_symbol->option_1 = m_qrErrorCorrection;
        m_symbol->option_2 = m_qrVersion;
        break;
    case BARCODE_DATAMATRIX:
        m_symbol->option_2 = m_dataMatrixSize;
        m_symbol->option_3 = m_dataMatrixSquareOnly;
        break;
    case BARCODE_RSS_EXPSTACK:
        m_symbol->option_2 = m_expandedStackedColumns;
        break;
    case BARCODE_AZTEC:
    case BARCODE_HIBC_AZTEC:
        m_symbol->option_1 = m_aztecErrorCorrection;
        m_symbol->option_2 = m_aztecSize;
        break;
    case BARCODE_MICROQR:
        m_symbol->option_1 = m_microQrErrorCorrection;
        m_symbol->option_2 = m_microQrVersion;
        break;
    case BARCODE_RSS_EXPSTACK_CC:
        m_symbol->option_1 = m_compositeMode;
        m_symbol->option_2 = m_expandedStackedColumns;
        break;
    default:
        if (m_symbology >= BARCODE_EANX_CC && m_symbology <= BARCODE_RSS14_OMNI_CC)
            m_symbol->option_1 = m_compositeMode;
    }
}

// Chinese in a matrix code. Left to itself, libzint writes it as Shift JIS without saying so, which readers may take
// for anything, or announces UTF-8 with a warning. Announced by us, the symbol is unambiguous and the result clean.
void ZintWrapper::applyCharacterSet()
{
    switch (m_symbology) {
    case BARCODE_PDF417:
    case BARCODE_PDF417TRUNC:
    case BARCODE_MICROPDF417:
    case BARCODE_QRCODE:
    case BARCODE_DATAMATRIX:
    case BARCODE_AZTEC:
        break;
    default:
        return;
    }
    const bool isAscii =
        std::all_of(m_data.cbegin(), m_data.cend(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
    if (m_inputMode == UNICODE_MODE && !isAscii)
        m_symbol->eci = Utf8Eci;
}

QString ZintWrapper::errorText() const
{
    return m_symbol ? QString::fromUtf8(m_symbol->errtxt) : QString();
}

int ZintWrapper::symbolRows()
{
    return encode() ? m_symbol->rows : 0;
}

int ZintWrapper::symbolWidth()
{
    return encode() ? m_symbol->width : 0;
}

bool ZintWrapper::isDark(int row, int column) const
{
    if (row >= MostRows || column >= MostColumns)
        return false;
    return m_symbol->encoded_data[row][column / ModulesPerByte] >> (column % ModulesPerByte) & 1;
}

QVector<families::Row> ZintWrapper::rows() const
{
    QVector<double> delivered;
    for (int row = 0; row < m_symbol->rows; ++row)
        delivered.append(static_cast<double>(m_symbol->row_height[row]));
    return families::rowsOf(family(), delivered,
                            {m_stackedRowModules, m_compositeRowModules, m_compositeSeparatorModules});
}

QString ZintWrapper::text() const
{
    return QString::fromUtf8(reinterpret_cast<const char *>(m_symbol->text));
}

QSizeF ZintWrapper::textSize() const
{
    const QFontMetricsF metrics(m_textFont);
    return {metrics.horizontalAdvance(text()), metrics.height()};
}

QFont ZintWrapper::messageFont() const
{
    QFont font = m_errorFont;
    font.setPointSize(MessagePointSize);
    return font;
}

int ZintWrapper::columns() const
{
    return m_symbol->width + (families::hasMargins(family()) ? 2 * families::Margin : 0);
}

double ZintWrapper::bandHeight() const
{
    const double textHeight = textSize().height();
    switch (family()) {
    case Family::PlainLinear:
        return m_isShowText ? textHeight + m_textGap : 0;
    case Family::Ean:
    case Family::UpcA:
    case Family::UpcE:
        // Guard bars reach into the band, so it is there without digits too.
        return m_textGap + textHeight;
    case Family::EanComposite:
    case Family::UpcComposite:
        return m_textGap + std::max(m_guardExtension, m_isShowText ? textHeight : 0);
    default:
        return 0;
    }
}

double ZintWrapper::rowHeight(const families::Row &row) const
{
    return row.isBar ? m_barHeight : row.modules * m_moduleWidth;
}

double ZintWrapper::fittedModuleWidth(const QSizeF &size) const
{
    const double byWidth = size.width() / columns();
    switch (family()) {
    case Family::None:
        return 0;
    case Family::PlainLinear:
    case Family::Ean:
    case Family::UpcA:
    case Family::UpcE:
    case Family::EanComposite:
    case Family::UpcComposite:
        return m_isShowText ? std::max(size.width(), textSize().width()) / columns() : byWidth;
    case Family::Stacked:
        return std::max(byWidth, size.height() / m_symbol->rows / m_stackedRowModules);
    case Family::Matrix:
        return std::max(byWidth, size.height() / m_symbol->rows);
    default:
        return byWidth;
    }
}

double ZintWrapper::fittedBarHeight(double height) const
{
    double modules = 0;
    int bars = 0;
    for (const families::Row &row : rows()) {
        modules += row.isBar ? 0 : row.modules;
        bars += row.isBar ? 1 : 0;
    }
    switch (family()) {
    case Family::None:
        return 0;
    case Family::Matrix:
        return m_moduleWidth;
    case Family::Stacked:
        return m_stackedRowModules * m_moduleWidth;
    case Family::PlainLinear:
        if (!m_isShowText)
            return height;
        break;
    default:
        break;
    }
    // Bars are never lower than a module, however low the rectangle is.
    return std::max(m_moduleWidth, bars > 0 ? (height - bandHeight() - modules * m_moduleWidth) / bars : 0);
}

bool ZintWrapper::fitToSize(const QSizeF &size)
{
    if (!encode())
        return false;
    const QSizeF target(magnitude(size.width()), magnitude(size.height()));
    m_moduleWidth = magnitude(fittedModuleWidth(target));
    m_barHeight = fittedBarHeight(target.height());
    return true;
}

QSizeF ZintWrapper::naturalSize()
{
    if (!encode() || family() == Family::None)
        return {0, 0};
    double height = bandHeight();
    for (const families::Row &row : rows())
        height += rowHeight(row);
    return {columns() * m_moduleWidth, height};
}

QSizeF ZintWrapper::errorTextSize() const
{
    if (m_lastResult < NotEncoded || !m_symbol)
        return {0, 0};
    const QFontMetricsF metrics(messageFont());
    return {metrics.horizontalAdvance(errorText()), metrics.height()};
}

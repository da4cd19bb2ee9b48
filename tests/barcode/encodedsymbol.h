// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <zint.h>

/// A symbol as libzint makes it of what a test says, read without the library.
class EncodedSymbol
{
public:
    struct Options
    {
        int option1 = -1;
        int option2 = 0;
        int option3 = 0;
        int eci = 0;
        int inputMode = UNICODE_MODE;
    };

    EncodedSymbol(int symbology, const QByteArray &data, const QByteArray &primary)
        : EncodedSymbol(symbology, data, primary, Options{defaultOption1(symbology), 0, 0, 0, UNICODE_MODE})
    {
    }
    EncodedSymbol(int symbology, const QByteArray &data, const QByteArray &primary, const Options &options)
        : m_symbol(ZBarcode_Create(), ZBarcode_Delete)
    {
        m_symbol->symbology = symbology;
        m_symbol->input_mode = options.inputMode;
        m_symbol->option_1 = options.option1;
        m_symbol->option_2 = options.option2;
        m_symbol->option_3 = options.option3;
        m_symbol->eci = options.eci;
        qstrncpy(m_symbol->primary, primary.constData(), sizeof m_symbol->primary);
        m_result =
            ZBarcode_Encode(m_symbol.get(), reinterpret_cast<const unsigned char *>(data.constData()), data.size());
    }

    int result() const { return m_result; }
    int rows() const { return m_symbol->rows; }
    int width() const { return m_symbol->width; }
    QString text() const { return QString::fromUtf8(reinterpret_cast<const char *>(m_symbol->text)); }
    QString error() const { return QString::fromUtf8(m_symbol->errtxt); }
    /// As libzint delivers it: 0 is as high as the bars.
    double rowHeight(int row) const { return static_cast<double>(m_symbol->row_height[row]); }
    bool isDark(int row, int column) const
    {
        const bool hasWideRows = sizeof m_symbol->encoded_data[0] == 144;
        const unsigned char *bytes = m_symbol->encoded_data[row];
        return hasWideRows ? (bytes[column >> 3] & (1 << (column & 7))) != 0
                           : (bytes[column / 7] & (1 << (column % 7))) != 0;
    }
    int darkModules() const
    {
        int count = 0;
        for (int row = 0; row < rows(); ++row) {
            for (int column = 0; column < width(); ++column)
                count += isDark(row, column) ? 1 : 0;
        }
        return count;
    }

private:
    // What a barcode asks for as long as nobody sets an option; elsewhere libzint chooses.
    static int defaultOption1(int symbology)
    {
        switch (symbology) {
        case BARCODE_QRCODE:
        case BARCODE_HIBC_QR:
            return 1;
        case BARCODE_PDF417:
        case BARCODE_PDF417TRUNC:
        case BARCODE_MICROPDF417:
        case BARCODE_HIBC_MICPDF:
        case BARCODE_AZTEC:
        case BARCODE_HIBC_AZTEC:
        case BARCODE_MICROQR:
            return 0;
        default:
            return symbology >= BARCODE_EANX_CC && symbology <= BARCODE_RSS_EXPSTACK_CC ? 0 : -1;
        }
    }

    std::unique_ptr<zint_symbol, void (*)(zint_symbol *)> m_symbol;
    int m_result = 0;
};

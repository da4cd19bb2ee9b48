// SPDX-License-Identifier: MIT
#include "tests/barcode/printedsymbols.h"

#include "barcode/tavrobarcode.h"
#include "barcode/zintwrapper.h"

#include <zint.h>

using decoders::Program;
using decoders::Reading;
using paper::sheetOf;

namespace printedsymbols {

namespace {

// Customary sizes on paper.
constexpr paper::Measures Bars{0.33, 12};
constexpr paper::Measures Retail{0.33, 22};
constexpr paper::Measures Stacked{0.33};
constexpr paper::Measures Matrix{0.5};

// Office and label printers, in dots per inch.
const QVector<int> Printers{203, 300, 600};

Expected zbar(const char *format, const QByteArray &payload)
{
    return {Program::Zbar, {{QLatin1String(format), payload, {}}}};
}

Expected zxing(const char *format, const QByteArray &payload, const char *level = "")
{
    return {Program::Zxing, {{QLatin1String(format), payload, QLatin1String(level)}}};
}

Expected zxingPure(const char *format, const QByteArray &payload)
{
    return {Program::ZxingPure, {{QLatin1String(format), payload, {}}}};
}

Expected dmtx(const QByteArray &payload)
{
    return {Program::Dmtx, {{{}, payload, {}}}};
}

QVector<Expected> code128(const QByteArray &payload)
{
    return {zbar("CODE-128", payload), zxing("Code128", payload)};
}

QVector<Expected> code39(const QByteArray &payload)
{
    return {zbar("CODE-39", payload), zxing("Code39", payload)};
}

QVector<Expected> interleaved(const QByteArray &payload)
{
    return {zbar("I2/5", payload), zxing("ITF", payload)};
}

QVector<Expected> retail(const char *format, const QByteArray &payload)
{
    return {zbar(format, payload), zxing(format, payload)};
}

QVector<Expected> qr(const QByteArray &payload, const char *level = "L")
{
    return {zbar("QR-Code", payload), zxing("QRCode", payload, level)};
}

QVector<Expected> dataMatrix(const QByteArray &payload)
{
    return {zxing("DataMatrix", payload), dmtx(payload)};
}

/// Collects the symbols of one group.
class Collection
{
public:
    explicit Collection(const paper::Measures &measures)
        : m_measures(measures)
    {
    }

    void add(const char *name, int symbology, const QByteArray &content, const QVector<Expected> &expected)
    {
        const QString text = QString::fromUtf8(content);
        m_symbols.append({QString::fromUtf8(name), sheetOf(symbology, text, m_measures), expected, Printers});
    }

    // Settings that no object has.
    void addEngine(const char *name, int symbology, const QByteArray &data, const QVector<Expected> &expected,
                   const std::function<void(ZintWrapper &)> &setUp)
    {
        const auto set = [&](ZintWrapper &engine) {
            engine.setSymbology(symbology);
            engine.setData(data);
            setUp(engine);
        };
        m_symbols.append({QString::fromUtf8(name), sheetOf(m_measures, set), expected, Printers});
    }

    const QVector<PrintedSymbol> &symbols() const { return m_symbols; }

private:
    paper::Measures m_measures;
    QVector<PrintedSymbol> m_symbols;
};

QVector<PrintedSymbol> linear()
{
    Collection symbols(Bars);
    symbols.add("Code 128", BARCODE_CODE128, "Tavro-2024/No.42", code128("Tavro-2024/No.42"));
    symbols.add("Code 128, digits", BARCODE_CODE128, "00123456789012345675", code128("00123456789012345675"));
    symbols.add("Code 128 B", BARCODE_CODE128B, "Tavro 42", code128("Tavro 42"));
    symbols.add("GS1-128", BARCODE_GS1_128, "[01]12345678901231[10]LOT42", code128("011234567890123110LOT42"));
    symbols.add("GS1-128, two of variable length", BARCODE_GS1_128, "[10]LOT42[21]7",
                code128("10LOT42\x1d"
                        "217"));
    symbols.add("EAN-14", BARCODE_EAN14, "1234567890123", code128("0112345678901231"));
    symbols.add("HIBC Code 128", BARCODE_HIBC_128, "A123BJC5D6E71", code128("+A123BJC5D6E71G"));
    symbols.add("Code 39", BARCODE_CODE39, "CHEQUE 0042", code39("CHEQUE 0042"));
    symbols.addEngine("Code 39 with check digit", BARCODE_CODE39, "TAVRO42", code39("TAVRO42+"),
                      [](ZintWrapper &engine) { engine.setCode39CheckDigit(1); });
    symbols.add("HIBC Code 39", BARCODE_HIBC_39, "A123BJC5D6E71", code39("+A123BJC5D6E71G"));
    symbols.add("2 of 5 Interleaved", BARCODE_C25INTER, "1234567890", interleaved("1234567890"));
    symbols.add("2 of 5 Interleaved, odd", BARCODE_C25INTER, "1234567", interleaved("01234567"));
    return symbols.symbols();
}

PrintedSymbol withAddOn(const char *name, int variant, const char *digits, const char *format)
{
    const QByteArray main("6901234567892");
    const paper::Sheet addOn = sheetOf(Bars, [variant, digits](ZintWrapper &engine) {
        engine.setSymbology(BARCODE_EANX);
        engine.setEanVariant(variant);
        engine.setData(digits);
    });
    // Nine modules behind the last guard, into the margin of the main symbol.
    const paper::Sheet sheet =
        paper::beside(sheetOf(-2, QStringLiteral("690123456789"), Retail), -Retail.module, addOn);
    const Expected byZbar{Program::Zbar, {{QLatin1String(format), digits, {}}, {QStringLiteral("EAN-13"), main, {}}}};
    // Lines below the add-on meet the main symbol alone.
    const Expected byZxing{Program::Zxing,
                           {{QStringLiteral("EAN-13"), main + ' ' + digits, {}}, {QStringLiteral("EAN-13"), main, {}}}};
    return {QString::fromUtf8(name), sheet, {byZbar, byZxing}, Printers};
}

QVector<PrintedSymbol> retailSymbols()
{
    Collection symbols(Retail);
    symbols.add("EAN-13", -2, "690123456789", retail("EAN-13", "6901234567892"));
    symbols.add("EAN-8", -1, "6901234", retail("EAN-8", "69012341"));
    symbols.add("UPC-A", BARCODE_UPCA, "01234567890", retail("UPC-A", "012345678905"));
    symbols.add("UPC-E", BARCODE_UPCE, "0123456", retail("UPC-E", "01234565"));
    // zbarimg reads no UPC-E of number system 1.
    symbols.add("UPC-E, number system 1", BARCODE_UPCE, "1234567", {zxing("UPC-E", "12345670")});
    return symbols.symbols() + QVector<PrintedSymbol>{withAddOn("EAN-13 with two digits", 0, "42", "EAN-2"),
                                                      withAddOn("EAN-13 with five digits", 1, "51999", "EAN-5")};
}

QVector<PrintedSymbol> dataBar()
{
    const QByteArray item("0112345678901231");
    const QVector<Expected> omni{zbar("DataBar", item), zxing("DataBar", item.mid(2))};
    const QVector<Expected> stacked{zbar("DataBar", item), zxingPure("DataBar", item.mid(2))};
    Collection symbols(Bars);
    symbols.add("DataBar", BARCODE_DBAR_OMN, "1234567890123", omni);
    symbols.add("DataBar Expanded", BARCODE_DBAR_EXP, "[01]12345678901231[3103]001234",
                {zbar("DataBar-Exp", item + "3103001234"), zxing("DataBarExpanded", "(01)12345678901231(3103)001234")});
    symbols.add("DataBar Stacked", BARCODE_DBAR_STK, "1234567890123", stacked);
    Collection high(Retail);
    high.add("DataBar Stacked Omnidirectional", BARCODE_DBAR_OMNSTK, "1234567890123", stacked);
    high.add("DataBar Expanded Stacked", BARCODE_DBAR_EXPSTK, "[01]12345678901231[10]LOT42A[3103]001234",
             {zxingPure("DataBarExpanded", "(01)12345678901231(10)LOT42A(3103)001234")});
    return symbols.symbols() + high.symbols();
}

QVector<PrintedSymbol> stacked()
{
    const QByteArray text("Tavro 42 cheque");
    const QByteArray chinese("壹万零伍佰元整");
    Collection symbols(Stacked);
    symbols.add("PDF417", BARCODE_PDF417, text, {zxing("PDF417", text)});
    symbols.add("PDF417, Chinese", BARCODE_PDF417, chinese, {zxing("PDF417", chinese)});
    symbols.add("PDF417, truncated", BARCODE_PDF417COMP, text, {zxing("PDF417", text)});
    symbols.addEngine("PDF417, six columns, much correction", BARCODE_PDF417, text, {zxing("PDF417", text)},
                      [](ZintWrapper &engine) {
                          engine.setPdf417Columns(6);
                          engine.setPdf417Security(5);
                      });
    symbols.addEngine("PDF417, rows of two modules", BARCODE_PDF417, text, {zxing("PDF417", text)},
                      [](ZintWrapper &engine) { engine.setStackedRowModules(2); });
    symbols.add("HIBC PDF417", BARCODE_HIBC_PDF, "A123BJC5D6E71", {zxing("PDF417", "+A123BJC5D6E71G")});
    return symbols.symbols();
}

QVector<PrintedSymbol> dataMatrices()
{
    const QByteArray chinese("壹万零伍佰元整");
    const QByteArray longText = QByteArray("Tavro Data Matrix. ").repeated(20);
    Collection symbols(Matrix);
    symbols.add("Data Matrix", BARCODE_DATAMATRIX, "Tavro 42", dataMatrix("Tavro 42"));
    // dmtxread gives the announcement of UTF-8 out as characters.
    symbols.add("Data Matrix, Chinese", BARCODE_DATAMATRIX, chinese, {zxing("DataMatrix", chinese)});
    symbols.add("Data Matrix of several regions", BARCODE_DATAMATRIX, longText, dataMatrix(longText));
    symbols.addEngine("Data Matrix, 12 x 26", BARCODE_DATAMATRIX, "Tavro 42", dataMatrix("Tavro 42"),
                      [](ZintWrapper &engine) { engine.setDataMatrixSize(27); });
    symbols.addEngine("Data Matrix, square", BARCODE_DATAMATRIX, "Tavro", dataMatrix("Tavro"),
                      [](ZintWrapper &engine) { engine.setDataMatrixSquareOnly(DM_SQUARE); });
    symbols.add("HIBC Data Matrix", BARCODE_HIBC_DM, "A123BJC5D6E71", dataMatrix("+A123BJC5D6E71G"));
    return symbols.symbols();
}

QVector<PrintedSymbol> otherMatrices()
{
    const auto aztec = [](const QByteArray &payload) { return QVector<Expected>{zxing("Aztec", payload)}; };
    const auto micro = [](const QByteArray &payload) { return QVector<Expected>{zxing("MicroQRCode", payload)}; };
    const QByteArray chinese("壹万零伍佰元整");
    Collection symbols(Matrix);
    symbols.add("Aztec", BARCODE_AZTEC, "Tavro 42", aztec("Tavro 42"));
    symbols.add("Aztec, Chinese", BARCODE_AZTEC, chinese, aztec(chinese));
    symbols.addEngine("Aztec, full range", BARCODE_AZTEC, "Tavro 42", aztec("Tavro 42"),
                      [](ZintWrapper &engine) { engine.setAztecSize(10); });
    symbols.addEngine("Aztec, much correction", BARCODE_AZTEC, "Tavro 42", aztec("Tavro 42"),
                      [](ZintWrapper &engine) { engine.setAztecErrorCorrection(4); });
    symbols.add("HIBC Aztec", BARCODE_HIBC_AZTEC, "A123BJC5D6E71", aztec("+A123BJC5D6E71G"));
    symbols.add("Micro QR", BARCODE_MICROQR, "TAVRO42", micro("TAVRO42"));
    symbols.addEngine("Micro QR, M1", BARCODE_MICROQR, "123", micro("123"),
                      [](ZintWrapper &engine) { engine.setMicroQrVersion(1); });
    symbols.addEngine("Micro QR, M4, much correction", BARCODE_MICROQR, "TAVRO42", micro("TAVRO42"),
                      [](ZintWrapper &engine) {
                          engine.setMicroQrVersion(4);
                          engine.setMicroQrErrorCorrection(3);
                      });
    return symbols.symbols();
}

// What scanners see of a composite: its linear component.
QVector<PrintedSymbol> composites()
{
    const QByteArray component("[21]A12345678");
    const QByteArray item("0112345678901231");
    const auto primary = [](const char *digits) {
        return [digits](ZintWrapper &engine) { engine.setPrimary(digits); };
    };
    Collection symbols(Bars);
    symbols.addEngine("EAN-13 composite", BARCODE_EANX_CC, component, retail("EAN-13", "6901234567892"),
                      primary("690123456789"));
    symbols.addEngine("EAN-8 composite", BARCODE_EANX_CC, component, retail("EAN-8", "69012341"),
                      [](ZintWrapper &engine) {
                          engine.setPrimary("6901234");
                          engine.setEanVariant(2);
                      });
    symbols.addEngine("UPC-A composite", BARCODE_UPCA_CC, component, retail("UPC-A", "012345678905"),
                      primary("01234567890"));
    symbols.addEngine("UPC-E composite", BARCODE_UPCE_CC, component, retail("UPC-E", "01234565"), primary("0123456"));
    symbols.addEngine("GS1-128 composite", BARCODE_GS1_128_CC, component, code128(item), primary("[01]12345678901231"));
    // ZXingReader takes the mark of a composite for a digit.
    symbols.addEngine("DataBar composite", BARCODE_DBAR_OMN_CC, component, {zbar("DataBar", item)},
                      primary("1234567890123"));
    symbols.addEngine(
        "DataBar Expanded composite", BARCODE_DBAR_EXP_CC, component,
        {zbar("DataBar-Exp", item + "3103001234"), zxing("DataBarExpanded", "(01)12345678901231(3103)001234")},
        primary("[01]12345678901231[3103]001234"));
    symbols.addEngine("DataBar Stacked composite", BARCODE_DBAR_STK_CC, component, {zbar("DataBar", item)},
                      primary("1234567890123"));
    symbols.addEngine("DataBar Stacked Omnidirectional composite", BARCODE_DBAR_OMNSTK_CC, component,
                      {zbar("DataBar", item)}, primary("1234567890123"));
    symbols.addEngine("DataBar Expanded Stacked composite", BARCODE_DBAR_EXPSTK_CC, component,
                      {zxingPure("DataBarExpanded", "(01)12345678901231(10)LOT42A(3103)001234")},
                      primary("[01]12345678901231[10]LOT42A[3103]001234"));
    return symbols.symbols();
}

QVector<PrintedSymbol> qrContents()
{
    Collection symbols(Matrix);
    const auto add = [&symbols](const char *name, const QByteArray &content) {
        symbols.add(name, BARCODE_QRCODE, content, qr(content));
    };
    add("QR Code", "Tavro");
    add("QR Code, digits", "622200001234567890");
    add("QR Code, capitals", "CHEQUE 0042-77");
    add("QR Code, address", "https://example.org/cheque?no=42&amount=10500.50");
    add("QR Code, lines", "payee\t欧阳某某\namount\t¥10,500.50\n");
    add("QR Code, Latin", "Grüße, crème brûlée, 42 €");
    add("QR Code, Chinese", "壹万零伍佰元整");
    add("QR Code, Japanese", "領収書 テスト");
    add("QR Code, emoji", "🧾 paid ✅ 👩‍💼");
    symbols.add("HIBC QR Code", BARCODE_HIBC_QR, "A123BJC5D6E71", qr("+A123BJC5D6E71G"));
    symbols.addEngine("GS1 QR Code", BARCODE_QRCODE, "[01]12345678901231[10]LOT42", qr("011234567890123110LOT42"),
                      [](ZintWrapper &engine) { engine.setInputMode(GS1_MODE); });
    return symbols.symbols();
}

// As much as fits at the highest correction, up to two characters less.
QByteArray payloadOf(int version)
{
    const QString text = QStringLiteral("壹万零伍佰元整🧾");
    const int characters = 2 + version * version / 4;
    QString payload;
    for (const uint character : text.repeated(characters / 8 + 1).toUcs4().mid(0, characters))
        payload += QString::fromUcs4(&character, 1);
    return payload.toUtf8();
}

PrintedSymbol qrOf(int version, int level)
{
    constexpr const char *names[]{"L", "M", "Q", "H"};
    const QByteArray payload = payloadOf(version);
    const char *name = names[level - 1];
    const paper::Sheet sheet =
        sheetOf(BARCODE_QRCODE, QString::fromUtf8(payload), Matrix, [version, level](TavroBarcode &barcode) {
            barcode.setQRcodeVersion(version);
            barcode.setQRcodeErrCorrection(level);
        });
    return {QStringLiteral("QR Code, version %1 %2").arg(version).arg(QLatin1String(name)),
            sheet,
            qr(payload, name),
            {Printers.at((version + level) % (version < 20 ? Printers.size() : 2))}};
}

// Each version, and each level of correction at some of them. Large ones at 600 dots per inch would take most of the
// time.
QVector<PrintedSymbol> qrVersions()
{
    QVector<PrintedSymbol> symbols;
    constexpr int versions = 40;
    constexpr int levels = 4;
    for (int version = 1; version <= versions; ++version) {
        const bool isSample = version == 1 || version == 7 || version == 21 || version == versions;
        for (int level = 1; level <= levels; ++level) {
            if (isSample || level == 1 + version % levels)
                symbols.append(qrOf(version, level));
        }
    }
    return symbols;
}

} // namespace

QVector<PrintedSymbol> all()
{
    return linear() + retailSymbols() + dataBar() + stacked() + dataMatrices() + otherMatrices() + composites() +
           qrContents() + qrVersions();
}

} // namespace printedsymbols

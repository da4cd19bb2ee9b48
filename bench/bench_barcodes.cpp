// SPDX-License-Identifier: MIT
#include "barcode/tavrobarcode.h"
#include "barcode/zintwrapper.h"
#include "bench/ratioreport.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <memory>
#include <zint.h>

// What a barcode costs that is more than encoding it and filling its modules.

namespace {

constexpr int Version = 10;
constexpr int Columns = 57;
constexpr double Module = 4;
constexpr double Side = Columns * Module;

// Texts of the same length, so that each is encoded to a symbol of its own.
QString contentAt(int index)
{
    return QStringLiteral("Voucher %1 of the Harbour Trading Company, payable to the bearer").arg(100000 + index);
}

std::unique_ptr<zint_symbol, void (*)(zint_symbol *)> encoded(const QString &content)
{
    std::unique_ptr<zint_symbol, void (*)(zint_symbol *)> symbol(ZBarcode_Create(), ZBarcode_Delete);
    symbol->symbology = BARCODE_QRCODE;
    symbol->input_mode = UNICODE_MODE;
    symbol->option_1 = 1;
    symbol->option_2 = Version;
    const QByteArray bytes = content.toUtf8();
    ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char *>(bytes.constData()), bytes.size());
    return symbol;
}

QImage emptyPage()
{
    QImage page(static_cast<int>(Side) + 20, static_cast<int>(Side) + 20, QImage::Format_RGB32);
    page.fill(Qt::white);
    return page;
}

// Older versions of libzint pack seven modules into a byte.
bool isDark(const zint_symbol &symbol, int row, int column)
{
    constexpr int perByte = sizeof symbol.encoded_data[0] == 144 ? 8 : 7;
    return symbol.encoded_data[row][column / perByte] >> (column % perByte) & 1;
}

void fillModules(QPainter *painter, const zint_symbol &symbol)
{
    const QBrush black(Qt::black);
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(Qt::NoPen);
    painter->fillRect(QRectF(0, 0, Side, Side), QBrush(Qt::white));
    for (int row = 0; row < symbol.rows; ++row) {
        for (int column = 0; column < symbol.width; ++column) {
            if (isDark(symbol, row, column))
                painter->fillRect(QRectF(column * Module, row * Module, Module, Module), black);
        }
    }
}

QImage filled(const QString &content)
{
    QImage page = emptyPage();
    QPainter painter(&page);
    fillModules(&painter, *encoded(content));
    return page;
}

void fillEncoded(benchmark::State &state)
{
    const auto symbol = encoded(contentAt(0));
    QImage page = emptyPage();
    for (auto _ : state) {
        QPainter painter(&page);
        fillModules(&painter, *symbol);
    }
}

void paintEncoded(benchmark::State &state)
{
    ZintWrapper barcode;
    barcode.setSymbology(BARCODE_QRCODE);
    barcode.setQrVersion(Version);
    barcode.setData(contentAt(0).toUtf8());
    barcode.fitToSize({Side, Side});
    barcode.setIsReencoding(false);
    QImage page = emptyPage();
    for (auto _ : state) {
        QPainter painter(&page);
        barcode.paint(&painter, {0, 0, Side, Side});
    }
    if (page != filled(contentAt(0)))
        state.SkipWithError("the twin draws something else");
}

void encodeAndFill(benchmark::State &state)
{
    QImage page = emptyPage();
    int index = 0;
    for (auto _ : state) {
        const auto symbol = encoded(contentAt(index++));
        QPainter painter(&page);
        fillModules(&painter, *symbol);
    }
}

void setAndRepaint(benchmark::State &state)
{
    TavroBarcode barcode;
    barcode.setQRcodeVersion(Version);
    barcode.setBoundingRect({0, 0, Side, Side});
    barcode.setPaintMode(Paint_Input);
    const QStyleOptionGraphicsItem option;
    QImage page = emptyPage();
    int index = 0;
    for (auto _ : state) {
        barcode.setContentData(contentAt(index++));
        QPainter painter(&page);
        barcode.paint(&painter, &option, nullptr);
    }
    if (page != filled(contentAt(index - 1)))
        state.SkipWithError("the twin draws something else");
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const auto add = [](const char *name, void (*function)(benchmark::State &)) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMicrosecond)->Repetitions(5);
    };
    add("fillEncoded", fillEncoded);
    add("paintEncoded", paintEncoded);
    add("encodeAndFill", encodeAndFill);
    add("setAndRepaint", setAndRepaint);
    return runWithRatios(argc, argv, {{"paintEncoded", "fillEncoded", 1.3}, {"setAndRepaint", "encodeAndFill", 2.5}});
}

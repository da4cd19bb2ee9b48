// SPDX-License-Identifier: MIT
#include "barcode/zintwrapper.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstring>

// Any content in any symbology with any options, fitted to any size and painted.

namespace {

void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

class Input
{
public:
    Input(const uint8_t *bytes, size_t size)
        : m_bytes(bytes)
        , m_size(size)
    {
    }

    // 0 where the bytes end.
    template <typename Value>
    Value take()
    {
        Value value = 0;
        const size_t taken = std::min(m_size, sizeof value);
        std::memcpy(&value, m_bytes, taken);
        skip(taken);
        return value;
    }
    // Mostly a number that an option knows, every eighth time any number.
    int takeOption()
    {
        const auto first = take<uint8_t>();
        return first % 8 == 7 ? take<int>() : first / 8;
    }
    QByteArray takeBytes(size_t most)
    {
        const size_t taken = std::min(m_size, most);
        const QByteArray bytes(reinterpret_cast<const char *>(m_bytes), int(taken));
        skip(taken);
        return bytes;
    }

private:
    void skip(size_t count)
    {
        m_bytes += count;
        m_size -= count;
    }

    const uint8_t *m_bytes;
    size_t m_size;
};

void setOptions(ZintWrapper *barcode, Input *input)
{
    using Setter = void (ZintWrapper::*)(int);
    const Setter setters[] = {&ZintWrapper::setEanVariant,
                              &ZintWrapper::setStackedRowModules,
                              &ZintWrapper::setCompositeRowModules,
                              &ZintWrapper::setCompositeSeparatorModules,
                              &ZintWrapper::setPdf417Columns,
                              &ZintWrapper::setPdf417Security,
                              &ZintWrapper::setMicroQrVersion,
                              &ZintWrapper::setMicroQrErrorCorrection,
                              &ZintWrapper::setQrVersion,
                              &ZintWrapper::setQrErrorCorrection,
                              &ZintWrapper::setAztecErrorCorrection,
                              &ZintWrapper::setAztecSize,
                              &ZintWrapper::setDataMatrixSize,
                              &ZintWrapper::setDataMatrixSquareOnly,
                              &ZintWrapper::setCompositeMode,
                              &ZintWrapper::setExpandedStackedColumns,
                              &ZintWrapper::setCode39CheckDigit,
                              &ZintWrapper::setMsiCheckDigit};
    // The bits say which options are set at all.
    const auto chosen = input->take<uint32_t>();
    for (size_t i = 0; i < std::size(setters); ++i) {
        if (chosen >> i & 1)
            (barcode->*setters[i])(input->takeOption());
    }
    barcode->setIsShowText(chosen >> 30 & 1);
    barcode->setHasQuietZoneMarks(chosen >> 31 & 1);
}

// Symbols of usual sizes take the same sizes again when they are fitted to them.
void fit(ZintWrapper *barcode, const QSizeF &size)
{
    const bool isUsable = barcode->encode();
    require(isUsable == (barcode->lastResult() <= 1));
    require(isUsable == (barcode->symbolRows() > 0 && barcode->symbolWidth() > 0));
    require(barcode->errorTextSize().isNull() == (barcode->lastResult() < 2));
    require(barcode->fitToSize(size) == isUsable);
    require(std::isfinite(barcode->moduleWidth()) && barcode->moduleWidth() >= 0);
    const QSizeF natural = barcode->naturalSize();
    const auto isUsual = [](double length) { return std::isfinite(length) && length >= 0.1 && length <= 1e5; };
    if (!isUsual(natural.width()) || !isUsual(natural.height()) || barcode->stackedRowModules() <= 0 ||
        barcode->compositeRowModules() <= 0 || barcode->compositeSeparatorModules() <= 0)
        return;
    const double module = barcode->moduleWidth();
    require(barcode->fitToSize(natural));
    require(std::abs(barcode->moduleWidth() - module) < 1e-6 * module + 1e-9);
    require(std::abs(barcode->naturalSize().height() - natural.height()) < 1e-6 * natural.height() + 1e-6);
}

bool hasOnlyGround(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qRed(image.pixel(x, y)) != 255)
                return false;
        }
    }
    return true;
}

void paint(ZintWrapper *barcode, const QSizeF &size)
{
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    barcode->paint(&painter, {QPointF(2, 1), size});
    require(painter.transform().isIdentity());
    require(painter.pen() == QPen() && painter.brush() == QBrush());
    painter.end();
    if (families::familyOf(barcode->symbology()) == families::Family::None && barcode->lastResult() <= 1)
        require(hasOnlyGround(image));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    Input input(bytes, size);
    ZintWrapper barcode;
    barcode.setSymbology(input.take<uint8_t>() - 8);
    barcode.setInputMode(input.takeOption());
    setOptions(&barcode, &input);
    const bool isAnySize = input.take<uint8_t>() % 4 == 3;
    const QSizeF target = isAnySize ? QSizeF{input.take<double>(), input.take<double>()}
                                    : QSizeF{input.take<uint16_t>() / 64.0, input.take<uint16_t>() / 64.0};
    const auto primarySize = input.take<uint8_t>();
    barcode.setPrimary(input.takeBytes(primarySize));
    barcode.setData(input.takeBytes(size));
    fit(&barcode, target);
    paint(&barcode, target);
    return 0;
}

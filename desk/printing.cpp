// SPDX-License-Identifier: MIT
#include "desk/printing.h"

#include "core/tavroprototype.h"
#include "desk/form.h"
#include "desk/messages.h"
#include "desk/wholefile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <QVector>

namespace printing {

namespace {

constexpr double MillimetresPerInch = 25.4;

// An SVG has a whole number of units: hundredths of a millimetre are fine enough for its size to be true.
constexpr int SvgDpi = 2540;

// Images beyond a gigabyte are a slip of the keyboard, not a picture of a form.
constexpr double MostPixels = 256.0 * 1024 * 1024;

QRectF pageAt(const Form &form, int dpi)
{
    return {QPointF(0, 0), form.pageSize * (dpi / MillimetresPerInch)};
}

QString paint(Form *form, QPaintDevice *device, int dpi)
{
    QPainter painter;
    if (!painter.begin(device))
        return QStringLiteral("the page cannot be painted");
    paintPage(&painter, form, pageAt(*form, dpi));
    return painter.end() ? QString() : QStringLiteral("the page cannot be painted");
}

QString toPdf(Form *form, QBuffer *bytes, int dpi)
{
    QPdfWriter writer(bytes);
    writer.setCreator(QStringLiteral("Tavro Desk"));
    writer.setResolution(dpi);
    // The page has the size of the paper, and its origin in the corner of the paper.
    const QPageLayout layout(QPageSize(form->pageSize, QPageSize::Millimeter, QString(), QPageSize::ExactMatch),
                             QPageLayout::Portrait, QMarginsF(0, 0, 0, 0));
    writer.setPageLayout(layout);
    return paint(form, &writer, dpi);
}

QString toPng(Form *form, QBuffer *bytes, int dpi)
{
    const QSizeF size = pageAt(*form, dpi).size();
    if (size.width() * size.height() > MostPixels)
        return QStringLiteral("a page of %1 x %2 mm is too large at %3 dpi")
            .arg(form->pageSize.width())
            .arg(form->pageSize.height())
            .arg(dpi);
    QImage image(qMax(1, qRound(size.width())), qMax(1, qRound(size.height())), QImage::Format_RGB32);
    if (image.isNull())
        return QStringLiteral("there is not enough memory for the image");
    image.fill(Qt::white);
    image.setDotsPerMeterX(qRound(dpi / MillimetresPerInch * 1000));
    image.setDotsPerMeterY(qRound(dpi / MillimetresPerInch * 1000));
    const QString error = paint(form, &image, dpi);
    if (!error.isEmpty())
        return error;
    return image.save(bytes, "PNG") ? QString() : QStringLiteral("the image cannot be encoded");
}

QString toSvg(Form *form, QBuffer *bytes, int)
{
    const QSize size(qRound(pageAt(*form, SvgDpi).width()), qRound(pageAt(*form, SvgDpi).height()));
    QSvgGenerator generator;
    generator.setOutputDevice(bytes);
    generator.setResolution(SvgDpi);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    return paint(form, &generator, SvgDpi);
}

struct Format
{
    QString suffix;
    QString (*encode)(Form *form, QBuffer *bytes, int dpi);
};

const Format *formatOf(const QString &fileName)
{
    static const QVector<Format> formats{
        {QStringLiteral("pdf"), toPdf}, {QStringLiteral("png"), toPng}, {QStringLiteral("svg"), toSvg}};
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    for (const Format &format : formats) {
        if (format.suffix == suffix)
            return &format;
    }
    return nullptr;
}

} // namespace

void prepare(Form *form)
{
    for (const Form::Entry &entry : form->entries) {
        if (!entry.object)
            continue;
        entry.object->setPaintMode(Paint_Input);
        entry.object->setPaintMode(Paint_Print);
    }
    form->fitTexts();
}

bool isPrinted(const TavroPrototype &object)
{
    return object.isPrint() && object.isObjVisible();
}

void paintPage(QPainter *painter, Form *form, const QRectF &target)
{
    form->scene().render(painter, target, form->pageRect(), Qt::IgnoreAspectRatio);
}

bool isKnownFormat(const QString &fileName)
{
    return formatOf(fileName) != nullptr;
}

QString write(Form *form, const QString &fileName, int dpi)
{
    const Format *format = formatOf(fileName);
    if (!format)
        return QStringLiteral("%1: expected a name that ends with .pdf, .png or .svg").arg(fileName);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    prepare(form);
    const QString error = format->encode(form, &bytes, dpi);
    if (!error.isEmpty())
        return messages::oneLine(QStringLiteral("%1: %2").arg(fileName, error));
    return wholefile::write(fileName, bytes.data());
}

} // namespace printing

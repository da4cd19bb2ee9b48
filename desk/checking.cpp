// SPDX-License-Identifier: MIT
#include "desk/checking.h"

#include "desk/form.h"
#include "desk/messages.h"
#include "entry/tavroedit.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <algorithm>

namespace checking {

namespace {

// Half a pixel is what antialiasing spreads anyway.
constexpr qreal Tolerance = 0.5;

// Wide enough that no line is broken.
constexpr qreal Unbroken = 1e6;

struct Extent
{
    qreal width = 0;
    qreal height = 0;    ///< of the lines
    qreal inkTop = 0;    ///< of the glyphs, from the top of the first line
    qreal inkBottom = 0; ///< of the glyphs, from the top of the first line
};

// A run of a layout answers the box of its line as its bounding rectangle, so the glyphs are asked one by one.
QRectF inkOf(const QGlyphRun &run)
{
    const QRawFont font = run.rawFont();
    const QVector<quint32> glyphs = run.glyphIndexes();
    const QVector<QPointF> positions = run.positions();
    QRectF ink;
    for (int i = 0; i < glyphs.size(); ++i)
        ink |= font.boundingRect(glyphs.at(i)).translated(positions.at(i));
    return ink;
}

// Lays the text out as a painter does that draws it into a rectangle of the width.
Extent extentOf(QString text, const QFont &font, const QTextOption &option, qreal width)
{
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(text, font);
    layout.setTextOption(option);
    Extent extent;
    QRectF ink;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(option.wrapMode() == QTextOption::NoWrap ? Unbroken : width);
        line.setPosition({0, extent.height});
        extent.height += line.height();
        extent.width = std::max(extent.width, line.naturalTextWidth());
    }
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    for (const QGlyphRun &run : runs)
        ink |= inkOf(run);
    extent.inkTop = ink.top();
    extent.inkBottom = ink.bottom();
    return extent;
}

qreal topOf(const QRectF &rect, qreal height, Qt::Alignment alignment)
{
    if (alignment & Qt::AlignBottom)
        return rect.height() - height;
    if (alignment & Qt::AlignVCenter)
        return (rect.height() - height) / 2;
    return 0;
}

QString named(const TavroPrototype &object, int index)
{
    const QString place = QStringLiteral("objects[%1]").arg(index);
    return object.tavroID().isEmpty() ? place : QStringLiteral("%1 %2").arg(place, messages::quoted(object.tavroID()));
}

// What is invisible while the form is filled in is not printed either.
bool isPrinted(const TavroEdit &edit)
{
    return edit.isPrint() && edit.isObjVisible();
}

// An empty value is missing where it is required, and no mistake where it is not, whatever its format.
QString problemOf(TavroEdit *edit)
{
    const QString content = edit->contentData().toString();
    const bool isEmpty = content.trimmed().isEmpty();
    if (isEmpty && edit->isRequired())
        return QStringLiteral("required, but missing");
    if (!isEmpty && !edit->isValid())
        return QStringLiteral("invalid value %1").arg(messages::quoted(content));
    const QString shown = edit->displayText();
    if (edit->isRequired() && shown.trimmed().isEmpty())
        return QStringLiteral("required, but %1 prints nothing").arg(messages::quoted(content));
    const QString text = edit->prefix() + shown;
    if (isPrinted(*edit) && !textFits(*edit, text))
        return QStringLiteral("text does not fit its rectangle: %1").arg(messages::quoted(text));
    return {};
}

} // namespace

bool textFits(const TavroText &object, const QString &text)
{
    if (text.trimmed().isEmpty())
        return true;
    const QRectF rect = object.boundingRect();
    const QTextOption option = object.textOption();
    const Extent extent = extentOf(text, object.font(), option, rect.width());
    const qreal top = topOf(rect, extent.height, option.alignment());
    return extent.width <= rect.width() + Tolerance && top + extent.inkTop >= -Tolerance &&
           top + extent.inkBottom <= rect.height() + Tolerance;
}

QStringList problems(const Form &form)
{
    QStringList found;
    for (const QString &name : form.unknownNames())
        found.append(messages::oneLine(QStringLiteral("unknown %1").arg(name)));
    form.fitTexts();
    int index = 0;
    for (const Form::Entry &entry : form.entries) {
        auto *edit = qobject_cast<TavroEdit *>(entry.object.data());
        const QString problem = edit ? problemOf(edit) : QString();
        if (!problem.isEmpty())
            found.append(QStringLiteral("%1: %2").arg(named(*edit, index), problem));
        ++index;
    }
    return found;
}

} // namespace checking

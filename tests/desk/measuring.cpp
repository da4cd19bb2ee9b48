// SPDX-License-Identifier: MIT
#include "tests/desk/measuring.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTransform>
#include <QXmlStreamReader>
#include <cmath>
#include <numeric>

namespace measuring {

namespace {

constexpr double MillimetresPerInch = 25.4;
constexpr double PointsPerInch = 72;

// Standard output of a program, null where it fails.
QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return {};
    return process.readAllStandardOutput();
}

double middle(const QVector<double> &profile)
{
    double sum = 0;
    double moment = 0;
    for (int i = 0; i < profile.size(); ++i) {
        sum += profile.at(i);
        moment += profile.at(i) * (i + 0.5);
    }
    return moment / sum;
}

// Length of the ink in the profile, whose last value is that of the full stroke.
double lengthOfInk(const QVector<double> &profile)
{
    return std::accumulate(profile.begin(), profile.end(), 0.0) / profile.last();
}

QVector<double> reversed(const QVector<double> &profile)
{
    return QVector<double>(profile.rbegin(), profile.rend());
}

QVector<double> numbersOf(QString text)
{
    text.replace(QLatin1Char(','), QLatin1Char(' '));
    QVector<double> numbers;
    const QStringList parts = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &part : parts)
        numbers.append(part.toDouble());
    return numbers;
}

QTransform transformOf(const QString &text)
{
    const int open = text.indexOf(QLatin1Char('('));
    const QVector<double> m = numbersOf(text.mid(open + 1, text.indexOf(QLatin1Char(')')) - open - 1));
    return m.size() == 6 ? QTransform(m[0], m[1], m[2], m[3], m[4], m[5]) : QTransform();
}

QString attribute(const QXmlStreamReader &xml, const char *name)
{
    return xml.attributes().value(QLatin1String(name)).toString();
}

// Length in millimetres, not a number for any other unit.
double millimetres(const QString &length)
{
    return length.endsWith(QLatin1String("mm")) ? length.chopped(2).toDouble() : std::nan("");
}

} // namespace

Picture::Picture(const QImage &image, double dpi)
    : m_image(image.convertToFormat(QImage::Format_Grayscale8))
    , m_scale(dpi / MillimetresPerInch)
{
}

Picture Picture::ofPdf(const QString &fileName, int dpi)
{
    const QTemporaryDir folder;
    const QString page = folder.filePath(QStringLiteral("page"));
    outputOf(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QString::number(dpi), QStringLiteral("-gray"),
                                          QStringLiteral("-singlefile"), fileName, page});
    return Picture(QImage(page + QStringLiteral(".pgm")), dpi);
}

QSizeF Picture::size() const
{
    return QSizeF(m_image.size()) / m_scale;
}

double Picture::strokeX(const QRectF &area) const
{
    return (pixel(area.left()) + middle(columns(area))) / m_scale;
}

double Picture::strokeY(const QRectF &area) const
{
    return (pixel(area.top()) + middle(rows(area))) / m_scale;
}

double Picture::startX(const QRectF &area) const
{
    return (pixel(area.right()) - lengthOfInk(columns(area))) / m_scale;
}

double Picture::endX(const QRectF &area) const
{
    return (pixel(area.left()) + lengthOfInk(reversed(columns(area)))) / m_scale;
}

double Picture::startY(const QRectF &area) const
{
    return (pixel(area.bottom()) - lengthOfInk(rows(area))) / m_scale;
}

double Picture::endY(const QRectF &area) const
{
    return (pixel(area.top()) + lengthOfInk(reversed(rows(area)))) / m_scale;
}

QVector<double> Picture::columns(const QRectF &area) const
{
    QVector<double> sums;
    for (int x = pixel(area.left()); x < pixel(area.right()); ++x) {
        double sum = 0;
        for (int y = pixel(area.top()); y < pixel(area.bottom()); ++y)
            sum += darkness(x, y);
        sums.append(sum);
    }
    return sums;
}

QVector<double> Picture::rows(const QRectF &area) const
{
    QVector<double> sums;
    for (int y = pixel(area.top()); y < pixel(area.bottom()); ++y) {
        double sum = 0;
        for (int x = pixel(area.left()); x < pixel(area.right()); ++x)
            sum += darkness(x, y);
        sums.append(sum);
    }
    return sums;
}

int Picture::pixel(double millimetres) const
{
    return qRound(millimetres * m_scale);
}

double Picture::darkness(int x, int y) const
{
    return m_image.valid(x, y) ? 1 - qGray(m_image.pixel(x, y)) / 255.0 : 0;
}

QMultiMap<QString, QRectF> wordsOfPdf(const QString &fileName)
{
    QMultiMap<QString, QRectF> words;
    QXmlStreamReader xml(
        outputOf(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), fileName, QStringLiteral("-")}));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("word"))
            continue;
        const QPointF topLeft(attribute(xml, "xMin").toDouble(), attribute(xml, "yMin").toDouble());
        const QPointF bottomRight(attribute(xml, "xMax").toDouble(), attribute(xml, "yMax").toDouble());
        constexpr double scale = MillimetresPerInch / PointsPerInch;
        words.insert(xml.readElementText(), QRectF(topLeft * scale, bottomRight * scale));
    }
    return words;
}

Drawing drawingOfSvg(const QString &fileName)
{
    Drawing drawing;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return drawing;
    QTransform group;
    const auto point = [&](double x, double y) { return group.map(QPointF(x, y)) * drawing.unit; };
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("svg")) {
            drawing.size = {millimetres(attribute(xml, "width")), millimetres(attribute(xml, "height"))};
            const QVector<double> box = numbersOf(attribute(xml, "viewBox"));
            const double unit = drawing.size.width() / box.value(2);
            drawing.unit = qFuzzyCompare(unit, drawing.size.height() / box.value(3)) ? unit : 0;
        } else if (xml.name() == QLatin1String("g")) {
            group = transformOf(attribute(xml, "transform"));
        } else if (xml.name() == QLatin1String("polyline")) {
            const QVector<double> n = numbersOf(attribute(xml, "points"));
            if (n.size() == 4)
                drawing.lines.append({point(n[0], n[1]), point(n[2], n[3])});
        } else if (xml.name() == QLatin1String("rect")) {
            const QPointF corner(attribute(xml, "x").toDouble(), attribute(xml, "y").toDouble());
            const QPointF extent(attribute(xml, "width").toDouble(), attribute(xml, "height").toDouble());
            const QPointF opposite = corner + extent;
            drawing.rects.append({point(corner.x(), corner.y()), point(opposite.x(), opposite.y())});
        } else if (xml.name() == QLatin1String("text")) {
            const QPointF start = point(attribute(xml, "x").toDouble(), attribute(xml, "y").toDouble());
            drawing.texts.insert(xml.readElementText(), start);
        }
    }
    return drawing;
}

} // namespace measuring

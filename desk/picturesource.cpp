// SPDX-License-Identifier: MIT
#include "desk/picturesource.h"

#include "graphic/tavropicture.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QJsonObject>

namespace picturesource {

namespace {

constexpr char FileKey[] = "file";

// An SVG is no picture here: it can name other files, anywhere.
bool isKnownFormat(const QByteArray &format)
{
    return format == "png" || format == "jpeg" || format == "bmp" || format == "gif";
}

Result failure(const QString &expectation)
{
    Result result;
    result.expectation = expectation;
    return result;
}

Result fromBytes(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    const QByteArray format = QImageReader(&buffer).format();
    // Whatever is no picture for an object on the form is none here.
    TavroPicture picture;
    if (isKnownFormat(format))
        picture.setContentData(bytes);
    if (picture.image().isNull())
        return failure(QStringLiteral("a PNG, JPEG, BMP or GIF picture of at most 8192 x 8192 pixels"));
    Result result;
    // PNG stays as it is: encoding it anew gives other bytes with another version of the encoder.
    result.png = format == "png" ? bytes : picture.contentData().toByteArray();
    return result;
}

Result fromBase64(const QString &text)
{
    if (text.isEmpty())
        return {};
    const auto decoded = QByteArray::fromBase64Encoding(text.toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? fromBytes(*decoded) : failure(QStringLiteral("a picture in base64"));
}

bool staysInside(const QString &name)
{
    const QString path = QDir::cleanPath(name);
    return !name.contains(QChar::Null) && QDir::isRelativePath(path) && path != QLatin1String("..") &&
           !path.startsWith(QLatin1String("../"));
}

Result fromFile(const QString &name, const QString &folder)
{
    if (!staysInside(name))
        return failure(QStringLiteral("a relative path that stays in the folder of this file"));
    const QString path = folder + QLatin1Char('/') + QDir::cleanPath(name);
    // Not a pipe or a device, which may have no end.
    if (!QFileInfo(path).isFile())
        return failure(QStringLiteral("a file that exists"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failure(QStringLiteral("a file that can be read"));
    const QByteArray bytes = file.read(MostBytes + 1);
    if (bytes.size() > MostBytes)
        return failure(QStringLiteral("a file of at most %1 bytes").arg(MostBytes));
    return fromBytes(bytes);
}

QJsonValue fileNameOf(const QJsonValue &value)
{
    return value.toObject().value(QLatin1String(FileKey));
}

} // namespace

bool isSource(const QJsonValue &value)
{
    return value.isString() || (value.isObject() && value.toObject().size() == 1 && fileNameOf(value).isString());
}

QString expectation()
{
    return QStringLiteral("a picture in base64, or an object with the name of its \"file\" alone");
}

Result read(const QJsonValue &value, const QString &folder)
{
    Result result;
    if (!isSource(value)) {
        result = failure(expectation());
        result.found = value;
    } else if (value.isString()) {
        result = fromBase64(value.toString());
        result.found = value;
    } else {
        result = fromFile(fileNameOf(value).toString(), folder);
        result.where = QStringLiteral(".file");
        result.found = fileNameOf(value);
    }
    return result;
}

QJsonValue toJson(const QByteArray &png)
{
    return QString::fromLatin1(png.toBase64());
}

} // namespace picturesource

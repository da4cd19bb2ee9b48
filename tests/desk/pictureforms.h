// SPDX-License-Identifier: MIT
#pragma once

#include "graphic/tavropicture.h"
#include "tests/desk/deskforms.h"

#include <QBuffer>
#include <QImage>

/// Forms with one picture.
namespace pictureforms {

/// A red picture in a format.
inline QByteArray bytesOf(const char *format, const QSize &size = {12, 8})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
}

/// Picture of a form file.
inline QJsonObject picture(const QJsonValue &preset)
{
    return deskforms::object("picture", {10, 10, 30, 20},
                             {{QStringLiteral("id"), QStringLiteral("logo")}, {QStringLiteral("preset"), preset}});
}

/// Source of a picture that is a file.
inline QJsonObject fileNamed(const QString &name)
{
    return {{QStringLiteral("file"), name}};
}

inline QString base64(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

inline TavroPicture &pictureOf(const Form &form)
{
    return static_cast<TavroPicture &>(*form.entries.front().object);
}

} // namespace pictureforms

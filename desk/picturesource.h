// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>

/// Pictures in form files and records: bytes in base64, or {"file": "name"} for a file beside the form or the record.
namespace picturesource {

/// Largest file that is read.
inline constexpr qint64 MostBytes = 64 * 1024 * 1024;

/// A picture, or what should have stood there.
struct Result
{
    QByteArray png;      ///< as it was given where it was PNG, encoded anew where not; empty for the empty text
    QString expectation; ///< empty where all is well
    QString where;       ///< behind the path of the value in a message
    QJsonValue found;
};

/// Whether the value has the form of a picture, whatever the picture.
bool isSource(const QJsonValue &value);
/// What isSource() asks for, in words.
QString expectation();

/// The picture that the value is. Names of files are relative to the folder and stay inside of it.
Result read(const QJsonValue &value, const QString &folder);

QJsonValue toJson(const QByteArray &png);

} // namespace picturesource

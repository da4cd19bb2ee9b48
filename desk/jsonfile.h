// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>

/// Reads JSON files and says in one line what is wrong with them: file, place, what was expected.
namespace jsonfile {

/// What a file holds, or why it cannot be used.
struct Content
{
    QJsonObject object;
    QString error; ///< empty where all is well
};

/// The object that the whole file is. A name that stands twice in one object is an error: one of the two values would
/// be lost without a word. So is half of a surrogate pair.
Content read(const QString &fileName);
/// The same from the bytes of a file; `fileName` is for the messages.
Content parse(const QByteArray &bytes, const QString &fileName);

/// "file: path: expected what, found what"
QString mismatch(const QString &fileName, const QString &path, const QString &expected, const QJsonValue &found);
/// "expected what, found what"
QString mismatch(const QString &expected, const QJsonValue &found);

} // namespace jsonfile

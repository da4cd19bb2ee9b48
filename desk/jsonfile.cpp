// SPDX-License-Identifier: MIT
#include "desk/jsonfile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QVector>

namespace jsonfile {

namespace {

// Forms are small; a file beyond this is something else, given by mistake.
constexpr qint64 MostBytes = 256 * 1024 * 1024;

QString lineAndColumn(const QByteArray &bytes, int offset)
{
    const QByteArray before = bytes.left(offset);
    const int line = before.count('\n') + 1;
    const int column = before.size() - before.lastIndexOf('\n');
    return QStringLiteral("line %1, column %2").arg(line).arg(column);
}

int endOfString(const QByteArray &json, int quote)
{
    int i = quote + 1;
    while (json.at(i) != '"')
        i += json.at(i) == '\\' ? 2 : 1;
    return i;
}

bool isName(const QByteArray &json, int afterString)
{
    int i = afterString;
    while (i < json.size() && (json.at(i) == ' ' || json.at(i) == '\t' || json.at(i) == '\n' || json.at(i) == '\r'))
        ++i;
    return i < json.size() && json.at(i) == ':';
}

// Offset of a name that stands for the second time in its object, -1 without one. The text is well-formed JSON.
int secondName(const QByteArray &json)
{
    QVector<QSet<QString>> names;
    for (int i = 0; i < json.size(); ++i) {
        switch (json.at(i)) {
        case '{':
            names.append(QSet<QString>());
            break;
        case '}':
            names.removeLast();
            break;
        case '"': {
            const int end = endOfString(json, i);
            if (isName(json, end + 1)) {
                const QByteArray quoted = json.mid(i, end - i + 1);
                const QString name = QJsonDocument::fromJson('[' + quoted + ']').array().first().toString();
                if (names.last().contains(name))
                    return i;
                names.last().insert(name);
            }
            i = end;
            break;
        }
        default:
            break;
        }
    }
    return -1;
}

QString described(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', 15);
    case QJsonValue::String: {
        constexpr int mostCharacters = 60;
        const QString text = value.toString();
        return QLatin1Char('"') +
               (text.size() > mostCharacters ? text.left(mostCharacters) + QStringLiteral("...") : text) +
               QLatin1Char('"');
    }
    case QJsonValue::Array:
        return QStringLiteral("an array of %1").arg(value.toArray().size());
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("nothing");
}

} // namespace

Content read(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, QStringLiteral("%1: cannot be read: %2").arg(fileName, file.errorString())};
    const QByteArray bytes = file.read(MostBytes + 1);
    if (bytes.size() > MostBytes)
        return {{}, QStringLiteral("%1: expected a JSON file of at most %2 bytes").arg(fileName).arg(MostBytes)};
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &problem);
    if (problem.error != QJsonParseError::NoError)
        return {{},
                QStringLiteral("%1: %2: expected JSON: %3")
                    .arg(fileName, lineAndColumn(bytes, problem.offset), problem.errorString())};
    if (!document.isObject())
        return {{}, QStringLiteral("%1: expected a JSON object, found an array").arg(fileName)};
    const int second = secondName(bytes);
    if (second >= 0)
        return {
            {},
            QStringLiteral("%1: %2: expected each name once in an object").arg(fileName, lineAndColumn(bytes, second))};
    return {document.object(), QString()};
}

QString mismatch(const QString &fileName, const QString &path, const QString &expected, const QJsonValue &found)
{
    return QStringLiteral("%1: %2: expected %3, found %4").arg(fileName, path, expected, described(found));
}

} // namespace jsonfile

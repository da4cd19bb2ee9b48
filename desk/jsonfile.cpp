// SPDX-License-Identifier: MIT
#include "desk/jsonfile.h"

#include "desk/messages.h"

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

// Text of a string in its quotation marks.
QString unquoted(const QByteArray &string)
{
    return QJsonDocument::fromJson('[' + string + ']').array().first().toString();
}

// Half of a surrogate pair can be escaped in JSON, but not written to a file: the next rewrite would lose it.
bool isWhole(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (!text.at(i).isSurrogate())
            continue;
        const bool isPair = text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (!isPair)
            return false;
        ++i;
    }
    return true;
}

bool isName(const QByteArray &json, int afterString)
{
    int i = afterString;
    while (i < json.size() && (json.at(i) == ' ' || json.at(i) == '\t' || json.at(i) == '\n' || json.at(i) == '\r'))
        ++i;
    return i < json.size() && json.at(i) == ':';
}

// Whether the name is new.
bool addName(const QString &name, QSet<QString> *names)
{
    const int before = names->size();
    names->insert(name);
    return names->size() > before;
}

struct Flaw
{
    int offset = -1; ///< -1 without a flaw
    QString expected;
};

// Looks for what well-formed JSON may hold and a value in memory cannot.
Flaw firstFlaw(const QByteArray &json)
{
    QVector<QSet<QString>> names;
    for (int i = 0; i < json.size(); ++i) {
        if (json.at(i) == '{') {
            names.append(QSet<QString>());
        } else if (json.at(i) == '}') {
            names.removeLast();
        } else if (json.at(i) == '"') {
            const int end = endOfString(json, i);
            const QByteArray string = json.mid(i, end - i + 1);
            if (string.contains('\\') && !isWhole(unquoted(string)))
                return {i, QStringLiteral("whole characters")};
            if (isName(json, end + 1) && !addName(unquoted(string), &names.last()))
                return {i, QStringLiteral("each name once in an object")};
            i = end;
        }
    }
    return {};
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
    case QJsonValue::String:
        return messages::quoted(value.toString());
    case QJsonValue::Array:
        return QStringLiteral("an array of %1").arg(value.toArray().size());
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("nothing");
}

Content failure(const QString &fileName, const QString &what)
{
    return {{}, messages::oneLine(QStringLiteral("%1: %2").arg(fileName, what))};
}

} // namespace

Content parse(const QByteArray &bytes, const QString &fileName)
{
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &problem);
    if (problem.error != QJsonParseError::NoError)
        return failure(
            fileName,
            QStringLiteral("%1: expected JSON: %2").arg(lineAndColumn(bytes, problem.offset), problem.errorString()));
    if (!document.isObject())
        return failure(fileName, QStringLiteral("expected a JSON object, found an array"));
    const Flaw flaw = firstFlaw(bytes);
    if (flaw.offset >= 0)
        return failure(fileName,
                       QStringLiteral("%1: expected %2").arg(lineAndColumn(bytes, flaw.offset), flaw.expected));
    return {document.object(), QString()};
}

Content read(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return failure(fileName, QStringLiteral("cannot be read: %1").arg(file.errorString()));
    const QByteArray bytes = file.read(MostBytes + 1);
    if (bytes.size() > MostBytes)
        return failure(fileName, QStringLiteral("expected a JSON file of at most %1 bytes").arg(MostBytes));
    return parse(bytes, fileName);
}

QString mismatch(const QString &fileName, const QString &path, const QString &expected, const QJsonValue &found)
{
    return messages::oneLine(QStringLiteral("%1: %2: %3").arg(fileName, path, mismatch(expected, found)));
}

QString mismatch(const QString &expected, const QJsonValue &found)
{
    return QStringLiteral("expected %1, found %2").arg(expected, described(found));
}

} // namespace jsonfile

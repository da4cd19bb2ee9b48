// SPDX-License-Identifier: MIT
#include "desk/messages.h"

namespace messages {

namespace {

bool breaksLine(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

QString escaped(QChar character)
{
    if (character == QLatin1Char('\n'))
        return QStringLiteral("\\n");
    if (character == QLatin1Char('\r'))
        return QStringLiteral("\\r");
    if (character == QLatin1Char('\t'))
        return QStringLiteral("\\t");
    return QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
}

} // namespace

QString oneLine(const QString &text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar character : text) {
        if (breaksLine(character))
            line += escaped(character);
        else
            line += character;
    }
    return line;
}

QString quoted(const QString &text)
{
    constexpr int mostCharacters = 60;
    QString shown = text;
    if (text.size() > mostCharacters) {
        const bool splitsPair = text.at(mostCharacters - 1).isHighSurrogate();
        shown = text.left(splitsPair ? mostCharacters - 1 : mostCharacters) + QStringLiteral("...");
    }
    return QLatin1Char('"') + oneLine(shown) + QLatin1Char('"');
}

} // namespace messages

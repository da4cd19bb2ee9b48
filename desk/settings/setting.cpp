// SPDX-License-Identifier: MIT
#include "desk/settings/setting.h"

#include "desk/picturesource.h"

#include <QJsonArray>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace {

bool isWhole(double number)
{
    return number == std::floor(number) && number >= Setting::LeastInt && number <= Setting::MostInt;
}

QVariant wholeFrom(const QJsonValue &json, double minimum, double maximum)
{
    const double number = json.toDouble();
    return json.isDouble() && isWhole(number) && number >= minimum && number <= maximum ? json.toInt() : QVariant();
}

QVariant numberFrom(const QJsonValue &json, double minimum, double maximum)
{
    const double number = json.toDouble();
    return json.isDouble() && number >= minimum && number <= maximum ? number : QVariant();
}

QVariant numbersFrom(const QJsonValue &json, double minimum, double maximum)
{
    if (!json.isArray())
        return {};
    QVariantList numbers;
    const QJsonArray array = json.toArray();
    for (const QJsonValue &entry : array) {
        numbers.append(numberFrom(entry, minimum, maximum));
        if (!numbers.last().isValid())
            return {};
    }
    return numbers;
}

QVariant textsFrom(const QJsonValue &json)
{
    if (!json.isArray())
        return {};
    QStringList texts;
    const QJsonArray array = json.toArray();
    for (const QJsonValue &entry : array) {
        if (!entry.isString())
            return {};
        texts.append(entry.toString());
    }
    return texts;
}

// One that stands in the file itself; files beside it are known to the reader.
QVariant pictureFrom(const QJsonValue &json)
{
    if (!json.isString())
        return {};
    const picturesource::Result result = picturesource::read(json, QString());
    return result.expectation.isEmpty() ? result.png : QVariant();
}

bool isHexDigit(QChar character)
{
    const char digit = character.toLatin1();
    return (digit >= '0' && digit <= '9') || (digit >= 'a' && digit <= 'f') || (digit >= 'A' && digit <= 'F');
}

// toUInt() alone takes signs, spaces and "0x" too.
QVariant colorFrom(const QString &text, int digits)
{
    if (text.size() != digits + 1 || text.at(0) != QLatin1Char('#') ||
        !std::all_of(text.begin() + 1, text.end(), isHexDigit))
        return {};
    return text.mid(1).toUInt(nullptr, 16);
}

QString colorText(unsigned int color, int digits)
{
    return QStringLiteral("#%1").arg(color, digits, 16, QLatin1Char('0'));
}

QVariant choiceFrom(const QString &name, const QVector<Setting::Choice> &choices)
{
    for (const Setting::Choice &choice : choices) {
        if (choice.name == name)
            return choice.value;
    }
    return {};
}

QJsonValue choiceName(int value, const QVector<Setting::Choice> &choices)
{
    for (const Setting::Choice &choice : choices) {
        if (choice.value == value)
            return choice.name;
    }
    return value;
}

QString rangeInWords(const Setting &setting)
{
    switch (setting.type) {
    case Setting::Type::Flag:
        return QStringLiteral("true or false");
    case Setting::Type::Integer:
        return QStringLiteral("a whole number from %1 to %2")
            .arg(setting.minimum, 0, 'f', 0)
            .arg(setting.maximum, 0, 'f', 0);
    case Setting::Type::Number:
        return QStringLiteral("a number from %1 to %2").arg(setting.minimum).arg(setting.maximum);
    case Setting::Type::Numbers:
        return QStringLiteral("a list of numbers from %1 to %2").arg(setting.minimum).arg(setting.maximum);
    case Setting::Type::Text:
        return QStringLiteral("a text");
    case Setting::Type::Texts:
        return QStringLiteral("a list of texts");
    case Setting::Type::Picture:
        return picturesource::expectation();
    case Setting::Type::Color:
        return QStringLiteral("a colour such as \"#1ba39c\"");
    case Setting::Type::AlphaColor:
        return QStringLiteral("a colour with its opacity such as \"#ff1ba39c\"");
    case Setting::Type::Choice: {
        QStringList names;
        for (const Setting::Choice &choice : setting.choices)
            names.append(choice.name);
        const QString any = QStringLiteral("one of %1, or a whole number").arg(names.join(QStringLiteral(", ")));
        if (setting.minimum == Setting::LeastInt && setting.maximum == Setting::MostInt)
            return any;
        return QStringLiteral("%1 from %2 to %3")
            .arg(any)
            .arg(setting.minimum, 0, 'f', 0)
            .arg(setting.maximum, 0, 'f', 0);
    }
    }
    return {};
}

} // namespace

QVariant Setting::fromJson(const QJsonValue &json) const
{
    switch (type) {
    case Type::Flag:
        return json.isBool() ? json.toVariant() : QVariant();
    case Type::Integer:
        return wholeFrom(json, minimum, maximum);
    case Type::Number:
        return numberFrom(json, minimum, maximum);
    case Type::Numbers:
        return numbersFrom(json, minimum, maximum);
    case Type::Text:
        return json.isString() ? json.toVariant() : QVariant();
    case Type::Texts:
        return textsFrom(json);
    case Type::Picture:
        return pictureFrom(json);
    case Type::Color:
        return colorFrom(json.toString(), 6);
    case Type::AlphaColor:
        return colorFrom(json.toString(), 8);
    case Type::Choice:
        return json.isString() ? choiceFrom(json.toString(), choices) : wholeFrom(json, minimum, maximum);
    }
    return {};
}

QJsonValue Setting::toJson(const QVariant &value) const
{
    switch (type) {
    case Type::Flag:
        return value.toBool();
    case Type::Integer:
        return value.toInt();
    case Type::Number:
        return value.toDouble();
    case Type::Numbers:
        return QJsonArray::fromVariantList(value.toList());
    case Type::Text:
        return value.toString();
    case Type::Texts:
        return QJsonArray::fromStringList(value.toStringList());
    case Type::Picture:
        return picturesource::toJson(value.toByteArray());
    case Type::Color:
        return colorText(value.toUInt(), 6);
    case Type::AlphaColor:
        return colorText(value.toUInt(), 8);
    case Type::Choice:
        return choiceName(value.toInt(), choices);
    }
    return {};
}

QString Setting::expectation() const
{
    return condition.isEmpty() ? rangeInWords(*this) : QStringLiteral("%1, %2").arg(rangeInWords(*this), condition);
}

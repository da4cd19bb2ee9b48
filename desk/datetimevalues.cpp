// SPDX-License-Identifier: MIT
#include "desk/datetimevalues.h"

#include "datetime/tavrodatetime.h"

#include <QRegularExpression>
#include <QVariant>

namespace datetimevalues {

namespace {

// Where an object keeps its texts.
constexpr char PresetProperty[] = "tavroDeskPresetText";
constexpr char ContentProperty[] = "tavroDeskContentText";

/// Null where the text does not say it.
struct Value
{
    QDate date;
    QTime time;

    // A time alone is kept on a day of its own. A check refuses what would show it.
    QDateTime dateTime() const
    {
        if (date.isNull() && time.isNull())
            return {};
        return {date.isNull() ? QDate(2000, 1, 1) : date, time.isNull() ? QTime(0, 0) : time, Qt::UTC};
    }
};

Value valueOf(const QString &text)
{
    static const QRegularExpression shape(
        QStringLiteral("\\A(?:([0-9]{4})-([0-9]{2})-([0-9]{2}))?(T)?(?:([0-9]{2}):([0-9]{2})(?::([0-9]{2}))?)?\\z"));
    const QRegularExpressionMatch match = shape.match(text);
    const auto number = [&match](int group) { return match.captured(group).toInt(); };
    const bool hasDate = !match.captured(1).isEmpty();
    const bool hasTime = !match.captured(5).isEmpty();
    // The letter stands between a date and a time.
    if (!match.hasMatch() || match.captured(4).isEmpty() == (hasDate && hasTime))
        return {};
    const QDate date(number(1), number(2), number(3));
    const QTime time(number(5), number(6), number(7));
    if ((hasDate && !date.isValid()) || (hasTime && !time.isValid()))
        return {};
    return {hasDate ? date : QDate(), hasTime ? time : QTime()};
}

// Whether a pattern shows what one of the letters stands for; letters in quotes stand for themselves.
bool shows(const QString &pattern, const QString &letters)
{
    bool isQuoted = false;
    for (const QChar character : pattern) {
        if (character == QLatin1Char('\''))
            isQuoted = !isQuoted;
        else if (!isQuoted && letters.contains(character))
            return true;
    }
    return false;
}

bool suits(const Value &value, const TavroDatetime &object)
{
    // What a pattern shows and the value does not say would be made up.
    if (object.isCustomSection()) {
        const QString pattern = object.customDatetimeFormat();
        const bool hasDate = !value.date.isNull();
        const bool hasTime = !value.time.isNull();
        return (hasDate || hasTime) && (hasDate || !shows(pattern, QStringLiteral("yMd"))) &&
               (hasTime || !shows(pattern, QStringLiteral("hHmszaA")));
    }
    return object.isTimeSection() ? !value.time.isNull() : !value.date.isNull();
}

// The text of a value, where the object still has the value that the text led to.
QString textOf(const TavroDatetime &object, const char *property, const QVariant &value)
{
    const QString text = object.property(property).toString();
    const QDateTime dateTime = value.toDateTime();
    if (valueOf(text).dateTime() == dateTime)
        return text;
    return dateTime.toString(object.isTimeSection() ? QStringLiteral("HH:mm:ss")
                                                    : QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
}

} // namespace

void setPreset(TavroDatetime &object, const QString &text)
{
    const QDateTime value = valueOf(text).dateTime();
    if (!value.isValid() && !text.isEmpty())
        return;
    object.setPresetData(value);
    object.setProperty(PresetProperty, text);
    object.setProperty(ContentProperty, text);
}

QString presetText(const TavroDatetime &object)
{
    return textOf(object, PresetProperty, object.presetData());
}

void setContent(TavroDatetime &object, const QString &text)
{
    const QDateTime value = valueOf(text).dateTime();
    object.setProperty(ContentProperty, text);
    // In a batch most dates are those of the record before.
    if (object.contentData().toDateTime() == value)
        return;
    object.setContentData(value);
    object.adjustTextStyle();
}

QString contentText(const TavroDatetime &object)
{
    return textOf(object, ContentProperty, object.contentData());
}

bool isValid(const TavroDatetime &object)
{
    const QString text = contentText(object);
    return text.isEmpty() || suits(valueOf(text), object);
}

} // namespace datetimevalues

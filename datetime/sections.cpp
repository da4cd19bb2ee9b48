// SPDX-License-Identifier: MIT
#include "datetime/sections.h"

#include <QStringView>

namespace sections {

namespace {

constexpr Places Absent = {-1, -1, -1};

// Index: DateOrderType. Year, month, day.
constexpr std::array<Places, 8> DatePlaces = {{
    {0, 1, 2},
    {2, 1, 0},
    {0, 2, 1},
    {0, 1, -1},
    {-1, 0, 1},
    {1, 0, -1},
    {-1, 1, 0},
    {0, -1, -1},
}};

// Index: TimeOrderType. Hour, minute, second.
constexpr std::array<Places, 2> TimePlaces = {{{0, 1, 2}, {0, 1, -1}}};

using Words = std::array<QStringView, 3>;
constexpr Words DateWords = {u"年", u"月", u"日"};
constexpr Words TimeWords = {u"时", u"分", u"秒"};

// Index: Datetime_Seperator_Type, the first two have words instead.
constexpr std::array<QStringView, 5> Marks = {u"", u"", u"-", u"/", u":"};

template <std::size_t size>
Places entryOf(const std::array<Places, size> &table, int order)
{
    return order >= 0 && order < static_cast<int>(size) ? table[static_cast<std::size_t>(order)] : Absent;
}

// Index of the section at a place, -1 without one.
int sectionAt(const Places &places, int place)
{
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i] == place)
            return static_cast<int>(i);
    }
    return -1;
}

QVector<Label> withWords(const Places &places, const Words &words, bool isShown)
{
    QVector<Label> labels;
    for (int place = 0, section; (section = sectionAt(places, place)) >= 0; ++place) {
        labels.append({true, QString()});
        labels.append({false, isShown ? words[static_cast<std::size_t>(section)].toString() : QStringLiteral("  ")});
    }
    return labels;
}

QVector<Label> withMarks(const Places &places, Datetime_Seperator_Type type, bool isShown)
{
    QVector<Label> labels;
    for (int place = 0; sectionAt(places, place) >= 0; ++place) {
        if (place > 0)
            labels.append({false, isShown ? Marks[static_cast<std::size_t>(type)].toString() : QStringLiteral(" ")});
        labels.append({true, QString()});
    }
    return labels;
}

QVector<Label> labelsOf(const Places &places, Datetime_Seperator_Type type, bool isShown,
                        Datetime_Seperator_Type typeOfWords, const Words &words)
{
    if (type == typeOfWords)
        return withWords(places, words, isShown);
    if (type >= Sep_Dash && type <= Sep_Colon)
        return withMarks(places, type, isShown);
    return {};
}

} // namespace

Places placesOf(DateOrderType order)
{
    return entryOf(DatePlaces, order);
}

Places placesOf(TimeOrderType order)
{
    return entryOf(TimePlaces, order);
}

QVector<Label> dateLabels(const Places &places, Datetime_Seperator_Type type, bool isShown)
{
    return labelsOf(places, type, isShown, Sep_ChineseDate, DateWords);
}

QVector<Label> timeLabels(const Places &places, Datetime_Seperator_Type type, bool isShown)
{
    return labelsOf(places, type, isShown, Sep_ChineseTime, TimeWords);
}

} // namespace sections

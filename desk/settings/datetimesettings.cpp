// SPDX-License-Identifier: MIT
#include "desk/settings/datetimesettings.h"

#include "datetime/tavrodatetime.h"
#include "desk/datetimevalues.h"
#include "desk/settings/commonsettings.h"
#include "desk/settings/settingmaker.h"

#include <algorithm>

namespace datetimesettings {

namespace {

using settingmaker::choosing;
using settingmaker::member;
using settingmaker::named;
using settingmaker::ranged;
using D = TavroDatetime;
using Type = Setting::Type;
using Settings = QVector<Setting>;

// Where an object keeps the widths that a file gave it, and what they came to in pixels.
constexpr char MillimetresProperty[] = "tavroDeskSections";
constexpr char PixelsProperty[] = "tavroDeskSectionPixels";

constexpr double MostMillimetres = 10000;

// Orders of times in a setting, which the library counts from 0 like those of dates.
constexpr int HoursMinutesSeconds = -1;
constexpr int HoursMinutes = -2;

// Dates and times have orders and words of their own; those of the other would show nothing.
void setFormat(D &object, int format)
{
    const bool wasTime = object.isTimeSection();
    object.setDateTimeFormat(static_cast<Datetime_Format>(format));
    if (object.isTimeSection() == wasTime)
        return;
    if (object.isTimeSection())
        object.setTimeOrderType(Order_HMS);
    else
        object.setDateOrderType(Order_YMD);
    object.syncDateTimeEditGeometry();
    if (object.isTimeSection() && object.seperatorType() == Sep_ChineseDate)
        object.setSeperatorType(Sep_ChineseTime);
    else if (!object.isTimeSection() && object.seperatorType() == Sep_ChineseTime)
        object.setSeperatorType(Sep_ChineseDate);
}

Setting format()
{
    Setting setting = choosing(named("format", "Format", "Value", Type::Choice), {{"capitalFormal", Dt_CapitalFormal},
                                                                                  {"capital", Dt_Capital},
                                                                                  {"numeral", Dt_Numeral},
                                                                                  {"arabicPadded", Dt_ArabicPadded},
                                                                                  {"arabic", Dt_Arabic},
                                                                                  {"time", Dt_Time},
                                                                                  {"custom", Dt_Custom}});
    setting.get = [](const TavroPrototype &object) { return int(static_cast<const D &>(object).dateTimeFormat()); };
    setting.set = [](TavroPrototype &object, const QVariant &value, double) {
        setFormat(static_cast<D &>(object), value.toInt());
    };
    // Other formats have no texts to show.
    setting = ranged(setting, Dt_CapitalFormal, Dt_Custom);
    setting.bringsOthers = true;
    return setting;
}

Setting order()
{
    Setting setting = choosing(named("order", "Order", "Sections", Type::Choice), {{"ymd", Order_YMD},
                                                                                   {"dmy", Order_DMY},
                                                                                   {"ydm", Order_YDM},
                                                                                   {"ym", Order_YM},
                                                                                   {"md", Order_MD},
                                                                                   {"my", Order_MY},
                                                                                   {"dm", Order_DM},
                                                                                   {"y", Order_Y},
                                                                                   {"hms", HoursMinutesSeconds},
                                                                                   {"hm", HoursMinutes}});
    setting.get = [](const TavroPrototype &object) {
        const auto &date = static_cast<const D &>(object);
        if (date.isCustomSection())
            return int(Order_YMD);
        return date.isTimeSection() ? HoursMinutesSeconds - date.orderType() : date.orderType();
    };
    setting.set = [](TavroPrototype &object, const QVariant &value, double) {
        auto &date = static_cast<D &>(object);
        const bool isOfTimes = value.toInt() <= HoursMinutesSeconds;
        if (date.isTimeSection() == isOfTimes)
            date.setOrderType(isOfTimes ? HoursMinutesSeconds - value.toInt() : value.toInt());
    };
    setting.condition = QStringLiteral("that the format can have");
    return ranged(setting, HoursMinutes, Order_Y);
}

// Pixels of a millimetre, as the object has them.
double scaleOf(const D &object)
{
    const double millimetres = object.phyRect().width();
    return millimetres > 0 ? object.boundingRect().width() / millimetres : 1;
}

// All that the object has in a row; a pattern has none.
QList<int> pixelsOf(const D &object)
{
    return object.isCustomSection() ? QList<int>() : object.splitSizes();
}

// Whether no value has more than its share. Values and separators alternate.
bool isShared(const QList<int> &pixels)
{
    if (pixels.isEmpty())
        return true;
    int least = pixels.first();
    int most = pixels.first();
    for (int i = 0; i < pixels.size(); i += 2) {
        least = std::min(least, pixels.at(i));
        most = std::max(most, pixels.at(i));
    }
    // What is left over goes to one of them.
    return most - least <= pixels.size();
}

QVariant sectionsOf(const D &object)
{
    const QList<int> pixels = pixelsOf(object);
    const QVariantList given = object.property(MillimetresProperty).toList();
    if (!given.isEmpty() && object.property(PixelsProperty).value<QList<int>>() == pixels)
        return given;
    QVariantList millimetres;
    if (!isShared(pixels)) {
        for (const int width : pixels)
            millimetres.append(width / scaleOf(object));
    }
    return millimetres;
}

// Each end is rounded, not each width, so that the last section stands as well as the first.
QList<int> inPixels(const QVariantList &millimetres, double scale)
{
    QList<int> pixels;
    double end = 0;
    int x = 0;
    for (const QVariant &width : millimetres) {
        end += width.toDouble() * scale;
        pixels.append(qRound(end) - x);
        x += pixels.last();
    }
    return pixels;
}

void setSections(D &object, const QVariantList &millimetres, double scale)
{
    const QList<int> pixels = pixelsOf(object);
    if (millimetres.isEmpty()) {
        QList<int> shares;
        for (int i = 0; i < pixels.size(); ++i)
            shares.append(i % 2 == 0 ? object.boundingRect().toRect().width() : pixels.at(i));
        object.setSplitSizes(shares);
    } else if (millimetres.size() == pixels.size()) {
        object.setSplitSizes(inPixels(millimetres, scale));
    } else {
        return;
    }
    object.setProperty(MillimetresProperty, millimetres);
    object.setProperty(PixelsProperty, QVariant::fromValue(pixelsOf(object)));
}

Setting sections()
{
    Setting setting =
        ranged(named("sections", "Widths of the sections (mm)", "Sections", Type::Numbers), 0, MostMillimetres);
    setting.get = [](const TavroPrototype &object) { return sectionsOf(static_cast<const D &>(object)); };
    setting.set = [](TavroPrototype &object, const QVariant &value, double scale) {
        setSections(static_cast<D &>(object), value.toList(), scale);
    };
    setting.condition = QStringLiteral("one for each section and separator");
    return setting;
}

Setting preset()
{
    Setting setting = named("preset", "Preset", "Value", Type::Text);
    setting.get = [](const TavroPrototype &object) {
        return datetimevalues::presetText(static_cast<const D &>(object));
    };
    setting.set = [](TavroPrototype &object, const QVariant &value, double) {
        datetimevalues::setPreset(static_cast<D &>(object), value.toString());
    };
    setting.condition = QStringLiteral("a date and time such as 2022-01-05, 2022-01-05T08:05:09 or 08:05:09");
    return setting;
}

} // namespace

const QVector<Setting> &ofDatetimes()
{
    static const Settings settings =
        commonsettings::ofObjects() + commonsettings::ofBoxes() + commonsettings::ofTexts() +
        Settings{
            format(),
            member("customPattern", "Pattern", "Value", Type::Text, &D::customDatetimeFormat,
                   &D::setCustomDatetimeFormat),
            choosing(
                member("separator", "Separators", "Sections", Type::Choice, &D::seperatorType, &D::setSeperatorType),
                {{"chineseDate", Sep_ChineseDate},
                 {"chineseTime", Sep_ChineseTime},
                 {"dash", Sep_Dash},
                 {"slash", Sep_Slash},
                 {"colon", Sep_Colon}}),
            member("showSeparator", "Separators shown", "Sections", Type::Flag, &D::isShowSeperator,
                   &D::setIsShowSeperator),
            order(),
            member("realTime", "Follows the clock", "Value", Type::Flag, &D::isRealTime, &D::setIsRealTime),
            preset(),
            // The widths of the separators come from their font and texts, so the row has to be complete.
            sections(),
        };
    return settings;
}

void start(TavroDatetime &object)
{
    object.setDateTimeFormat(object.dateTimeFormat());
    object.setContentData(QVariant());
}

} // namespace datetimesettings

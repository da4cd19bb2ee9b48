// SPDX-License-Identifier: MIT
#include "desk/settings/commonsettings.h"

#include "core/tavrotext.h"
#include "desk/settings/settingmaker.h"

#include <QTransform>
#include <algorithm>

namespace commonsettings {

namespace {

using settingmaker::choosing;
using settingmaker::member;
using settingmaker::named;
using settingmaker::ranged;
using Type = Setting::Type;
using Settings = QVector<Setting>;

Setting rotation()
{
    Setting setting = member("rotation", "Rotation", "Geometry", Type::Integer, &TavroPrototype::getRotateAngle,
                             &TavroPrototype::setRotateAngle);
    // The angle is added to the transform that is there, so a new angle starts from the upright object.
    setting.set = [](TavroPrototype &object, const QVariant &value, double) {
        object.setRotateAngle(value.toInt());
        object.setTransform(QTransform());
        object.setPos(0, 0);
        object.updateObjRotation();
    };
    return ranged(setting, -360, 360);
}

Setting zValue()
{
    Setting setting = named("z", "Stacking", "Geometry", Type::Number);
    setting.get = [](const TavroPrototype &object) { return object.zValue(); };
    setting.set = [](TavroPrototype &object, const QVariant &value, double) { object.setZValue(value.toDouble()); };
    // Below the height to which an object is raised while the pointer is on it.
    return ranged(setting, -999, 999);
}

Setting binding(const char *key, const char *label, QString _Database_Table_Col::*name)
{
    Setting setting = named(key, label, "Database", Type::Text);
    setting.get = [name](const TavroPrototype &object) { return object.tableColDB().*name; };
    setting.set = [name](TavroPrototype &object, const QVariant &value, double) {
        _Database_Table_Col column = object.tableColDB();
        column.*name = value.toString();
        object.bindToDB(column);
    };
    return setting;
}

} // namespace

const Settings &ofObjects()
{
    using P = TavroPrototype;
    static const Settings settings{
        member("id", "Identifier", "Object", Type::Text, &P::tavroID, &P::setTavroID),
        binding("table", "Table", &_Database_Table_Col::table),
        binding("column", "Column", &_Database_Table_Col::column),
        member("print", "Printed", "Behaviour", Type::Flag, &P::isPrint, &P::setIsPrint),
        member("locked", "Locked", "Behaviour", Type::Flag, &P::isLocked, &P::setIsLocked),
        member("visible", "Visible while filling in", "Behaviour", Type::Flag, &P::isObjVisible, &P::setObjVisible),
        member("enabled", "Enabled while filling in", "Behaviour", Type::Flag, &P::isObjEnabled, &P::setObjEnabled),
        ranged(member("tabOrder", "Input order", "Behaviour", Type::Integer, &P::tabOrder, &P::setTabOrder), 0, 99999),
        member("proportional", "Proportional", "Geometry", Type::Flag, &P::isProportional, &P::setProportional),
        ranged(member("initialAngle", "Initial angle", "Geometry", Type::Integer, &P::getIniAngle, &P::setIniAngle),
               -360, 360),
        rotation(),
        zValue(),
    };
    return settings;
}

const Settings &ofBoxes()
{
    using P = TavroPrototype;
    static const Settings settings{
        member("required", "Required", "Behaviour", Type::Flag, &P::isRequired, &P::setIsRequired),
        member("readOnly", "Read-only", "Behaviour", Type::Flag, &P::isReadOnly, &P::setIsReadOnly),
        member("resetAtRenew", "Reset on a new form", "Behaviour", Type::Flag, &P::isResetAtRenew,
               &P::setIsResetAtRenew),
        member("border", "Border on screen", "Look", Type::Flag, &P::hasBorder, &P::setHasBorder),
        ranged(member("borderWidth", "Border width (px)", "Look", Type::Integer, &P::borderWpx, &P::setBorderWpx), 0,
               100),
        member("borderColor", "Border colour", "Look", Type::Color, &P::borderColor, &P::setBorderColor),
        ranged(member("backgroundStyle", "Background style", "Look", Type::Integer, &P::backgroundStyle,
                      &P::setBackgroundStyle),
               0, 99),
        member("backgroundColor", "Background colour", "Look", Type::Color, &P::backgroundColor,
               &P::setBackgroundColor),
    };
    return settings;
}

const Settings &ofFrames()
{
    static const Settings settings = without(ofBoxes(), {"borderWidth", "backgroundStyle", "backgroundColor"});
    return settings;
}

const Settings &ofTexts()
{
    using T = TavroText;
    static const Settings settings{
        member("fontFamily", "Font", "Text", Type::Text, &T::fontFamily, &T::setFontFamily),
        ranged(member("fontSize", "Font size (pt)", "Text", Type::Number, &T::fontPtSz, &T::setFontPtSz), 0.5, 500),
        member("bold", "Bold", "Text", Type::Flag, &T::isBold, &T::setIsBold),
        member("italic", "Italic", "Text", Type::Flag, &T::isItalic, &T::setIsItalic),
        member("underline", "Underline (on screen only)", "Text", Type::Flag, &T::isUnderline, &T::setIsUnderline),
        member("strikeOut", "Strike-out", "Text", Type::Flag, &T::isStrikeOut, &T::setIsStrikeOut),
        member("fontColor", "Text colour", "Text", Type::Color, &T::fontColor, &T::setFontColor),
        choosing(member("align", "Alignment", "Text", Type::Choice, &T::horAlign, &T::setHorAlign),
                 {{"left", Qt::AlignLeft},
                  {"right", Qt::AlignRight},
                  {"center", Qt::AlignHCenter},
                  {"justify", Qt::AlignJustify}}),
        choosing(member("verticalAlign", "Vertical alignment", "Text", Type::Choice, &T::verAlign, &T::setVerAlign),
                 {{"top", Qt::AlignTop}, {"bottom", Qt::AlignBottom}, {"center", Qt::AlignVCenter}}),
        choosing(member("fill", "Filling rule", "Text", Type::Choice, &T::textFillingRule, &T::setTextFillingRule),
                 {{"wrap", Fill_Wrap},
                  {"shrink", Fill_Shrink},
                  {"wrapAndShrink", Fill_WrapShrink},
                  {"noWrap", Fill_NoWrap}}),
    };
    return settings;
}

Settings without(const Settings &settings, std::initializer_list<const char *> keys)
{
    Settings kept;
    for (const Setting &setting : settings) {
        const auto isOfKey = [&setting](const char *key) { return setting.key == QLatin1String(key); };
        if (std::none_of(keys.begin(), keys.end(), isOfKey))
            kept.append(setting);
    }
    return kept;
}

Setting preset(const char *key, const char *label)
{
    Setting setting = named(key, label, "Value", Type::Text);
    setting.get = [](const TavroPrototype &object) { return object.presetData().toString(); };
    setting.set = [](TavroPrototype &object, const QVariant &value, double) {
        object.setPresetData(value);
        object.setContentData(value);
    };
    return setting;
}

} // namespace commonsettings

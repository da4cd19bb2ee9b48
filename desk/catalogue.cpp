// SPDX-License-Identifier: MIT
#include "desk/catalogue.h"

#include "entry/tavroedit.h"
#include "entry/tavrolabel.h"
#include "graphic/tavroline.h"
#include "graphic/tavrorect.h"

#include <QTransform>
#include <initializer_list>
#include <type_traits>
#include <utility>

namespace {

using Type = Setting::Type;
using Settings = QVector<Setting>;

// How a value of an interface travels in a QVariant: enumerations and flags as integers.
template <typename Value, bool isEnumeration = std::is_enum_v<Value>>
struct Carried
{
    using As = Value;
};
template <typename Value>
struct Carried<Value, true>
{
    using As = int;
};
template <>
struct Carried<Qt::Alignment, false>
{
    using As = int;
};

// A setting that is one getter and one setter of a class.
template <typename Owner, typename Value, typename Setter, typename Given>
Setting member(const char *key, const char *label, const char *group, Type type, Value (Owner::*get)() const,
               void (Setter::*set)(Given))
{
    using As = typename Carried<Value>::As;
    Setting setting;
    setting.key = QString::fromLatin1(key);
    setting.label = QString::fromLatin1(label);
    setting.group = QString::fromLatin1(group);
    setting.type = type;
    setting.get = [get](const TavroPrototype &object) {
        return QVariant::fromValue(static_cast<As>((static_cast<const Owner &>(object).*get)()));
    };
    setting.set = [set](TavroPrototype &object, const QVariant &value, double) {
        (static_cast<Setter &>(object).*set)(static_cast<Value>(value.value<As>()));
    };
    return setting;
}

Setting ranged(Setting setting, double minimum, double maximum)
{
    setting.minimum = minimum;
    setting.maximum = maximum;
    return setting;
}

Setting choosing(Setting setting, std::initializer_list<std::pair<const char *, int>> choices)
{
    for (const auto &[name, value] : choices)
        setting.choices.append({QString::fromLatin1(name), value});
    return ranged(setting, Setting::LeastInt, Setting::MostInt);
}

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
    Setting setting;
    setting.key = QStringLiteral("z");
    setting.label = QStringLiteral("Stacking");
    setting.group = QStringLiteral("Geometry");
    setting.type = Type::Number;
    setting.get = [](const TavroPrototype &object) { return object.zValue(); };
    setting.set = [](TavroPrototype &object, const QVariant &value, double) { object.setZValue(value.toDouble()); };
    // Below the height to which an object is raised while the pointer is on it.
    return ranged(setting, -999, 999);
}

Setting binding(const char *key, const char *label, QString _Database_Table_Col::*name)
{
    Setting setting;
    setting.key = QString::fromLatin1(key);
    setting.label = QString::fromLatin1(label);
    setting.group = QStringLiteral("Database");
    setting.type = Type::Text;
    setting.get = [name](const TavroPrototype &object) { return object.tableColDB().*name; };
    setting.set = [name](TavroPrototype &object, const QVariant &value, double) {
        _Database_Table_Col column = object.tableColDB();
        column.*name = value.toString();
        object.bindToDB(column);
    };
    return setting;
}

const Settings &commonSettings()
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

template <typename Stroked>
Settings strokeSettings()
{
    Setting width = ranged(
        member("lineWidth", "Line width (mm)", "Line", Type::Number, &Stroked::lineWidthPhy, &Stroked::setLineWidthPhy),
        0, 100);
    width.set = [](TavroPrototype &object, const QVariant &value, double scale) {
        auto &stroked = static_cast<Stroked &>(object);
        stroked.setLineWidthPhy(value.toDouble());
        stroked.setLineWidthPix(value.toDouble() * scale);
    };
    return commonSettings() + Settings{width,
                                       member("lineColor", "Line colour", "Line", Type::AlphaColor, &Stroked::lineColor,
                                              &Stroked::setLineColor),
                                       // The type of pen styles holds no other numbers.
                                       ranged(choosing(member("lineStyle", "Line style", "Line", Type::Choice,
                                                              &Stroked::lineStyle, &Stroked::setLineStyle),
                                                       {{"none", Qt::NoPen},
                                                        {"solid", Qt::SolidLine},
                                                        {"dash", Qt::DashLine},
                                                        {"dot", Qt::DotLine},
                                                        {"dashDot", Qt::DashDotLine},
                                                        {"dashDotDot", Qt::DashDotDotLine}}),
                                              Qt::NoPen, Qt::DashDotDotLine)};
}

const Settings &boxSettings()
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

const Settings &textSettings()
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
        member("prefix", "Prefix", "Text", Type::Text, &T::prefix, &T::setPrefix),
    };
    return settings;
}

// The text with which the object starts and to which a new form goes back.
Setting preset(const char *key, const char *label)
{
    Setting setting;
    setting.key = QString::fromLatin1(key);
    setting.label = QString::fromLatin1(label);
    setting.group = QStringLiteral("Value");
    setting.type = Type::Text;
    setting.get = [](const TavroPrototype &object) { return object.presetData().toString(); };
    setting.set = [](TavroPrototype &object, const QVariant &value, double) {
        object.setPresetData(value);
        object.setContentData(value);
    };
    return setting;
}

Settings entrySettings(const Setting &presetSetting)
{
    using E = TavroEdit;
    // The preset stands last: texts are converted when they are set, by the settings of that moment.
    return commonSettings() + boxSettings() + textSettings() +
           Settings{
               choosing(member("format", "Format", "Value", Type::Choice, &E::formatType, &E::setFormatType),
                        {{"text", Format_Text},
                         {"number", Format_Number},
                         {"rmbCapital", Format_RmbCapital},
                         {"rmbCapitalAlt", Format_RmbCapitalAlt},
                         {"rmbCapitalYuan", Format_RmbCapitalYuan},
                         {"usdCapital", Format_UsdCapital},
                         {"rmbCapitalNoSuffix", Format_RmbCapitalNoSuffix},
                         {"englishAmount", Format_EnglishAmount},
                         {"serialNumber", Format_SerialNumber},
                         {"freeText", Format_FreeText},
                         {"customized", Format_Customized}}),
               member("numberPattern", "Number pattern", "Value", Type::Text, &E::customizedFormat,
                      &E::setCustomizedFormat),
               member("zeroClear", "Zero shows nothing", "Value", Type::Flag, &E::isZeroClear, &E::setIsZeroClear),
               member("zeroBeforeThousand", "Zero before thousands", "Value", Type::Flag,
                      &E::getAddZeroBeforeThousandState, &E::setAddZeroBeforeThousandState),
               member("zeroBeforeJiao", "Zero before tenths", "Value", Type::Flag, &E::getAddZeroBeforeJiaoState,
                      &E::setAddZeroBeforeJiaoState),
               member("pattern", "Must match", "Value", Type::Text, &E::usrRegExpPattern, &E::setUsrRegExpPattern),
               member("placeholder", "Hint", "Value", Type::Text, &E::placeholder, &E::setPlaceholder),
               presetSetting,
           };
}

struct Kind
{
    QString name;
    ObjType type;
    Settings settings;
};

const QVector<Kind> &kinds()
{
    static const QVector<Kind> all{
        {QStringLiteral("line"), Obj_Line, strokeSettings<TavroLine>()},
        {QStringLiteral("rect"), Obj_Rect, strokeSettings<TavroRect>()},
        {QStringLiteral("edit"), Obj_Edit, entrySettings(preset("preset", "Preset"))},
        {QStringLiteral("label"), Obj_Label, entrySettings(preset("text", "Text"))},
    };
    return all;
}

} // namespace

namespace catalogue {

ObjType kindOf(const QString &name)
{
    for (const Kind &kind : kinds()) {
        if (kind.name == name)
            return kind.type;
    }
    return Obj_None;
}

QString nameOf(ObjType kind)
{
    for (const Kind &known : kinds()) {
        if (known.type == kind)
            return known.name;
    }
    return {};
}

QStringList kindNames()
{
    QStringList names;
    for (const Kind &kind : kinds())
        names.append(kind.name);
    return names;
}

const QVector<Setting> &settingsOf(ObjType kind)
{
    static const Settings none;
    for (const Kind &known : kinds()) {
        if (known.type == kind)
            return known.settings;
    }
    return none;
}

} // namespace catalogue

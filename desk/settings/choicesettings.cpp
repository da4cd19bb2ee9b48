// SPDX-License-Identifier: MIT
#include "desk/settings/choicesettings.h"

#include "choice/tavrocheckbox.h"
#include "choice/tavrocombx.h"
#include "desk/settings/commonsettings.h"
#include "desk/settings/settingmaker.h"

#include <algorithm>

namespace choicesettings {

namespace {

using settingmaker::choosing;
using settingmaker::followed;
using settingmaker::member;
using settingmaker::named;
using Type = Setting::Type;
using Settings = QVector<Setting>;

Setting style()
{
    return choosing(
        member("style", "Style", "Look", Type::Choice, &TavroCheckBox::checkStyle, &TavroCheckBox::setCheckStyle),
        {{"tick", EmptyTick},
         {"tickOrCross", CrossTick},
         {"circle", EmptyCircle},
         {"circleOrCross", CrossCircle},
         {"block", EmptyTickBlock}});
}

// Ticked or not: the third state of a check box is never that of a new form.
Setting ticked()
{
    Setting setting = named("preset", "Preset", "Value", Type::Flag);
    setting.get = [](const TavroPrototype &object) { return object.presetData().toInt() != Qt::Unchecked; };
    setting.set = [](TavroPrototype &object, const QVariant &value, double) {
        object.setPresetData(static_cast<int>(value.toBool() ? Qt::Checked : Qt::Unchecked));
    };
    return setting;
}

Setting options()
{
    Setting setting = named("options", "Options", "Value", Type::Texts);
    setting.get = [](const TavroPrototype &object) { return static_cast<const TavroCombx &>(object).optionList(); };
    setting.set = [](TavroPrototype &object, const QVariant &value, double) {
        static_cast<TavroCombx &>(object).setOptionList(value.toStringList());
    };
    return setting;
}

// In input mode the frame is that of the combo box, which has a colour of its own.
void syncFrame(TavroCombx &object)
{
    object.setBorderColor(object.hasBorder() ? QColor(object.borderColor()).name() : QStringLiteral("transparent"));
}

Settings framesOfComboBoxes()
{
    Settings settings = commonsettings::ofFrames();
    for (Setting &setting : settings) {
        if (setting.group == QLatin1String("Look"))
            setting = followed<TavroCombx>(setting, syncFrame);
    }
    return settings;
}

} // namespace

QVector<Setting> ofCheckBoxes()
{
    return commonsettings::ofObjects() + commonsettings::without(commonsettings::ofFrames(), {"readOnly"}) +
           Settings{
               style(),
               member("group", "Group", "Value", Type::Text, &TavroCheckBox::checkGroupId,
                      &TavroCheckBox::setCheckGroupId),
               ticked(),
           };
}

QVector<Setting> ofComboBoxes()
{
    using C = TavroCombx;
    return commonsettings::ofObjects() + framesOfComboBoxes() + commonsettings::ofTexts() +
           Settings{
               member("prefix", "Prefix", "Text", Type::Text, &C::prefix, &C::setPrefix),
               options(),
               member("optionsFromDB", "Options from the database", "Value", Type::Flag, &C::isOptionsFromDB,
                      &C::setIsOptionsFromDB),
               commonsettings::preset("preset", "Preset"),
           };
}

bool isNamed(Check_Style style)
{
    static const QVector<Setting::Choice> named = choicesettings::style().choices;
    return std::any_of(named.begin(), named.end(),
                       [style](const Setting::Choice &choice) { return choice.value == style; });
}

} // namespace choicesettings

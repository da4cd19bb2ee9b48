// SPDX-License-Identifier: MIT
#include "desk/settings/entrysettings.h"

#include "desk/settings/commonsettings.h"
#include "desk/settings/settingmaker.h"
#include "entry/tavroedit.h"

namespace entrysettings {

namespace {

using settingmaker::choosing;
using settingmaker::member;
using Type = Setting::Type;
using Settings = QVector<Setting>;

Settings entrySettings(const Setting &presetSetting)
{
    using E = TavroEdit;
    return commonsettings::ofObjects() + commonsettings::ofBoxes() + commonsettings::ofTexts() +
           Settings{
               member("prefix", "Prefix", "Text", Type::Text, &E::prefix, &E::setPrefix),
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

} // namespace

QVector<Setting> ofEdits()
{
    return entrySettings(commonsettings::preset("preset", "Preset"));
}

QVector<Setting> ofLabels()
{
    return entrySettings(commonsettings::preset("text", "Text"));
}

} // namespace entrysettings

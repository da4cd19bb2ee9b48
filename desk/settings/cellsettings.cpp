// SPDX-License-Identifier: MIT
#include "desk/settings/cellsettings.h"

#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "desk/settings/commonsettings.h"
#include "desk/settings/settingmaker.h"

namespace cellsettings {

namespace {

using settingmaker::choosing;
using settingmaker::followed;
using settingmaker::member;
using settingmaker::named;
using settingmaker::ranged;
using Type = Setting::Type;
using Settings = QVector<Setting>;

constexpr int HighestUnit = 11;
constexpr double MostMillimetres = 100;

// The library leaves places and cells as they were after most settings. Here they follow at once, so that an object
// shows its content whatever the order of its settings.

void follow(TavroSeperateEdit &edit)
{
    edit.syncRectGeometry();
    edit.syncDigitsList();
}

// The cursor does not find a limit by itself, and whoever types left of it writes above it.
void follow(TavroFinancialEdit &edit)
{
    edit.syncEditableGeometry();
    edit.updateIndxOfLimitUnit();
    edit.resetCurosr();
    // A limit outside of the cells limits nothing, and the cursor does not go there.
    if (edit.isShowLimit())
        edit.moveCursorTo(edit.unitEnd() - edit.limitUnit());
    edit.syncDigitList();
}

// Only an amount has a cell for each unit; the cells of the other modes stay.
void setRange(TavroSeperateEdit &edit, const _UnitRange &range)
{
    const int count = edit.numOfEditable();
    edit.setUnitRange(range);
    if (edit.seperateMode() != Sep_Amount)
        edit.setNumOfEditable(count);
    follow(edit);
}

void setRange(TavroFinancialEdit &edit, const _UnitRange &range)
{
    edit.setUnitRange(range);
    follow(edit);
}

// One end of the range of units. Objects refuse a range that is upside down, and stay as they are.
template <typename Edit>
Setting rangeEnd(Setting setting, int _UnitRange::*end, const char *condition)
{
    setting.get = [end](const TavroPrototype &object) { return static_cast<const Edit &>(object).unitRange().*end; };
    setting.set = [end](TavroPrototype &object, const QVariant &value, double) {
        auto &edit = static_cast<Edit &>(object);
        _UnitRange range = edit.unitRange();
        range.*end = value.toInt();
        setRange(edit, range);
    };
    setting.condition = QString::fromLatin1(condition);
    return setting;
}

// The highest unit stands first: a new object starts at 分, so that every highest unit is accepted.
template <typename Edit>
Settings unitRange(int leastHighest)
{
    return {
        rangeEnd<Edit>(ranged(named("highestUnit", "Highest unit", "Cells", Type::Integer), leastHighest, HighestUnit),
                       &_UnitRange::end, "not below lowestUnit"),
        rangeEnd<Edit>(ranged(named("lowestUnit", "Lowest unit", "Cells", Type::Integer), 0, HighestUnit),
                       &_UnitRange::start, "not above highestUnit")};
}

Setting separateMode()
{
    using S = TavroSeperateEdit;
    Setting mode = followed<S>(
        choosing(
            member("mode", "Content of the cells", "Cells", Type::Choice, &S::seperateMode, &S::setSeperateMode),
            {{"amount", Sep_Amount}, {"digits18", Sep_Digits18}, {"digits6", Sep_Digits6}, {"chars6", Sep_Chars6}}),
        follow);
    mode.bringsOthers = true;
    return mode;
}

Settings commonOfCells()
{
    return commonsettings::ofObjects() + commonsettings::ofBoxes() + commonsettings::ofTexts();
}

} // namespace

QVector<Setting> ofSeparatedEdits()
{
    using S = TavroSeperateEdit;
    constexpr int leastHighest = 2;
    return commonOfCells() + Settings{separateMode()} + unitRange<S>(leastHighest) +
           Settings{
               followed<S>(ranged(member("separatorWidth", "Gap between cells (mm)", "Cells", Type::Number,
                                         &S::phyWidthOfSeperator, &S::setPhyWidthOfSeperator),
                                  0, MostMillimetres),
                           follow),
               member("unitWords", "Unit words on screen", "Cells", Type::Flag, &S::isDrawMonetaryUnit,
                      &S::setIsDrawMonetaryUnit),
               choosing(member("prefixMark", "Mark in front", "Cells", Type::Choice, &S::prefixMode, &S::setPrefixMode),
                        {{"none", Prefix_None}, {"cross", Prefix_Cross}, {"zero", Prefix_Zero}}),
               followed<S>(member("prefixAll", "Mark in all cells in front", "Cells", Type::Flag, &S::isPrefixAll,
                                  &S::setIsPrefixAll),
                           follow),
               commonsettings::preset("preset", "Preset"),
           };
}

QVector<Setting> ofFinancialEdits()
{
    using F = TavroFinancialEdit;
    constexpr int leastHighest = 1;
    return commonOfCells() + unitRange<F>(leastHighest) +
           Settings{
               followed<F>(ranged(member("unitRowHeight", "Height of the unit words (mm)", "Cells", Type::Number,
                                         &F::unitRowPhyHeight, &F::setUnitRowPhyHeight),
                                  0, MostMillimetres),
                           follow),
               member("unitWords", "Unit words on screen", "Cells", Type::Flag, &F::isDrawMonetaryUnit,
                      &F::setIsDrawMonetaryUnit),
               choosing(member("currency", "Currency sign", "Cells", Type::Choice, &F::currencySign, &F::setCurrency),
                        {{"none", Currency_None},
                         {"yuan", Currency_Yuan},
                         {"dollar", Currency_Dollar},
                         {"pound", Currency_Pound},
                         {"cent", Currency_Cent},
                         {"usd", Currency_Usd}}),
               followed<F>(member("showLimit", "Limited", "Cells", Type::Flag, &F::isShowLimit, &F::setIsShowLimit),
                           follow),
               // Empties the content, so it stands before the preset.
               followed<F>(ranged(member("limitUnit", "Highest unit to fill in", "Cells", Type::Integer, &F::limitUnit,
                                         &F::setLimitUnit),
                                  0, HighestUnit),
                           follow),
               followed<F>(member("showZero", "Zeros of an amount below 1", "Cells", Type::Flag, &F::isShowZero,
                                  &F::setIsShowZero),
                           follow),
               commonsettings::preset("preset", "Preset"),
           };
}

} // namespace cellsettings

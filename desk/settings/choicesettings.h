// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotypes.h"
#include "desk/settings/setting.h"

/// Settings of choices: check boxes and combo boxes.
namespace choicesettings {

QVector<Setting> ofCheckBoxes();
QVector<Setting> ofComboBoxes();

/// Whether check boxes of the style show a mark. Those of a number without a name show nothing.
bool isNamed(Check_Style style);

} // namespace choicesettings

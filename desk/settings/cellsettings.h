// SPDX-License-Identifier: MIT
#pragma once

#include "desk/settings/setting.h"

/// Settings of rows of cells: separated-cell edits and financial edits.
namespace cellsettings {

QVector<Setting> ofSeparatedEdits();
QVector<Setting> ofFinancialEdits();

} // namespace cellsettings

// SPDX-License-Identifier: MIT
#pragma once

#include "desk/settings/setting.h"

/// Settings of fields with one text: edits and labels.
namespace entrysettings {

QVector<Setting> ofEdits();
QVector<Setting> ofLabels();

} // namespace entrysettings

// SPDX-License-Identifier: MIT
#pragma once

#include "desk/setting.h"

/// Settings of strokes: lines and rectangles.
namespace graphicsettings {

QVector<Setting> ofLines();
QVector<Setting> ofRects();

} // namespace graphicsettings

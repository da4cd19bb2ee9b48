// SPDX-License-Identifier: MIT
#pragma once

#include "desk/settings/setting.h"

/// Settings of lines, rectangles, pictures and the room for tables.
namespace graphicsettings {

QVector<Setting> ofLines();
QVector<Setting> ofRects();
QVector<Setting> ofPictures();
QVector<Setting> ofTables();

} // namespace graphicsettings

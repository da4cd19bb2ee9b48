// SPDX-License-Identifier: MIT
#pragma once

#include "desk/settings/setting.h"

class TavroDatetime;

/// Settings of dates and times.
namespace datetimesettings {

const QVector<Setting> &ofDatetimes();

/// What a form does with a new object, so that it is as a file without settings says: it writes dates as its format
/// says, and has no value yet. The library starts it with the clock.
void start(TavroDatetime &object);

} // namespace datetimesettings

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class TavroDatetime;

/// Dates and times as texts: 2022-01-05, 2022-01-05T08:05:09, 08:05:09, with or without seconds. They have no time
/// zone: a value is printed as it is written. The text stays with its object, so that nothing that was written is lost.
namespace datetimevalues {

/// What the text says becomes the preset and the content; a text that is no date and time changes nothing. The empty
/// text clears.
void setPreset(TavroDatetime &object, const QString &text);
QString presetText(const TavroDatetime &object);

/// What the text says becomes the content; a text that is no date and time leaves it empty.
void setContent(TavroDatetime &object, const QString &text);
/// The text that was set, or the content of an object that took another one since.
QString contentText(const TavroDatetime &object);

/// Whether the content is empty, or has what the format of the object shows: a date, a time, any of them for a pattern.
bool isValid(const TavroDatetime &object);

} // namespace datetimevalues

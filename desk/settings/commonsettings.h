// SPDX-License-Identifier: MIT
#pragma once

#include "desk/settings/setting.h"

#include <initializer_list>

/// Settings that several kinds of object have.
namespace commonsettings {

/// Of every object.
const QVector<Setting> &ofObjects();
/// Of every object that a value is filled into.
const QVector<Setting> &ofBoxes();
/// Of those among them that have a frame alone, without background or editor.
const QVector<Setting> &ofFrames();
/// Of every object that shows a text.
const QVector<Setting> &ofTexts();

/// The settings but those of the keys.
QVector<Setting> without(const QVector<Setting> &settings, std::initializer_list<const char *> keys);

/// The text with which an object starts and to which a new form goes back. Stands last: texts are converted and spread
/// over cells when they are set, by the settings of that moment.
Setting preset(const char *key, const char *label);

} // namespace commonsettings

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class TavroDatetime;

/// What is wrong with dates and times.
namespace datetimechecking {

/// The first problem in words, empty without one. One that follows the clock is brought up to date before.
QString problemOf(TavroDatetime &object);

} // namespace datetimechecking

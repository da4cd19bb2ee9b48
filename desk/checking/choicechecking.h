// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

class TavroCheckBox;
class TavroCombx;

/// What is wrong with choices.
namespace choicechecking {

/// The first problem in words, empty without one. A group that is required and has no tick is one problem, whatever
/// the number of its members: it is told once, and goes into the groups that were told.
QString problemOf(const TavroCheckBox &object, QSet<QString> *toldGroups);
QString problemOf(const TavroCombx &object);

} // namespace choicechecking

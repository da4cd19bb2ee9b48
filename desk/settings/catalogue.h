// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotypes.h"
#include "desk/settings/setting.h"

/// The one list of the kinds of object and their settings. Whoever reads, writes or shows settings reads this.
namespace catalogue {

/// Kind of a name in a form file, Obj_None for a name without a kind.
ObjType kindOf(const QString &name);
/// Name in a form file, empty for a kind that has none.
QString nameOf(ObjType kind);
/// Names of all kinds.
QStringList kindNames();

/// Settings of a kind in the order in which they are applied; empty for a kind without a name. Geometry comes before
/// them: font sizes and line widths are converted through it.
const QVector<Setting> &settingsOf(ObjType kind);

} // namespace catalogue

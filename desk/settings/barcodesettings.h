// SPDX-License-Identifier: MIT
#pragma once

#include "desk/settings/setting.h"

class TavroBarcode;

/// Settings of barcodes. The library lets the rectangle follow the symbol; on a form the rectangle is a place on paper,
/// so that each setting here leaves it where it is and fits the symbol into it.
namespace barcodesettings {

QVector<Setting> ofBarcodes();

/// Whether the symbology has a name in form files. Those that have none print no symbol.
bool isNamed(int symbology);

/// Without a value, unlike new objects of the library: on a form nothing is printed that nobody gave.
void start(TavroBarcode &object);

/// Takes a content and keeps its place on the form.
void setContent(TavroBarcode &object, const QVariant &content);

} // namespace barcodesettings

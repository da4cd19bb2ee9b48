// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroglobal.h"
#include "core/tavrotypes.h"

class TavroPrototype;

/// Makes a form object from the number of its kind, for hosts that load stored forms.
class TAVRO_EXPORT ControlFactory
{
public:
    /// New object of the kind, in design mode, without a parent; the caller owns it. Null for a number that
    /// names no kind: 0, negative ones, those above 12.
    static TavroPrototype *factory(ObjType kind);
};

// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroglobal.h"
#include "core/tavrotypes.h"

class TavroPrototype;

/// Makes a form object from the number of its kind, for hosts that load stored forms.
class TAVRO_EXPORT ControlFactory
{
public:
    /// New object of the kind, in design mode, without a parent; the caller owns it. Null for a kind that does not
    /// exist (0, negative, above 12) or has no class yet.
    static TavroPrototype *factory(ObjType kind);
};

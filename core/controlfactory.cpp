// SPDX-License-Identifier: MIT
#include "core/controlfactory.h"

#include "barcode/tavrobarcode.h"
#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "choice/tavrocheckbox.h"
#include "choice/tavrocombx.h"
#include "datetime/tavrodatetime.h"
#include "entry/tavroedit.h"
#include "entry/tavrolabel.h"
#include "graphic/tavroline.h"
#include "graphic/tavropicture.h"
#include "graphic/tavrorect.h"
#include "graphic/tavrotable.h"

TavroPrototype *ControlFactory::factory(ObjType kind)
{
    switch (kind) {
    case Obj_Line:
        return new TavroLine;
    case Obj_Rect:
        return new TavroRect;
    case Obj_Edit:
        return new TavroEdit;
    case Obj_FinancialEdit:
        return new TavroFinancialEdit;
    case Obj_SeperateEdit:
        return new TavroSeperateEdit;
    case Obj_CheckBox:
        return new TavroCheckBox;
    case Obj_Label:
        return new TavroLabel;
    case Obj_Combx:
        return new TavroCombx;
    case Obj_Datetime:
        return new TavroDatetime;
    case Obj_Picture:
        return new TavroPicture;
    case Obj_Barcode:
        return new TavroBarcode;
    case Obj_Table:
        return new TavroTable;
    default:
        return nullptr;
    }
}

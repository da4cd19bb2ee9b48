// SPDX-License-Identifier: MIT
#include "entry/tavrolabel.h"

TavroLabel::TavroLabel(QGraphicsItem *parent)
    : TavroEdit(parent)
{
    setObjType(Obj_Label);
}

TavroLabel::~TavroLabel() = default;

void TavroLabel::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    // Past the edit object's handler, which would open the editor.
    TavroText::mousePressEvent(event);
}

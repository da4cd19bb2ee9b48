// SPDX-License-Identifier: MIT
#include "graphic/tavrotable.h"

TavroTable::TavroTable(QGraphicsItem *parent)
    : TavroPrototype(parent)
{
    setObjType(Obj_Table);
}

TavroTable::~TavroTable() = default;

void TavroTable::designPaint(QPainter *) {}

void TavroTable::inputPaint(QPainter *) {}

void TavroTable::printPaint(QPainter *) {}

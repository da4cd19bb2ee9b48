// SPDX-License-Identifier: MIT
#pragma once

#include "barcode/tavrobarcode.h"
#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "choice/tavrocheckbox.h"
#include "choice/tavrocombx.h"
#include "datetime/tavrodatetime.h"
#include "entry/tavroedit.h"
#include "graphic/tavropicture.h"
#include "tests/support/itemprobes.h"
#include "tests/support/kinds.h"
#include "tests/support/prototypesettings.h"

#include <QApplication>

/// Calls what a host may call on an object whose parts have gone, or whose place has changed.
namespace kinds {

inline void exercise(TavroText &object)
{
    object.setPrefix(QStringLiteral("No. "));
    object.setFont(QFont(QStringLiteral("Sans")));
    object.setFontFamily(QStringLiteral("Serif"));
    object.setFontPtSz(7);
    object.setIsBold(true);
    object.setHorAlign(Qt::AlignRight);
    for (const int rule : {Fill_Wrap, Fill_Shrink, Fill_WrapShrink, Fill_NoWrap, Text_Filling_Rule(9)})
        object.setTextFillingRule(static_cast<Text_Filling_Rule>(rule));
    object.syncFontPixSz();
}

inline void exercise(TavroEdit &object)
{
    object.setFormatType(Format_EnglishAmount);
    object.setBorderColor(QStringLiteral("red"));
    object.setContentData(QStringLiteral("77.10"));
    object.readyForEdit();
    object.isValid();
    object.setFormatType(Format_Text);
}

inline void exercise(TavroCheckBox &object)
{
    object.setCheckStyle(CrossTick);
    object.syncCheckBxState();
    object.syncContentData();
    object.checkBx();
}

inline void exercise(TavroCombx &object)
{
    object.setOptionList({QStringLiteral("cash"), QStringLiteral("transfer")});
    object.setCurrentIndx(1);
    object.setCurrentText(QStringLiteral("cheque"));
    object.setBorderColor(QStringLiteral("red"));
    object.optionList();
    object.textAt(0);
    object.currentIndx();
    object.syncContentData();
    object.syncComboxText();
    object.syncCombxFont();
    object.syncCombxGeometry();
    object.showHideCombx();
    object.setIsReadOnly(true);
    object.onHoverEvent(true);
    object.onHoverEvent(false);
    object.setIsReadOnly(false);
}

inline void exercise(TavroDatetime &object)
{
    for (const int format : {0, 5, 6, 9, 3}) {
        object.setDateTimeFormat(static_cast<Datetime_Format>(format));
        object.setOrderType(1);
        object.setSeperatorType(Sep_Dash);
        object.setIsShowSeperator(false);
        object.setSplitSizes(object.splitSizes());
        object.syncContentData();
    }
    object.setIsRealTime(true);
    object.updateDataRealTime();
    object.setIsRealTime(false);
}

inline void exerciseOwn(TavroPrototype &object)
{
    if (auto *text = qobject_cast<TavroText *>(&object))
        exercise(*text);
    if (auto *edit = qobject_cast<TavroEdit *>(&object))
        exercise(*edit);
    if (auto *box = qobject_cast<TavroCheckBox *>(&object))
        exercise(*box);
    if (auto *combo = qobject_cast<TavroCombx *>(&object))
        exercise(*combo);
    if (auto *date = qobject_cast<TavroDatetime *>(&object))
        exercise(*date);
}

inline void press(TavroPrototype &object)
{
    const QPointF middle = object.sceneBoundingRect().center();
    probes::drag(*object.scene(), middle, middle);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, QStringLiteral("7"));
    QApplication::sendEvent(object.scene(), &key);
}

/// Every setting, mode, handle, painting, click and key. The object is on a scene, and has its content afterwards.
inline void exerciseAll(TavroPrototype &object)
{
    const QRectF rect = object.boundingRect();
    for (const Setting<TavroPrototype> &setting : prototypesettings::all())
        setting.write(object);
    object.setObjVisible(true);
    object.setObjEnabled(true);
    object.setIsReadOnly(false);
    object.setIsLocked(false);
    for (const int mode : {0, 1, 2, 3, 1, 0}) {
        object.setBoundingRect(rect);
        object.setPaintMode(static_cast<Paint_Mode>(mode));
        object.setSelected(true);
        object.setFocus();
        probes::hover(*object.scene(), object, QEvent::GraphicsSceneHoverEnter);
        press(object);
        probes::hover(*object.scene(), object, QEvent::GraphicsSceneHoverLeave);
        probes::paintedBy(object);
        exerciseOwn(object);
        object.resize(Handle_BottomRight, QPointF(300, 90));
        object.bringObjToFront();
        object.clearFocus();
        object.renew();
    }
    object.setBoundingRect(rect);
    object.setContentData(byType(object.objType()).content);
    QCoreApplication::processEvents();
}

} // namespace kinds

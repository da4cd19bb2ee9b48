// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>
#include <QString>

// Hosts store these values and pass numbers beyond the named ones, so every type is fixed and every value is kept.

/// Kind of a form object, -1 while unset. Numbers above 12 name no kind.
enum ObjType : int {
    Obj_None = 0,
    Obj_Line = 1,
    Obj_Rect = 2,
    Obj_Edit = 3,
    Obj_FinancialEdit = 4,
    Obj_SeperateEdit = 5,
    Obj_CheckBox = 6,
    Obj_Label = 7,
    Obj_Combx = 8,
    Obj_Datetime = 9,
    Obj_Picture = 10,
    Obj_Barcode = 11,
    Obj_Table = 12
};

/// What an object paints and how it reacts: the form is laid out, filled in or put on paper. Others paint nothing.
enum Paint_Mode : int { Paint_Design = 0, Paint_Input = 1, Paint_Print = 2 };

/// Place of a resize handle, clockwise from the top-left corner; the corners are the even values up to 6.
enum HandleDirect : int {
    Handle_TopLeft = 0,
    Handle_Top = 1,
    Handle_TopRight = 2,
    Handle_Right = 3,
    Handle_BottomRight = 4,
    Handle_Bottom = 5,
    Handle_BottomLeft = 6,
    Handle_Left = 7,
    Handle_Center = 8, ///< painted as a round blue dot
    Handle_None = 9    ///< answer of a hit test that met no visible handle
};

/// State of one resize handle: 0 hides, 1 and 2 show, others are stored without effect.
enum SelectionHandleState : int { Handle_Off = 0, Handle_Inactive = 1, Handle_Active = 2 };

/// State of the dashed selection frame: 0 hides, 1 and 2 show, others are stored without effect.
enum SelectionDashRectState : int { DashRect_Off = 0, DashRect_Inactive = 1, DashRect_Active = 2 };

/// How a text is fitted into its rectangle. Others give a default font and word wrap.
enum Text_Filling_Rule : int {
    Fill_Wrap = 0,       ///< font as set, wrapped
    Fill_Shrink = 1,     ///< one line, shrunk to the width
    Fill_WrapShrink = 2, ///< wrapped to the width, shrunk to the height
    Fill_NoWrap = 3      ///< font as set, one line
};

/// What an edit object accepts and how it shows it. Others accept the empty text only and show nothing.
enum Input_Format : int {
    Format_Text = 0,
    Format_Number = 1,
    Format_RmbCapital = 2,
    Format_RmbCapitalAlt = 3, ///< handled like Format_RmbCapital; the distinction is the host's
    Format_RmbCapitalYuan = 4,
    Format_UsdCapital = 5,
    Format_RmbCapitalNoSuffix = 6,
    Format_EnglishAmount = 7,
    Format_SerialNumber = 8,
    Format_FreeText = 9,
    Format_Customized = 10
};

/// What a separated-cell edit spreads over its cells. Others keep the cells, take no key and paint no content.
enum SeperateMode : int {
    Sep_Amount = 0,   ///< an amount, one cell for each unit of the unit range
    Sep_Digits18 = 1, ///< 18 digits
    Sep_Digits6 = 2,  ///< 6 digits
    Sep_Chars6 = 3    ///< 6 characters of any kind
};

/// Mark in front of an amount in a separated-cell edit. Others leave the mark as it is.
enum Prefix_Mode : int { Prefix_None = 0, Prefix_Cross = 1, Prefix_Zero = 2 };

/// Sign in front of an amount in a financial edit. Others leave the sign as it is.
enum Currency : int {
    Currency_None = 0,
    Currency_Yuan = 1,
    Currency_Dollar = 2,
    Currency_Pound = 3,
    Currency_Cent = 4,
    Currency_Usd = 5 ///< the letters USD
};

/// Lowest and highest unit of a row of amount cells, counted from 分:
/// 0 分, 1 角, 2 元, 3 十, 4 百, 5 千, 6 万, 7 十, 8 百, 9 千, 10 亿, 11 十.
struct _UnitRange
{
    int start = 0;
    int end = 0;
};

/// How a date/time object writes its value; 0 to 4 are dates, and the styles of a date editor. Others are shown as
/// dates whose texts stay as they were.
enum Datetime_Format : int {
    Dt_CapitalFormal = 0, ///< Chinese capital numerals; 零 in front of the months and days 1 to 10, 20 and 30
    Dt_Capital = 1,       ///< Chinese capital numerals
    Dt_Numeral = 2,       ///< everyday Chinese numerals
    Dt_ArabicPadded = 3,  ///< digits, month and day with two
    Dt_Arabic = 4,        ///< digits
    Dt_Time = 5,          ///< hour, minute and second
    Dt_Custom = 6         ///< one text by a pattern, without sections
};

/// What stands between or behind the sections of a date or time. A date editor given Sep_ChineseTime, a time editor
/// given Sep_ChineseDate, and both given a number beyond the named ones have no sections at all.
enum Datetime_Seperator_Type : int {
    Sep_ChineseDate = 0, ///< 年 月 日, one behind each section
    Sep_ChineseTime = 1, ///< 时 分 秒, one behind each section
    Sep_Dash = 2,
    Sep_Slash = 3,
    Sep_Colon = 4
};

/// Sections of a date, from the left: year, month, day. Others have none.
enum DateOrderType : int {
    Order_YMD = 0,
    Order_DMY = 1,
    Order_YDM = 2,
    Order_YM = 3,
    Order_MD = 4,
    Order_MY = 5,
    Order_DM = 6,
    Order_Y = 7
};

/// Sections of a time, from the left: hour, minute, second. Others have none.
enum TimeOrderType : int { Order_HMS = 0, Order_HM = 1 };

/// How a check box shows its state: the image of the checked state, then those of the unchecked and the partially
/// checked one. Others show nothing in any state.
enum Check_Style : int {
    EmptyTick = 0,     ///< tick; nothing; nothing
    CrossTick = 1,     ///< tick; cross; cross
    EmptyCircle = 2,   ///< circle; nothing; nothing
    CrossCircle = 3,   ///< circle; cross; cross
    EmptyTickBlock = 4 ///< block; nothing; tick
};

/// How a picture is fitted into its rectangle. Others leave it where it was drawn last.
enum Picture_Fill_Mode : int {
    Picture_Fit = 0,     ///< scaled to the rectangle and centred, keeps its proportions
    Picture_Stretch = 1, ///< over the whole rectangle
    Picture_Actual = 2   ///< a pixel for a pixel, in the top left corner
};

/// Names the database column that an object is bound to. The library stores it and opens no database.
struct _Database_Table_Col
{
    QString table;
    QString column;
};

Q_DECLARE_METATYPE(ObjType)
Q_DECLARE_METATYPE(Paint_Mode)
Q_DECLARE_METATYPE(Text_Filling_Rule)

// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotypes.h"

#include <QKeyEvent>
#include <QTest>
#include <QVector>

/// What each key does in each input format, for the editor alone and for the editor on a form.
namespace keytable {

struct Key
{
    Key(Qt::Key code, Qt::KeyboardModifiers with = Qt::NoModifier)
        : key(code)
        , modifiers(with)
    {
    }

    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};
using Keys = std::vector<Key>;

/// Result of a row in the formats of one group.
struct Row
{
    const char *name;
    const char *before; ///< the cursor stands behind it
    Keys keys;
    const char *freeText;
    const char *number;
    const char *amount;
    const char *serial;
    const char *beyond; ///< numbers that name no format
};

inline std::vector<Row> rows()
{
    const Key left = Qt::Key_Left;
    const Key right = Qt::Key_Right;
    const Key back = Qt::Key_Backspace;
    const Key selectLeft(Qt::Key_Left, Qt::ShiftModifier);
    const Key copy(Qt::Key_C, Qt::ControlModifier);
    const Key paste(Qt::Key_V, Qt::ControlModifier);
    const Key cut(Qt::Key_X, Qt::ControlModifier);
    return {
        {"digit", "12", {Qt::Key_5}, "125", "125", "125", "125", "12"},
        {"lowest digit", "12", {Qt::Key_0}, "120", "120", "120", "120", "12"},
        {"highest digit", "12", {Qt::Key_9}, "129", "129", "129", "129", "12"},
        {"digit of the keypad", "12", {{Qt::Key_7, Qt::KeypadModifier}}, "127", "127", "127", "127", "12"},
        {"point", "12", {Qt::Key_Period}, "12.", "12.", "12.", "12", "12"},
        {"point of the keypad", "12", {{Qt::Key_Period, Qt::KeypadModifier}}, "12.", "12.", "12.", "12", "12"},
        {"second point", "1.2", {Qt::Key_Period}, "1.2.", "1.2.", "1.2", "1.2", "1.2"},
        {"comma", "12", {Qt::Key_Comma}, "12,", "12", "12", "12", "12"},
        {"slash, one below the digits", "12", {Qt::Key_Slash}, "12/", "12", "12", "12", "12"},
        {"colon, one above the digits", "12", {Qt::Key_Colon}, "12:", "12", "12", "12", "12"},
        {"letter", "12", {Qt::Key_A}, "12a", "12", "12", "12", "12"},
        {"minus", "12", {Qt::Key_Minus}, "12-", "12", "12", "12", "12"},
        {"minus at the front", "12", {left, left, Qt::Key_Minus}, "-12", "12", "12", "12", "12"},
        {"blank", "12", {Qt::Key_Space}, "12 ", "12", "12", "12", "12"},
        {"Return", "12", {Qt::Key_Return}, "12\n", "12", "12", "12", "12"},
        {"Enter", "12", {{Qt::Key_Enter, Qt::KeypadModifier}}, "12\n", "12", "12", "12", "12"},
        {"Delete is filtered", "12", {left, left, Qt::Key_Delete}, "2", "12", "12", "12", "12"},
        {"Backspace", "12", {back}, "1", "1", "1", "1", "1"},
        {"Left", "12", {left, back}, "2", "2", "2", "2", "2"},
        {"Right", "12", {left, left, right, back}, "2", "2", "2", "2", "2"},
        {"Up", "1\n2", {Qt::Key_Up, back}, "\n2", "\n2", "\n2", "\n2", "\n2"},
        {"Down", "1\n2", {Qt::Key_Up, Qt::Key_Down, back}, "1\n", "1\n", "1\n", "1\n", "1\n"},
        {"Home is filtered", "12", {Qt::Key_Home, back}, "12", "1", "1", "1", "1"},
        {"End is filtered", "12", {left, Qt::Key_End, back}, "1", "2", "2", "2", "2"},
        {"Tab writes nothing", "12", {Qt::Key_Tab}, "12", "12", "12", "12", "12"},
        {"Backtab writes nothing", "12", {{Qt::Key_Backtab, Qt::ShiftModifier}}, "12", "12", "12", "12", "12"},
        {"selection gives way to a digit", "12", {selectLeft, Qt::Key_5}, "15", "15", "15", "15", "12"},
        {"selection is removed", "12", {selectLeft, back}, "1", "1", "1", "1", "1"},
        {"cut", "12", {selectLeft, cut}, "1", "1", "1", "1", "1"},
        {"cut and paste twice", "12", {selectLeft, cut, paste, paste}, "122", "122", "122", "122", "122"},
        {"copy and paste", "12", {selectLeft, copy, right, paste}, "122", "122", "122", "122", "122"},
        {"paste with Shift and Insert is filtered",
         "12",
         {selectLeft, copy, right, {Qt::Key_Insert, Qt::ShiftModifier}},
         "122",
         "12",
         "12",
         "12",
         "12"},
        {"select all is swallowed", "12", {{Qt::Key_A, Qt::ControlModifier}, back}, "1", "1", "1", "1", "1"},
        {"undo is swallowed", "12", {Qt::Key_5, {Qt::Key_Z, Qt::ControlModifier}}, "125", "125", "125", "125", "12"},
        {"control and Left is swallowed", "12", {{Qt::Key_Left, Qt::ControlModifier}, back}, "1", "1", "1", "1", "1"},
        {"control and Backspace is swallowed",
         "12",
         {{Qt::Key_Backspace, Qt::ControlModifier}},
         "12",
         "12",
         "12",
         "12",
         "12"},
        {"control and a digit is swallowed", "12", {{Qt::Key_5, Qt::ControlModifier}}, "12", "12", "12", "12", "12"},
        {"control, Shift and Left select a word",
         "12",
         {{Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier}, back},
         "",
         "",
         "",
         "",
         ""},
    };
}

/// Adds each row for each format: columns format (int), before (QString), keys (Keys), after (QString).
inline void addRows()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("before");
    QTest::addColumn<keytable::Keys>("keys");
    QTest::addColumn<QString>("after");
    for (const Row &row : rows()) {
        const std::vector<std::pair<const char *, std::vector<int>>> groups = {
            {row.freeText, {Format_Text, Format_FreeText}},
            {row.number, {Format_Number}},
            {row.amount,
             {Format_RmbCapital, Format_RmbCapitalAlt, Format_RmbCapitalYuan, Format_UsdCapital,
              Format_RmbCapitalNoSuffix, Format_EnglishAmount, Format_Customized}},
            {row.serial, {Format_SerialNumber}},
            {row.beyond, {11, -3}}};
        for (const auto &group : groups) {
            for (const int format : group.second)
                QTest::addRow("%s, format %d", row.name, format)
                    << format << QString::fromLatin1(row.before) << row.keys << QString::fromLatin1(group.first);
        }
    }
}

/// Presses and releases the keys on a widget, one after the other.
inline void type(QWidget *widget, const Keys &keys)
{
    for (const Key &key : keys)
        QTest::keyClick(widget, key.key, key.modifiers);
}

} // namespace keytable

Q_DECLARE_METATYPE(keytable::Keys)

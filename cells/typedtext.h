// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QKeyEvent;

/// Keys that write into a cell.
namespace typedtext {

/// What a key writes into a cell: its text, or nothing for keys that give orders although their event carries a text
/// (Enter, Tab, Delete, Escape, a digit with Control).
QString textOf(const QKeyEvent &event);

/// Whether the key is one of the digits, on the keypad or not.
bool isDigitKey(int key);

} // namespace typedtext

// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotypes.h"

#include <QString>
#include <QStringView>

/// What each input format lets in: as a finished text, and key by key while it is typed.
namespace inputformat {

/// The regular expression that a whole text must match; empty where every text is let in, and for numbers beyond the
/// named formats.
QString matchPattern(Input_Format format);

/// Whether the whole text matches matchPattern(). The two free formats let every text in, numbers beyond the named
/// formats the empty text only.
bool accepts(Input_Format format, QStringView text);

/// Whether the format is an amount: while one is typed, the text after each key must pass acceptsTyped().
bool isAmount(Input_Format format);

/// Whether a key (Qt::Key) that writes or deletes a character reaches the editor. Numbers beyond the named formats take
/// none. A minus sign passes in the free formats only: negative amounts come from the host or the clipboard.
bool acceptsKey(Input_Format format, int key);

/// Like accepts() for an amount, but with two decimals at most: typing stops at cents.
bool acceptsTyped(QStringView text);

} // namespace inputformat

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Texts of others inside messages: each message stays one line, whatever the text.
namespace messages {

/// The text with control characters and line ends written as JSON writes them.
QString oneLine(const QString &text);
/// The text on one line in quotation marks, cut off where it is long.
QString quoted(const QString &text);

} // namespace messages

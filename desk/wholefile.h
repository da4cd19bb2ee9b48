// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// Writes files whole or not at all.
namespace wholefile {

/// On an error the file stays as it was, and the result is one line that says what went wrong, else empty.
QString write(const QString &fileName, const QByteArray &bytes);

} // namespace wholefile

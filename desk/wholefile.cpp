// SPDX-License-Identifier: MIT
#include "desk/wholefile.h"

#include "desk/messages.h"

#include <QSaveFile>

namespace wholefile {

QString write(const QString &fileName, const QByteArray &bytes)
{
    QSaveFile file(fileName);
    // Flushed before, since commit() overlooks an error of the flush of its own and would put half a file in place.
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit())
        return {};
    return messages::oneLine(QStringLiteral("%1: cannot be written: %2").arg(fileName, file.errorString()));
}

} // namespace wholefile

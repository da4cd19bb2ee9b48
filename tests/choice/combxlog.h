// SPDX-License-Identifier: MIT
#pragma once

#include "choice/tavrocombx.h"

namespace combx {

/// Every signal of the object in its order, with the content at that moment.
class Log
{
public:
    explicit Log(TavroCombx *object)
    {
        QObject::connect(object, &TavroCombx::contentDataChanged, object, [this, object] {
            m_lines.append(QStringLiteral("content ") + object->contentData().toString());
        });
        QObject::connect(object, &TavroCombx::currentIndexChanged, object,
                         [this, object](int index, const QString &table, const QString &column) {
                             m_lines.append(QStringLiteral("choice %1 %2.%3 of %4")
                                                .arg(index)
                                                .arg(table, column, object->contentData().toString()));
                         });
    }

    QString taken()
    {
        const QString all = m_lines.join(QStringLiteral("; "));
        m_lines.clear();
        return all;
    }

private:
    QStringList m_lines;
};

} // namespace combx

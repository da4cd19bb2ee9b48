// SPDX-License-Identifier: MIT
#pragma once

#include "choice/tavrocombx.h"

#include <QComboBox>
#include <QCompleter>
#include <QGraphicsProxyWidget>
#include <QLineEdit>
#include <QListView>

/// The parts of a combo box object, found through its proxy.
namespace combx {

inline QStringList fruits()
{
    return {QStringLiteral("Apple"), QStringLiteral("Pineapple"), QStringLiteral("Cherry"), QStringLiteral("Plum")};
}

inline QStringList words(const char *spaced)
{
    return QString::fromLatin1(spaced).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

inline QComboBox *boxOf(const TavroCombx &object)
{
    return qobject_cast<QComboBox *>(object.widgetPrxy()->widget());
}

inline QLineEdit *lineOf(const TavroCombx &object)
{
    return boxOf(object)->lineEdit();
}

inline QWidget *listOf(const TavroCombx &object)
{
    return boxOf(object)->view()->window();
}

/// Combo box and line edit have family, size and weight of the font.
inline bool haveFont(const TavroCombx &object, const QFont &font)
{
    const auto equal = [&font](const QFont &other) {
        return other.family() == font.family() && other.pixelSize() == font.pixelSize() &&
               other.weight() == font.weight() && other.italic() == font.italic() &&
               other.strikeOut() == font.strikeOut();
    };
    return equal(boxOf(object)->font()) && equal(lineOf(object)->font());
}

} // namespace combx

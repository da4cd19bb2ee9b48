// SPDX-License-Identifier: MIT
#pragma once

#include "core/controlfactory.h"
#include "core/tavroprototype.h"

#include <QBuffer>
#include <QDateTime>
#include <QGraphicsProxyWidget>
#include <QTest>
#include <limits>

/// Walks over all kinds of form objects: what each is called, a content that it takes, and rows for each.
namespace kinds {

struct Kind
{
    ObjType type;
    const char *name;
    QVariant content;
    QVariant preset;   ///< another content
    bool paints[3];    ///< in design, input and print mode, with a content
    bool contentMarks; ///< a new content is a change of the form itself
};

inline QByteArray pictureBytes(const QColor &color)
{
    QImage image(8, 4, QImage::Format_RGB32);
    image.fill(color);
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    image.save(&png, "PNG");
    return png.data();
}

inline QVector<Kind> all()
{
    const QString text = QStringLiteral("Pay to the bearer");
    const QString other = QStringLiteral("12.50");
    const QDateTime first(QDate(2026, 3, 31), QTime(9, 30));
    const QDateTime second(QDate(1999, 12, 5), QTime(23, 59, 58));
    return {
        {Obj_Line, "line", text, other, {true, true, true}, false},
        {Obj_Rect, "rectangle", text, other, {true, true, true}, false},
        {Obj_Edit, "edit", text, other, {true, true, true}, false},
        {Obj_FinancialEdit, "financial edit", QStringLiteral("345.67"), other, {true, true, true}, false},
        {Obj_SeperateEdit, "separated edit", QStringLiteral("345.67"), other, {true, true, true}, false},
        {Obj_CheckBox, "check box", 2, 0, {true, true, true}, false},
        {Obj_Label, "label", text, other, {true, true, true}, false},
        {Obj_Combx, "combo box", text, other, {true, false, true}, false},
        {Obj_Datetime, "date", first, second, {true, true, true}, false},
        {Obj_Picture, "picture", pictureBytes(Qt::red), pictureBytes(Qt::blue), {true, true, true}, true},
        {Obj_Barcode, "barcode", text, other, {true, true, true}, false},
        {Obj_Table, "table", text, other, {false, false, false}, false},
    };
}

inline Kind byType(int type)
{
    return all().at(type - Obj_Line);
}

/// Object of the kind with its content, in a rectangle of 200 × 40 px.
inline TavroPrototype *filled(int type)
{
    TavroPrototype *object = ControlFactory::factory(static_cast<ObjType>(type));
    object->setBoundingRect(QRectF(20, 30, 200, 40));
    object->setPhyBoundingRectWidth(50);
    object->setPhyBoundingRectHeight(10);
    object->setContentData(byType(type).content);
    return object;
}

/// A row for each kind, in the column "kind".
inline void addRows()
{
    QTest::addColumn<int>("kind");
    for (const Kind &kind : all())
        QTest::newRow(kind.name) << static_cast<int>(kind.type);
}

/// A row for each kind in each mode, also in numbers beyond the named ones, in the columns "kind" and "mode".
inline void addModeRows()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("mode");
    for (const Kind &kind : all()) {
        const int type = kind.type;
        QTest::addRow("%s in design", kind.name) << type << int(Paint_Design);
        QTest::addRow("%s in input", kind.name) << type << int(Paint_Input);
        QTest::addRow("%s in print", kind.name) << type << int(Paint_Print);
        QTest::addRow("%s in a mode beyond", kind.name) << type << 3;
        QTest::addRow("%s in a mode below", kind.name) << type << -1;
        QTest::addRow("%s in the last mode", kind.name) << type << std::numeric_limits<int>::max();
    }
}

/// The proxies of the widgets that the object shows or keeps.
inline QVector<QGraphicsProxyWidget *> proxiesOf(const TavroPrototype &object)
{
    QVector<QGraphicsProxyWidget *> proxies;
    const QList<QGraphicsItem *> children = object.childItems();
    for (QGraphicsItem *child : children) {
        if (auto *proxy = qgraphicsitem_cast<QGraphicsProxyWidget *>(child))
            proxies.append(proxy);
    }
    return proxies;
}

} // namespace kinds

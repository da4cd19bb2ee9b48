// SPDX-License-Identifier: MIT
#include "desk/form.h"

#include "barcode/tavrobarcode.h"
#include "choice/tavrocheckbox.h"
#include "core/controlfactory.h"
#include "core/tavrotext.h"
#include "datetime/tavrodatetime.h"
#include "desk/formwords.h"
#include "desk/settings/barcodesettings.h"
#include "desk/settings/datetimesettings.h"
#include "graphic/tavroline.h"
#include "graphic/tavrorect.h"

#include <QCheckBox>

Form::Form()
{
    // Lines may run in any direction; their negative rectangles are not found by an index.
    m_scene.setItemIndexMethod(QGraphicsScene::NoIndex);
}

QRectF Form::pageRect() const
{
    return {QPointF(0, 0), pageSize * scale};
}

TavroPrototype *Form::newObject(ObjType kind)
{
    TavroPrototype *object = ControlFactory::factory(kind);
    if (auto *date = qobject_cast<TavroDatetime *>(object))
        datetimesettings::start(*date);
    else if (auto *barcode = qobject_cast<TavroBarcode *>(object))
        barcodesettings::start(*barcode);
    return object;
}

void Form::addObject(TavroPrototype *object, const QRectF &millimetres, const QJsonObject &unknownSettings)
{
    m_scene.addItem(object);
    setGeometry(object, millimetres);
    entries.push_back({object, unknownSettings});
}

TavroPrototype *Form::objectWithId(const QString &id) const
{
    if (id.isEmpty())
        return nullptr;
    for (const Entry &entry : entries) {
        if (entry.object && entry.object->tavroID() == id)
            return entry.object;
    }
    return nullptr;
}

void Form::setGeometry(TavroPrototype *object, const QRectF &millimetres) const
{
    object->setPhyRect(millimetres);
    object->setPhyBoundingRectWidth(millimetres.width());
    object->setPhyBoundingRectHeight(millimetres.height());
    object->setBoundingRect({millimetres.topLeft() * scale, millimetres.size() * scale});
    if (auto *text = qobject_cast<TavroText *>(object))
        text->syncFontPixSz();
    else if (auto *rule = qobject_cast<TavroLine *>(object))
        rule->setLineWidthPix(rule->lineWidthPhy() * scale);
    else if (auto *frame = qobject_cast<TavroRect *>(object))
        frame->setLineWidthPix(frame->lineWidthPhy() * scale);
    else if (auto *barcode = qobject_cast<TavroBarcode *>(object))
        barcode->syncReadableTextPixSz();
}

void Form::groupCheckBoxes()
{
    m_groups.clear();
    for (const Entry &entry : entries) {
        const auto *box = qobject_cast<TavroCheckBox *>(entry.object.data());
        if (!box || !box->checkBx() || box->checkGroupId().isEmpty())
            continue;
        QButtonGroup &group = m_groups[box->checkGroupId()];
        // Searching for a free number takes long in large groups.
        group.addButton(box->checkBx(), group.buttons().size());
    }
}

void Form::fitTexts() const
{
    for (const Entry &entry : entries) {
        if (auto *text = qobject_cast<TavroText *>(entry.object.data()))
            text->adjustTextStyle();
    }
}

QStringList Form::unknownNames() const
{
    const auto settings = [](const QString &path, const QJsonObject &object) {
        QStringList names;
        for (const QString &key : object.keys())
            names.append(QStringLiteral("%1setting \"%2\"").arg(path, key));
        return names;
    };
    QStringList names = settings(QString(), unknown) + settings(QStringLiteral("page: "), unknownPage);
    int index = 0;
    for (const Entry &entry : entries) {
        const QString path = QStringLiteral("objects[%1]: ").arg(index++);
        if (entry.object)
            names += settings(path, entry.unknown);
        else
            names += QStringLiteral("%1kind \"%2\"")
                         .arg(path, entry.unknown.value(QLatin1String(formwords::Kind)).toString());
    }
    return names;
}

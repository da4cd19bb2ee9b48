// SPDX-License-Identifier: MIT
#include "desk/formwriter.h"

#include "core/tavroprototype.h"
#include "desk/form.h"
#include "desk/formwords.h"
#include "desk/settings/catalogue.h"
#include "desk/wholefile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <map>
#include <memory>

namespace formwriter {

namespace {

// New objects of each kind that the form uses, to tell which settings differ from them.
class Defaults
{
public:
    // A setting that stands for itself is compared with an object that has no settings at all.
    const TavroPrototype &of(ObjType kind) { return *newObject(kind, &m_bare); }
    // The others are compared with one that took over what brings their values along.
    const TavroPrototype &like(const TavroPrototype &object)
    {
        TavroPrototype *fresh = newObject(object.objType(), &m_led);
        for (const Setting &setting : catalogue::settingsOf(object.objType())) {
            if (setting.bringsOthers)
                setting.set(*fresh, setting.get(object), 1);
        }
        return *fresh;
    }

private:
    using Objects = std::map<ObjType, std::unique_ptr<TavroPrototype>>;

    static TavroPrototype *newObject(ObjType kind, Objects *objects)
    {
        std::unique_ptr<TavroPrototype> &object = (*objects)[kind];
        if (!object)
            object.reset(Form::newObject(kind));
        return object.get();
    }

    Objects m_bare;
    Objects m_led;
};

QJsonObject objectJson(const TavroPrototype &object, const QJsonObject &unknown, Defaults *defaults)
{
    QJsonObject json = unknown;
    json.insert(QLatin1String(formwords::Kind), catalogue::nameOf(object.objType()));
    const QRectF rect = object.phyRect();
    json.insert(QLatin1String(formwords::Rect), QJsonArray{rect.x(), rect.y(), rect.width(), rect.height()});
    const TavroPrototype &bare = defaults->of(object.objType());
    const TavroPrototype &led = defaults->like(object);
    for (const Setting &setting : catalogue::settingsOf(object.objType())) {
        const QJsonValue value = setting.toJson(setting.get(object));
        if (value != setting.toJson(setting.get(setting.bringsOthers ? bare : led)))
            json.insert(setting.key, value);
    }
    return json;
}

QJsonObject pageJson(const Form &form)
{
    QJsonObject page = form.unknownPage;
    page.insert(QLatin1String(formwords::Width), form.pageSize.width());
    page.insert(QLatin1String(formwords::Height), form.pageSize.height());
    const QMarginsF &margins = form.pageMargins;
    if (!margins.isNull())
        page.insert(QLatin1String(formwords::Margins),
                    QJsonArray{margins.left(), margins.top(), margins.right(), margins.bottom()});
    return page;
}

} // namespace

QByteArray toBytes(const Form &form)
{
    Defaults defaults;
    QJsonArray objects;
    for (const Form::Entry &entry : form.entries)
        objects.append(entry.object ? objectJson(*entry.object, entry.unknown, &defaults) : entry.unknown);
    QJsonObject json = form.unknown;
    json.insert(QLatin1String(formwords::Version), formwords::CurrentVersion);
    json.insert(QLatin1String(formwords::Scale), form.scale);
    json.insert(QLatin1String(formwords::Page), pageJson(form));
    json.insert(QLatin1String(formwords::Objects), objects);
    return QJsonDocument(json).toJson(QJsonDocument::Indented);
}

QString write(const Form &form, const QString &fileName)
{
    return wholefile::write(fileName, toBytes(form));
}

} // namespace formwriter

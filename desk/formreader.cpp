// SPDX-License-Identifier: MIT
#include "desk/formreader.h"

#include "choice/tavrocheckbox.h"
#include "core/tavroprototype.h"
#include "desk/formwords.h"
#include "desk/jsonfile.h"
#include "desk/messages.h"
#include "desk/picturesource.h"
#include "desk/settings/catalogue.h"

#include <QFileInfo>
#include <QHash>
#include <QJsonArray>

namespace formreader {

namespace {

// Paper of a plotter and a form in micrometres are both inside; numbers beyond are slips of the keyboard.
constexpr double MostMillimetres = 10000;
constexpr double LeastScale = 0.1;
constexpr double MostScale = 200;

class Reader
{
public:
    Reader(const QJsonObject &json, const QString &fileName)
        : m_json(json)
        , m_fileName(fileName)
    {
    }

    Result read()
    {
        Result result{std::make_unique<Form>(), QString()};
        m_form = result.form.get();
        if (readHead() && readPage() && readObjects())
            return result;
        return {nullptr, m_error};
    }

private:
    bool fail(const QString &path, const QString &expected, const QJsonValue &found)
    {
        m_error = jsonfile::mismatch(m_fileName, path, expected, found);
        return false;
    }

    bool readNumber(const QJsonValue &value, const QString &path, double least, double most, double *number)
    {
        *number = value.toDouble();
        if (value.isDouble() && *number >= least && *number <= most)
            return true;
        return fail(path, QStringLiteral("a number from %1 to %2").arg(least).arg(most), value);
    }

    bool readHead()
    {
        m_form->unknown = m_json;
        for (const char *key : {formwords::Version, formwords::Scale, formwords::Page, formwords::Objects})
            m_form->unknown.remove(QLatin1String(key));
        const QJsonValue version = m_json.value(QLatin1String(formwords::Version));
        if (version != QJsonValue(formwords::CurrentVersion))
            return fail(QLatin1String(formwords::Version),
                        QStringLiteral("the form file version %1").arg(formwords::CurrentVersion), version);
        return readNumber(m_json.value(QLatin1String(formwords::Scale)), QLatin1String(formwords::Scale), LeastScale,
                          MostScale, &m_form->scale);
    }

    bool readPage()
    {
        const QString path = QLatin1String(formwords::Page);
        const QJsonValue value = m_json.value(path);
        if (!value.isObject())
            return fail(path, QStringLiteral("an object with width and height in millimetres"), value);
        const QJsonObject page = value.toObject();
        m_form->unknownPage = page;
        for (const char *key : {formwords::Width, formwords::Height, formwords::Margins})
            m_form->unknownPage.remove(QLatin1String(key));
        double width = 0;
        double height = 0;
        if (!readNumber(page.value(QLatin1String(formwords::Width)), path + QStringLiteral(".width"), 1,
                        MostMillimetres, &width) ||
            !readNumber(page.value(QLatin1String(formwords::Height)), path + QStringLiteral(".height"), 1,
                        MostMillimetres, &height))
            return false;
        m_form->pageSize = QSizeF(width, height);
        return readMargins(page.value(QLatin1String(formwords::Margins)), path + QStringLiteral(".margins"));
    }

    bool readMargins(const QJsonValue &value, const QString &path)
    {
        if (value.isUndefined())
            return true;
        double margins[4];
        if (!readNumbers(value, path, QStringLiteral("left, top, right, bottom"), 0, margins))
            return false;
        m_form->pageMargins = QMarginsF(margins[0], margins[1], margins[2], margins[3]);
        return true;
    }

    bool readNumbers(const QJsonValue &value, const QString &path, const QString &meaning, double least,
                     double (&numbers)[4])
    {
        const QJsonArray array = value.toArray();
        if (array.size() != 4)
            return fail(path, QStringLiteral("an array of four numbers in millimetres (%1)").arg(meaning), value);
        for (int i = 0; i < 4; ++i) {
            if (!readNumber(array.at(i), QStringLiteral("%1[%2]").arg(path).arg(i), least, MostMillimetres,
                            &numbers[i]))
                return false;
        }
        return true;
    }

    bool readObjects()
    {
        const QString path = QLatin1String(formwords::Objects);
        const QJsonValue value = m_json.value(path);
        if (!value.isArray())
            return fail(path, QStringLiteral("an array of objects"), value);
        const QJsonArray objects = value.toArray();
        m_form->entries.reserve(static_cast<std::size_t>(objects.size()));
        for (int i = 0; i < objects.size(); ++i) {
            if (!readObject(objects.at(i), QStringLiteral("%1[%2]").arg(path).arg(i)))
                return false;
        }
        m_form->groupCheckBoxes();
        return true;
    }

    bool readObject(const QJsonValue &value, const QString &path)
    {
        if (!value.isObject())
            return fail(path, QStringLiteral("an object of the form"), value);
        const QJsonObject json = value.toObject();
        const QJsonValue kindName = json.value(QLatin1String(formwords::Kind));
        if (!kindName.isString())
            return fail(path + QStringLiteral(".kind"),
                        QStringLiteral("a kind such as %1").arg(catalogue::kindNames().join(QStringLiteral(", "))),
                        kindName);
        const ObjType kind = catalogue::kindOf(kindName.toString());
        if (kind == Obj_None) {
            m_form->entries.push_back({nullptr, json});
            return true;
        }
        double rect[4];
        if (!readNumbers(json.value(QLatin1String(formwords::Rect)), path + QStringLiteral(".rect"),
                         QStringLiteral("x, y, width, height"), -MostMillimetres, rect))
            return false;
        TavroPrototype *object = Form::newObject(kind);
        m_form->addObject(object, {rect[0], rect[1], rect[2], rect[3]});
        return readSettings(object, json, path);
    }

    bool readSettings(TavroPrototype *object, const QJsonObject &json, const QString &path)
    {
        QJsonObject unknown = json;
        unknown.remove(QLatin1String(formwords::Kind));
        unknown.remove(QLatin1String(formwords::Rect));
        for (const Setting &setting : catalogue::settingsOf(object->objType())) {
            const QJsonValue value = unknown.take(setting.key);
            if (value.isUndefined())
                continue;
            QVariant variant;
            if (!readValue(setting, value, path + QLatin1Char('.') + setting.key, &variant))
                return false;
            setting.set(*object, variant, m_form->scale);
            // Some values are refused by the object alone, and it says nothing.
            if (setting.get(*object) != variant)
                return fail(path + QLatin1Char('.') + setting.key, setting.expectation(), value);
        }
        m_form->entries.back().unknown = unknown;
        object->setOriginalID(object->tavroID());
        object->setIsModified(false);
        return checkIdentifier(object->tavroID(), path) && checkGroup(*object, path);
    }

    bool readValue(const Setting &setting, const QJsonValue &value, const QString &path, QVariant *variant)
    {
        if (setting.type == Setting::Type::Picture) {
            const picturesource::Result result = picturesource::read(value, QFileInfo(m_fileName).absolutePath());
            *variant = result.png;
            return result.expectation.isEmpty() || fail(path + result.where, result.expectation, result.found);
        }
        *variant = setting.fromJson(value);
        return variant->isValid() || fail(path, setting.expectation(), value);
    }

    // A record names objects by identifier, so two objects cannot share one.
    bool checkIdentifier(const QString &id, const QString &path)
    {
        if (id.isEmpty())
            return true;
        if (m_paths.contains(id))
            return fail(path + QStringLiteral(".id"),
                        QStringLiteral("an identifier of its own, that of %1 is the same").arg(m_paths.value(id)), id);
        m_paths.insert(id, path);
        return true;
    }

    // Check boxes that have a group in common are one choice.
    bool checkGroup(const TavroPrototype &object, const QString &path)
    {
        const auto *box = qobject_cast<const TavroCheckBox *>(&object);
        if (!box || box->checkGroupId().isEmpty() || box->contentData().toInt() == Qt::Unchecked)
            return true;
        const QString group = box->checkGroupId();
        if (m_ticked.contains(group))
            return fail(path + QStringLiteral(".preset"),
                        QStringLiteral("at most one ticked check box in group %1, %2 is ticked too")
                            .arg(messages::quoted(group), m_ticked.value(group)),
                        true);
        m_ticked.insert(group, path);
        return true;
    }

    const QJsonObject m_json;
    const QString m_fileName;
    Form *m_form = nullptr;
    QString m_error;
    QHash<QString, QString> m_paths;  ///< of the objects, by identifier
    QHash<QString, QString> m_ticked; ///< paths of the ticked check boxes, by group
};

} // namespace

Result fromJson(const QJsonObject &json, const QString &fileName)
{
    return Reader(json, fileName).read();
}

Result read(const QString &fileName)
{
    const jsonfile::Content content = jsonfile::read(fileName);
    if (!content.error.isEmpty())
        return {nullptr, content.error};
    return fromJson(content.object, fileName);
}

} // namespace formreader

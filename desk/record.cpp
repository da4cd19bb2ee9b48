// SPDX-License-Identifier: MIT
#include "desk/record.h"

#include "barcode/tavrobarcode.h"
#include "choice/tavrocheckbox.h"
#include "core/tavrotext.h"
#include "datetime/tavrodatetime.h"
#include "desk/datetimevalues.h"
#include "desk/form.h"
#include "desk/jsonfile.h"
#include "desk/messages.h"
#include "desk/picturesource.h"
#include "desk/picturevalues.h"
#include "desk/settings/barcodesettings.h"
#include "graphic/tavropicture.h"
#include "graphic/tavrotable.h"

#include <QFileInfo>
#include <QHash>
#include <QLocale>
#include <QVector>
#include <cmath>

namespace record {

namespace {

// From here on a JSON number can stand between two amounts that differ by a cent.
constexpr double MostExactNumber = 1e13;

// The value as an object takes it, invalid where it is none. Numbers become texts, since objects read a floating-point
// value with six digits only; null becomes the empty text.
QVariant contentOf(const QJsonValue &value)
{
    if (value.isString() || value.isNull())
        return value.toString();
    if (value.isDouble() && std::abs(value.toDouble()) < MostExactNumber)
        return QString::number(value.toDouble(), 'f', QLocale::FloatingPointShortest);
    return {};
}

// State of a check box, invalid where the value is none.
QVariant checkStateOf(const QJsonValue &value)
{
    const int unticked = Qt::Unchecked;
    const int ticked = Qt::Checked;
    if (value.isNull())
        return unticked;
    if (value.isBool())
        return value.toBool() ? ticked : unticked;
    const double number = value.toDouble(-1);
    return number == 0 || number == 1 || number == 2 ? value.toInt() : QVariant();
}

// What the object takes, empty where the value is that. What nothing takes is no mistake of its form.
QString expectationOf(const TavroPrototype *object, const QJsonValue &value)
{
    if (!object)
        return {};
    if (qobject_cast<const TavroCheckBox *>(object))
        return checkStateOf(value).isValid() ? QString() : QStringLiteral("true, false, 0, 1 or 2");
    if (qobject_cast<const TavroPicture *>(object))
        return value.isNull() || picturesource::isSource(value) ? QString() : picturesource::expectation();
    if (qobject_cast<const TavroTable *>(object))
        return value.isNull() ? QString() : QStringLiteral("null, since a table has no value");
    return contentOf(value).isValid() ? QString()
                                      : QStringLiteral("a text, or a number with at most 13 digits before the point");
}

// Objects by identifier; null where the entry is of an unknown kind, whose values are kept back without a word here.
QHash<QString, TavroPrototype *> objectsOf(const Form &form)
{
    QHash<QString, TavroPrototype *> objects;
    for (const Form::Entry &entry : form.entries) {
        const QString id = entry.object ? entry.object->tavroID() : entry.unknown.value(QLatin1String("id")).toString();
        if (!id.isEmpty() && !objects.value(id))
            objects.insert(id, entry.object);
    }
    return objects;
}

// The record while it is read, before anything of the form is changed.
class Values
{
public:
    explicit Values(const QString &fileName)
        : m_fileName(fileName)
    {
    }

    /// The error, empty where the object takes the value.
    QString add(TavroPrototype *object, const QString &id, const QJsonValue &value)
    {
        const QString expected = expectationOf(object, value);
        if (!expected.isEmpty())
            return jsonfile::mismatch(m_fileName, id, expected, value);
        if (object)
            m_values.append({object, value});
        const auto *box = qobject_cast<TavroCheckBox *>(object);
        const QString group = box ? box->checkGroupId() : QString();
        if (group.isEmpty() || checkStateOf(value).toInt() == Qt::Unchecked)
            return {};
        if (m_ticked.contains(group))
            return jsonfile::mismatch(m_fileName, id,
                                      QStringLiteral("at most one ticked check box in group %1, %2 is ticked too")
                                          .arg(messages::quoted(group), messages::quoted(m_ticked.value(group))),
                                      value);
        m_ticked.insert(group, id);
        return {};
    }

    void fillIn() const
    {
        for (const auto &[object, value] : m_values)
            fill(object, value);
    }

private:
    // Dates, times and pictures are read here: what an object of the library cannot read is gone without a word.
    void fill(TavroPrototype *object, const QJsonValue &value) const
    {
        if (auto *picture = qobject_cast<TavroPicture *>(object))
            picturevalues::setContent(*picture, value, QFileInfo(m_fileName).absolutePath());
        else if (auto *date = qobject_cast<TavroDatetime *>(object))
            datetimevalues::setContent(*date, contentOf(value).toString());
        else
            fill(object, qobject_cast<TavroCheckBox *>(object) ? checkStateOf(value) : contentOf(value));
    }

    static void fill(TavroPrototype *object, const QVariant &content)
    {
        // In a batch most values are those of the record before: the date, the account, the purpose.
        if (object->contentData() == content)
            return;
        if (auto *barcode = qobject_cast<TavroBarcode *>(object)) {
            barcodesettings::setContent(*barcode, content);
            return;
        }
        object->setContentData(content);
        if (auto *text = qobject_cast<TavroText *>(object))
            text->adjustTextStyle();
    }

    const QString m_fileName;
    QVector<QPair<TavroPrototype *, QJsonValue>> m_values;
    QHash<QString, QString> m_ticked; ///< identifiers of the ticked check boxes, by group
};

} // namespace

Result fillFromJson(Form *form, const QJsonObject &json, const QString &fileName)
{
    Result result;
    const QHash<QString, TavroPrototype *> objects = objectsOf(*form);
    Values values(fileName);
    for (auto it = json.begin(); it != json.end(); ++it) {
        const QString error = values.add(objects.value(it.key()), it.key(), it.value());
        if (!error.isEmpty())
            return {error, {}};
        if (!objects.contains(it.key()))
            result.unknownIds.append(it.key());
    }
    values.fillIn();
    return result;
}

Result fill(Form *form, const QString &fileName)
{
    const jsonfile::Content content = jsonfile::read(fileName);
    if (!content.error.isEmpty())
        return {content.error, {}};
    return fillFromJson(form, content.object, fileName);
}

} // namespace record

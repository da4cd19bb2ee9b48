// SPDX-License-Identifier: MIT
#include "desk/record.h"

#include "barcode/tavrobarcode.h"
#include "core/tavrotext.h"
#include "datetime/tavrodatetime.h"
#include "desk/barcodesettings.h"
#include "desk/datetimevalues.h"
#include "desk/form.h"
#include "desk/jsonfile.h"

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

// Dates and times are read here: what an object of the library cannot read is gone without a word.
void fillObject(TavroPrototype *object, const QVariant &content)
{
    if (auto *date = qobject_cast<TavroDatetime *>(object)) {
        datetimevalues::setContent(*date, content.toString());
        return;
    }
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

} // namespace

Result fillFromJson(Form *form, const QJsonObject &json, const QString &fileName)
{
    Result result;
    const QHash<QString, TavroPrototype *> objects = objectsOf(*form);
    QVector<QPair<TavroPrototype *, QVariant>> values;
    for (auto it = json.begin(); it != json.end(); ++it) {
        const QVariant content = contentOf(it.value());
        if (!content.isValid())
            return {jsonfile::mismatch(fileName, it.key(),
                                       QStringLiteral("a text, or a number with at most 13 digits before the point"),
                                       it.value()),
                    {}};
        if (TavroPrototype *object = objects.value(it.key()))
            values.append({object, content});
        else if (!objects.contains(it.key()))
            result.unknownIds.append(it.key());
    }
    for (const auto &[object, content] : qAsConst(values))
        fillObject(object, content);
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

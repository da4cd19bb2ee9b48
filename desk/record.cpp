// SPDX-License-Identifier: MIT
#include "desk/record.h"

#include "core/tavrotext.h"
#include "desk/form.h"
#include "desk/jsonfile.h"

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

bool isIdOfUnknownKind(const Form &form, const QString &id)
{
    for (const Form::Entry &entry : form.entries) {
        if (!entry.object && entry.unknown.value(QLatin1String("id")) == QJsonValue(id))
            return true;
    }
    return false;
}

} // namespace

Result fillFromJson(Form *form, const QJsonObject &json, const QString &fileName)
{
    Result result;
    QVector<QPair<TavroPrototype *, QVariant>> values;
    for (auto it = json.begin(); it != json.end(); ++it) {
        const QVariant content = contentOf(it.value());
        if (!content.isValid())
            return {jsonfile::mismatch(fileName, it.key(),
                                       QStringLiteral("a text, or a number with at most 13 digits before the point"),
                                       it.value()),
                    {}};
        if (TavroPrototype *object = form->objectWithId(it.key()))
            values.append({object, content});
        else if (!isIdOfUnknownKind(*form, it.key()))
            result.unknownIds.append(it.key());
    }
    for (const auto &[object, content] : qAsConst(values)) {
        object->setContentData(content);
        if (auto *text = qobject_cast<TavroText *>(object))
            text->adjustTextStyle();
    }
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

// SPDX-License-Identifier: MIT
#include "tests/desk/deskforms.h"

#include "core/controlfactory.h"
#include "core/tavroprototype.h"
#include "desk/formreader.h"
#include "desk/settings/catalogue.h"

#include <QFile>
#include <QJsonDocument>
#include <QTest>

namespace deskforms {

namespace {

// A text that the setting of the name takes, and that no new object has.
QString otherText(const QString &key)
{
    if (key == QLatin1String("fontFamily"))
        return QStringLiteral("DejaVu Sans");
    if (key == QLatin1String("numberPattern"))
        return QStringLiteral("0.0");
    if (key == QLatin1String("customPattern"))
        return QStringLiteral("yyyy/M/d");
    if (key == QLatin1String("pattern"))
        return QStringLiteral("[0-9.]+");
    return QStringLiteral("其他 %1").arg(key);
}

double otherNumber(const Setting &setting, double number)
{
    return number + 1 <= setting.maximum ? number + 1 : number - 1;
}

// A value that the kind takes as its preset.
QJsonValue otherPreset(ObjType kind)
{
    if (kind == Obj_CheckBox)
        return true;
    if (kind == Obj_Picture)
        return smallPicture();
    return kind == Obj_Datetime ? QStringLiteral("2022-01-05T08:05:09") : QStringLiteral("12.5");
}

QJsonValue otherThan(const Setting &setting, const QVariant &value)
{
    switch (setting.type) {
    case Setting::Type::Flag:
        return !value.toBool();
    case Setting::Type::Integer:
        return otherNumber(setting, value.toInt());
    case Setting::Type::Number:
        return otherNumber(setting, value.toDouble()) + 0.125;
    case Setting::Type::Numbers:
        // The sections of a new date, and what stands behind each of them.
        return QJsonArray{10, 1.5, 5.25, 1.5, 5.25, 1.5};
    case Setting::Type::Text:
        return otherText(setting.key);
    case Setting::Type::Texts:
        return QJsonArray{otherText(setting.key), QString(), QStringLiteral("12.5")};
    case Setting::Type::Picture:
        return smallPicture();
    case Setting::Type::Color:
        return QStringLiteral("#12ab9c");
    case Setting::Type::AlphaColor:
        return QStringLiteral("#8012ab9c");
    case Setting::Type::Choice:
        for (const Setting::Choice &choice : setting.choices) {
            if (choice.value != value.toInt())
                return choice.name;
        }
    }
    return {};
}

} // namespace

QJsonValue value(const char *text)
{
    return QJsonDocument::fromJson('[' + QByteArray(text) + ']').array().first();
}

QString smallPicture()
{
    return QStringLiteral("iVBORw0KGgoAAAANSUhEUgAAAAIAAAABCAAAAADRSSBWAA"
                          "AAC0lEQVR42mNg+A8AAQIBANEay48AAAAASUVORK5CYII=");
}

QByteArray bytesOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson();
}

QJsonObject object(const char *kind, const QRectF &millimetres, const QJsonObject &settings)
{
    QJsonObject json = settings;
    json.insert(QStringLiteral("kind"), QLatin1String(kind));
    json.insert(QStringLiteral("rect"),
                QJsonArray{millimetres.x(), millimetres.y(), millimetres.width(), millimetres.height()});
    return json;
}

QJsonObject text(const char *kind, const QRectF &millimetres, const QJsonObject &settings)
{
    QJsonObject json = object(kind, millimetres, settings);
    json.insert(QStringLiteral("fontFamily"), QStringLiteral("DejaVu Sans"));
    return json;
}

QJsonObject file(const QJsonArray &objects)
{
    const QJsonObject page{{QStringLiteral("width"), 100}, {QStringLiteral("height"), 60}};
    return {{QStringLiteral("version"), 1},
            {QStringLiteral("pixelsPerMillimetre"), 8},
            {QStringLiteral("page"), page},
            {QStringLiteral("objects"), objects}};
}

QJsonObject fullFile()
{
    QJsonArray objects;
    const QStringList kinds = catalogue::kindNames();
    for (const QString &name : kinds) {
        const ObjType kind = catalogue::kindOf(name);
        QJsonObject settings;
        for (const Setting &setting : catalogue::settingsOf(kind))
            settings.insert(setting.key, otherValue(kind, setting.key));
        if (kind == Obj_Datetime) {
            // The marks between sections, of which the last has none behind it.
            settings.insert(QStringLiteral("separator"), QStringLiteral("slash"));
            settings.insert(QStringLiteral("sections"), QJsonArray{10, 0.5, 5.25, 0.5, 5.25});
        }
        settings.insert(QStringLiteral("id"), name + QStringLiteral(" 1"));
        const double top = 5 + 5 * objects.size();
        objects.append(object(name.toLatin1().constData(), {10.5, top, 60.25, 4.5}, settings));
    }
    QJsonObject json = file(objects);
    QJsonObject page = json.value(QStringLiteral("page")).toObject();
    page.insert(QStringLiteral("margins"), QJsonArray{1, 2.5, 3, 4});
    json.insert(QStringLiteral("page"), page);
    return json;
}

QJsonValue otherValue(ObjType kind, const QString &key)
{
    const std::unique_ptr<TavroPrototype> fresh(ControlFactory::factory(kind));
    for (const Setting &setting : catalogue::settingsOf(kind)) {
        if (key == setting.key && (key == QLatin1String("preset") || key == QLatin1String("text")))
            return otherPreset(kind);
        if (setting.key == key)
            return otherThan(setting, setting.get(*fresh));
    }
    return {};
}

std::unique_ptr<Form> readFile(const QJsonObject &file)
{
    formreader::Result result = formreader::fromJson(file, QStringLiteral("test.tform"));
    if (!result.form)
        QTest::qFail(qPrintable(result.error), __FILE__, __LINE__);
    return std::move(result.form);
}

std::unique_ptr<Form> formWith(const QJsonArray &objects)
{
    return readFile(file(objects));
}

bool write(const QString &fileName, const QByteArray &bytes)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

QByteArray content(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace deskforms

// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotypes.h"
#include "desk/form.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QRectF>
#include <memory>

/// Forms that the tests of Desk make: a page of 100 x 60 mm at 8 pixels per millimetre, and what stands on it.
namespace deskforms {

/// Value that the text is in JSON.
QJsonValue value(const char *text);
/// A black and a white pixel side by side, PNG in base64.
QString smallPicture();
/// JSON text of an object or an array, indented.
QByteArray bytesOf(const QJsonObject &object);

/// Object of a form file; `settings` are added to kind and rectangle.
QJsonObject object(const char *kind, const QRectF &millimetres, const QJsonObject &settings = {});
/// The same for a text in DejaVu Sans, whose metrics the tests know.
QJsonObject text(const char *kind, const QRectF &millimetres, const QJsonObject &settings = {});
/// Form file with the objects.
QJsonObject file(const QJsonArray &objects);
/// Form file in which every kind stands with every setting of it, none at the value of a new object.
QJsonObject fullFile();
/// Value of the setting that is not the one of a new object.
QJsonValue otherValue(ObjType kind, const QString &key);

/// The form of a file, null after a failed test condition where it is none.
std::unique_ptr<Form> readFile(const QJsonObject &file);
std::unique_ptr<Form> formWith(const QJsonArray &objects);

/// Writes a whole file; false where that fails.
bool write(const QString &fileName, const QByteArray &bytes);
/// The whole file, null where it cannot be read.
QByteArray content(const QString &fileName);

} // namespace deskforms

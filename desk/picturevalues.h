// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>
#include <QString>

class TavroPicture;

/// Pictures of records.
namespace picturevalues {

/// The picture that the value is becomes the content; without one the content is empty, and the object keeps what was
/// wrong. Null is no picture. The
/// folder is that of the record.
void setContent(TavroPicture &object, const QJsonValue &value, const QString &folder);

/// Why the object has no picture although the record gives one, in words; empty where all is well.
QString problemOf(const TavroPicture &object);

} // namespace picturevalues

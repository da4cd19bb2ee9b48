// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QStringList>

class Form;

/// Fills a form in with a record: a JSON object from the identifier of an object to its value.
namespace record {

struct Result
{
    QString error;          ///< one line that says what is wrong with the file, else empty
    QStringList unknownIds; ///< identifiers that no object of the form has; their values are on no paper
};

/// Sets the values of the file and fits their fonts, so that the form can be printed in the same turn; the form keeps
/// its values where the file is in error.
Result fill(Form *form, const QString &fileName);
Result fillFromJson(Form *form, const QJsonObject &json, const QString &fileName);

} // namespace record

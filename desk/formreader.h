// SPDX-License-Identifier: MIT
#pragma once

#include "desk/form.h"

#include <memory>

/// Reads form files (*.tform). Their format is described in docs/form-file.md.
namespace formreader {

/// The form, or null and one line that says what is wrong with the file.
struct Result
{
    std::unique_ptr<Form> form;
    QString error;
};

Result read(const QString &fileName);
/// The same from JSON that stands already in memory; `fileName` is for the messages.
Result fromJson(const QJsonObject &json, const QString &fileName);

} // namespace formreader

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

class Form;

/// Writes form files. What a file holds depends on the form alone: reading it and writing it again gives the same
/// bytes.
namespace formwriter {

/// The text of the file. Settings that a new object of the kind has anyway are left out; unknown ones are kept.
QByteArray toBytes(const Form &form);

/// Writes the whole file or, on an error, nothing; the result is one line that says what went wrong, else empty.
QString write(const Form &form, const QString &fileName);

} // namespace formwriter

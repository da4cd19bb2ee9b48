// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QTextStream;

/// The commands of tavro-desk.
namespace commandline {

/// What the program tells its caller.
enum ExitCode : int {
    Done = 0,
    ProblemsFound = 1, ///< the form would be printed wrong
    BadInput = 2       ///< a file or an argument cannot be used
};

/// Runs one command. `arguments` start with the name of the program. Findings and reports go to `out`, errors to `err`.
ExitCode run(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace commandline

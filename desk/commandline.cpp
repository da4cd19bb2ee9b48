// SPDX-License-Identifier: MIT
#include "desk/commandline.h"

#include "desk/checking/checking.h"
#include "desk/fonts.h"
#include "desk/form.h"
#include "desk/formreader.h"
#include "desk/messages.h"
#include "desk/printing.h"
#include "desk/record.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

namespace commandline {

namespace {

const char Usage[] =
    "usage: tavro-desk print FORM [--data RECORD] --output FILE.pdf|.png|.svg [--dpi N] [--force] "
    "[--verbose]\n"
    "       tavro-desk check FORM [--data RECORD] [--verbose]\n"
    "\n"
    "print   puts a form at true size into a file; refuses a form with problems unless --force\n"
    "check   lists the problems of a form: values that are invalid or missing, texts that do not fit,\n"
    "        and what this version does not know\n"
    "\n"
    "FORM    a form file (*.tform)\n"
    "RECORD  a JSON object from the identifier of an object to its value\n"
    "\n"
    "exit codes: 0 done, 1 problems found, 2 a file or an argument cannot be used\n";

struct Request
{
    QString command;
    QString formFile;
    QString dataFile;
    QString outputFile;
    int dpi = printing::UsualDpi;
    bool isForced = false;
    bool isVerbose = false;
    bool wantsHelp = false;
};

// The error, empty where the text is a resolution.
QString parseDpi(const QString &text, int *dpi)
{
    bool isNumber = false;
    *dpi = text.toInt(&isNumber);
    if (isNumber && *dpi >= printing::LeastDpi && *dpi <= printing::MostDpi)
        return {};
    return QStringLiteral("--dpi: expected a whole number from %1 to %2, found \"%3\"")
        .arg(printing::LeastDpi)
        .arg(printing::MostDpi)
        .arg(text);
}

// The error, empty where the arguments make a request.
QString parse(const QStringList &arguments, Request *request)
{
    QCommandLineParser parser;
    const QCommandLineOption data(QStringLiteral("data"), QString(), QStringLiteral("RECORD"));
    const QCommandLineOption output(QStringLiteral("output"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption dpi(QStringLiteral("dpi"), QString(), QStringLiteral("N"));
    const QCommandLineOption force(QStringLiteral("force"));
    const QCommandLineOption verbose(QStringLiteral("verbose"));
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    parser.addOptions({data, output, dpi, force, verbose, help});
    if (!parser.parse(arguments))
        return parser.errorText();
    request->wantsHelp = parser.isSet(help);
    if (request->wantsHelp)
        return {};
    const QStringList positional = parser.positionalArguments();
    request->command = positional.value(0);
    request->formFile = positional.value(1);
    request->dataFile = parser.value(data);
    request->outputFile = parser.value(output);
    request->isForced = parser.isSet(force);
    request->isVerbose = parser.isSet(verbose);
    const bool prints = request->command == QLatin1String("print");
    if (!prints && request->command != QLatin1String("check"))
        return QStringLiteral("expected the command print or check");
    if (positional.size() != 2)
        return QStringLiteral("expected one form file");
    if (parser.isSet(data) && request->dataFile.isEmpty())
        return QStringLiteral("--data: expected the name of a record");
    if (!prints && (parser.isSet(output) || parser.isSet(dpi) || parser.isSet(force)))
        return QStringLiteral("--output, --dpi and --force belong to the command print");
    if (prints && !printing::isKnownFormat(request->outputFile))
        return QStringLiteral("expected --output with a file name that ends with .pdf, .png or .svg");
    return parser.isSet(dpi) ? parseDpi(parser.value(dpi), &request->dpi) : QString();
}

ExitCode fail(QTextStream &err, const QString &message)
{
    err << "tavro-desk: " << messages::oneLine(message) << '\n';
    return BadInput;
}

ExitCode print(const Request &request, Form *form, QTextStream &err)
{
    const QString error = printing::write(form, request.outputFile, request.dpi);
    return error.isEmpty() ? Done : fail(err, error);
}

ExitCode runRequest(const Request &request, QTextStream &out, QTextStream &err)
{
    const formreader::Result read = formreader::read(request.formFile);
    if (!read.form)
        return fail(err, read.error);
    // New objects post what they do when the event loop turns. Each object that is deleted searches the whole post,
    // which takes minutes in forms of many thousands.
    QCoreApplication::processEvents();
    QStringList problems;
    if (!request.dataFile.isEmpty()) {
        const record::Result filled = record::fill(read.form.get(), request.dataFile);
        if (!filled.error.isEmpty())
            return fail(err, filled.error);
        for (const QString &id : filled.unknownIds)
            problems.append(QStringLiteral("no object has the identifier %1 of the record").arg(messages::quoted(id)));
    }
    if (request.isVerbose) {
        for (const QString &line : fonts::facesUsedBy(*read.form))
            out << messages::oneLine(line) << '\n';
    }
    problems += checking::problems(*read.form);
    for (const QString &problem : qAsConst(problems))
        (request.command == QLatin1String("check") ? out : err)
            << messages::oneLine(request.formFile + QStringLiteral(": ") + problem) << '\n';
    const ExitCode found = problems.isEmpty() ? Done : ProblemsFound;
    if (request.command == QLatin1String("check"))
        return found;
    if (found == ProblemsFound && !request.isForced) {
        err << "tavro-desk: not printed; --force prints it all the same\n";
        return found;
    }
    return print(request, read.form.get(), err);
}

} // namespace

ExitCode run(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    Request request;
    const QString error = parse(arguments, &request);
    if (!error.isEmpty()) {
        err << "tavro-desk: " << messages::oneLine(error) << "\n\n" << Usage;
        return BadInput;
    }
    if (request.wantsHelp) {
        out << Usage;
        return Done;
    }
    return runRequest(request, out, err);
}

} // namespace commandline

// SPDX-License-Identifier: MIT
#include "desk/checking/checking.h"
#include "desk/formreader.h"
#include "desk/formwriter.h"
#include "desk/jsonfile.h"

#include <QApplication>

// Any bytes as a form file: one line of complaint, or a form that can be checked and comes back from its own file.

namespace {

void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

bool isOneLine(const QString &text)
{
    return !text.isEmpty() && !text.contains(QLatin1Char('\n'));
}

formreader::Result formOf(const QByteArray &bytes)
{
    const QString name = QStringLiteral("f.tform");
    const jsonfile::Content content = jsonfile::parse(bytes, name);
    if (content.error.isEmpty())
        return formreader::fromJson(content.object, name);
    return {nullptr, content.error};
}

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

} // namespace

// The JSON parser of Qt 5.15 loses the object under a name that stands twice in a file.
extern "C" int __lsan_is_turned_off()
{
    return 1;
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(ignoreMessage);
    static QApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const formreader::Result read = formOf(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    require(bool(read.form) == read.error.isEmpty());
    if (!read.form) {
        require(isOneLine(read.error));
        return 0;
    }
    const QStringList problems = checking::problems(*read.form);
    for (const QString &problem : problems)
        require(isOneLine(problem));
    const QByteArray written = formwriter::toBytes(*read.form);
    const formreader::Result again = formOf(written);
    require(again.form && formwriter::toBytes(*again.form) == written);
    require(checking::problems(*again.form) == problems);
    return 0;
}

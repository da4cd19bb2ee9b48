// SPDX-License-Identifier: MIT
// What the targets share that paint or read images: an application without a display that keeps quiet.
#include <QGuiApplication>

namespace {

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

} // namespace

// The offscreen platform plug-in of Qt 5.15 never deletes its screen.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libqoffscreen.so";
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(ignoreMessage);
    static QGuiApplication application(*argc, *argv);
    return 0;
}

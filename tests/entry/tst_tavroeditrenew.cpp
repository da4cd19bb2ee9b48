// SPDX-License-Identifier: MIT
// What an edit object holds on a new form: its preset, or the next serial number.
#include "entry/tavroedit.h"
#include "entry/textedit.h"
#include "tests/support/stricttest.h"

#include <QGraphicsProxyWidget>
#include <QSignalSpy>
#include <QTest>
#include <array>
#include <vector>

namespace {

TextEdit *editorOf(const TavroEdit &edit)
{
    return qobject_cast<TextEdit *>(edit.widgetPrxy()->widget());
}

struct LogLine
{
    QtMsgType type;
    QString category;
    QString text;
};
std::vector<LogLine> logLines;

} // namespace

class TestTavroEditRenew : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void renewTakesThePreset_data();
    void renewTakesThePreset();
    void renewCountsSerialNumbers_data();
    void renewCountsSerialNumbers();
    void numbersAreCountedInAnyFormat();
    void renewLogsTheSerialNumber();
    void renewLeavesOthersAlone_data();
    void renewLeavesOthersAlone();
    void sumOfNumbers_data();
    void sumOfNumbers();
};

void TestTavroEditRenew::renewTakesThePreset_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QVariant>("preset");
    QTest::addColumn<QString>("shown");
    const std::array<const char *, 11> shown = {"15",           "15",         "壹拾伍元整",   "壹拾伍元整",
                                                "壹拾伍圆整",   "壹拾伍元整", "壹拾伍元零分", "FIFTEEN ONLY",
                                                "not a serial", "15",         "15.00"};
    for (int format = 0; format <= 10; ++format) {
        if (format != Format_SerialNumber)
            QTest::addRow("format %d", format)
                << format << QVariant(QStringLiteral("15")) << QString::fromUtf8(shown[std::size_t(format)]);
    }
    QTest::newRow("no preset") << 0 << QVariant() << QString();
    QTest::newRow("beyond the formats") << 11 << QVariant(QStringLiteral("15")) << QString();
}

void TestTavroEditRenew::renewTakesThePreset()
{
    QFETCH(int, format);
    QFETCH(QVariant, preset);
    QFETCH(QString, shown);
    TavroEdit edit;
    edit.setFormatType(static_cast<Input_Format>(format));
    edit.setPresetData(preset);
    edit.setContentData(QStringLiteral("7"));
    const QSignalSpy changed(&edit, &TavroEdit::contentDataChanged);
    edit.renew();
    QCOMPARE(edit.contentData(), preset);
    QCOMPARE(edit.displayText(), shown);
    QCOMPARE(editorOf(edit)->toPlainText(), preset.toString());
    QCOMPARE(changed.count(), 1);
}

void TestTavroEditRenew::renewCountsSerialNumbers_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *before, const char *after) {
        QTest::addRow("'%s'", before) << QVariant(QString::fromLatin1(before)) << QString::fromLatin1(after);
    };
    row("0099", "0100");
    row("999", "1000");
    row("1", "2");
    row("000", "001");
    row("0009", "0010");
    row("", "1");
    row("1234567890123456789012345678901234567890", "1234567890123456789012345678901234567891");
    row("9999999999999999999999999999999999999999", "10000000000000000000000000000000000000000");
    QTest::newRow("null") << QVariant() << QStringLiteral("1");
    QTest::newRow("int") << QVariant(99) << QStringLiteral("100");
    QTest::newRow("double, six digits") << QVariant(12345.67) << QStringLiteral("1234508");
}

void TestTavroEditRenew::renewCountsSerialNumbers()
{
    QFETCH(QVariant, before);
    QFETCH(QString, after);
    TavroEdit edit;
    edit.setFormatType(Format_SerialNumber);
    edit.setPresetData(QStringLiteral("5"));
    edit.setContentData(before);
    const QSignalSpy changed(&edit, &TavroEdit::contentDataChanged);
    const QSignalSpy invalid(&edit, &TavroEdit::invalidDataOccured);
    edit.renew();
    QCOMPARE(edit.contentData(), QVariant(after));
    QCOMPARE(edit.contentData().userType(), int(QMetaType::QString));
    QCOMPARE(edit.displayText(), after);
    QCOMPARE(editorOf(edit)->toPlainText(), after);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(invalid.count(), 0);
}

// Counting is the host's to ask for: neither the format nor the wish to stay as it is holds it back.
void TestTavroEditRenew::numbersAreCountedInAnyFormat()
{
    TavroEdit edit;
    edit.setIsResetAtRenew(false);
    for (const Input_Format format : {Format_Text, Format_RmbCapital, Format_SerialNumber}) {
        edit.setFormatType(format);
        edit.setContentData(QStringLiteral("0099"));
        edit.increaseSerialNum();
        QCOMPARE(edit.contentData(), QVariant(QStringLiteral("0100")));
    }
}

void TestTavroEditRenew::renewLogsTheSerialNumber()
{
    TavroEdit edit;
    edit.setFormatType(Format_SerialNumber);
    edit.setContentData(QStringLiteral("0099"));
    logLines.clear();
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context, const QString &text) {
            logLines.push_back({type, QString::fromLatin1(context.category), text});
        });
    edit.renew();
    qInstallMessageHandler(previous);
    QCOMPARE(logLines.size(), std::size_t(1));
    QCOMPARE(logLines[0].type, QtDebugMsg);
    QCOMPARE(logLines[0].category, QStringLiteral("default"));
    const int before = logLines[0].text.indexOf(QStringLiteral("0099"));
    const int after = logLines[0].text.indexOf(QStringLiteral("0100"));
    QVERIFY(before >= 0);
    QVERIFY(before < after);
    QVERIFY(logLines[0].text.endsWith(QStringLiteral(":increasedNum")));
}

void TestTavroEditRenew::renewLeavesOthersAlone_data()
{
    QTest::addColumn<int>("format");
    for (const int format : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, -3})
        QTest::addRow("format %d", format) << format;
}

void TestTavroEditRenew::renewLeavesOthersAlone()
{
    QFETCH(int, format);
    TavroEdit edit;
    edit.setFormatType(static_cast<Input_Format>(format));
    edit.setPresetData(QStringLiteral("5"));
    edit.setContentData(QStringLiteral("7"));
    edit.setIsResetAtRenew(false);
    const QSignalSpy changed(&edit, &TavroEdit::contentDataChanged);
    edit.renew();
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("7")));
    QCOMPARE(changed.count(), 0);
}

void TestTavroEditRenew::sumOfNumbers_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<QString>("sum");
    const auto row = [](const char *a, const char *b, const char *sum) {
        QTest::addRow("'%s' and '%s'", a, b)
            << QString::fromLatin1(a) << QString::fromLatin1(b) << QString::fromLatin1(sum);
    };
    row("0099", "1", "0100");
    row("1", "0099", "0100");
    row("999", "1", "1000");
    row("12", "0034", "0046");
    row("", "7", "7");
    row("", "", "");
    row("99999999999999999999", "99999999999999999999", "199999999999999999998");
}

void TestTavroEditRenew::sumOfNumbers()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(QString, sum);
    const TavroEdit edit;
    QCOMPARE(edit.sumOfNumString(a, b), sum);
}

QTEST_MAIN(TestTavroEditRenew)
#include "tst_tavroeditrenew.moc"

// SPDX-License-Identifier: MIT
// Which contents an edit object finds valid, by its format and by the pattern of the form's designer.
#include "entry/tavroedit.h"
#include "entry/textedit.h"
#include "tests/support/stricttest.h"

#include <QGraphicsProxyWidget>
#include <QRegExp>
#include <QSignalSpy>
#include <QTest>
#include <random>

namespace {

TextEdit *editorOf(const TavroEdit &edit)
{
    return qobject_cast<TextEdit *>(edit.widgetPrxy()->widget());
}

// Mostly what amounts are made of, so that every rule is met, and now and then something else.
QString randomText(std::mt19937 &random)
{
    static const QString amountCharacters = QStringLiteral("00123456789.-");
    static const QString others = QStringLiteral("aZ #%+,元零１٣\n\t\u2028") + QChar(0) + QChar(0xD800);
    const bool isAmount = random() % 3 != 0;
    QString text;
    for (auto length = random() % 14; length > 0; --length) {
        const QString &from = isAmount || random() % 3 != 0 ? amountCharacters : others;
        text.append(from.at(int(random() % unsigned(from.size()))));
    }
    return text;
}

// What the formats show of a content, read off their patterns.
bool showsSomething(int format, const QString &pattern, const QString &text)
{
    static const QRegExp allZero(QStringLiteral("(^0+\\.{0,1}0*$)|(^0*\\.{0,1}0+$)|^0+$"));
    static const QRegExp centsAndMore(QStringLiteral("[0-9]*[1-9][0-9]*\\.?[0-9]*|[0-9]*\\.0?[1-9][0-9]*"));
    if (format < 0 || format > 10)
        return false;
    if (!pattern.isEmpty() && !QRegExp(pattern).exactMatch(text))
        return false;
    if (text.isEmpty() || allZero.exactMatch(text))
        return false;
    const bool isChinese = format >= Format_RmbCapital && format <= Format_RmbCapitalNoSuffix;
    return !isChinese || text.startsWith(QLatin1Char('-')) || centsAndMore.exactMatch(text);
}

} // namespace

class TestTavroEditValidation : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void userPattern_data();
    void userPattern();
    void userPatternComesSecond();
    void queriesEmptyTheShownText();
    void validityIgnoresRequired();
    void anyTextInAnyFormat_data();
    void anyTextInAnyFormat();
};

void TestTavroEditValidation::userPattern_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("valid");
    const auto row = [](const char *pattern, const char *content, bool valid) {
        QTest::addRow("'%s' and '%s'", pattern, content)
            << QString::fromUtf8(pattern) << QString::fromUtf8(content) << valid;
    };
    row("", "anything", true);
    row("", "", true);
    row("[A-Z]{2}", "AB", true);
    row("[A-Z]{2}", "ABC", false);
    row("[A-Z]{2}", "ab", false);
    row("[A-Z]{2}", "", false);
    row("a|bc", "a", true);
    row("a|bc", "bc", true);
    row("a|bc", "ac", false);
    row("a|bc", "abc", false);
    row("^a$", "a", true);
    row("a", "a\n", false);
    row("(", "(", false);
    row("(", "", false);
    row("a)(b", "ab", false);
}

void TestTavroEditValidation::userPattern()
{
    QFETCH(QString, pattern);
    QFETCH(QString, content);
    QFETCH(bool, valid);
    TavroEdit edit;
    edit.setUsrRegExpPattern(pattern);
    QCOMPARE(edit.usrRegExpPattern(), pattern);
    const QSignalSpy invalid(&edit, &TavroEdit::invalidDataOccured);
    edit.setContentData(content);
    QCOMPARE(edit.displayText(), valid ? content : QString());
    QCOMPARE(invalid.count(), valid ? 0 : 1);
    QCOMPARE(edit.isValid(), valid);
    QCOMPARE(edit.isUsrDefineRegExpMatch(content), valid);

    editorOf(edit)->setPlainText(QString());
    editorOf(edit)->setPlainText(content);
    QCOMPARE(edit.displayText(), valid ? content : QString());
}

void TestTavroEditValidation::userPatternComesSecond()
{
    TavroEdit edit;
    edit.setFormatType(Format_Number);
    edit.setUsrRegExpPattern(QStringLiteral("[0-9a-z]{3}"));
    const QSignalSpy invalid(&edit, &TavroEdit::invalidDataOccured);
    edit.setContentData(QStringLiteral("123"));
    QCOMPARE(edit.displayText(), QStringLiteral("123"));
    edit.setContentData(QStringLiteral("12"));
    QCOMPARE(edit.displayText(), QString());
    QVERIFY(!edit.isValid());
    QCOMPARE(invalid.count(), 1);
    edit.setContentData(QStringLiteral("abc"));
    QVERIFY(!edit.isValid());
    QCOMPARE(invalid.count(), 2);
}

void TestTavroEditValidation::queriesEmptyTheShownText()
{
    TavroEdit edit;
    edit.setFormatType(Format_Number);
    edit.setUsrRegExpPattern(QStringLiteral("[0-9]*"));
    const auto show = [&edit] {
        edit.setContentData(QStringLiteral("12"));
        return edit.displayText() == QStringLiteral("12");
    };
    QVERIFY(show());
    QVERIFY(edit.isMatched(QStringLiteral("3")));
    QVERIFY(edit.isUsrDefineRegExpMatch(QStringLiteral("3")));
    QCOMPARE(edit.displayText(), QStringLiteral("12"));
    QVERIFY(!edit.isMatched(QStringLiteral("x")));
    QCOMPARE(edit.displayText(), QString());
    QVERIFY(show());
    QVERIFY(!edit.isUsrDefineRegExpMatch(QStringLiteral("x")));
    QCOMPARE(edit.displayText(), QString());
    QVERIFY(show());
    edit.setFormatType(Format_SerialNumber);
    edit.setUsrRegExpPattern(QStringLiteral("3"));
    QVERIFY(!edit.isValid());
    QCOMPARE(edit.displayText(), QString());
}

void TestTavroEditValidation::validityIgnoresRequired()
{
    TavroEdit edit;
    edit.setIsRequired(true);
    QVERIFY(edit.isValid());
    edit.setContentData(QString());
    QVERIFY(edit.isValid());
}

void TestTavroEditValidation::anyTextInAnyFormat_data()
{
    QTest::addColumn<int>("format");
    for (const int format : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, -3})
        QTest::addRow("format %d", format) << format;
}

void TestTavroEditValidation::anyTextInAnyFormat()
{
    QFETCH(int, format);
    std::mt19937 random(20240131);
    TavroEdit edit;
    edit.setTextFillingRule(Fill_Wrap);
    edit.setFormatType(static_cast<Input_Format>(format));
    int shownCount = 0;
    for (int i = 0; i < 2000; ++i) {
        const QString text = randomText(random);
        edit.setContentData(text);
        const bool shows = showsSomething(format, edit.matchPattern(), text);
        QVERIFY2(edit.displayText().isEmpty() != shows, qPrintable(text));
        QCOMPARE(edit.contentData().toString(), text);
        shownCount += shows ? 1 : 0;
    }
    QVERIFY(format < 0 || format > 10 || shownCount > 50);
}

QTEST_MAIN(TestTavroEditValidation)
#include "tst_tavroeditvalidation.moc"

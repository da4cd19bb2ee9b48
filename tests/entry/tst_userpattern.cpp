// SPDX-License-Identifier: MIT
#include "entry/userpattern.h"

#include <QTest>

namespace {

int printedMessages = 0;

void countMessage(QtMsgType, const QMessageLogContext &, const QString &)
{
    ++printedMessages;
}

} // namespace

class UserPatternTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches_data();
    void matches();
    void startsEmpty();
    void invalidPatternsPrintNothing();
};

void UserPatternTest::matches_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("matched");

    const auto add = [](const char *name, const QString &pattern, const QString &text, bool matched) {
        QTest::newRow(name) << pattern << text << matched;
    };
    add("empty pattern", QString(), QStringLiteral("anything"), true);
    add("empty pattern, empty text", QString(), QString(), true);
    add("empty pattern, half of a surrogate pair", QString(), QString(QChar(0xd800)), true);
    add("whole text", QStringLiteral("[0-9]+"), QStringLiteral("12"), true);
    add("text before the match", QStringLiteral("[0-9]+"), QStringLiteral("a12"), false);
    add("text behind the match", QStringLiteral("[0-9]+"), QStringLiteral("12a"), false);
    add("line feed behind the match", QStringLiteral("[0-9]+"), QStringLiteral("12\n"), false);
    add("line feed behind an anchored match", QStringLiteral("^[0-9]+$"), QStringLiteral("12\n"), false);
    add("empty text", QStringLiteral("[0-9]+"), QString(), false);
    add("empty text that may be empty", QStringLiteral("[0-9]*"), QString(), true);
    add("first choice", QStringLiteral("a|bc"), QStringLiteral("a"), true);
    add("second choice", QStringLiteral("a|bc"), QStringLiteral("bc"), true);
    add("end of the second choice", QStringLiteral("a|bc"), QStringLiteral("ac"), false);
    add("start of a choice", QStringLiteral("a|bc"), QStringLiteral("ab"), false);
    add("longer choice behind a shorter one", QStringLiteral("a|ab"), QStringLiteral("ab"), true);
    add("case counts", QStringLiteral("[a-z]+"), QStringLiteral("AB"), false);
    add("Chinese text", QStringLiteral("[一-龥]{2,4}"), QStringLiteral("转账支票"), true);
    add("invalid pattern", QStringLiteral("[0-9"), QStringLiteral("1"), false);
    add("invalid pattern, empty text", QStringLiteral("("), QString(), false);
    add("invalid pattern that anchors would close", QStringLiteral("a)(?:b"), QStringLiteral("ab"), false);
    add("option that only a pattern's start may hold", QStringLiteral("(*UTF)1"), QStringLiteral("1"), false);
    add("quotation to the end", QStringLiteral("\\Qa.b"), QStringLiteral("a.b"), true);
    add("quotation to the end, other text", QStringLiteral("\\Qa.b"), QStringLiteral("axb"), false);
    add("comment to the end", QStringLiteral("(?x) [0-9]{3} # three digits"), QStringLiteral("123"), true);
    add("comment to the end, longer text", QStringLiteral("(?x) [0-9]{3} # three digits"), QStringLiteral("1234"),
        false);
    add("back reference", QStringLiteral("(.)\\1"), QStringLiteral("aa"), true);
    add("half of a surrogate pair", QStringLiteral(".*"), QString(QChar(0xd800)), false);
    // the first choice takes the matcher to its limit before the second one is tried
    add("short text within the limit", QStringLiteral("(?:a+)+[bc]|a*"), QString(5, QLatin1Char('a')), true);
    add("long text beyond the limit", QStringLiteral("(?:a+)+[bc]|a*"), QString(200, QLatin1Char('a')), false);
}

void UserPatternTest::matches()
{
    QFETCH(const QString, pattern);
    QFETCH(const QString, text);
    QFETCH(const bool, matched);
    const UserPattern userPattern(pattern);
    QCOMPARE(userPattern.pattern(), pattern);
    QCOMPARE(userPattern.matches(text), matched);
    QCOMPARE(userPattern.matches(text), matched);
}

void UserPatternTest::startsEmpty()
{
    const UserPattern userPattern;
    QCOMPARE(userPattern.pattern(), QString());
    QVERIFY(userPattern.matches(QStringLiteral("anything")));
}

void UserPatternTest::invalidPatternsPrintNothing()
{
    printedMessages = 0;
    const QtMessageHandler previous = qInstallMessageHandler(countMessage);
    for (const char *pattern : {"[0-9", "(", "*", "a)(?:b", "\\", "(*UTF)1"})
        UserPattern(QString::fromLatin1(pattern)).matches(QStringLiteral("1"));
    qInstallMessageHandler(previous);
    QCOMPARE(printedMessages, 0);
}

QTEST_APPLESS_MAIN(UserPatternTest)
#include "tst_userpattern.moc"

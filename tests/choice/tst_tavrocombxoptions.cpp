// SPDX-License-Identifier: MIT
// The options of a combo box object and their completer, off screen.
#include "tests/choice/combxprobes.h"
#include "tests/support/stricttest.h"

#include <QTest>

#include <QAbstractItemView>
#include <QPointer>
#include <QSignalSpy>

using namespace combx;

namespace {

QStringList numbers(int count)
{
    QStringList all;
    for (int i = 0; i < count; ++i)
        all.append(QString::number(i));
    return all;
}

QStringList completions(QCompleter &completer, const QString &typed)
{
    completer.setCompletionPrefix(typed);
    QStringList found;
    for (int i = 0; i < completer.completionCount(); ++i) {
        completer.setCurrentRow(i);
        found.append(completer.currentCompletion());
    }
    return found;
}

} // namespace

class TavroCombxOptionsTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void replacing_data();
    void replacing();
    void textAt_data();
    void textAt();
    void signalsAreBlocked();
    void blockedByTheHost();
    void completes_data();
    void completes();
    void completerHasItsOwnList();
    void completerHasAFramelessPopup();
    void replacedCompleterIsDeleted();
    void completerIsDeletedWithTheObject();
    void firstCompleterIsDeleted();
};

void TavroCombxOptionsTest::replacing_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QStringList>("after");
    QTest::newRow("others") << fruits() << words("one two");
    QTest::newRow("the same") << fruits() << fruits();
    QTest::newRow("none") << fruits() << QStringList();
    QTest::newRow("some after none") << QStringList() << fruits();
    QTest::newRow("duplicates") << fruits() << words("b a b b a");
    QTest::newRow("empty texts") << fruits() << QStringList{QString(), QStringLiteral("a"), QString()};
    QTest::newRow("10,000") << fruits() << numbers(10000);
    QTest::newRow("few after 10,000") << numbers(10000) << fruits();
}

void TavroCombxOptionsTest::replacing()
{
    QFETCH(QStringList, before);
    QFETCH(QStringList, after);
    TavroCombx object;
    for (const QStringList &options : {before, after}) {
        object.setIsModified(false);
        object.setOptionList(options);
        QCOMPARE(object.optionList(), options);
        QCOMPARE(object.isModified(), true);
        QCOMPARE(object.currentText(), QString());
        QVERIFY(!object.contentData().isValid());
        QCOMPARE(object.currentIndx(), options.indexOf(QString()));
    }
}

void TavroCombxOptionsTest::textAt_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::newRow("first") << 0 << QStringLiteral("Apple");
    QTest::newRow("last") << 3 << QStringLiteral("Plum");
    QTest::newRow("count") << 4 << QString();
    QTest::newRow("beyond") << 2147483647 << QString();
    QTest::newRow("-1") << -1 << QString();
    QTest::newRow("least") << -2147483647 - 1 << QString();
}

void TavroCombxOptionsTest::textAt()
{
    QFETCH(int, index);
    TavroCombx object;
    QCOMPARE(object.textAt(index), QString());
    object.setOptionList(fruits());
    QTEST(object.textAt(index), "text");
}

void TavroCombxOptionsTest::signalsAreBlocked()
{
    TavroCombx object;
    object.setContentData(QStringLiteral("Plum"));
    QSignalSpy contents(&object, &TavroCombx::contentDataChanged);
    QSignalSpy choices(&object, &TavroCombx::currentIndexChanged);
    QSignalSpy texts(boxOf(object), &QComboBox::currentTextChanged);
    QSignalSpy edits(boxOf(object), &QComboBox::editTextChanged);
    QSignalSpy indices(boxOf(object), QOverload<int>::of(&QComboBox::currentIndexChanged));
    for (const QStringList &options : {fruits(), words("one two"), QStringList()})
        object.setOptionList(options);
    QCOMPARE(contents.count() + choices.count() + texts.count() + edits.count() + indices.count(), 0);
    QCOMPARE(boxOf(object)->signalsBlocked(), false);
    object.setCurrentText(QStringLiteral("heard"));
    QCOMPARE(contents.count(), 1);
}

void TavroCombxOptionsTest::blockedByTheHost()
{
    TavroCombx object;
    boxOf(object)->blockSignals(true);
    object.setOptionList(fruits());
    object.setContentData(QStringLiteral("Plum"));
    QCOMPARE(boxOf(object)->signalsBlocked(), true);
}

void TavroCombxOptionsTest::completes_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("offered");
    QTest::newRow("start") << QStringLiteral("Pin") << words("Pineapple");
    QTest::newRow("middle") << QStringLiteral("lu") << words("Plum");
    QTest::newRow("end") << QStringLiteral("apple") << words("Pineapple");
    QTest::newRow("in several") << QStringLiteral("pple") << words("Apple Pineapple");
    QTest::newRow("whole") << QStringLiteral("Cherry") << words("Cherry");
    QTest::newRow("nowhere") << QStringLiteral("x") << QStringList();
}

void TavroCombxOptionsTest::completes()
{
    QFETCH(QString, typed);
    TavroCombx object;
    object.setOptionList(words("old list with lu and pple"));
    object.setOptionList(fruits());
    QCompleter *completer = boxOf(object)->completer();
    QCOMPARE(completer->filterMode(), Qt::MatchContains);
    QTEST(completions(*completer, typed), "offered");
}

void TavroCombxOptionsTest::completerHasItsOwnList()
{
    TavroCombx object;
    object.setOptionList(fruits());
    QCompleter *completer = boxOf(object)->completer();
    QCOMPARE(completer->parent(), nullptr);
    QVERIFY(completer->model() != boxOf(object)->model());
    QCOMPARE(lineOf(object)->completer(), completer);
    boxOf(object)->addItem(QStringLiteral("Applesauce"));
    QCOMPARE(completions(*completer, QStringLiteral("Appl")), words("Apple"));
}

void TavroCombxOptionsTest::completerHasAFramelessPopup()
{
    TavroCombx object;
    object.setOptionList(fruits());
    const QWidget *popup = boxOf(object)->completer()->popup();
    QVERIFY(popup->windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(popup->windowType(), Qt::Popup);
    QCOMPARE(popup->parentWidget(), nullptr);
}

void TavroCombxOptionsTest::replacedCompleterIsDeleted()
{
    TavroCombx object;
    QPointer<QCompleter> before;
    for (int i = 0; i < 3; ++i) {
        object.setOptionList(numbers(i));
        QPointer<QCompleter> now(boxOf(object)->completer());
        QVERIFY(now);
        QVERIFY(now != before);
        QTRY_VERIFY(!before);
        before = now;
    }
    QVERIFY(before);
}

// Without the event loop turning.
void TavroCombxOptionsTest::completerIsDeletedWithTheObject()
{
    QVector<QPointer<QObject>> made;
    {
        TavroCombx object;
        for (int i = 0; i < 3; ++i) {
            object.setOptionList(numbers(i));
            made.append(boxOf(object)->completer());
            made.append(boxOf(object)->completer()->popup());
            made.append(boxOf(object)->completer()->model());
        }
    }
    QCOMPARE(made.count(QPointer<QObject>()), made.count());
}

void TavroCombxOptionsTest::firstCompleterIsDeleted()
{
    TavroCombx object;
    const QPointer<QCompleter> first(boxOf(object)->completer());
    QVERIFY(first);
    object.setOptionList(fruits());
    QVERIFY(!first);
}

QTEST_MAIN(TavroCombxOptionsTest)
#include "tst_tavrocombxoptions.moc"

// SPDX-License-Identifier: MIT
// Combo box objects filled in by keyboard and pointer in a shown window: what they hold then, and what they report.
#include "tests/choice/combxform.h"
#include "tests/choice/combxlog.h"
#include "tests/support/stricttest.h"

#include <QInputMethodEvent>

using namespace combx;

class TavroCombxTypingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void freeText_data();
    void freeText();
    void inputMethod();
    void everyKeyIsAContent();
    void unbound();
    void leavingAlone_data();
    void leavingAlone();
    void listFollowsTyping();
    void focusComesWithTheObject();
};

void TavroCombxTypingTest::freeText_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("chosen");
    const auto row = [](const char *name, int key, int chosen) { QTest::newRow(name) << key << chosen; };
    row("Enter", Qt::Key_Return, -1);
    row("Enter of the number pad", Qt::Key_Enter, -1);
    row("Tab", Qt::Key_Tab, -1);
    row("another field", 0, -1);
    row("over a chosen option, Enter", Qt::Key_Return, 3);
    row("over a chosen option, another field", 0, 3);
}

void TavroCombxTypingTest::freeText()
{
    QFETCH(int, key);
    QFETCH(int, chosen);
    CombxForm form;
    QVERIFY(form.isReady());
    if (chosen >= 0) {
        QVERIFY(form.openList());
        form.pick(chosen);
    }
    QSignalSpy choices(form.object, &TavroCombx::currentIndexChanged);
    form.focus();
    form.type(QStringLiteral("fig"));
    if (key)
        form.key(static_cast<Qt::Key>(key));
    form.clickOther();
    QCOMPARE(form.object->contentData(), QVariant(QStringLiteral("fig")));
    QCOMPARE(form.object->currentText(), QStringLiteral("fig"));
    // The index is that of the last choice, and no longer that of the content.
    QCOMPARE(form.object->currentIndx(), chosen);
    QCOMPARE(form.object->optionList(), fruits());
    QCOMPARE(choices.count(), 0);
}

void TavroCombxTypingTest::inputMethod()
{
    CombxForm form;
    QVERIFY(form.isReady());
    Log taken(form.object);
    form.focus();
    const auto send = [&form](const QString &composing, const QString &committed) {
        QInputMethodEvent event(composing, {});
        event.setCommitString(committed);
        QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
    };
    send(QStringLiteral("li"), QString());
    QCOMPARE(taken.taken(), QString());
    send(QString(), QStringLiteral("李子"));
    QCOMPARE(taken.taken(), QStringLiteral("content 李子"));
    QCOMPARE(form.object->currentText(), QStringLiteral("李子"));
    QCOMPARE(form.object->optionList(), fruits());
}

void TavroCombxTypingTest::everyKeyIsAContent()
{
    CombxForm form;
    QVERIFY(form.isReady());
    form.object->setTextFillingRule(Fill_Shrink);
    form.object->setIsModified(false);
    Log taken(form.object);
    form.focus();
    form.type(QStringLiteral("ab"));
    form.key(Qt::Key_Backspace);
    form.key(Qt::Key_Backspace);
    QCOMPARE(taken.taken(), QStringLiteral("content a; content ab; content a; content "));
    const int whole = form.object->font().pixelSize();
    form.type(QString(40, QLatin1Char('w')));
    QVERIFY(form.object->font().pixelSize() < whole);
    QVERIFY(haveFont(*form.object, form.object->font()));
    QCOMPARE(form.object->isModified(), false);
}

void TavroCombxTypingTest::unbound()
{
    CombxForm form;
    QVERIFY(form.isReady());
    form.object->unbindToDB();
    Log taken(form.object);
    QVERIFY(form.openList());
    form.pick(0);
    QCOMPARE(taken.taken(), QStringLiteral("content Apple; choice 0 . of Apple"));
}

// Whoever passes through a field has chosen nothing.
void TavroCombxTypingTest::leavingAlone_data()
{
    QTest::addColumn<Step>("set");
    const auto row = [](const char *name, Step set) { QTest::newRow(name) << set; };
    row("empty", [](CombxForm &) {});
    row("content set", [](CombxForm &form) { form.object->setContentData(QStringLiteral("Plum")); });
    row("text set", [](CombxForm &form) { form.object->setCurrentText(QStringLiteral("Plum")); });
    row("index set", [](CombxForm &form) { form.object->setCurrentIndx(3); });
    row("free text set", [](CombxForm &form) { form.object->setContentData(QStringLiteral("fig")); });
    row("set over another option", [](CombxForm &form) {
        form.object->setCurrentIndx(1);
        form.object->setContentData(QStringLiteral("Plum"));
    });
    row("options set below the content", [](CombxForm &form) {
        form.object->setContentData(QStringLiteral("x"));
        form.object->setOptionList({QStringLiteral("a"), QStringLiteral("x")});
    });
    row("renewed", [](CombxForm &form) {
        form.object->setPresetData(QStringLiteral("Cherry"));
        form.object->renew();
    });
}

void TavroCombxTypingTest::leavingAlone()
{
    QFETCH(Step, set);
    CombxForm form;
    QVERIFY(form.isReady());
    set(form);
    const QVariant content = form.object->contentData();
    Log taken(form.object);
    form.focus();
    QVERIFY(form.object->widgetPrxy()->hasFocus());
    form.key(Qt::Key_Return);
    form.clickOther();
    QVERIFY(form.other->hasFocus());
    QCOMPARE(taken.taken(), QString());
    QCOMPARE(form.object->contentData(), content);
}

// A host that looks the options up for each text typed, while the completions of the list before are open.
void TavroCombxTypingTest::listFollowsTyping()
{
    CombxForm form;
    QVERIFY(form.isReady());
    TavroCombx *object = form.object;
    connect(object, &TavroCombx::contentDataChanged, object, [object] {
        const QString typed = object->contentData().toString();
        object->setOptionList({typed + QStringLiteral("-one"), typed + QStringLiteral("-two")});
    });
    QVector<QPointer<QCompleter>> completers;
    for (const char *typed : {"a", "b", "c"}) {
        if (completers.isEmpty())
            form.focus();
        form.type(QString::fromLatin1(typed));
        completers.append(form.box()->completer());
        QTRY_VERIFY(form.completions()->isVisible());
    }
    QCOMPARE(object->contentData(), QVariant(QStringLiteral("abc")));
    QCOMPARE(object->optionList(), QStringList({QStringLiteral("abc-one"), QStringLiteral("abc-two")}));
    QTRY_VERIFY(!completers.at(0) && !completers.at(1));
    form.key(Qt::Key_Down);
    form.key(Qt::Key_Return);
    QCOMPARE(object->contentData(), QVariant(QStringLiteral("abc-one")));
}

void TavroCombxTypingTest::focusComesWithTheObject()
{
    CombxForm form;
    QVERIFY(form.isReady());
    form.clickOther();
    form.object->setFocus();
    QCOMPARE(form.scene().focusItem(), form.object->widgetPrxy());
    form.type(QStringLiteral("x"));
    QCOMPARE(form.object->contentData(), QVariant(QStringLiteral("x")));
}

QTEST_MAIN(TavroCombxTypingTest)
#include "tst_tavrocombxtyping.moc"

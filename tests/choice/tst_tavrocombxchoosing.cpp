// SPDX-License-Identifier: MIT
// Options of a combo box object chosen by pointer and keyboard, from the list, the completions and by typing.
#include "tests/choice/combxform.h"
#include "tests/choice/combxlog.h"
#include "tests/support/stricttest.h"

using namespace combx;

namespace {

// The completions are open from the first key on.
void typeAndSee(CombxForm &form, const char *text)
{
    form.focus();
    for (const QChar character : QString::fromLatin1(text)) {
        form.type(character);
        QVERIFY2(form.completions()->isVisible(), text);
    }
}

void openByKey(CombxForm &form)
{
    form.focus();
    form.key(Qt::Key_Down, Qt::AltModifier);
    QTRY_VERIFY(form.list()->isVisible());
}

} // namespace

class TavroCombxChoosingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void choosing_data();
    void choosing();
};

void TavroCombxChoosingTest::choosing_data()
{
    QTest::addColumn<Step>("step");
    QTest::addColumn<QString>("log");
    const auto row = [](const char *name, const char *log, Step step) {
        QTest::newRow(name) << step << QString::fromLatin1(log);
    };
    row("pointer", "content Cherry; choice 2 goods.fruit of Cherry", [](CombxForm &form) {
        QVERIFY(form.openList());
        form.pick(2);
    });
    row("pointer, the current one", "content Cherry; choice 2 goods.fruit of Cherry; choice 2 goods.fruit of Cherry",
        [](CombxForm &form) {
            for (int i = 0; i < 2; ++i) {
                QVERIFY(form.openList());
                form.pick(2);
            }
        });
    row("Alt+Down, Down, Down, Up and Enter", "content Pineapple; choice 1 goods.fruit of Pineapple",
        [](CombxForm &form) {
            openByKey(form);
            QVERIFY(!form.box()->view()->currentIndex().isValid() || form.box()->view()->currentIndex().row() == 0);
            form.key(Qt::Key_Home);
            form.key(Qt::Key_Down);
            form.key(Qt::Key_Down);
            form.key(Qt::Key_Up);
            form.key(Qt::Key_Return);
        });
    row("Alt+Down, End and Enter", "content Plum; choice 3 goods.fruit of Plum", [](CombxForm &form) {
        openByKey(form);
        form.key(Qt::Key_End);
        form.key(Qt::Key_Enter);
    });
    row("Alt+Down and Escape", "", [](CombxForm &form) {
        openByKey(form);
        form.key(Qt::Key_Down);
        form.key(Qt::Key_Escape);
    });
    row("Down in the field", "content Apple; choice 0 goods.fruit of Apple", [](CombxForm &form) {
        form.focus();
        form.key(Qt::Key_Down);
    });
    row("Down and Up in the field",
        "content Apple; choice 0 goods.fruit of Apple; content Pineapple; choice 1 goods.fruit of Pineapple; "
        "content Apple; choice 0 goods.fruit of Apple",
        [](CombxForm &form) {
            form.focus();
            form.key(Qt::Key_Down);
            form.key(Qt::Key_Down);
            form.key(Qt::Key_Up);
        });
    row("completion by Enter", "content l; content lu; content Plum; choice 3 goods.fruit of Plum",
        [](CombxForm &form) {
            typeAndSee(form, "lu");
            form.key(Qt::Key_Down);
            form.key(Qt::Key_Return);
        });
    row("completion by the pointer", "content l; content lu; content Plum; choice 3 goods.fruit of Plum",
        [](CombxForm &form) {
            typeAndSee(form, "lu");
            QTest::mouseClick(form.completions()->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
        });
    row("completions and Escape", "content l; content lu", [](CombxForm &form) {
        typeAndSee(form, "lu");
        form.key(Qt::Key_Escape);
    });
    row("an option typed, and Enter", "content P; content Pl; content Plu; content Plum; choice 3 goods.fruit of Plum",
        [](CombxForm &form) {
            typeAndSee(form, "Plum");
            form.key(Qt::Key_Escape);
            form.key(Qt::Key_Return);
        });
    row("an option typed, and Tab", "content P; content Pl; content Plu; content Plum; choice 3 goods.fruit of Plum",
        [](CombxForm &form) {
            typeAndSee(form, "Plum");
            form.key(Qt::Key_Escape);
            form.key(Qt::Key_Tab);
        });
    row("an option typed, and another field",
        "content P; content Pl; content Plu; content Plum; choice 3 goods.fruit of Plum", [](CombxForm &form) {
            typeAndSee(form, "Plum");
            form.key(Qt::Key_Escape);
            form.clickOther();
        });
    row("an option typed on the way to another", "content a; content ab; choice 5 goods.fruit of ab",
        [](CombxForm &form) {
            form.object->setOptionList(fruits() + QStringList{QStringLiteral("a"), QStringLiteral("ab")});
            typeAndSee(form, "ab");
            form.key(Qt::Key_Escape);
        });
    row("an option typed in other case", "content p; content pl; content plu; content plum", [](CombxForm &form) {
        form.focus();
        form.type(QStringLiteral("plum"));
        form.key(Qt::Key_Escape);
    });
}

void TavroCombxChoosingTest::choosing()
{
    QFETCH(Step, step);
    QFETCH(QString, log);
    CombxForm form;
    QVERIFY(form.isReady());
    Log taken(form.object);
    step(form);
    // Leaving reports nothing twice.
    form.clickOther();
    form.clickOther();
    QVERIFY(form.other->hasFocus());
    QVERIFY(!form.list()->isVisible());
    QCOMPARE(taken.taken(), log);
    QCOMPARE(form.object->optionList().mid(0, fruits().size()), fruits());
    QVERIFY(form.object->optionList().size() == fruits().size() || log.contains(QLatin1String("ab")));
    QCOMPARE(form.object->contentData(), log.isEmpty() ? QVariant() : QVariant(form.object->currentText()));
}

QTEST_MAIN(TavroCombxChoosingTest)
#include "tst_tavrocombxchoosing.moc"

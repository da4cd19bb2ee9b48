// SPDX-License-Identifier: MIT
// Combo box objects whose parts go before them, and objects that go while they are used.
#include "tests/choice/combxform.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <QPointer>

using namespace combx;

namespace {

void chooseByPointer(CombxForm &form)
{
    QVERIFY(form.openList());
    form.pick(2);
}

void chooseByKey(CombxForm &form)
{
    form.focus();
    form.key(Qt::Key_Down);
}

void chooseCompletion(CombxForm &form)
{
    form.focus();
    form.type(QStringLiteral("lu"));
    form.key(Qt::Key_Down);
    form.key(Qt::Key_Return);
}

void typeAndLeave(CombxForm &form)
{
    form.focus();
    form.type(QStringLiteral("Plum"));
    form.key(Qt::Key_Escape);
    form.clickOther();
}

void typeFree(CombxForm &form)
{
    form.focus();
    form.type(QStringLiteral("x"));
}

} // namespace

class TavroCombxLifetimesTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void partsGoFirst_data();
    void partsGoFirst();
    void lineEditGoesFirst();
    void deletedLaterInASlot_data();
    void deletedLaterInASlot();
    void deletedInASlot_data();
    void deletedInASlot();
    void deletedWhileTyping();
    void deletedInEveryMode_data();
    void deletedInEveryMode();
};

void TavroCombxLifetimesTest::partsGoFirst_data()
{
    QTest::addColumn<bool>("isProxy");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("combo box") << false << false;
    QTest::newRow("combo box, shown") << false << true;
    QTest::newRow("proxy") << true << false;
    QTest::newRow("proxy, shown") << true << true;
}

void TavroCombxLifetimesTest::partsGoFirst()
{
    QFETCH(bool, isProxy);
    QFETCH(bool, isShown);
    TavroCombx object;
    object.setOptionList(fruits());
    object.setContentData(QStringLiteral("Fig"));
    object.setPaintMode(isShown ? Paint_Input : Paint_Design);
    const QPointer<QObject> other(isProxy ? static_cast<QObject *>(boxOf(object)) : object.widgetPrxy());
    delete (isProxy ? static_cast<QObject *>(object.widgetPrxy()) : boxOf(object));
    QVERIFY(!other);
    QCOMPARE(object.widgetPrxy(), nullptr);
    QCOMPARE(object.focusProxy(), nullptr);
    QSignalSpy contents(&object, &TavroCombx::contentDataChanged);
    object.syncContentData();
    QCOMPARE(object.contentData(), QVariant(QStringLiteral("Fig")));
    QCOMPARE(contents.count(), 0);

    object.setIsModified(false);
    object.setOptionList({QStringLiteral("a")});
    QCOMPARE(object.isModified(), true);
    QCOMPARE(object.optionList(), QStringList());
    QCOMPARE(object.textAt(0), QString());
    object.setCurrentIndx(1);
    QCOMPARE(object.currentIndx(), -1);
    object.setCurrentText(QStringLiteral("a"));
    QCOMPARE(object.currentText(), QString());
    object.setBorderColor(QStringLiteral("red"));
    object.setBorderColor(0xFF0000u);
    object.syncComboxText();
    object.syncCombxFont();
    object.syncCombxGeometry();
    object.setBoundingRect({0, 0, 100, 20});
    object.setFontPtSz(11);
    object.setPresetData(QStringLiteral("Plum"));
    object.renew();
    QCOMPARE(object.contentData(), QVariant(QStringLiteral("Plum")));
    object.setIsReadOnly(true);
    for (const int mode : {1, 0, 2, 3}) {
        object.setPaintMode(static_cast<Paint_Mode>(mode));
        object.showHideCombx();
        object.onHoverEvent(true);
        object.onHoverEvent(false);
        QCOMPARE(probes::paintedBy(object).isEmpty(), mode == 1 || mode == 3);
    }
    QSignalSpy choices(&object, &TavroCombx::currentIndexChanged);
    object.onCurrentIndexChanged(7);
    QCOMPARE(choices.count(), 1);
    QCOMPARE(choices.at(0).at(0).toInt(), 7);
}

void TavroCombxLifetimesTest::lineEditGoesFirst()
{
    TavroCombx object;
    object.setOptionList(fruits());
    boxOf(object)->setEditable(false);
    object.setBoundingRect({0, 0, 100, 20});
    object.setContentData(QStringLiteral("Plum"));
    QCOMPARE(object.currentText(), QStringLiteral("Plum"));
    QCOMPARE(boxOf(object)->font().pixelSize(), object.font().pixelSize());
}

void TavroCombxLifetimesTest::deletedLaterInASlot_data()
{
    QTest::addColumn<Step>("step");
    QTest::addColumn<bool>("byChoice");
    for (const bool byChoice : {false, true}) {
        const char *signal = byChoice ? "choice" : "content";
        const auto row = [&](const char *name, Step step) {
            QTest::addRow("%s, %s", signal, name) << step << byChoice;
        };
        row("list", chooseByPointer);
        row("key", chooseByKey);
        row("completion", chooseCompletion);
        row("typed and left", typeAndLeave);
        if (!byChoice)
            row("free text", typeFree);
    }
}

void TavroCombxLifetimesTest::deletedLaterInASlot()
{
    QFETCH(Step, step);
    QFETCH(bool, byChoice);
    CombxForm form;
    QVERIFY(form.isReady());
    const QPointer<TavroCombx> object(form.object);
    bool isDeleted = false;
    const auto remove = [&] {
        isDeleted = true;
        object->deleteLater();
    };
    if (byChoice)
        connect(form.object, &TavroCombx::currentIndexChanged, form.object, remove);
    else
        connect(form.object, &TavroCombx::contentDataChanged, form.object, remove);
    step(form);
    QVERIFY(isDeleted);
    QTRY_VERIFY(!object);
    QVERIFY(!QApplication::activePopupWidget());
    form.clickOther();
    QVERIFY(form.other->hasFocus());
}

// Where no widget of Qt is at work behind the signal.
void TavroCombxLifetimesTest::deletedInASlot_data()
{
    QTest::addColumn<bool>("byChoice");
    QTest::newRow("choice") << true;
    QTest::newRow("content") << false;
}

void TavroCombxLifetimesTest::deletedInASlot()
{
    QFETCH(bool, byChoice);
    CombxForm form;
    const QPointer<TavroCombx> object(form.object);
    if (byChoice) {
        connect(form.object, &TavroCombx::currentIndexChanged, this, [object] { delete object; });
        form.object->onCurrentIndexChanged(1);
    } else {
        connect(form.object, &TavroCombx::contentDataChanged, this, [object] { delete object; });
        form.object->syncContentData();
    }
    QVERIFY(!object);
    QCOMPARE(form.scene().items().size(), 1);
}

// An option is typed but not yet chosen: a combo box chooses it when it loses the keyboard.
void TavroCombxLifetimesTest::deletedWhileTyping()
{
    CombxForm form;
    QVERIFY(form.isReady());
    form.focus();
    form.type(QStringLiteral("Plum"));
    form.key(Qt::Key_Escape);
    QSignalSpy contents(form.object, &TavroCombx::contentDataChanged);
    QSignalSpy choices(form.object, &TavroCombx::currentIndexChanged);
    delete form.object;
    QCOMPARE(contents.count() + choices.count(), 0);
    QCOMPARE(form.scene().focusItem(), nullptr);
    form.clickOther();
    QVERIFY(form.other->hasFocus());
}

void TavroCombxLifetimesTest::deletedInEveryMode_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0, 1, 2, 3})
        QTest::addRow("%d", mode) << mode;
}

void TavroCombxLifetimesTest::deletedInEveryMode()
{
    QFETCH(int, mode);
    CombxForm form;
    QVERIFY(form.isReady());
    form.object->setIsReadOnly(true);
    form.object->setPaintMode(static_cast<Paint_Mode>(mode));
    form.object->setSelected(true);
    form.object->setFocus();
    probes::hover(form.scene(), *form.object, QEvent::GraphicsSceneHoverEnter);
    const QPointer<QWidget> box(form.box());
    const QPointer<QWidget> list(form.list());
    delete form.object;
    QVERIFY(!box && !list);
    QCOMPARE(form.scene().items().size(), 1);
}

QTEST_MAIN(TavroCombxLifetimesTest)
#include "tst_tavrocombxlifetimes.moc"

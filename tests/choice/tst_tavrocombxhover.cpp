// SPDX-License-Identifier: MIT
// A read-only combo box object is disabled while the pointer is over it, and never for longer.
#include "tests/choice/combxform.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

using namespace combx;

namespace {

void enter(CombxForm &form)
{
    probes::hover(form.scene(), *form.object, QEvent::GraphicsSceneHoverEnter);
}

void leave(CombxForm &form)
{
    probes::hover(form.scene(), *form.object, QEvent::GraphicsSceneHoverLeave);
}

} // namespace

class TavroCombxHoverTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void locks_data();
    void locks();
    void unlocks_data();
    void unlocks();
    void disabledObjectStaysDisabled();
    void disabledUnderThePointer();
    void disabledByTheHost();
    void raises();
    void pointer();
    void keyboardOfAReadOnlyField();
    void modeChangesUnderThePointer();
};

void TavroCombxHoverTest::locks_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("hovered");
    QTest::newRow("input, read-only") << 1 << true << false;
    QTest::newRow("input") << 1 << false << true;
    QTest::newRow("design, read-only") << 0 << true << true;
    QTest::newRow("print, read-only") << 2 << true << true;
    QTest::newRow("beyond the modes, read-only") << 3 << true << true;
}

// Columns: whether the combo box is enabled under the pointer; it always is without.
void TavroCombxHoverTest::locks()
{
    QFETCH(int, mode);
    QFETCH(bool, readOnly);
    CombxForm form;
    form.object->setPaintMode(static_cast<Paint_Mode>(mode));
    form.object->setIsReadOnly(readOnly);
    QCOMPARE(form.box()->isEnabled(), true);
    for (int i = 0; i < 2; ++i) {
        enter(form);
        QTEST(form.box()->isEnabled(), "hovered");
        leave(form);
        QCOMPARE(form.box()->isEnabled(), true);
        form.object->onHoverEvent(true);
        QTEST(form.box()->isEnabled(), "hovered");
        form.object->onHoverEvent(false);
        QCOMPARE(form.box()->isEnabled(), true);
    }
}

void TavroCombxHoverTest::unlocks_data()
{
    QTest::addColumn<Step>("step");
    const auto row = [](const char *name, Step step) { QTest::newRow(name) << step; };
    row("leaving", [](CombxForm &form) { leave(form); });
    row("no longer read-only, leaving", [](CombxForm &form) {
        form.object->setIsReadOnly(false);
        leave(form);
    });
    row("design mode", [](CombxForm &form) { form.object->setPaintMode(Paint_Design); });
    row("print mode", [](CombxForm &form) { form.object->setPaintMode(Paint_Print); });
    row("print mode and back, the pointer elsewhere", [](CombxForm &form) {
        form.object->setPaintMode(Paint_Print);
        leave(form);
        form.object->setPaintMode(Paint_Input);
    });
    row("hidden, leaving unnoticed", [](CombxForm &form) {
        form.object->setVisible(false);
        leave(form);
        form.object->setVisible(true);
    });
    row("hidden in input mode", [](CombxForm &form) {
        form.object->setObjVisible(false);
        form.object->setPaintMode(Paint_Input);
        leave(form);
        form.object->setObjVisible(true);
        form.object->setPaintMode(Paint_Input);
    });
    row("to another scene, no longer read-only, entering", [](CombxForm &form) {
        form.scene().removeItem(form.object);
        form.object->setIsReadOnly(false);
        form.scene().addItem(form.object);
        enter(form);
    });
}

void TavroCombxHoverTest::unlocks()
{
    QFETCH(Step, step);
    CombxForm form;
    form.object->setIsReadOnly(true);
    enter(form);
    QCOMPARE(form.box()->isEnabled(), false);
    step(form);
    QCOMPARE(form.box()->isEnabled(), true);
    QCOMPARE(form.object->widgetPrxy()->isEnabled(), true);
}

void TavroCombxHoverTest::disabledObjectStaysDisabled()
{
    CombxForm form;
    form.object->setIsReadOnly(true);
    form.object->setObjEnabled(false);
    form.object->setPaintMode(Paint_Input);
    QCOMPARE(form.box()->isEnabled(), false);
    enter(form);
    leave(form);
    QCOMPARE(form.box()->isEnabled(), false);
    form.object->setObjEnabled(true);
    form.object->setPaintMode(Paint_Input);
    QCOMPARE(form.box()->isEnabled(), true);
}

// A disabled object does not hear that the pointer leaves.
void TavroCombxHoverTest::disabledUnderThePointer()
{
    for (const bool isLockedBefore : {false, true}) {
        CombxForm form;
        form.object->setIsReadOnly(isLockedBefore);
        enter(form);
        QCOMPARE(form.box()->isEnabled(), !isLockedBefore);
        form.object->setIsReadOnly(true);
        form.object->setObjEnabled(false);
        form.object->setPaintMode(Paint_Input);
        QCOMPARE(form.box()->isEnabled(), false);
        form.object->setVisible(false);
        form.object->setVisible(true);
        QCOMPARE(form.box()->isEnabled(), false);
        leave(form);
        form.object->setObjEnabled(true);
        form.object->setPaintMode(Paint_Input);
        QCOMPARE(form.box()->isEnabled(), true);
        QCOMPARE(form.object->widgetPrxy()->isEnabled(), true);
    }
}

// The end of a hover enables the combo box of a read-only object, whoever disabled it.
void TavroCombxHoverTest::disabledByTheHost()
{
    CombxForm form;
    form.object->setIsReadOnly(true);
    form.box()->setEnabled(false);
    form.object->setPaintMode(Paint_Input);
    QCOMPARE(form.box()->isEnabled(), false);
    form.object->onHoverEvent(false);
    QCOMPARE(form.box()->isEnabled(), true);
}

void TavroCombxHoverTest::raises()
{
    CombxForm form;
    form.object->setZValue(3);
    enter(form);
    QCOMPARE(form.object->zValue(), 1000.0);
    leave(form);
    QCOMPARE(form.object->zValue(), 3.0);
}

// The pointer itself, over the screen.
void TavroCombxHoverTest::pointer()
{
    CombxForm form;
    form.object->setIsReadOnly(true);
    QVERIFY(form.isReady());
    for (int i = 0; i < 2; ++i) {
        QCursor::setPos(form.onScreen(form.middle()));
        QTRY_COMPARE(form.box()->isEnabled(), false);
        form.click(form.arrow());
        form.click(form.middle());
        form.type(QStringLiteral("x"));
        QVERIFY(!form.list()->isVisible());
        QVERIFY(!form.object->contentData().isValid());
        QCursor::setPos(form.onScreen({-20, -20}));
        QTRY_COMPARE(form.box()->isEnabled(), true);
    }
}

// Nothing but the pointer locks it.
void TavroCombxHoverTest::keyboardOfAReadOnlyField()
{
    CombxForm form;
    form.object->setIsReadOnly(true);
    enter(form);
    leave(form);
    form.object->setPaintMode(Paint_Input);
    QVERIFY(form.isReady());
    form.object->setFocus();
    form.type(QStringLiteral("x"));
    QCOMPARE(form.object->contentData(), QVariant(QStringLiteral("x")));
}

void TavroCombxHoverTest::modeChangesUnderThePointer()
{
    CombxForm form;
    QVERIFY(form.isReady());
    QCursor::setPos(form.onScreen(form.middle()));
    QTRY_COMPARE(form.object->zValue(), 1000.0);
    form.object->setIsReadOnly(true);
    form.object->setPaintMode(Paint_Print);
    QCOMPARE(form.box()->isEnabled(), true);
    form.object->setPaintMode(Paint_Input);
    QCOMPARE(form.box()->isEnabled(), false);
    form.object->setPaintMode(Paint_Design);
    QCOMPARE(form.box()->isEnabled(), true);
    form.object->setPaintMode(Paint_Input);
    QCOMPARE(form.box()->isEnabled(), false);
    QCursor::setPos(form.onScreen({-20, -20}));
    QTRY_COMPARE(form.box()->isEnabled(), true);
}

QTEST_MAIN(TavroCombxHoverTest)
#include "tst_tavrocombxhover.moc"

// SPDX-License-Identifier: MIT
// The blinking cursor, and what a shown form repaints.
#include "cells/tavroseperateedit.h"
#include "tests/cells/cellview.h"
#include "tests/support/recordingpaintengine.h"
#include "tests/support/stricttest.h"

#include <QPaintEvent>
#include <QTest>
#include <functional>

using Edit = TavroSeperateEdit;
using Change = std::function<void(CellView &, Edit *)>;
Q_DECLARE_METATYPE(Change)

namespace {

bool isCursorLit(Edit &edit)
{
    RecordingDevice device;
    QPainter painter(&device);
    edit.drawCursor(&painter);
    return !device.commands().isEmpty();
}

// Remembers what a view repainted.
class PaintMemory : public QObject
{
public:
    explicit PaintMemory(QWidget *widget) { widget->installEventFilter(this); }

    bool covers(const QRect &wanted) const { return QRegion(wanted).subtracted(m_painted).isEmpty(); }
    void forget() { m_painted = QRegion(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_painted += static_cast<QPaintEvent *>(event)->region();
        return QObject::eventFilter(watched, event);
    }

private:
    QRegion m_painted;
};

} // namespace

class TestSeperateEditFocus : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void blinkTimer();
    void blinkTimerIsStartedOnce();
    void ticksTurnTheCursorOnAndOff();
    void cursorBlinksByItself();
    void focusOutEndsDark();
    void otherTimersDoNotBlink();
    void stoppedTimerDoesNotBlink();
    void phaseIsTurnedByHand();
    void fieldThatCannotBeFocusedAnyMoreEndsDark_data();
    void fieldThatCannotBeFocusedAnyMoreEndsDark();
    void oneFieldBlinks();
    void deletedWhileItBlinks();
    void repaint_data();
    void repaint();
    void repaintOfCharacters();
};

void TestSeperateEditFocus::blinkTimer()
{
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 300, 40));
    QCOMPARE(timersOf(edit).size(), 0);
    edit->setFocus();
    QCOMPARE(timersOf(edit).size(), 1);
    QCOMPARE(timersOf(edit).first().interval, 500);
    QCOMPARE(timersOf(edit).first().timerType, Qt::CoarseTimer);
    edit->clearFocus();
    QCOMPARE(timersOf(edit).size(), 0);
}

// A window that comes back may report the focus again.
void TestSeperateEditFocus::blinkTimerIsStartedOnce()
{
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 300, 40));
    edit->setFocus();
    QFocusEvent again(QEvent::FocusIn);
    form.scene().sendEvent(edit, &again);
    QCOMPARE(timersOf(edit).size(), 1);
    edit->clearFocus();
    QCOMPARE(timersOf(edit).size(), 0);
}

void TestSeperateEditFocus::ticksTurnTheCursorOnAndOff()
{
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 300, 40));
    QVERIFY(!isCursorLit(*edit));
    edit->setFocus();
    QVERIFY(!isCursorLit(*edit));
    for (const bool lit : {true, false, true}) {
        tick(edit);
        QCOMPARE(isCursorLit(*edit), lit);
    }
}

void TestSeperateEditFocus::cursorBlinksByItself()
{
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 300, 40));
    edit->setFocus();
    QTRY_VERIFY(isCursorLit(*edit));
    QTRY_VERIFY(!isCursorLit(*edit));
}

void TestSeperateEditFocus::focusOutEndsDark()
{
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 300, 40));
    edit->setFocus();
    tick(edit);
    QVERIFY(isCursorLit(*edit));
    edit->clearFocus();
    QVERIFY(!isCursorLit(*edit));
    edit->setFocus();
    QVERIFY(!isCursorLit(*edit));
    tick(edit);
    QVERIFY(isCursorLit(*edit));
}

void TestSeperateEditFocus::otherTimersDoNotBlink()
{
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 300, 40));
    edit->setFocus();
    const int other = edit->startTimer(100000);
    QTimerEvent event(other);
    QCoreApplication::sendEvent(edit, &event);
    QVERIFY(!isCursorLit(*edit));
    // It is not stopped with the focus either.
    edit->clearFocus();
    QCOMPARE(timersOf(edit).size(), 1);
    QCOMPARE(timersOf(edit).first().timerId, other);
}

void TestSeperateEditFocus::stoppedTimerDoesNotBlink()
{
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 300, 40));
    edit->setFocus();
    QTimerEvent late(timersOf(edit).first().timerId);
    edit->clearFocus();
    QCoreApplication::sendEvent(edit, &late);
    QVERIFY(!isCursorLit(*edit));
}

void TestSeperateEditFocus::phaseIsTurnedByHand()
{
    Edit edit;
    edit.setBoundingRect(QRectF(0, 0, 300, 40));
    for (const bool lit : {true, false, true}) {
        edit.triggerDrawCursor();
        QCOMPARE(isCursorLit(edit), lit);
    }
    edit.setIsReadOnly(true);
    QVERIFY(!isCursorLit(edit));
    edit.setIsReadOnly(false);
    QVERIFY(isCursorLit(edit));
}

void TestSeperateEditFocus::fieldThatCannotBeFocusedAnyMoreEndsDark_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("design mode", [](CellView &, Edit *edit) { edit->setPaintMode(Paint_Design); });
    row("print mode", [](CellView &, Edit *edit) { edit->setPaintMode(Paint_Print); });
    row("not focusable", [](CellView &, Edit *edit) { edit->setFocusable(false); });
    row("hidden", [](CellView &, Edit *edit) { edit->hide(); });
    row("disabled", [](CellView &, Edit *edit) { edit->setEnabled(false); });
    row("taken from the form", [](CellView &form, Edit *edit) { form.scene().removeItem(edit); });
}

void TestSeperateEditFocus::fieldThatCannotBeFocusedAnyMoreEndsDark()
{
    QFETCH(Change, change);
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 300, 40));
    edit->setFocus();
    tick(edit);
    QVERIFY(isCursorLit(*edit));
    change(form, edit);
    QCOMPARE(timersOf(edit).size(), 0);
    QVERIFY(!isCursorLit(*edit));
    if (!edit->scene())
        delete edit;
}

void TestSeperateEditFocus::oneFieldBlinks()
{
    CellView form;
    QVERIFY(form.isActive());
    auto *first = form.add<Edit>(QRectF(20, 20, 300, 40));
    auto *second = form.add<Edit>(QRectF(20, 80, 300, 40));
    first->setFocus();
    tick(first);
    second->setFocus();
    QVERIFY(!isCursorLit(*first));
    QCOMPARE(timersOf(first).size(), 0);
    QCOMPARE(timersOf(second).size(), 1);
}

void TestSeperateEditFocus::deletedWhileItBlinks()
{
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 300, 40));
    edit->setFocus();
    tick(edit);
    delete edit;
    QCOMPARE(form.scene().items().size(), 0);
    QVERIFY(!form.scene().focusItem());
}

void TestSeperateEditFocus::repaint_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) {
        QTest::addRow("%s", name) << QRectF(20, 20, 300, 40) << change;
        // Views do not repaint such a rectangle by themselves.
        QTest::addRow("%s, turned round", name) << QRectF(320, 60, -300, -40) << change;
    };
    row("Left", [](CellView &form, Edit *) { form.press(Qt::Key_Left); });
    row("Right", [](CellView &form, Edit *) { form.press(Qt::Key_Right); });
    row("Backspace", [](CellView &form, Edit *) { form.press(Qt::Key_Backspace); });
    row("digit", [](CellView &form, Edit *) { form.type("5"); });
    row("letter", [](CellView &form, Edit *) { form.type("a"); });
    row("key without a meaning", [](CellView &form, Edit *) { form.press(Qt::Key_Home); });
    row("press in a cell", [](CellView &form, Edit *) { form.click(QPointF(100, 40)); });
    row("tick", [](CellView &form, Edit *edit) {
        QFocusEvent in(QEvent::FocusIn);
        form.scene().sendEvent(edit, &in);
        tick(edit);
    });
    row("focus out", [](CellView &, Edit *edit) { edit->clearFocus(); });
    row("phase", [](CellView &, Edit *edit) { edit->triggerDrawCursor(); });
    row("content", [](CellView &, Edit *edit) { edit->setContentData(QStringLiteral("5")); });
    row("renewed", [](CellView &, Edit *edit) { edit->renew(); });
    row("range", [](CellView &, Edit *edit) { edit->setUnitRange(0, 3); });
    row("mode", [](CellView &, Edit *edit) { edit->setSeperateMode(Sep_Digits6); });
    row("mode beyond the named ones",
        [](CellView &, Edit *edit) { edit->setSeperateMode(static_cast<SeperateMode>(4)); });
    row("value spread", [](CellView &, Edit *edit) { edit->strToList(QStringLiteral("5")); });
    row("zeros at the end", [](CellView &, Edit *edit) { edit->fillZeroToTrail(); });
    row("no zeros in front", [](CellView &, Edit *edit) { edit->removePrefixZero(); });
    row("number of cells", [](CellView &, Edit *edit) { edit->setNumOfEditable(3); });
    row("cells laid out", [](CellView &, Edit *edit) { edit->syncRectGeometry(); });
    row("text of a cell", [](CellView &, Edit *edit) { edit->setCharAt(0, QStringLiteral("5")); });
    row("unit words", [](CellView &, Edit *edit) { edit->setIsDrawMonetaryUnit(false); });
    row("marks", [](CellView &, Edit *edit) { edit->setIsPrefixAll(true); });
    row("mark", [](CellView &, Edit *edit) { edit->setPrefixMode(Prefix_Zero); });
    row("mode beyond the modes", [](CellView &, Edit *edit) { edit->setSeperateMode(static_cast<SeperateMode>(4)); });
    row("amount in the cells", [](CellView &, Edit *edit) { edit->strToList(QStringLiteral("5")); });
    row("zeros at the end", [](CellView &, Edit *edit) { edit->fillZeroToTrail(); });
    row("no zeros in front", [](CellView &, Edit *edit) { edit->removePrefixZero(); });
    row("content spread again", [](CellView &, Edit *edit) { edit->syncDigitsList(); });
    row("cells emptied", [](CellView &, Edit *edit) { edit->resetEditable(); });
    row("cursor", [](CellView &, Edit *edit) { edit->moveCursorTo(1); });
    row("cursor to the right", [](CellView &, Edit *edit) { edit->increaseCursor(); });
    row("cursor to the left", [](CellView &, Edit *edit) { edit->decreaseCursor(); });
    row("cursor to the front", [](CellView &, Edit *edit) { edit->resetCursor(); });
}

void TestSeperateEditFocus::repaint()
{
    QFETCH(QRectF, rect);
    QFETCH(Change, change);
    CellView form;
    form.scene().setItemIndexMethod(QGraphicsScene::NoIndex);
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(rect);
    edit->setFocus();
    // Keeps the keyboard, but does not blink: nothing else than the change may repaint.
    QFocusEvent out(QEvent::FocusOut);
    form.scene().sendEvent(edit, &out);
    PaintMemory memory(form.view().viewport());
    const QRect place = form.view().mapFromScene(rect.normalized()).boundingRect();
    QTRY_VERIFY(memory.covers(place));
    QCoreApplication::processEvents();
    memory.forget();
    change(form, edit);
    QTRY_VERIFY(memory.covers(place));
}

void TestSeperateEditFocus::repaintOfCharacters()
{
    CellView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<Edit>(QRectF(20, 20, 300, 40));
    edit->setSeperateMode(Sep_Chars6);
    PaintMemory memory(form.view().viewport());
    const QRect place = form.view().mapFromScene(edit->boundingRect()).boundingRect();
    QTRY_VERIFY(memory.covers(place));
    QCoreApplication::processEvents();
    memory.forget();
    edit->strToList(QStringLiteral("5"));
    QTRY_VERIFY(memory.covers(place));
}

QTEST_MAIN(TestSeperateEditFocus)
#include "tst_seperateeditfocus.moc"

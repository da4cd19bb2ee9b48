// SPDX-License-Identifier: MIT
// The opened list of a combo box object, as the user sees it on a real screen.
#include "tests/choice/combxform.h"
#include "tests/support/stricttest.h"

#include <QGraphicsRectItem>
#include <QScreen>

using namespace combx;

namespace {

QImage onScreen(const QRect &part)
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, part.x(), part.y(), part.width(), part.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

// What the screen shows in the place of the list is the list, with nothing over it and nothing cut off.
bool isSeenWhole(QWidget &list)
{
    return onScreen(list.geometry()) == list.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

class TavroCombxPopupTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void isAWindow();
    void isSeen_data();
    void isSeen();
    void isSeenAtTheEdgeOfTheScreen_data();
    void isSeenAtTheEdgeOfTheScreen();
    void completionsAreSeen_data();
    void completionsAreSeen();
    void keyboardAfterCompletions_data();
    void keyboardAfterCompletions();
    void closes_data();
    void closes();
    void modeChangesWhileOpen_data();
    void modeChangesWhileOpen();
    void optionsChangeWhileOpen();
    void deletedWhileOpen_data();
    void deletedWhileOpen();
};

void TavroCombxPopupTest::isAWindow()
{
    CombxForm form;
    QVERIFY(form.isReady());
    const int items = form.scene().items().size();
    QVERIFY(form.openList());
    QVERIFY(form.list()->isWindow());
    QCOMPARE(form.list()->windowType(), Qt::Popup);
    QVERIFY(!form.list()->graphicsProxyWidget());
    QCOMPARE(form.scene().items().size(), items);
    QCOMPARE(QApplication::activePopupWidget(), form.list());
}

void TavroCombxPopupTest::isSeen_data()
{
    QTest::addColumn<Step>("step");
    const auto row = [](const char *name, Step step) { QTest::newRow(name) << step; };
    row("as it is", [](CombxForm &) {});
    row("below an object with a higher z", [](CombxForm &form) {
        QGraphicsRectItem *cover = form.scene().addRect(150, 130, 200, 150, QPen(Qt::red), Qt::red);
        cover->setZValue(1e6);
    });
    row("at the lower edge of the view", [](CombxForm &form) { form.object->setPos(150, 265); });
    row("at the right edge of the view", [](CombxForm &form) { form.object->setPos(330, 100); });
    row("moved within its rectangle", [](CombxForm &form) { form.object->setBoundingRect({-60, 40, 120, 25}); });
    row("view scrolled", [](CombxForm &form) {
        form.scene().setSceneRect(0, 0, 1000, 900);
        form.object->setPos(600, 500);
        form.view().ensureVisible(form.object);
    });
    row("view scaled", [](CombxForm &form) { form.view().scale(2, 2); });
    row("view scaled down", [](CombxForm &form) { form.view().scale(0.5, 0.5); });
    row("window moved", [](CombxForm &form) { form.view().move(700, 300); });
    row("in a parent", [](CombxForm &form) {
        QGraphicsRectItem *page = form.scene().addRect(0, 0, 10, 10);
        page->setPos(20, -40);
        form.object->setParentItem(page);
    });
    row("in a parent that clips", [](CombxForm &form) {
        QGraphicsRectItem *page = form.scene().addRect(0, 0, 400, 135);
        page->setFlag(QGraphicsItem::ItemClipsChildrenToShape);
        form.object->setParentItem(page);
    });
}

void TavroCombxPopupTest::isSeen()
{
    QFETCH(Step, step);
    CombxForm form;
    QVERIFY(form.isReady());
    step(form);
    QVERIFY(QTest::qWaitForWindowExposed(&form.view()));
    // The mark that opens the list may be beyond the edge.
    QVERIFY(form.openListByKey());
    const QPoint below = form.onScreen({0, double(form.box()->height())});
    QVERIFY(qAbs(form.list()->x() - below.x()) <= 2);
    // The combo box itself may be enlarged or reduced by the view.
    QVERIFY(qAbs(form.list()->y() - below.y()) <= 2 + form.box()->height());
    QVERIFY(form.list()->height() >= 4 * form.box()->view()->sizeHintForRow(0));
    QTRY_VERIFY(isSeenWhole(*form.list()));
    QSignalSpy chosen(form.object, &TavroCombx::currentIndexChanged);
    form.pick(3);
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(form.object->contentData(), QVariant(QStringLiteral("Plum")));
    QVERIFY(!form.list()->isVisible());
}

void TavroCombxPopupTest::isSeenAtTheEdgeOfTheScreen_data()
{
    QTest::addColumn<QPoint>("window");
    QTest::addColumn<QPointF>("object");
    QTest::newRow("bottom") << QPoint(100, 700) << QPointF(150, 270);
    QTest::newRow("right") << QPoint(1200, 100) << QPointF(370, 100);
    QTest::newRow("bottom right") << QPoint(1200, 700) << QPointF(370, 270);
    QTest::newRow("left") << QPoint(0, 100) << QPointF(-100, 100);
}

void TavroCombxPopupTest::isSeenAtTheEdgeOfTheScreen()
{
    QFETCH(QPoint, window);
    QFETCH(QPointF, object);
    CombxForm form(window);
    QVERIFY(form.isReady());
    form.object->setPos(object);
    QVERIFY(form.openListByKey());
    const QRect list = form.list()->geometry();
    QVERIFY(QGuiApplication::primaryScreen()->geometry().contains(list));
    QVERIFY(!list.intersects(QRect(form.onScreen({0, 2}), form.box()->size() - QSize(0, 4))));
    QTRY_VERIFY(isSeenWhole(*form.list()));
}

void TavroCombxPopupTest::completionsAreSeen_data()
{
    QTest::addColumn<QPoint>("window");
    QTest::addColumn<qreal>("scale");
    QTest::newRow("in the middle") << QPoint(40, 40) << 1.0;
    QTest::newRow("view scaled") << QPoint(40, 40) << 2.0;
    QTest::newRow("at the edge of the screen") << QPoint(1200, 700) << 1.0;
}

void TavroCombxPopupTest::completionsAreSeen()
{
    QFETCH(QPoint, window);
    QFETCH(qreal, scale);
    CombxForm form(window);
    QVERIFY(form.isReady());
    QGraphicsRectItem *cover = form.scene().addRect(150, 130, 200, 150, QPen(Qt::red), Qt::red);
    cover->setZValue(1e6);
    form.object->setPos(230, 265);
    form.view().scale(scale, scale);
    form.view().ensureVisible(form.object, 0, 0);
    form.object->setFocus();
    form.type(QStringLiteral("l"));
    QVERIFY(form.completions()->isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(form.completions()));
    QVERIFY(!form.completions()->graphicsProxyWidget());
    QVERIFY(QGuiApplication::primaryScreen()->geometry().contains(form.completions()->geometry()));
    QTRY_VERIFY(isSeenWhole(*form.completions()));
}

void TavroCombxPopupTest::keyboardAfterCompletions_data()
{
    QTest::addColumn<Step>("close");
    QTest::newRow("closed") << Step([](CombxForm &form) { form.key(Qt::Key_Escape); });
    QTest::newRow("options replaced") << Step([](CombxForm &form) {
        const QPointer<QWidget> before(form.completions());
        form.object->setOptionList({QStringLiteral("one")});
        QTRY_VERIFY(!before);
    });
}

// The view keeps the keyboard from completions alone, and no longer than they are open.
void TavroCombxPopupTest::keyboardAfterCompletions()
{
    QFETCH(Step, close);
    CombxForm form;
    QVERIFY(form.isReady());
    const auto losesItToAPopup = [&form] {
        QFocusEvent out(QEvent::FocusOut, Qt::PopupFocusReason);
        QCoreApplication::sendEvent(&form.view(), &out);
        return !form.scene().hasFocus();
    };
    form.focus();
    form.type(QStringLiteral("l"));
    QVERIFY(form.completions()->isVisible());
    QVERIFY(!losesItToAPopup());
    close(form);
    QVERIFY(losesItToAPopup());
}

void TavroCombxPopupTest::closes_data()
{
    QTest::addColumn<Step>("step");
    const auto row = [](const char *name, Step step) { QTest::newRow(name) << step; };
    row("Escape", [](CombxForm &form) { form.key(Qt::Key_Escape); });
    row("a click beside it", [](CombxForm &form) { form.clickOther(); });
    row("object hidden", [](CombxForm &form) { form.object->setVisible(false); });
    row("another entry from code, and Escape", [](CombxForm &form) {
        form.object->setCurrentIndx(-1);
        form.key(Qt::Key_Escape);
    });
}

void TavroCombxPopupTest::closes()
{
    QFETCH(Step, step);
    CombxForm form;
    QVERIFY(form.isReady());
    QSignalSpy chosen(form.object, &TavroCombx::currentIndexChanged);
    QVERIFY(form.openList());
    step(form);
    QTRY_VERIFY(!form.list()->isVisible());
    QCOMPARE(chosen.count(), 0);
    QVERIFY(!form.object->contentData().isValid());
    form.object->setVisible(true);
    QVERIFY(form.openList());
}

void TavroCombxPopupTest::modeChangesWhileOpen_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("design") << 0;
    QTest::newRow("print") << 2;
}

void TavroCombxPopupTest::modeChangesWhileOpen()
{
    QFETCH(int, mode);
    CombxForm form;
    QVERIFY(form.isReady());
    QVERIFY(form.openList());
    form.object->setPaintMode(static_cast<Paint_Mode>(mode));
    QTRY_VERIFY(!form.list()->isVisible());
    form.object->setPaintMode(Paint_Input);
    QVERIFY(form.openList());
    form.pick(1);
    QCOMPARE(form.object->contentData(), QVariant(QStringLiteral("Pineapple")));
}

void TavroCombxPopupTest::optionsChangeWhileOpen()
{
    CombxForm form;
    QVERIFY(form.isReady());
    QVERIFY(form.openList());
    form.object->setOptionList({QStringLiteral("one"), QStringLiteral("two")});
    form.key(Qt::Key_Escape);
    QVERIFY(!form.list()->isVisible());
    QVERIFY(form.openList());
    form.pick(1);
    QCOMPARE(form.object->contentData(), QVariant(QStringLiteral("two")));
}

void TavroCombxPopupTest::deletedWhileOpen_data()
{
    QTest::addColumn<Step>("open");
    QTest::newRow("list") << Step([](CombxForm &form) { QVERIFY(form.openList()); });
    QTest::newRow("completions") << Step([](CombxForm &form) {
        form.focus();
        form.type(QStringLiteral("l"));
        QVERIFY(form.completions()->isVisible());
    });
}

void TavroCombxPopupTest::deletedWhileOpen()
{
    QFETCH(Step, open);
    CombxForm form;
    QVERIFY(form.isReady());
    open(form);
    const QPointer<QWidget> list(form.list());
    const QPointer<QWidget> completions(form.completions());
    delete form.object;
    QVERIFY(!list && !completions);
    QVERIFY(!QApplication::activePopupWidget());
    form.clickOther();
    QVERIFY(form.other->hasFocus());
}

QTEST_MAIN(TavroCombxPopupTest)
#include "tst_tavrocombxpopup.moc"

// SPDX-License-Identifier: MIT
#include "core/tavrotext.h"
#include "graphic/tavroline.h"
#include "tests/support/stricttest.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPaintEvent>
#include <QTest>
#include <functional>

using Change = std::function<void(TavroPrototype *)>;
Q_DECLARE_METATYPE(Change)

namespace {

// Remembers what it repainted.
class RememberingView : public QGraphicsView
{
public:
    using QGraphicsView::QGraphicsView;

    // Whether all of a rectangle of the scene was repainted since forget().
    bool hasRepainted(const QRectF &rect) const
    {
        const QRegion wanted = mapFromScene(rect.normalized()).boundingRect();
        return wanted.subtracted(m_repainted).isEmpty();
    }
    void forget() { m_repainted = QRegion(); }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        m_repainted += event->region();
        QGraphicsView::paintEvent(event);
    }

private:
    QRegion m_repainted;
};

void addBoxRows()
{
    QTest::addColumn<QSizeF>("size");

    QTest::newRow("right and down") << QSizeF(60, 40);
    QTest::newRow("left and down") << QSizeF(-60, 40);
    QTest::newRow("left and up") << QSizeF(-60, -40);
    QTest::newRow("right and up") << QSizeF(60, -40);
}

void addSizeRows()
{
    addBoxRows();
    QTest::newRow("left") << QSizeF(-60, 0);
    QTest::newRow("up") << QSizeF(0, -40);
}

class PaintedLine : public TavroLine
{
public:
    void designPaint(QPainter *painter) override
    {
        ++paintCalls;
        TavroLine::designPaint(painter);
    }
    int paintCalls = 0;
};

} // namespace

/// What a shown view repaints when a form object changes, whatever the direction of its rectangle.
class TestRepainting : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void rectangle_data() { addSizeRows(); }
    void rectangle();
    void line_data() { addSizeRows(); }
    void line();
    void position_data() { addSizeRows(); }
    void position();
    void content_data() { addBoxRows(); }
    void content();
    void itemState_data();
    void itemState();
    void turned();
    void lockSign();
    void cachedLinePaintsAgain();

private:
    // Shows the object alone, in design mode, and forgets what the showing repainted.
    static void show(RememberingView *view, TavroPrototype *object, const QRectF &rect);
};

void TestRepainting::show(RememberingView *view, TavroPrototype *object, const QRectF &rect)
{
    object->setBoundingRect(rect);
    view->scene()->setItemIndexMethod(QGraphicsScene::NoIndex);
    view->scene()->addItem(object);
    view->resize(450, 350);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view));
    QTRY_VERIFY(view->hasRepainted(rect));
    QCoreApplication::processEvents();
    view->forget();
}

void TestRepainting::rectangle()
{
    QFETCH(QSizeF, size);
    QGraphicsScene scene(0, 0, 400, 300);
    RememberingView view(&scene);
    auto *object = new TavroPrototype;
    show(&view, object, QRectF(20, 20, 50, 30));
    object->setBoundingRect({QPointF(200, 150), size});
    QTRY_VERIFY(view.hasRepainted({QPointF(200, 150), size}));
    QVERIFY(view.hasRepainted(QRectF(20, 20, 50, 30)));
    view.forget();
    object->moveObjBy({90, 70});
    QTRY_VERIFY(view.hasRepainted({QPointF(290, 220), size}));
    QVERIFY(view.hasRepainted({QPointF(200, 150), size}));
}

void TestRepainting::line()
{
    QFETCH(QSizeF, size);
    QGraphicsScene scene(0, 0, 400, 300);
    RememberingView view(&scene);
    auto *line = new TavroLine;
    show(&view, line, QRectF(200, 150, 60, 40));
    line->resize(Handle_BottomRight, QPointF(200 + size.width(), 150 + size.height()));
    QTRY_VERIFY(view.hasRepainted({QPointF(200, 150), size}));
}

void TestRepainting::position()
{
    QFETCH(QSizeF, size);
    QGraphicsScene scene(0, 0, 400, 300);
    RememberingView view(&scene);
    auto *object = new TavroPrototype;
    show(&view, object, {QPointF(120, 100), size});
    object->setPos(150, 120);
    QTRY_VERIFY(view.hasRepainted({QPointF(270, 220), size}));
    QVERIFY(view.hasRepainted({QPointF(120, 100), size}));
}

void TestRepainting::content()
{
    QFETCH(QSizeF, size);
    QGraphicsScene scene(0, 0, 400, 300);
    RememberingView view(&scene);
    auto *text = new TavroText;
    show(&view, text, {QPointF(200, 150), size});
    text->setContentData(QStringLiteral("105000.50"));
    QTRY_VERIFY(view.hasRepainted({QPointF(200, 150), size}));
}

void TestRepainting::itemState_data()
{
    QTest::addColumn<Change>("change");

    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("selected", [](TavroPrototype *object) { object->setSelected(true); });
    row("framed", [](TavroPrototype *object) { object->showDashRect(true); });
    row("hidden", [](TavroPrototype *object) { object->setVisible(false); });
    row("disabled", [](TavroPrototype *object) { object->setEnabled(false); });
    row("raised", [](TavroPrototype *object) { object->setZValue(5); });
    row("turned", [](TavroPrototype *object) {
        object->setRotateAngle(90);
        object->updateObjRotation();
    });
    row("taken away", [](TavroPrototype *object) {
        object->scene()->removeItem(object);
        object->deleteLater();
    });
    row("deleted", [](TavroPrototype *object) { delete object; });
}

void TestRepainting::itemState()
{
    QFETCH(Change, change);
    const QRectF rect(200, 150, -60, -40);
    QGraphicsScene scene(0, 0, 400, 300);
    RememberingView view(&scene);
    auto *object = new TavroPrototype;
    show(&view, object, rect);
    change(object);
    QTRY_VERIFY(view.hasRepainted(rect));
}

// The place that a turned object takes, not only the one that it leaves.
void TestRepainting::turned()
{
    QGraphicsScene scene(0, 0, 400, 300);
    RememberingView view(&scene);
    auto *object = new TavroPrototype;
    show(&view, object, QRectF(200, 150, -60, -40));
    object->setRotateAngle(90);
    object->updateObjRotation();
    QTRY_VERIFY(view.hasRepainted(QRectF(150, 100, 40, 60)));
}

// The sign hangs from the origin, here to the right of the rectangle and below it.
void TestRepainting::lockSign()
{
    QGraphicsScene scene(0, 0, 400, 300);
    RememberingView view(&scene);
    auto *object = new TavroPrototype;
    object->setIsLocked(true);
    show(&view, object, QRectF(200, 150, -60, -40));
    object->setSelected(true);
    QTRY_VERIFY(view.hasRepainted(QRectF(200, 150, 16, 16)));
}

// A cached line whose stroke was changed shows it when its rectangle is set, be it the same.
void TestRepainting::cachedLinePaintsAgain()
{
    QGraphicsScene scene(0, 0, 400, 300);
    RememberingView view(&scene);
    auto *line = new PaintedLine;
    line->setCacheMode(QGraphicsItem::DeviceCoordinateCache);
    show(&view, line, QRectF(20, 20, 60, 40));
    line->paintCalls = 0;
    line->setBoundingRect(QRectF(20, 20, 60, 40));
    QTRY_VERIFY(line->paintCalls > 0);
}

QTEST_MAIN(TestRepainting)
#include "tst_repainting.moc"

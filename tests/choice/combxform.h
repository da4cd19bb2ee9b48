// SPDX-License-Identifier: MIT
#pragma once

#include "tests/choice/combxprobes.h"

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

/// A form with a combo box of fruits and a field beside it, in a shown window, used like a user does. Scene and view
/// have the same pixels until the view is scaled or scrolled.
class CombxForm
{
public:
    explicit CombxForm(const QPoint &place = QPoint(40, 40))
        : m_scene(0, 0, 400, 300)
    {
        // The pointer waits where no window comes.
        QCursor::setPos(1599, 0);
        m_scene.setItemIndexMethod(QGraphicsScene::NoIndex);
        m_view.setScene(&m_scene);
        m_view.setFrameShape(QFrame::NoFrame);
        m_view.setGeometry(QRect(place, QSize(400, 300)));
        other = m_scene.addWidget(new QLineEdit);
        other->setGeometry(QRectF(20, 20, 100, 24));
        object = new TavroCombx;
        object->setTextFillingRule(Fill_NoWrap);
        object->setBoundingRect({0, 0, 160, 30});
        object->setPos(150, 100);
        object->setOptionList(combx::fruits());
        object->bindToDB(QStringLiteral("goods"), QStringLiteral("fruit"));
        object->setPaintMode(Paint_Input);
        m_scene.addItem(object);
    }

    /// Shown, and with the keyboard.
    bool isReady()
    {
        m_view.show();
        m_view.activateWindow();
        return QTest::qWaitForWindowExposed(&m_view) && QTest::qWaitForWindowActive(&m_view);
    }

    QGraphicsScene &scene() { return m_scene; }
    QGraphicsView &view() { return m_view; }
    QComboBox *box() const { return combx::boxOf(*object); }
    QLineEdit *line() const { return combx::lineOf(*object); }
    QWidget *list() const { return combx::listOf(*object); }
    QWidget *completions() const { return box()->completer()->popup(); }

    /// Place of the window, of what the proxy shows at a point of the combo box.
    QPoint inWindow(const QPointF &inBox) const
    {
        return m_view.viewport()->mapTo(m_view.window(), m_view.mapFromScene(object->widgetPrxy()->mapToScene(inBox)));
    }
    QPoint onScreen(const QPointF &inBox) const { return m_view.mapToGlobal(inWindow(inBox)); }
    QPointF arrow() const { return {box()->width() - 8.0, box()->height() / 2.0}; }
    QPointF middle() const { return {box()->width() / 2.0 - 10, box()->height() / 2.0}; }

    /// Clicks through the window system, so that an open popup takes part.
    void click(const QPointF &inBox)
    {
        QTest::mouseClick(m_view.windowHandle(), Qt::LeftButton, Qt::NoModifier, inWindow(inBox));
    }
    void clickOther()
    {
        QTest::mouseClick(m_view.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          m_view.mapFromScene(other->sceneBoundingRect().center()));
    }
    void focus()
    {
        click(middle());
        line()->selectAll();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_view.windowHandle(), key, modifiers);
    }
    void type(const QString &text)
    {
        for (const QChar character : text)
            QTest::keyClick(m_view.windowHandle(), static_cast<char>(character.unicode()));
    }

    bool openList()
    {
        click(arrow());
        return list()->isVisible() && QTest::qWaitForWindowExposed(list());
    }
    bool openListByKey()
    {
        object->setFocus();
        key(Qt::Key_Down, Qt::AltModifier);
        return list()->isVisible() && QTest::qWaitForWindowExposed(list());
    }
    /// Moves the pointer over an entry of the open list, and clicks it.
    void pick(int row)
    {
        QAbstractItemView *view = box()->view();
        const QPoint place = view->viewport()->mapTo(list(), view->visualRect(entry(row)).center());
        QTest::mouseMove(list()->windowHandle(), place - QPoint(0, 1));
        QTest::mouseMove(list()->windowHandle(), place);
        QTest::mouseClick(list()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    }
    QModelIndex entry(int row) const { return box()->model()->index(row, box()->modelColumn()); }

    TavroCombx *object;
    QGraphicsProxyWidget *other;

private:
    QGraphicsScene m_scene;
    QGraphicsView m_view;
};

namespace combx {

/// What a row does with the form.
using Step = void (*)(CombxForm &);

} // namespace combx

Q_DECLARE_METATYPE(combx::Step)

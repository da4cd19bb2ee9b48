// SPDX-License-Identifier: MIT
// A form in a window: laid out with the mouse, filled in after F2. Shift and drag draws a line, Delete removes.
#include <entry/tavroedit.h>
#include <entry/tavrolabel.h>
#include <graphic/tavroline.h>
#include <graphic/tavrorect.h>

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QPointer>

namespace {

constexpr double PixelsPerMm = 8;

/// Adds an object at a place in millimetres. The library derives neither geometry from the other: the host sets both.
template <typename T>
T *addObject(QGraphicsScene *scene, const QRectF &millimetres)
{
    auto *object = new T;
    scene->addItem(object);
    object->setPhyRect(millimetres);
    object->setPhyBoundingRectWidth(millimetres.width());
    object->setPhyBoundingRectHeight(millimetres.height());
    object->setBoundingRect({millimetres.topLeft() * PixelsPerMm, millimetres.size() * PixelsPerMm});
    return object;
}

} // namespace

class FormView : public QGraphicsView
{
public:
    explicit FormView(QGraphicsScene *scene)
        : QGraphicsView(scene)
    {
    }

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        if (m_mode != Paint_Design) {
            QGraphicsView::mousePressEvent(event); // the objects open their editors themselves
            return;
        }
        m_last = mapToScene(event->pos());
        m_handle = m_object && m_object->isSelected() ? m_object->hitTest(m_last) : Handle_None;
        if (m_handle != Handle_None)
            return;
        scene()->clearSelection();
        if (event->modifiers() == Qt::ShiftModifier) {
            m_object = addObject<TavroLine>(scene(), {m_last / PixelsPerMm, QSizeF(0, 0)});
            m_handle = Handle_BottomRight;
        } else {
            m_object = pick(event->pos());
        }
        if (m_object)
            m_object->setSelected(true);
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (m_mode != Paint_Design) {
            QGraphicsView::mouseMoveEvent(event);
            return;
        }
        if (!m_object || m_object->isLocked() || !(event->buttons() & Qt::LeftButton))
            return;
        const QPointF here = mapToScene(event->pos());
        if (m_handle != Handle_None)
            m_object->resize(m_handle, here);
        else
            m_object->moveObjBy(here - m_last);
        m_last = here;
        const QRectF pixels = m_object->boundingRect();
        m_object->setPhyRect({pixels.topLeft() / PixelsPerMm, pixels.size() / PixelsPerMm});
        m_object->setPhyBoundingRectWidth(m_object->phyWidth());
        m_object->setPhyBoundingRectHeight(m_object->phyHeight());
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_F2)
            setMode(m_mode == Paint_Design ? Paint_Input : Paint_Design);
        else if (event->key() == Qt::Key_Delete && m_mode == Paint_Design)
            delete m_object;
        else
            QGraphicsView::keyPressEvent(event);
    }

private:
    void setMode(Paint_Mode mode)
    {
        m_mode = mode;
        scene()->clearSelection();
        for (QGraphicsItem *item : scene()->items()) {
            auto *object = qgraphicsitem_cast<TavroPrototype *>(item);
            if (!object)
                continue;
            // In input mode an object is raised while the pointer is over it, and it may be now.
            if (mode == Paint_Input)
                object->setData(0, object->zValue());
            else
                object->setZValue(object->data(0).toReal());
            object->setPaintMode(mode);
        }
    }

    /// A level line is hit by a rectangle around the pointer, hardly ever by its very point.
    TavroPrototype *pick(const QPoint &pos) const
    {
        for (QGraphicsItem *item : items(QRect(pos - QPoint(2, 2), QSize(5, 5)))) {
            if (auto *object = qgraphicsitem_cast<TavroPrototype *>(item))
                return object;
        }
        return nullptr;
    }

    Paint_Mode m_mode = Paint_Design;
    QPointer<TavroPrototype> m_object;
    HandleDirect m_handle = Handle_None;
    QPointF m_last;
};

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QFont::insertSubstitution(QStringLiteral("宋体"), QStringLiteral("Noto Serif CJK SC"));
    QGraphicsScene scene(0, 0, 120 * PixelsPerMm, 50 * PixelsPerMm);
    scene.setItemIndexMethod(QGraphicsScene::NoIndex); // or lines drawn to the left or upwards are not found

    addObject<TavroRect>(&scene, {2, 2, 116, 46});
    addObject<TavroLine>(&scene, {35, 24, 78, 0});
    auto *title = addObject<TavroLabel>(&scene, {6, 14, 27, 9});
    title->setFontPtSz(12); // after the geometry, which is its scale
    title->setContentData(QStringLiteral("人民币"));
    auto *amount = addObject<TavroEdit>(&scene, {35, 14, 78, 9});
    amount->setFontPtSz(12);
    amount->setFormatType(Format_RmbCapital);
    amount->setPlaceholder(QStringLiteral("12345.67"));

    FormView view(&scene);
    view.setWindowTitle(QStringLiteral("F2: lay out or fill in"));
    view.show();
    return QApplication::exec();
}

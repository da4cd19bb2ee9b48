// SPDX-License-Identifier: MIT
#include "core/tavroprototype.h"

#include "core/paintersaver.h"
#include "core/resizing.h"
#include "core/sizedashrect.h"
#include "core/sizehandlerect.h"

#include <QPainter>
#include <QScopedValueRollback>

namespace {

constexpr qreal HoverZValue = 1000;
constexpr qreal BackgroundOpacity = 0.4;

// Decoding the image again for each of a thousand objects would be most of their construction.
QImage lockSign()
{
    static const QImage image(QStringLiteral(":/image/image/locked.png"));
    return image;
}

void registerMetaTypes()
{
    qRegisterMetaType<ObjType>("ObjType");
    qRegisterMetaType<Paint_Mode>("Paint_Mode");
    qRegisterMetaType<Text_Filling_Rule>("Text_Filling_Rule");
}

} // namespace

TavroPrototype::TavroPrototype(QGraphicsItem *parent)
    : QGraphicsObject(parent)
    , m_lockedImage(lockSign())
{
    static const bool registered = (registerMetaTypes(), true);
    Q_UNUSED(registered)
    setAcceptHoverEvents(true);
    setFlags(ItemIsMovable | ItemIsSelectable | ItemIsFocusable | ItemSendsGeometryChanges);
    TavroPrototype::setupReszHandleAndDashRect();
}

TavroPrototype::~TavroPrototype()
{
    repaintIfNegative();
}

int TavroPrototype::type() const
{
    return Type;
}

void TavroPrototype::renew()
{
    if (m_isResetAtRenew)
        setContentData(m_presetData);
}

QRectF TavroPrototype::boundingRect() const
{
    return m_boundingRect;
}

void TavroPrototype::setBoundingRect(const QRectF &rect)
{
    storeBoundingRect(rect);
    update();
    Q_EMIT boundingRectChanged();
}

void TavroPrototype::setContentData(const QVariant &content)
{
    storeContent(content);
    Q_EMIT contentDataChanged();
}

void TavroPrototype::setPresetData(const QVariant &preset)
{
    storeSetting(m_presetData, preset);
}

QPainterPath TavroPrototype::shape() const
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRect(m_boundingRect);
    return path;
}

void TavroPrototype::setPaintMode(const Paint_Mode &mode)
{
    m_paintMode = mode;
    if (m_paintMode == Paint_Design) {
        setVisible(true);
        setEnabled(true);
        setSelectableAndMovable(true);
    } else {
        setSelectableAndMovable(false);
        if (m_paintMode == Paint_Input) {
            setVisible(m_isObjVisible);
            setEnabled(m_isObjEnabled);
        }
    }
    Q_EMIT paintModeChanged();
}

void TavroPrototype::resize(HandleDirect direction, const QPointF &scenePoint)
{
    setBoundingRect(resizing::resized(m_boundingRect, direction, mapFromScene(scenePoint)));
}

bool TavroPrototype::isValid()
{
    return true;
}

void TavroPrototype::setupReszHandleAndDashRect()
{
    setupHandles({Handle_TopLeft, Handle_Top, Handle_TopRight, Handle_Right, Handle_BottomRight, Handle_Bottom,
                  Handle_BottomLeft, Handle_Left});
    m_dashRect = new SizeDashRect(this);
}

void TavroPrototype::setupHandles(const QVector<HandleDirect> &directions)
{
    constexpr int mostHandles = 9;
    qDeleteAll(m_handles);
    m_handles.clear();
    m_handles.reserve(mostHandles);
    for (const HandleDirect direction : directions)
        m_handles.append(new SizeHandleRect(this, direction));
    updateGeometry();
}

void TavroPrototype::designPaint(QPainter *painter)
{
    drawBorder(painter);
    drawLockedSign(painter);
}

void TavroPrototype::inputPaint(QPainter *painter)
{
    drawBorder(painter);
}

void TavroPrototype::printPaint(QPainter *) {}

void TavroPrototype::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    if (m_boundingRect.width() == 0 && m_boundingRect.height() == 0)
        return;
    const QScopedValueRollback<bool> painting(m_isPainting, true);
    // Each setting goes down to the device, also where nothing changes.
    constexpr QPainter::RenderHints smooth =
        QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform;
    if ((painter->renderHints() & smooth) != smooth)
        painter->setRenderHints(smooth);
    if (m_paintMode == Paint_Design)
        designPaint(painter);
    else if (m_paintMode == Paint_Input)
        inputPaint(painter);
    else if (m_paintMode == Paint_Print)
        printPaint(painter);
}

QVariant TavroPrototype::itemChange(GraphicsItemChange change, const QVariant &value)
{
    // Each change of selection, place, turn, height, visibility or scene comes by, before and after it.
    repaintIfNegative();
    if (change == ItemSelectedChange) {
        const bool selected = value.toBool();
        showResizerHandle(selected && !m_isLocked);
        showDashRect(selected);
    } else if (change == ItemPositionChange) {
        Q_EMIT boundingRectChanged();
    }
    return QGraphicsObject::itemChange(change, value);
}

void TavroPrototype::hoverEnterEvent(QGraphicsSceneHoverEvent *event)
{
    if (m_paintMode == Paint_Input) {
        m_savedZValue = zValue();
        setZValue(HoverZValue);
    }
    QGraphicsObject::hoverEnterEvent(event);
}

void TavroPrototype::hoverLeaveEvent(QGraphicsSceneHoverEvent *event)
{
    if (m_paintMode == Paint_Input)
        setZValue(m_savedZValue);
    QGraphicsObject::hoverLeaveEvent(event);
}

void TavroPrototype::setIsLocked(bool locked)
{
    storeSetting(m_isLocked, locked);
    onLockedChanged();
}

void TavroPrototype::setProportional(bool proportional)
{
    m_isProportional = proportional;
    showResizerHandle(isSelected());
}

void TavroPrototype::drawBorder(QPainter *painter)
{
    if (!m_hasBorder)
        return;
    constexpr qreal penWidth = 1;
    const PenSaver saver(painter);
    painter->setPen(QPen(QColor(m_borderColor), penWidth));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(m_boundingRect.x() + penWidth / 2, m_boundingRect.y() + penWidth / 2,
                             m_boundingRect.width() - penWidth, m_boundingRect.height() - penWidth));
}

void TavroPrototype::drawLockedSign(QPainter *painter)
{
    if (m_isLocked && isSelected())
        painter->drawImage(m_boundingRect.topLeft(), m_lockedImage);
}

void TavroPrototype::fillBackground(QPainter *painter, const QRectF &rect)
{
    const PainterSaver saver(painter);
    painter->setOpacity(BackgroundOpacity);
    painter->fillRect(rect, QColor(m_backgroundColor));
}

HandleDirect TavroPrototype::hitTest(const QPointF &scenePoint) const
{
    for (const SizeHandleRect *handle : m_handles) {
        if (handle->isVisible() && handle->rect().contains(handle->mapFromScene(scenePoint)))
            return handle->direction();
    }
    return Handle_None;
}

void TavroPrototype::showResizerHandle(bool show)
{
    setReszHandleState(show ? Handle_Active : Handle_Off);
}

void TavroPrototype::setReszHandleState(SelectionHandleState state)
{
    for (SizeHandleRect *handle : qAsConst(m_handles))
        handle->setState(m_isProportional && !resizing::isCorner(handle->direction()) ? Handle_Off : state);
}

void TavroPrototype::showDashRect(bool show)
{
    setDashRectState(show ? DashRect_Active : DashRect_Off);
}

void TavroPrototype::setDashRectState(SelectionDashRectState state)
{
    const bool changes = state != m_dashRect->state();
    m_dashRect->setState(state);
    if (changes)
        repaintIfNegative();
}

void TavroPrototype::setLeadingFlag(bool leading)
{
    for (SizeHandleRect *handle : qAsConst(m_handles))
        handle->setColor(leading ? SizeHandleRect::leadingColor() : SizeHandleRect::followingColor());
}

QPointF TavroPrototype::adjustExpectRect(QRectF rect, QSizeF size, bool leading) const
{
    return resizing::boxCorner(rect, size, leading);
}

void TavroPrototype::setSelectableAndMovable(bool able)
{
    setFlag(ItemIsMovable, able && !m_isLocked);
    setFlag(ItemIsSelectable, able);
}

void TavroPrototype::updateObjRotation()
{
    const QPointF before = sceneBoundingRect().center();
    QTransform turned = transform();
    turned.rotate(m_rotateAngle);
    setTransform(turned);
    const QPointF after = sceneBoundingRect().center();
    setPos(pos() + (before - after));
}

void TavroPrototype::onLockedChanged()
{
    if (m_paintMode == Paint_Design)
        applyLock();
}

void TavroPrototype::applyLock()
{
    showResizerHandle(!m_isLocked && isSelected());
    setFlag(ItemIsMovable, !m_isLocked);
}

// SPDX-License-Identifier: MIT
#include "choice/tavrocheckbox.h"

#include "choice/symbols.h"
#include "core/resizing.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGraphicsProxyWidget>
#include <QGraphicsSceneMouseEvent>
#include <QSignalBlocker>
#include <array>
#include <cmath>

namespace {

// Index: Check_Style, then Qt::CheckState: unchecked, partially checked, checked.
constexpr std::array<std::array<symbols::Symbol, 3>, 5> Symbols{{
    {symbols::None, symbols::None, symbols::Tick},
    {symbols::Cross, symbols::Cross, symbols::Tick},
    {symbols::None, symbols::None, symbols::Circle},
    {symbols::Cross, symbols::Cross, symbols::Circle},
    {symbols::None, symbols::Tick, symbols::Block},
}};

// Halves away from zero. A negative size stands for the same box, on the other side of its origin.
QRectF onWholePixels(const QRectF &rect)
{
    return QRectF(std::round(rect.x()), std::round(rect.y()), std::round(rect.width()), std::round(rect.height()))
        .normalized();
}

// Counts a change as long as the object lives, which the host may delete meanwhile.
class ChangeUnderWay
{
public:
    ChangeUnderWay(QObject *object, int &changes)
        : m_object(object)
        , m_changes(changes)
    {
        ++m_changes;
    }
    ~ChangeUnderWay()
    {
        if (m_object)
            --m_changes;
    }
    Q_DISABLE_COPY(ChangeUnderWay)

private:
    const QPointer<QObject> m_object;
    int &m_changes;
};

} // namespace

TavroCheckBox::TavroCheckBox(QGraphicsItem *parent)
    : TavroPrototype(parent)
    , m_checkBox(new QCheckBox)
    , m_widgetPrxy(new QGraphicsProxyWidget(this))
{
    setObjType(Obj_CheckBox);
    setFlag(ItemClipsToShape, false);
    // Else the proxy would show it now, and the platform would make a window for it.
    m_checkBox->hide();
    m_widgetPrxy->setWidget(m_checkBox);
    m_widgetPrxy->setVisible(false);
    connect(m_checkBox, &QCheckBox::stateChanged, this, &TavroCheckBox::syncContentData);
    setProportional(true);
    TavroCheckBox::setPresetData(0);
    TavroCheckBox::setContentData(0);
}

TavroCheckBox::~TavroCheckBox()
{
    // A check box goes on with itself after the signal in answer to which the host deletes the object.
    if (m_changes > 0 && m_checkBox && m_widgetPrxy) {
        m_widgetPrxy->setWidget(nullptr);
        m_checkBox->deleteLater();
    }
}

void TavroCheckBox::renew()
{
    if (!isResetAtRenew())
        return;
    const QSignalBlocker blocker(m_checkBox);
    setContentData(presetData());
}

void TavroCheckBox::setContentData(const QVariant &content)
{
    TavroPrototype::setContentData(content);
    syncCheckBxState();
    repaint();
}

void TavroCheckBox::setPresetData(const QVariant &preset)
{
    TavroPrototype::setPresetData(preset);
    setContentData(preset);
}

void TavroCheckBox::resize(HandleDirect direction, const QPointF &scenePoint)
{
    setBoundingRect(resizing::resizedInProportion(boundingRect(), direction, mapFromScene(scenePoint)));
}

void TavroCheckBox::designPaint(QPainter *painter)
{
    drawBorder(painter);
    drawCheckState(painter);
    drawLockedSign(painter);
}

void TavroCheckBox::inputPaint(QPainter *painter)
{
    TavroPrototype::inputPaint(painter);
    drawCheckState(painter);
}

void TavroCheckBox::printPaint(QPainter *painter)
{
    if (!isPrint())
        return;
    TavroPrototype::printPaint(painter);
    drawCheckState(painter);
}

Check_Style TavroCheckBox::checkStyle() const
{
    return m_checkStyle;
}

void TavroCheckBox::setCheckStyle(const Check_Style &style)
{
    storeSetting(m_checkStyle, style);
    repaint();
}

QString TavroCheckBox::checkGroupId() const
{
    return m_checkGroupId;
}

void TavroCheckBox::setCheckGroupId(const QString &id)
{
    m_checkGroupId = id;
}

QCheckBox *TavroCheckBox::checkBx() const
{
    return m_checkBox;
}

QGraphicsProxyWidget *TavroCheckBox::widgetPrxy() const
{
    return m_widgetPrxy;
}

void TavroCheckBox::syncContentData()
{
    if (!m_checkBox)
        return;
    storeContent(static_cast<int>(m_checkBox->checkState()));
    // Before the signal, in which the host may delete the object.
    repaint();
    const ChangeUnderWay change(this, m_changes);
    Q_EMIT contentDataChanged();
}

void TavroCheckBox::syncCheckBxState()
{
    if (!m_checkBox)
        return;
    const QSignalBlocker blocker(m_checkBox);
    if (contentData().toInt() != 0)
        m_checkBox->setCheckState(Qt::Checked);
    else
        uncheck();
}

void TavroCheckBox::uncheck()
{
    const QPointer<QButtonGroup> group = m_checkBox->group();
    const bool isExclusive = group && group->exclusive();
    if (isExclusive)
        group->setExclusive(false);
    m_checkBox->setChecked(false);
    if (isExclusive && group)
        group->setExclusive(true);
}

void TavroCheckBox::drawCheckState(QPainter *painter)
{
    if (m_checkBox)
        drawStyle(painter, m_checkStyle, m_checkBox->checkState());
}

void TavroCheckBox::drawChecked(QPainter *painter)
{
    drawStyle(painter, m_checkStyle, Qt::Checked);
}

void TavroCheckBox::drawUnchecked(QPainter *painter)
{
    drawStyle(painter, m_checkStyle, Qt::Unchecked);
}

void TavroCheckBox::drawPartiallyChecked(QPainter *painter)
{
    drawStyle(painter, m_checkStyle, Qt::PartiallyChecked);
}

void TavroCheckBox::drawEmptyTick(QPainter *painter, Qt::CheckState state)
{
    drawStyle(painter, EmptyTick, state);
}

void TavroCheckBox::drawCrossTick(QPainter *painter, Qt::CheckState state)
{
    drawStyle(painter, CrossTick, state);
}

void TavroCheckBox::drawEmptyCircle(QPainter *painter, Qt::CheckState state)
{
    drawStyle(painter, EmptyCircle, state);
}

void TavroCheckBox::drawCrossCircle(QPainter *painter, Qt::CheckState state)
{
    drawStyle(painter, CrossCircle, state);
}

void TavroCheckBox::drawEmptyTickBlock(QPainter *painter, Qt::CheckState state)
{
    drawStyle(painter, EmptyTickBlock, state);
}

void TavroCheckBox::drawStyle(QPainter *painter, Check_Style style, Qt::CheckState state)
{
    if (style < 0 || style >= static_cast<int>(Symbols.size()))
        return;
    const auto &byState = Symbols[static_cast<std::size_t>(style)];
    const auto index = static_cast<std::size_t>(state);
    const symbols::Symbol symbol = index < byState.size() ? byState[index] : byState[Qt::Unchecked];
    symbols::draw(painter, onWholePixels(boundingRect()), symbol);
}

void TavroCheckBox::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    const QPointer<TavroCheckBox> self(this);
    const bool isInput = paintMode() == Paint_Input;
    if (isInput)
        click();
    // The host may have cleared its form in answer to the new state.
    if (!self)
        return;
    TavroPrototype::mousePressEvent(event);
    // A field that can be neither selected nor moved lets the press through, and it would tick one below it too.
    if (isInput)
        event->accept();
}

void TavroCheckBox::click()
{
    if (!m_checkBox)
        return;
    const ChangeUnderWay change(this, m_changes);
    if (m_checkBox->isChecked())
        uncheck();
    else
        m_checkBox->click();
}

// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroprototype.h"

#include <QPointer>

class QCheckBox;
class QGraphicsProxyWidget;

/// Tick field: a square that shows a tick, a cross, a circle or a block. The content is a number, the Qt::CheckState
/// of a check box that is never shown: its place in a QButtonGroup makes a choice of exactly one. A click in input
/// mode checks and unchecks it; a checked member of an exclusive group can be cleared too. isReadOnly() is not read:
/// an object that must not be clicked is disabled with setObjEnabled(). The host may delete the object in answer to a
/// change of its check box. A new object counts as modified.
class TAVRO_EXPORT TavroCheckBox : public TavroPrototype
{
    Q_OBJECT

public:
    explicit TavroCheckBox(QGraphicsItem *parent = nullptr);
    ~TavroCheckBox() override;

    // operations of the base
    void renew() override;
    /// Every number but 0 that an int can hold checks the box, also 1; the content keeps the number.
    void setContentData(const QVariant &content) override;
    /// Sets the content too.
    void setPresetData(const QVariant &preset) override;
    /// Keeps the proportions. A corner: the shorter distance from the corner that stays governs, so the box never
    /// reaches beyond the pointer, and shrinks to nothing on the way over the opposite side instead of leaping there.
    /// An edge: its distance governs, and the left or upper one of the edges beside it stays.
    void resize(HandleDirect direction, const QPointF &scenePoint) override;
    void designPaint(QPainter *painter) override;
    void inputPaint(QPainter *painter) override;
    void printPaint(QPainter *painter) override;

    Check_Style checkStyle() const;
    /// Marks modified.
    void setCheckStyle(const Check_Style &style);
    QString checkGroupId() const;
    /// Name under which the host groups check boxes. Does not mark modified.
    void setCheckGroupId(const QString &id);
    /// Holds the state, and a place in a QButtonGroup of the host. Owned by the object, null once it was destroyed
    /// from outside.
    QCheckBox *checkBx() const;
    QGraphicsProxyWidget *widgetPrxy() const;

    /// Content to check box.
    void syncCheckBxState();

    // painting
    /// State of the check box in the style of the object.
    void drawCheckState(QPainter *painter);
    void drawChecked(QPainter *painter);
    void drawUnchecked(QPainter *painter);
    void drawPartiallyChecked(QPainter *painter);
    void drawEmptyTick(QPainter *painter, Qt::CheckState state);
    void drawCrossTick(QPainter *painter, Qt::CheckState state);
    void drawEmptyCircle(QPainter *painter, Qt::CheckState state);
    void drawCrossCircle(QPainter *painter, Qt::CheckState state);
    void drawEmptyTickBlock(QPainter *painter, Qt::CheckState state);

public Q_SLOTS:
    /// State of the check box to content. Emits contentDataChanged().
    void syncContentData();

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;

private:
    void drawStyle(QPainter *painter, Check_Style style, Qt::CheckState state);
    /// Unchecks also the member of an exclusive group, which refuses that by itself.
    void uncheck();
    void click();

    QPointer<QCheckBox> m_checkBox;
    Check_Style m_checkStyle = EmptyTick;
    QPointer<QGraphicsProxyWidget> m_widgetPrxy;
    QString m_checkGroupId;
    /// Changes of the check box that are under way, with the slots of the host in them.
    int m_changes = 0;
};

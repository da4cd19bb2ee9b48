// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroglobal.h"
#include "core/tavrotypes.h"

#include <QGraphicsObject>
#include <QImage>
#include <QVariant>
#include <QVector>

namespace stacking {
enum class Move;
}
class SizeDashRect;
class SizeHandleRect;

/// Base of every form object: identity, geometry in pixels and in millimetres, border, behaviour flags, value and
/// preset, database binding, rotation, the paint modes, resize handles and stacking. Setters of persistent settings
/// mark the object modified; nothing clears that mark but setIsModified(false). Lives on the GUI thread of its scene.
class TAVRO_EXPORT TavroPrototype : public QGraphicsObject
{
    Q_OBJECT
    Q_PROPERTY(ObjType objType READ objType)
    Q_PROPERTY(Paint_Mode paintMode READ paintMode WRITE setPaintMode NOTIFY paintModeChanged)
    Q_PROPERTY(QString tavroID READ tavroID WRITE setTavroID NOTIFY tavroIDChanged)
    Q_PROPERTY(QVariant contentData READ contentData WRITE setContentData NOTIFY contentDataChanged)
    Q_PROPERTY(bool isLocked READ isLocked WRITE setIsLocked NOTIFY isLockedChanged)
    Q_PROPERTY(QRectF boundingRect READ boundingRect WRITE setBoundingRect NOTIFY boundingRectChanged)

public:
    /// Answer of type() for every form object, whatever its kind; walks over scene items recognise form objects by it.
    enum { Type = QGraphicsItem::UserType - 1 };

    explicit TavroPrototype(QGraphicsItem *parent = nullptr);
    ~TavroPrototype() override;

    // operations that kinds override, in the order of their slots
    int type() const override;
    /// Starts a new form: takes the preset again where isResetAtRenew() is set.
    virtual void renew();
    QRectF boundingRect() const override;
    /// Pixels, item coordinates; a negative size is kept. Does not mark modified. Emits boundingRectChanged().
    virtual void setBoundingRect(const QRectF &rect);
    /// Does not mark modified. Emits contentDataChanged().
    virtual void setContentData(const QVariant &content);
    /// Marks modified.
    virtual void setPresetData(const QVariant &preset);
    QPainterPath shape() const override;
    /// Any other number than the named modes makes the object neither selectable nor movable, and paints nothing. Does
    /// not mark modified. Emits paintModeChanged() in every case.
    virtual void setPaintMode(const Paint_Mode &mode);
    /// Moves the edges that the handle owns to a point of the scene and ends in one setBoundingRect(), also where
    /// nothing changes. No minimum size: an edge dragged past the opposite one gives a negative size.
    virtual void resize(HandleDirect direction, const QPointF &scenePoint);
    /// Whether the value fits what the kind accepts; a kind without a rule of its own accepts every value.
    virtual bool isValid();
    /// Makes the resize handles and the dashed frame, once, from the constructor.
    virtual void setupReszHandleAndDashRect();
    virtual void designPaint(QPainter *painter);
    virtual void inputPaint(QPainter *painter);
    virtual void printPaint(QPainter *painter);
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;

public:
    // identity
    ObjType objType() const;
    QString originalID() const;
    /// Identifier at the time of loading or copying. Does not mark modified.
    void setOriginalID(const QString &id);
    QString tavroID() const;
    /// Also the tool tip. Marks modified, emits tavroIDChanged().
    void setTavroID(const QString &id);
    bool isModified() const;
    void setIsModified(bool modified);

    // geometry in pixels, item coordinates; each setter ends in one setBoundingRect()
    double objX() const;
    void setObjX(double x);
    double objY() const;
    void setObjY(double y);
    QPointF objPos() const;
    void setObjPos(const QPointF &topLeft);
    void setObjCenter(const QPointF &center);
    void moveObjBy(const QPointF &offset);
    double width() const;
    void setWidth(double width);
    double height() const;
    void setHeight(double height);
    /// Top-left of the bounding rectangle in the scene; hides the item's origin that QGraphicsItem answers.
    QPointF scenePos() const;
    /// Bounding rectangle mapped to the scene; hides the one of QGraphicsItem.
    QRectF sceneBoundingRect() const;

    // geometry in millimetres, set by the host; neither rectangle is derived from the other
    QRectF phyRect() const;
    /// Marks modified.
    void setPhyRect(const QRectF &rect);
    QPointF phyPos() const;
    double phyWidth() const;
    double phyHeight() const;
    double getPhyBoundingRectWidth() const;
    /// Width in millimetres that the pixel width stands for: the scale of font sizes. Does not mark modified.
    void setPhyBoundingRectWidth(const double &width);
    double getPhyBoundingRectHeight() const;
    /// Does not mark modified.
    void setPhyBoundingRectHeight(const double &height);
    /// Whole pixels of a font size in points, at least 1; 1 while the physical bounding width is 0.
    int pointSzToPixSz(double points) const;

    // look
    int borderWpx() const;
    /// Plain storage: the border is always drawn 1 px wide. Does not mark modified.
    void setBorderWpx(int width);
    bool hasBorder() const;
    void setHasBorder(bool has);
    unsigned int borderColor() const;
    /// 0xRRGGBB.
    void setBorderColor(const unsigned int &color);
    int backgroundStyle() const;
    void setBackgroundStyle(int style);
    unsigned int backgroundColor() const;
    /// 0xRRGGBB.
    void setBackgroundColor(const unsigned int &color);
    int getIniAngle() const;
    /// Degrees, plain storage. Does not mark modified.
    void setIniAngle(int degrees);
    int getRotateAngle() const;
    /// Degrees, applied by updateObjRotation(). Does not mark modified.
    void setRotateAngle(int degrees);

    // behaviour; these setters mark modified
    bool isPrint() const;
    void setIsPrint(bool print);
    bool isLocked() const;
    /// Applied to handles and movability in design mode only. Emits nothing: isLockedChanged() is the host's to emit.
    void setIsLocked(bool locked);
    bool isRequired() const;
    void setIsRequired(bool required);
    bool isObjVisible() const;
    void setObjVisible(bool visible);
    bool isObjEnabled() const;
    void setObjEnabled(bool enabled);
    bool isReadOnly() const;
    void setIsReadOnly(bool readOnly);
    bool isResetAtRenew() const;
    void setIsResetAtRenew(bool reset);
    bool isZeroForThousand() const;
    void setIsZeroForThousand(bool zero);
    bool isZeroForPoint() const;
    void setIsZeroForPoint(bool zero);
    int tabOrder() const;
    void setTabOrder(int order);

    // value and mode
    QVariant contentData() const;
    QVariant presetData() const;
    Paint_Mode paintMode() const;
    bool isProportional() const;
    /// Shows the corner handles only. Does not mark modified.
    void setProportional(bool proportional);

    // database binding, read by the host; marks modified
    void bindToDB(const QString &table, const QString &column);
    void bindToDB(const _Database_Table_Col &column);
    void unbindToDB();
    QString tableDB() const;
    QString columnDB() const;
    _Database_Table_Col tableColDB() const;
    bool isBindingToDB() const;

    // painting for kinds
    /// 1 px wide and inside the rectangle; nothing where hasBorder() is not set.
    void drawBorder(QPainter *painter);
    /// In the top-left corner, while the object is both locked and selected.
    void drawLockedSign(QPainter *painter);
    /// Background colour at 40 %.
    void fillBackground(QPainter *painter, const QRectF &rect);

    // handles and frame
    /// First visible handle, in the order of creation, that contains the point of the scene, else Handle_None.
    HandleDirect hitTest(const QPointF &scenePoint) const;
    void showResizerHandle(bool show);
    /// Where the object is proportional, the handles of its edges stay off.
    void setReszHandleState(SelectionHandleState state);
    void showDashRect(bool show);
    void setDashRectState(SelectionDashRectState state);
    /// Colours the handles of the leading object of a multiple selection green, of the others black.
    void setLeadingFlag(bool leading);
    /// Puts the handles on their places around the bounding rectangle.
    void updateGeometry();
    /// Corner reached by a box of `size` from the origin corner of `rect` inwards (`leading`) or from the opposite
    /// corner back inwards, following the signs of the rectangle.
    QPointF adjustExpectRect(QRectF rect, QSizeF size, bool leading) const;

    // stacking among the form objects that the object overlaps; without a scene nothing happens
    void bringObjToBack();
    void bringObjToFront();
    void raiseObjUp();
    void lowerObjDown();

    // others
    /// A locked object never becomes movable.
    void setSelectableAndMovable(bool able);
    /// Turns the object by its rotation angle about its centre, on top of the transform that it has: two calls turn
    /// twice.
    void updateObjRotation();
    /// Applies the lock in design mode, after the host changed it from outside.
    void onLockedChanged();

Q_SIGNALS:
    void paintModeChanged();
    void tavroIDChanged();
    void boundingRectChanged();
    void contentDataChanged();
    /// Declared for the host; never emitted by the object.
    void isLockedChanged(bool locked);

protected:
    void setObjType(ObjType type);
    /// Stores a persistent setting: marks modified.
    template <typename T>
    void storeSetting(T &field, const T &value)
    {
        field = value;
        m_isModified = true;
    }
    /// Value as an editor writes it back: no signal, nothing else.
    void storeContent(const QVariant &content);
    /// Everything of the base setBoundingRect() but the repaint and the signal.
    void storeBoundingRect(const QRectF &rect);
    /// update(), which also reaches an object of negative size. Nothing while the object is being painted: one that
    /// follows the clock would be painted for ever.
    void repaint();
    /// Asks the scene to repaint the object where its rectangle has a negative size: views do not for an item's update.
    void repaintIfNegative();
    /// Deletes the handles made so far, and makes one for each direction.
    void setupHandles(const QVector<HandleDirect> &directions);

private:
    void applyLock();
    void restack(stacking::Move move);

    ObjType m_objType = static_cast<ObjType>(-1);
    QString m_originalID;
    QString m_tavroID;
    QString m_tableDB;
    QString m_columnDB;
    bool m_isModified = false;
    int m_iniAngle = 0;
    int m_rotateAngle = 0;
    int m_borderWpx = 1;
    bool m_hasBorder = true;
    unsigned int m_borderColor = 0x1BA39C;
    bool m_isPrint = true;
    bool m_isLocked = false;
    bool m_isRequired = false;
    bool m_isObjVisible = true;
    bool m_isObjEnabled = true;
    bool m_isReadOnly = false;
    bool m_isResetAtRenew = true;
    bool m_isZeroForThousand = false;
    bool m_isZeroForPoint = false;
    int m_tabOrder = 0;
    int m_backgroundStyle = 0;
    unsigned int m_backgroundColor = 0xFFFFFF;
    Paint_Mode m_paintMode = Paint_Design;
    bool m_isPainting = false;
    QVariant m_contentData;
    QVariant m_presetData;
    QRectF m_boundingRect;
    QRectF m_phyRect;
    double m_phyBoundingRectWidth = 0;
    double m_phyBoundingRectHeight = 0;
    QVector<SizeHandleRect *> m_handles;
    SizeDashRect *m_dashRect = nullptr;
    QImage m_lockedImage;
    bool m_isProportional = false;
    double m_savedZValue = 0;
};

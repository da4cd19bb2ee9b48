// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroglobal.h"
#include "core/tavrotypes.h"

#include <QDateTime>
#include <QSplitter>
#include <QVector>
#include <array>
#include <functional>

class QLabel;
namespace sections {
struct Label;
}

/// Row of labels over the boxes of a printed form: the sections of a date or a time and the separators between them.
/// The handles are dragged to move a section over its box, down to the width of a pixel. Takes no key and no wheel.
/// Separators are as wide as their text; the values share the rest. Where a listener to splitterMoved() asks for other
/// sections, the labels follow when the event loop turns again.
class TAVRO_EXPORT DateTimeEditPrototype : public QSplitter
{
    Q_OBJECT

public:
    explicit DateTimeEditPrototype(QWidget *parent = nullptr);
    ~DateTimeEditPrototype() override;

    // operations that the editors override, in the order of their slots; here they store only
    virtual void setDateTime(const QDateTime &dateTime);
    virtual void setSeperatorType(const Datetime_Seperator_Type &type);
    virtual void setIsShowSeperator(bool show);

    QDateTime dateTime() const;
    Datetime_Seperator_Type seperatorType() const;
    bool isShowSeperator() const;
    /// Font of the labels, on paper too.
    QFont font() const;
    void setFont(const QFont &font);
    /// Whether the sections can be moved.
    void setHandlesEnabled(bool enabled);
    /// Geometry in whole pixels. Unlike setGeometry() it also lays out an editor that is hidden, as on paper.
    void follow(const QRect &rect);

    /// Paints the texts of the labels as they are laid out, from the top left of the rectangle on. Where separators are
    /// hidden, they only take their room.
    void paintSections(QPainter *painter, const QRectF &rect);

protected:
    QSplitterHandle *createHandle() override;
    /// Calls what replaces labels: at once, or as soon as the event loop turns again where a handle is just being
    /// moved. Whoever moves it goes on using it.
    void whenAtRest(const std::function<void()> &rebuild);
    /// The same, and keeps the widths that the sections have then.
    void rebuildKeepingWidths(const std::function<void()> &rebuild);
    /// Replaces all labels. Their widths are shared out anew.
    void buildLabels(const QVector<sections::Label> &labels);
    /// Writes the text of each section into the value at its place.
    void writeValues(const std::array<int, 3> &places, const std::array<QString, 3> &texts);

private:
    class Handle;

    /// Null for a widget that is none.
    QLabel *labelAt(int index) const;
    int labelCount() const;
    bool isValue(int index) const;
    void setUpFont(QLabel *label, bool isValue);
    void layOut();
    void callWaiting();

    QFont m_font;
    QVector<QString> m_labelTexts; ///< of the labels, painted without a walk over the widgets
    QDateTime m_dateTime;
    bool m_isShowSeperator = true;
    bool m_areHandlesEnabled = true;
    bool m_isMoving = false;
    QVector<std::function<void()>> m_waiting;
    Datetime_Seperator_Type m_seperatorType = Sep_ChineseDate;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotext.h"

#include <QDateTime>
#include <QPointer>

class DateEdit;
class DateTimeEditPrototype;
class QGraphicsProxyWidget;
class TimeEdit;

/// Date or time over the boxes of a printed form. In design mode the sections of an editor are dragged over the boxes;
/// in input mode a press asks the host for a calendar; on paper the sections are painted where the editor has them.
/// Format Dt_Custom is one text by a pattern, without sections. The content is always a QDateTime; an invalid one is
/// kept and shown with empty sections. Texts are black and centred, whatever colour, alignment and prefix are set. A
/// host stores splitSizes() and gives them back when it loads the form. Until setDateTimeFormat() is first called,
/// dates are written in style Dt_Arabic although the format is Dt_ArabicPadded.
class TAVRO_EXPORT TavroDatetime : public TavroText
{
    Q_OBJECT

public:
    explicit TavroDatetime(QGraphicsItem *parent = nullptr);
    ~TavroDatetime() override;

    // operations of the bases
    void setBoundingRect(const QRectF &rect) override;
    /// What is no date and time becomes an invalid one.
    void setContentData(const QVariant &content) override;
    /// Sets the content too.
    void setPresetData(const QVariant &preset) override;
    void setPaintMode(const Paint_Mode &mode) override;
    void designPaint(QPainter *painter) override;
    void inputPaint(QPainter *painter) override;
    void printPaint(QPainter *painter) override;
    void setFont(const QFont &font) override;

    // configuration; setters mark modified unless their line says otherwise
    bool isRealTime() const;
    /// The content follows the clock: each painting takes the current date and time as content. Nothing else does, so
    /// an object that nobody repaints stands still.
    void setIsRealTime(bool realTime);
    Datetime_Format dateTimeFormat() const;
    void setDateTimeFormat(const Datetime_Format &format);
    QString customDatetimeFormat() const;
    /// Pattern of QDateTime::toString(), for Dt_Custom.
    void setCustomDatetimeFormat(const QString &pattern);
    Datetime_Seperator_Type seperatorType() const;
    void setSeperatorType(const Datetime_Seperator_Type &type);
    bool isShowSeperator() const;
    /// Keeps the widths of the sections.
    void setIsShowSeperator(bool show);
    int orderType() const;
    /// A TimeOrderType with Dt_Time, where numbers from 2 on count as 0; nothing with Dt_Custom; else a DateOrderType.
    void setOrderType(const int &order);
    /// Does not mark modified.
    void setDateOrderType(const DateOrderType &order);
    /// Does not mark modified.
    void setTimeOrderType(const TimeOrderType &order);
    /// Widths of all sections and separators in pixels, of the editor that is in use; the width of the object with
    /// Dt_Custom.
    QList<int> splitSizes() const;
    /// Shared out over the width of the object. Does not mark modified.
    void setSplitSizes(QList<int> sizes);

    bool isDateSection() const;
    bool isTimeSection() const;
    bool isCustomSection() const;
    /// Whether a press asks for a calendar: in input mode, where the content does not follow the clock.
    bool isShowCalendar() const;
    /// Carries the editor in use; owned by the object.
    QGraphicsProxyWidget *widgetPrxy() const;

    // synchronisation
    /// Date of the date editor to content. Emits contentDataChanged().
    void syncContentData();
    /// Content to both editors.
    void syncDateTime();
    /// Rectangle of the object, in whole pixels, to both editors.
    void syncDateTimeEditGeometry();
    void showCorrespondingSection();
    void showHideDateTimeEdit();
    void updateDataRealTime();
    void drawCustomFormat(QPainter *painter);

public Q_SLOTS:
    /// A section was dragged: marks modified.
    void onSplitterMoved();

Q_SIGNALS:
    /// The host opens a calendar and sets what is chosen with setContentData().
    void aboutToShowCalendar(const QDateTime &datetime);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;

private:
    void setUpEditor(DateTimeEditPrototype *editor);
    void putInProxy(DateTimeEditPrototype *shown, DateTimeEditPrototype *hidden);
    /// The editors that still exist.
    QVector<DateTimeEditPrototype *> editors() const;
    /// The editor of the format, null for Dt_Custom.
    DateTimeEditPrototype *currentEditor() const;

    QPointer<DateEdit> m_dateEdit;
    QPointer<TimeEdit> m_timeEdit;
    QString m_customDatetimeFormat;
    QPointer<QGraphicsProxyWidget> m_proxy;
    Datetime_Format m_dateTimeFormat = Dt_ArabicPadded;
    Datetime_Seperator_Type m_seperatorType = Sep_ChineseDate;
    int m_orderType = 0;
    bool m_isShowSeperator = true;
    bool m_isRealTime = false;
};

// SPDX-License-Identifier: MIT
#include "datetime/tavrodatetime.h"

#include "core/paintersaver.h"
#include "core/pixels.h"
#include "datetime/dateedit.h"
#include "datetime/sections.h"
#include "datetime/timeedit.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsSceneMouseEvent>

TavroDatetime::TavroDatetime(QGraphicsItem *parent)
    : TavroText(parent)
    , m_dateEdit(new DateEdit)
    , m_timeEdit(new TimeEdit)
    , m_customDatetimeFormat(QStringLiteral("yyyy-MM-dd"))
    , m_proxy(new QGraphicsProxyWidget(this))
{
    setObjType(Obj_Datetime);
    setUpEditor(m_dateEdit);
    setUpEditor(m_timeEdit);
    m_proxy->setWidget(m_dateEdit);
    m_proxy->setMinimumSize(0, 0);
    // Sections take no keys. An editor without a focus of its own must not go while its proxy has it: Qt looks for the
    // next one in the widget that is just being destroyed.
    m_proxy->setFocusPolicy(Qt::NoFocus);
    m_proxy->setVisible(false);
    TavroDatetime::setContentData(QDateTime::currentDateTime());
}

TavroDatetime::~TavroDatetime()
{
    for (DateTimeEditPrototype *editor : editors())
        editor->disconnect(this);
    // A proxy deletes its widget; both editors are the object's to delete.
    if (m_proxy)
        m_proxy->setWidget(nullptr);
    delete m_dateEdit;
    delete m_timeEdit;
    delete m_proxy;
}

void TavroDatetime::setUpEditor(DateTimeEditPrototype *editor)
{
    editor->setFont(font());
    editor->setMinimumSize(0, 0);
    editor->setGeometry(0, 0, 10, 10);
    connect(editor, &QSplitter::splitterMoved, this, &TavroDatetime::onSplitterMoved);
}

QVector<DateTimeEditPrototype *> TavroDatetime::editors() const
{
    QVector<DateTimeEditPrototype *> living;
    if (m_dateEdit)
        living.append(m_dateEdit);
    if (m_timeEdit)
        living.append(m_timeEdit);
    return living;
}

DateTimeEditPrototype *TavroDatetime::currentEditor() const
{
    if (isCustomSection())
        return nullptr;
    return isTimeSection() ? static_cast<DateTimeEditPrototype *>(m_timeEdit) : m_dateEdit;
}

void TavroDatetime::setBoundingRect(const QRectF &rect)
{
    TavroText::setBoundingRect(rect);
    syncDateTimeEditGeometry();
}

void TavroDatetime::setContentData(const QVariant &content)
{
    TavroText::setContentData(content.toDateTime());
    syncDateTime();
}

void TavroDatetime::setPresetData(const QVariant &preset)
{
    TavroText::setPresetData(preset.toDateTime());
    setContentData(preset.toDateTime());
}

void TavroDatetime::setPaintMode(const Paint_Mode &mode)
{
    TavroText::setPaintMode(mode);
    showHideDateTimeEdit();
}

void TavroDatetime::setFont(const QFont &font)
{
    TavroText::setFont(font);
    for (DateTimeEditPrototype *editor : editors())
        editor->setFont(font);
    // Separators in a smaller font may make room for a rectangle that was too narrow.
    syncDateTimeEditGeometry();
}

bool TavroDatetime::isRealTime() const
{
    return m_isRealTime;
}

void TavroDatetime::setIsRealTime(bool realTime)
{
    storeSetting(m_isRealTime, realTime);
    repaint();
}

Datetime_Format TavroDatetime::dateTimeFormat() const
{
    return m_dateTimeFormat;
}

void TavroDatetime::setDateTimeFormat(const Datetime_Format &format)
{
    storeSetting(m_dateTimeFormat, format);
    showCorrespondingSection();
    repaint();
}

QString TavroDatetime::customDatetimeFormat() const
{
    return m_customDatetimeFormat;
}

void TavroDatetime::setCustomDatetimeFormat(const QString &pattern)
{
    storeSetting(m_customDatetimeFormat, pattern);
    repaint();
}

Datetime_Seperator_Type TavroDatetime::seperatorType() const
{
    return m_seperatorType;
}

void TavroDatetime::setSeperatorType(const Datetime_Seperator_Type &type)
{
    storeSetting(m_seperatorType, type);
    for (DateTimeEditPrototype *editor : editors())
        editor->setSeperatorType(type);
    syncDateTimeEditGeometry();
    repaint();
}

bool TavroDatetime::isShowSeperator() const
{
    return m_isShowSeperator;
}

void TavroDatetime::setIsShowSeperator(bool show)
{
    storeSetting(m_isShowSeperator, show);
    // The widths stay, so the geometry is left alone: a row that was dragged over its boxes does not move.
    for (DateTimeEditPrototype *editor : editors())
        editor->setIsShowSeperator(show);
    repaint();
}

int TavroDatetime::orderType() const
{
    return m_orderType;
}

void TavroDatetime::setOrderType(const int &order)
{
    constexpr int timeOrders = 2;
    if (isTimeSection())
        setTimeOrderType(static_cast<TimeOrderType>(order < timeOrders ? order : 0));
    else if (isDateSection())
        setDateOrderType(static_cast<DateOrderType>(order));
    syncDateTimeEditGeometry();
    setIsModified(true);
}

void TavroDatetime::setDateOrderType(const DateOrderType &order)
{
    m_orderType = order;
    if (m_dateEdit)
        m_dateEdit->setOrderType(order);
    repaint();
}

void TavroDatetime::setTimeOrderType(const TimeOrderType &order)
{
    m_orderType = order;
    if (m_timeEdit)
        m_timeEdit->setOrderType(order);
    repaint();
}

QList<int> TavroDatetime::splitSizes() const
{
    if (isCustomSection())
        return {pixels::truncated(width())};
    const DateTimeEditPrototype *editor = currentEditor();
    return editor ? editor->sizes() : QList<int>();
}

void TavroDatetime::setSplitSizes(QList<int> sizes)
{
    if (DateTimeEditPrototype *editor = currentEditor())
        editor->setSizes(sizes);
    repaint();
}

bool TavroDatetime::isDateSection() const
{
    return !isTimeSection() && !isCustomSection();
}

bool TavroDatetime::isTimeSection() const
{
    return m_dateTimeFormat == Dt_Time;
}

bool TavroDatetime::isCustomSection() const
{
    return m_dateTimeFormat == Dt_Custom;
}

bool TavroDatetime::isShowCalendar() const
{
    return paintMode() == Paint_Input && !m_isRealTime;
}

QGraphicsProxyWidget *TavroDatetime::widgetPrxy() const
{
    return m_proxy;
}

void TavroDatetime::syncContentData()
{
    if (m_dateEdit)
        storeContent(m_dateEdit->dateTime());
    repaint();
    Q_EMIT contentDataChanged();
}

void TavroDatetime::syncDateTime()
{
    const QDateTime dateTime = contentData().toDateTime();
    for (DateTimeEditPrototype *editor : editors())
        editor->setDateTime(dateTime);
    syncDateTimeEditGeometry();
}

void TavroDatetime::syncDateTimeEditGeometry()
{
    const QRect rect = pixels::rounded(boundingRect());
    for (DateTimeEditPrototype *editor : editors())
        editor->follow(rect);
    // A hidden editor tells its proxy nothing, which would press it into the old rectangle at the next occasion.
    if (m_proxy && m_proxy->widget())
        m_proxy->setGeometry(m_proxy->widget()->geometry());
}

void TavroDatetime::showCorrespondingSection()
{
    if (isCustomSection()) {
        for (DateTimeEditPrototype *editor : editors())
            editor->hide();
        return;
    }
    if (isTimeSection())
        putInProxy(m_timeEdit, m_dateEdit);
    else
        putInProxy(m_dateEdit, m_timeEdit);
    if (m_dateEdit && isDateSection())
        m_dateEdit->setTextStyle(m_dateTimeFormat);
    syncDateTime();
    // An editor that is shown now would be printed over the sections.
    if (paintMode() == Paint_Print)
        showHideDateTimeEdit();
}

void TavroDatetime::putInProxy(DateTimeEditPrototype *shown, DateTimeEditPrototype *hidden)
{
    if (hidden)
        hidden->hide();
    if (!shown || !m_proxy)
        return;
    m_proxy->setWidget(shown);
    shown->show();
}

void TavroDatetime::showHideDateTimeEdit()
{
    if (paintMode() == Paint_Print) {
        for (DateTimeEditPrototype *editor : editors())
            editor->hide();
        if (m_proxy)
            m_proxy->setVisible(false);
    } else if (paintMode() == Paint_Design || paintMode() == Paint_Input) {
        for (DateTimeEditPrototype *editor : editors())
            editor->setHandlesEnabled(paintMode() == Paint_Design);
        if (m_proxy && !isCustomSection())
            m_proxy->setVisible(true);
    }
}

void TavroDatetime::updateDataRealTime()
{
    if (m_isRealTime)
        setContentData(QDateTime::currentDateTime());
}

void TavroDatetime::designPaint(QPainter *painter)
{
    updateDataRealTime();
    if (isCustomSection())
        drawCustomFormat(painter);
    TavroPrototype::designPaint(painter);
}

void TavroDatetime::inputPaint(QPainter *painter)
{
    updateDataRealTime();
    if (isCustomSection())
        drawCustomFormat(painter);
    TavroPrototype::inputPaint(painter);
}

void TavroDatetime::printPaint(QPainter *painter)
{
    if (!isPrint())
        return;
    updateDataRealTime();
    if (isCustomSection())
        drawCustomFormat(painter);
    else if (DateTimeEditPrototype *editor = currentEditor())
        editor->paintSections(painter, boundingRect());
}

void TavroDatetime::drawCustomFormat(QPainter *painter)
{
    const PainterSaver saver(painter);
    painter->setPen(QPen(Qt::black, 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter->setFont(font());
    painter->drawText(boundingRect(), Qt::AlignCenter | Qt::TextDontClip,
                      contentData().toDateTime().toString(m_customDatetimeFormat));
}

void TavroDatetime::onSplitterMoved()
{
    setIsModified(true);
}

void TavroDatetime::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    const QPointer<TavroDatetime> self(this);
    if (isShowCalendar())
        Q_EMIT aboutToShowCalendar(contentData().toDateTime());
    // The host may have cleared its form while the calendar was open. Then the press stays accepted, so that the scene
    // does not look for another object below one that is gone.
    if (self)
        TavroText::mousePressEvent(event);
}

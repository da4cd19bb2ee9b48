// SPDX-License-Identifier: MIT
#include "datetime/datetimeeditprototype.h"

#include "core/paintersaver.h"
#include "core/pixels.h"
#include "datetime/sections.h"

#include <QLabel>
#include <QPointer>
#include <utility>

namespace {

/// Label that takes the place it is given: a printed box may be narrower than the text, and lower. It does not measure
/// its text to say what it would like: the row would have that done for all labels at each change of one.
class SectionLabel : public QLabel
{
public:
    using QLabel::QLabel;
    QSize sizeHint() const override { return {minimumWidth(), 0}; }
    QSize minimumSizeHint() const override { return {0, 0}; }
};

} // namespace

class DateTimeEditPrototype::Handle : public QSplitterHandle
{
public:
    explicit Handle(DateTimeEditPrototype *editor)
        : QSplitterHandle(editor->orientation(), editor)
        , m_editor(editor)
    {
    }

    // The style sheet gives no size, and the row asks every handle again at each of its changes.
    QSize sizeHint() const override { return {m_editor->handleWidth(), m_editor->handleWidth()}; }

protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        move([this, event] { QSplitterHandle::mouseMoveEvent(event); });
    }
    // Where the sections do not follow at once, it is the release that moves them.
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        move([this, event] { QSplitterHandle::mouseReleaseEvent(event); });
    }

private:
    template <typename Event>
    void move(Event handle)
    {
        const QPointer<DateTimeEditPrototype> editor(m_editor);
        // A listener may let the event loop turn, and so come by here again.
        const bool wasMoving = std::exchange(editor->m_isMoving, true);
        handle();
        if (!editor)
            return;
        editor->m_isMoving = wasMoving;
        if (!editor->m_waiting.isEmpty())
            QMetaObject::invokeMethod(editor.data(), &DateTimeEditPrototype::callWaiting, Qt::QueuedConnection);
    }

    DateTimeEditPrototype *m_editor;
};

DateTimeEditPrototype::DateTimeEditPrototype(QWidget *parent)
    : QSplitter(parent)
{
    constexpr int handleWidth = 2;
    setHandleWidth(handleWidth);
    setChildrenCollapsible(false);
    // Dates run from the left also where the language does not.
    setLayoutDirection(Qt::LeftToRight);
    setStyleSheet(QStringLiteral("DateTimeEditPrototype{background-color: rgba(255, 255, 255, 80);}"
                                 "DateTimeEditPrototype::handle{background: #66CC99;}"));
}

DateTimeEditPrototype::~DateTimeEditPrototype() = default;

void DateTimeEditPrototype::setDateTime(const QDateTime &dateTime)
{
    m_dateTime = dateTime;
}

void DateTimeEditPrototype::setSeperatorType(const Datetime_Seperator_Type &type)
{
    m_seperatorType = type;
}

void DateTimeEditPrototype::setIsShowSeperator(bool show)
{
    m_isShowSeperator = show;
}

QDateTime DateTimeEditPrototype::dateTime() const
{
    return m_dateTime;
}

Datetime_Seperator_Type DateTimeEditPrototype::seperatorType() const
{
    return m_seperatorType;
}

bool DateTimeEditPrototype::isShowSeperator() const
{
    return m_isShowSeperator;
}

QFont DateTimeEditPrototype::font() const
{
    return m_font;
}

void DateTimeEditPrototype::setFont(const QFont &font)
{
    if (font == m_font)
        return;
    m_font = font;
    for (int i = 0; i < labelCount(); ++i) {
        if (QLabel *label = labelAt(i))
            setUpFont(label, isValue(i));
    }
    layOut();
}

void DateTimeEditPrototype::setHandlesEnabled(bool enabled)
{
    m_areHandlesEnabled = enabled;
    for (int i = 0; i < count(); ++i)
        handle(i)->setEnabled(enabled);
}

void DateTimeEditPrototype::follow(const QRect &rect)
{
    if (rect == geometry())
        return;
    setGeometry(rect);
    layOut();
}

void DateTimeEditPrototype::paintSections(QPainter *painter, const QRectF &rect)
{
    const PainterSaver saver(painter);
    painter->setPen(Qt::black);
    painter->setBrush(Qt::NoBrush);
    painter->setFont(m_font);
    const QRect row = pixels::rounded(rect);
    const QList<int> widths = sizes();
    int x = row.x();
    for (int i = 0; i < labelCount(); ++i) {
        // A text that is wider than its section has to be seen to be mended.
        if (m_isShowSeperator || isValue(i))
            painter->drawText(QRect(x, row.y(), widths.at(i), row.height()), Qt::AlignCenter | Qt::TextDontClip,
                              m_labelTexts.at(i));
        x += widths.at(i) + handleWidth();
    }
}

QSplitterHandle *DateTimeEditPrototype::createHandle()
{
    return new Handle(this);
}

void DateTimeEditPrototype::whenAtRest(const std::function<void()> &rebuild)
{
    if (m_isMoving)
        m_waiting.append(rebuild);
    else
        rebuild();
}

void DateTimeEditPrototype::rebuildKeepingWidths(const std::function<void()> &rebuild)
{
    whenAtRest([this, rebuild] {
        const QList<int> widths = sizes();
        rebuild();
        setSizes(widths);
    });
}

void DateTimeEditPrototype::callWaiting()
{
    if (m_isMoving)
        return;
    for (const std::function<void()> &rebuild : std::exchange(m_waiting, {}))
        rebuild();
}

void DateTimeEditPrototype::buildLabels(const QVector<sections::Label> &labels)
{
    while (count() > 0)
        delete widget(count() - 1);
    m_labelTexts.clear();
    for (const sections::Label &label : labels) {
        m_labelTexts.append(label.text);
        // A splitter takes in whatever becomes its child, so a label is set up before and not laid out twice.
        auto *widget = new SectionLabel(label.text);
        widget->setAlignment(Qt::AlignCenter);
        widget->setMargin(0);
        setUpFont(widget, label.isValue);
        addWidget(widget);
    }
    setHandlesEnabled(m_areHandlesEnabled);
    layOut();
}

void DateTimeEditPrototype::writeValues(const std::array<int, 3> &places, const std::array<QString, 3> &texts)
{
    for (std::size_t section = 0; section < places.size(); ++section) {
        // Value and separator alternate, so the value at a place is the label at twice its number.
        const int index = 2 * places[section];
        if (index < 0 || index >= labelCount())
            continue;
        m_labelTexts[index] = texts[section];
        if (QLabel *label = labelAt(index))
            label->setText(texts[section]);
    }
}

void DateTimeEditPrototype::setUpFont(QLabel *label, bool isValue)
{
    QFont font = m_font;
    font.setHintingPreference(QFont::PreferVerticalHinting);
    label->setFont(font);
    if (!isValue)
        label->setFixedWidth(QFontMetrics(m_font).horizontalAdvance(label->text()));
}

QLabel *DateTimeEditPrototype::labelAt(int index) const
{
    return qobject_cast<QLabel *>(widget(index));
}

// A host may have put a widget of its own into the row, or taken one out.
int DateTimeEditPrototype::labelCount() const
{
    return qMin(count(), m_labelTexts.size());
}

bool DateTimeEditPrototype::isValue(int index) const
{
    // Separators follow values and never each other.
    return index % 2 == 0;
}

void DateTimeEditPrototype::layOut()
{
    // A hidden widget waits for the moment at which it is shown. The one on paper never is.
    refresh();
}

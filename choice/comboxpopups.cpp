// SPDX-License-Identifier: MIT
#include "choice/comboxpopups.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QScreen>

namespace {

bool isFocusLostToPopup(const QEvent *event)
{
    return event->type() == QEvent::FocusOut &&
           static_cast<const QFocusEvent *>(event)->reason() == Qt::PopupFocusReason;
}

} // namespace

ComboxPopups::ComboxPopups(QComboBox *comboBox)
    : QObject(comboBox)
    , m_comboBox(comboBox)
    , m_list(comboBox->view()->window())
{
    // Embedded with the combo box, the list would be an item of the scene, covered by objects above this one and cut
    // off at the edge of the view.
    m_list->setWindowFlag(Qt::BypassGraphicsProxyWidget);
    m_list->installEventFilter(this);
}

ComboxPopups::~ComboxPopups() = default;

void ComboxPopups::setCompletions(QWidget *popup)
{
    // The one before may still be open, and closes later.
    releaseKeyboard();
    if (m_completions)
        m_completions->removeEventFilter(this);
    m_completions = popup;
    m_completions->installEventFilter(this);
}

bool ComboxPopups::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (watched == m_list && type == QEvent::Show)
        moveListOntoScreen();
    else if (watched == m_completions && type == QEvent::Show)
        holdKeyboard();
    else if (watched == m_completions && type == QEvent::Hide)
        releaseKeyboard();
    else if (watched == m_keyboardOwner && isFocusLostToPopup(event))
        return true;
    return QObject::eventFilter(watched, event);
}

// Embedded combo boxes open their lists without a look at the edges of the screen.
void ComboxPopups::moveListOntoScreen()
{
    const QPoint corner = m_comboBox->mapToGlobal({0, 0});
    const QScreen *screen = QGuiApplication::screenAt(m_comboBox->mapToGlobal(m_comboBox->rect().center()));
    const QRect area = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    QRect place = m_list->geometry();
    if (place.bottom() > area.bottom())
        place.moveBottom(qMin(corner.y() - 1, area.bottom()));
    place.moveLeft(qMax(area.left(), qMin(place.left(), area.right() + 1 - place.width())));
    place.moveTop(qMax(area.top(), place.top()));
    m_list->move(place.topLeft());
}

// Completions leave the keyboard to their widget, but know nothing of the view that it is in. If the view lost it to
// them, the combo box would report a choice before the text is typed to its end, and they would close at each key.
void ComboxPopups::holdKeyboard()
{
    m_keyboardOwner = QApplication::focusWidget();
    if (m_keyboardOwner)
        m_keyboardOwner->installEventFilter(this);
}

void ComboxPopups::releaseKeyboard()
{
    if (m_keyboardOwner)
        m_keyboardOwner->removeEventFilter(this);
    m_keyboardOwner.clear();
}

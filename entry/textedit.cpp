// SPDX-License-Identifier: MIT
#include "entry/textedit.h"

#include "entry/inputformat.h"

#include <QKeyEvent>
#include <QSignalBlocker>

namespace {

bool isShortcut(int key)
{
    return key == Qt::Key_C || key == Qt::Key_V || key == Qt::Key_X;
}

// Delete is missing on purpose: number formats filter it like a character.
bool isEditingKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_Tab:
    case Qt::Key_Backspace:
        return true;
    default:
        return false;
    }
}

bool isFocusKey(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

} // namespace

TextEdit::TextEdit(QWidget *parent)
    : QPlainTextEdit(parent)
{
    QFont hinted = font();
    hinted.setHintingPreference(QFont::PreferVerticalHinting);
    setFont(hinted);
    setTabChangesFocus(true);
    document()->setDocumentMargin(0);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setBorderColor(QStringLiteral("#1ba39c"));
}

TextEdit::~TextEdit() = default;

Input_Format TextEdit::formatType() const
{
    return m_format;
}

void TextEdit::setFormatType(const Input_Format &format)
{
    m_format = format;
}

void TextEdit::setBorderColor(const QString &color)
{
    setStyleSheet(QStringLiteral("TextEdit{border:1px solid ") + color + QStringLiteral(";}"));
}

void TextEdit::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (event->modifiers() == Qt::ControlModifier) {
        if (isShortcut(key))
            QPlainTextEdit::keyPressEvent(event);
    } else if (isFocusKey(key) && tabChangesFocus()) {
        // It comes here from the last field of a form: the view has to pass the focus on, and no tab is written.
        event->ignore();
    } else if (isEditingKey(key)) {
        QPlainTextEdit::keyPressEvent(event);
    } else if (inputformat::acceptsKey(m_format, key)) {
        if (inputformat::isAmount(m_format))
            tryKey(event);
        else
            QPlainTextEdit::keyPressEvent(event);
    }
}

// Which text a key leads to depends on cursor and selection, so the key is applied and taken back where it went too
// far. Nobody hears of the attempt: a host that reacts to invalid data is not told of a keystroke that was refused.
void TextEdit::tryKey(QKeyEvent *event)
{
    const QString before = toPlainText();
    {
        const QSignalBlocker blocker(this);
        QPlainTextEdit::keyPressEvent(event);
        if (!inputformat::acceptsTyped(toPlainText())) {
            setPlainText(before);
            moveCursor(QTextCursor::End);
        }
    }
    if (toPlainText() != before)
        Q_EMIT textChanged();
}

void TextEdit::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
}

void TextEdit::contextMenuEvent(QContextMenuEvent *event)
{
    QPlainTextEdit::contextMenuEvent(event);
}

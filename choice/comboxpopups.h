// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QComboBox;
class QWidget;

/// The windows that an embedded combo box opens: its list, and the completions of what is typed. Keeps the list on the
/// screen, and the keyboard with the view of the combo box while completions are open. A child of the combo box.
class ComboxPopups : public QObject
{
    Q_OBJECT

public:
    /// Makes the list a window; the view of the combo box has to be set before.
    explicit ComboxPopups(QComboBox *comboBox);
    ~ComboxPopups() override;

    /// Popup of the completer; takes the place of the one before.
    void setCompletions(QWidget *popup);

protected:
    /// Of the list, of the completions, and of the view behind them.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void moveListOntoScreen();
    void holdKeyboard();
    void releaseKeyboard();

    QComboBox *m_comboBox;
    QPointer<QWidget> m_list;
    QPointer<QWidget> m_completions;
    QPointer<QWidget> m_keyboardOwner;
};

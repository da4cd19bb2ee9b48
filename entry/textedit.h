// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroglobal.h"
#include "core/tavrotypes.h"

#include <QPlainTextEdit>

/// Flat editor that an edit object shows over itself. Refuses keystrokes that the input format does not allow: the
/// minus sign in every number format, and a third decimal in an amount. Pasting is not filtered.
class TAVRO_EXPORT TextEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit TextEdit(QWidget *parent = nullptr);
    ~TextEdit() override;

    Input_Format formatType() const;
    /// Numbers beyond the named formats refuse every character.
    void setFormatType(const Input_Format &format);
    /// Colour name or hexadecimal colour, put into the style sheet as given.
    void setBorderColor(const QString &color);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void tryKey(QKeyEvent *event);

    Input_Format m_format = Format_Text;
};

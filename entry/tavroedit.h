// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotext.h"
#include "entry/userpattern.h"

#include <QPointer>

class QGraphicsProxyWidget;
class TextEdit;

/// Field into which a value is typed: a text, a number, an amount shown in Chinese capitals or in English words, a
/// serial number, or a number shown through a pattern. Bad input is never refused: the content keeps it, the shown text
/// is empty and invalidDataOccured() is emitted. Converted texts change with the next content, not with a setter. Hosts
/// give amounts as strings: a floating-point content is read with six significant digits. contentDataChanged() comes
/// before the conversion: displayText() is up to date when the setter returns. A new object counts as modified.
class TAVRO_EXPORT TavroEdit : public TavroText
{
    Q_OBJECT

public:
    explicit TavroEdit(QGraphicsItem *parent = nullptr);
    ~TavroEdit() override;

    /// Takes the preset again, or counts a serial number up by one; nothing where isResetAtRenew() is not set.
    void renew() override;
    void setBoundingRect(const QRectF &rect) override;
    /// Validates and converts at once; the font is fitted when the event loop turns.
    void setContentData(const QVariant &content) override;
    void setPresetData(const QVariant &preset) override;
    /// Every mode but input hides the editor.
    void setPaintMode(const Paint_Mode &mode) override;
    /// Whether the content fits the format and the user pattern; empties the shown text where it does not. An empty
    /// required field is the host's to find.
    bool isValid() override;
    void designPaint(QPainter *painter) override;
    void inputPaint(QPainter *painter) override;
    void printPaint(QPainter *painter) override;
    void setPrefix(const QString &prefix) override;
    void setFont(const QFont &font) override;
    void adjustTextStyle() override;

    // input; setters mark modified unless they say otherwise
    Input_Format formatType() const;
    void setFormatType(const Input_Format &format);
    QString customizedFormat() const;
    /// Pattern of Format_Customized, such as "#,##0.00".
    void setCustomizedFormat(const QString &pattern);
    bool isZeroClear() const;
    /// Whether a content of zeros shows nothing, in every format.
    void setIsZeroClear(bool clear);
    QString usrRegExpPattern() const;
    /// Regular expression that the whole text must match; empty for none, an invalid one matches nothing.
    void setUsrRegExpPattern(const QString &pattern);
    QString placeholder() const;
    /// Hint in input mode while nothing is shown. Does not mark modified.
    void setPlaceholder(const QString &text);

    // zeros in Chinese amounts; plain storage, does not mark modified
    void setAddZero(bool beforeThousand, bool beforeJiao);
    bool getAddZeroBeforeThousandState() const;
    void setAddZeroBeforeThousandState(bool add);
    bool getAddZeroBeforeJiaoState() const;
    void setAddZeroBeforeJiaoState(bool add);

    // validation; a mismatch empties the shown text
    QString matchPattern() const;
    void syncMatchRegExp();
    bool isMatched(const QString &text);
    bool isUsrDefineRegExpMatch(const QString &text);

    // conversion of the content into the shown text
    QString displayText() const;
    /// Converts anew, without asking whether the content is valid.
    void modifyTextAsFormatType();
    bool isAllZero(const QString &text) const;
    /// Shows what stands for an amount of nothing, unless isZeroClear().
    void handleAllZero();
    /// First stage of an amount in Chinese capitals: appends numerals and units to the shown text.
    void convertDigitsToMoneyFormat();
    /// Second stage: joins the zeros of the shown text and writes 整 for empty cents.
    void completeSuffix();
    void convertDigitsToEnglishMoneyFormat();
    /// Sets the content to the next number.
    void increaseSerialNum();
    /// Sum of two strings of decimal digits of any length, as wide as the longer one.
    QString sumOfNumString(const QString &a, const QString &b) const;

    // painting
    void drawEditContent(QPainter *painter);
    void drawPlaceholder(QPainter *painter);

    // editing in place
    /// Carries the editor; a child of the object, null once the editor was destroyed from outside.
    QGraphicsProxyWidget *widgetPrxy() const;
    /// Shows the editor with the keyboard focus, unless the object is read-only.
    void readyForEdit();
    using TavroText::setBorderColor;
    /// Border colour of the editor, a name or a hexadecimal colour.
    void setBorderColor(const QString &color);
    void syncTextEditContent();
    void syncTextEditGeometry();
    void syncTextEditFont();

Q_SIGNALS:
    /// A new content does not fit the format or the user pattern; it is kept and shows nothing.
    void invalidDataOccured();

public Q_SLOTS:
    /// Takes what was typed into the editor as the content.
    void syncContentData();

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    QString contentText() const;
    QString amountContent() const;
    void postAdjustTextStyle();
    void convertIfValid(const QString &text);

    QPointer<TextEdit> m_editor;
    QPointer<QGraphicsProxyWidget> m_widgetPrxy;
    Input_Format m_formatType = Format_Text;
    QString m_customizedFormat = QStringLiteral("#,##0.00");
    bool m_isZeroClear = true;
    UserPattern m_usrRegExpPattern;
    QString m_matchPattern;
    QString m_displayText;
    QString m_placeholder;
    bool m_addZeroBeforeThousand = false;
    bool m_addZeroBeforeJiao = false;
    bool m_isFitPosted = false;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroprototype.h"

#include <QFont>
#include <QTextOption>

/// Base of every object that shows text: holds the text settings and computes the font with which the text is drawn,
/// fixed, shrunk to one line, or wrapped and shrunk to the rectangle. Draws nothing of its own beyond the base.
/// The initial 15 px and 9 pt stand side by side: neither is converted until setFontPtSz() or syncFontPixSz().
class TAVRO_EXPORT TavroText : public TavroPrototype
{
    Q_OBJECT
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix NOTIFY prefixChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    Q_PROPERTY(QString fontFamily READ fontFamily WRITE setFontFamily NOTIFY fontFamilyChanged)
    Q_PROPERTY(double fontPtSz READ fontPtSz WRITE setFontPtSz NOTIFY fontPtSzChanged)
    Q_PROPERTY(Qt::Alignment horAlign READ horAlign WRITE setHorAlign NOTIFY horAlignChanged)
    Q_PROPERTY(Qt::Alignment verAlign READ verAlign WRITE setVerAlign NOTIFY verAlignChanged)
    Q_PROPERTY(
        Text_Filling_Rule textFillingRule READ textFillingRule WRITE setTextFillingRule NOTIFY textFillingRuleChanged)

public:
    explicit TavroText(QGraphicsItem *parent = nullptr);
    ~TavroText() override;

    void setBoundingRect(const QRectF &rect) override;
    void setContentData(const QVariant &content) override;

    // operations that kinds override, after those of the prototype, in the order of their slots
    /// Re-fits the font and marks modified. Numbers beyond the named rules give a default font and word wrap.
    virtual void setTextFillingRule(const Text_Filling_Rule &rule);
    /// Text in front of the value. Re-fits the font and marks modified.
    virtual void setPrefix(const QString &prefix);
    /// The drawing font itself; the next re-fit computes it anew. Does not mark modified.
    virtual void setFont(const QFont &font);
    /// Re-fits the font and marks modified. No fallback is chosen for a family that is not installed.
    virtual void setFontFamily(const QString &family);
    /// Computes the drawing font from the settings, the filling rule and the text, without a signal, and repaints.
    virtual void adjustTextStyle();

    // text settings; setters mark modified
    Text_Filling_Rule textFillingRule() const;
    QString prefix() const;
    Qt::Alignment horAlign() const;
    void setHorAlign(const QFlags<Qt::AlignmentFlag> &alignment);
    Qt::Alignment verAlign() const;
    void setVerAlign(const QFlags<Qt::AlignmentFlag> &alignment);
    QFont font() const;
    QString fontFamily() const;
    int fontPixSz() const;
    double fontPtSz() const;
    /// Points; the pixel size follows through the object's own scale, so the geometry has to be set before.
    void setFontPtSz(const double &points);
    bool isBold() const;
    void setIsBold(bool bold);
    bool isItalic() const;
    void setIsItalic(bool italic);
    bool isUnderline() const;
    /// Stored only: the drawing font is never underlined.
    void setIsUnderline(bool underline);
    bool isStrikeOut() const;
    void setIsStrikeOut(bool strikeOut);
    unsigned int fontColor() const;
    /// 0xRRGGBB.
    void setFontColor(const unsigned int &color);

    // fitting
    /// Derives the pixel size from the point size, and gives it to the drawing font, which is not re-fitted.
    void syncFontPixSz();
    /// Points of a font size in pixels through the physical rectangle; infinite or not a number without a pixel width.
    double pixSzToPointSz(int pixels) const;
    /// Alignment and the wrap mode of the filling rule.
    QTextOption textOption() const;
    /// Font in which the text fits the width on one line, at most the size as set and at least 1 px.
    QFont font_Shrink(const QString &text) const;
    /// Font in which the wrapped text is lower than the rectangle, or stands on one line. Keeps the number of lines.
    QFont font_wordWrapAndShrink(const QString &text);
    /// Lines of the last layout of font_wordWrapAndShrink().
    int lineCount() const;

Q_SIGNALS:
    void verAlignChanged();
    void horAlignChanged();
    void textFillingRuleChanged();
    void prefixChanged();
    void fontChanged();
    void fontFamilyChanged();
    void fontPtSzChanged();

protected:
    /// What adjustTextStyle() does, for the text that the kind draws.
    void fitFontTo(const QString &text);
    /// Prefix that follows from another setting: no signal, no fitting, not modified.
    void storePrefix(const QString &prefix);

private:
    /// Font of the settings alone, before any fitting.
    QFont propertyFont() const;
    template <typename T>
    void storeAndRefit(T &field, const T &value);

    Text_Filling_Rule m_textFillingRule = Fill_WrapShrink;
    QString m_prefix;
    Qt::Alignment m_horAlign = Qt::AlignLeft;
    Qt::Alignment m_verAlign = Qt::AlignVCenter;
    QFont m_font;
    QString m_fontFamily;
    bool m_isBold = false;
    bool m_isItalic = false;
    bool m_isUnderline = false;
    bool m_isStrikeOut = false;
    int m_fontPixSz = 15;
    double m_fontPtSz = 9.0;
    unsigned int m_fontColor = 0;
    int m_lineCount = 0;
};

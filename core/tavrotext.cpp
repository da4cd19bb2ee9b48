// SPDX-License-Identifier: MIT
#include "core/tavrotext.h"

#include "core/textfitting.h"
#include "core/units.h"

#include <QSignalBlocker>

TavroText::TavroText(QGraphicsItem *parent)
    : TavroPrototype(parent)
    , m_fontFamily(QStringLiteral("宋体"))
{
    setObjType(Obj_None);
    m_font = QFont(m_fontFamily);
    m_font.setPixelSize(m_fontPixSz);
    Q_EMIT fontChanged();
    TavroText::adjustTextStyle();
}

TavroText::~TavroText() = default;

void TavroText::setBoundingRect(const QRectF &rect)
{
    TavroPrototype::setBoundingRect(rect);
    adjustTextStyle();
}

void TavroText::setContentData(const QVariant &content)
{
    TavroPrototype::setContentData(content);
    adjustTextStyle();
}

template <typename T>
void TavroText::storeAndRefit(T &field, const T &value)
{
    field = value;
    adjustTextStyle();
}

void TavroText::setTextFillingRule(const Text_Filling_Rule &rule)
{
    storeAndRefit(m_textFillingRule, rule);
    Q_EMIT textFillingRuleChanged();
    setIsModified(true);
}

void TavroText::setPrefix(const QString &prefix)
{
    storeAndRefit(m_prefix, prefix);
    Q_EMIT prefixChanged();
    setIsModified(true);
}

void TavroText::storePrefix(const QString &prefix)
{
    m_prefix = prefix;
}

void TavroText::setFont(const QFont &font)
{
    m_font = font;
    Q_EMIT fontChanged();
}

void TavroText::setFontFamily(const QString &family)
{
    storeAndRefit(m_fontFamily, family);
    Q_EMIT fontFamilyChanged();
    setIsModified(true);
}

void TavroText::adjustTextStyle()
{
    fitFontTo(m_prefix + contentData().toString());
}

void TavroText::fitFontTo(const QString &text)
{
    const QSignalBlocker blocker(this);
    switch (m_textFillingRule) {
    case Fill_Wrap:
    case Fill_NoWrap:
        setFont(propertyFont());
        break;
    case Fill_Shrink:
        setFont(font_Shrink(text));
        break;
    case Fill_WrapShrink:
        setFont(font_wordWrapAndShrink(text));
        break;
    default:
        setFont(QFont());
    }
    repaint();
}

Text_Filling_Rule TavroText::textFillingRule() const
{
    return m_textFillingRule;
}

QString TavroText::prefix() const
{
    return m_prefix;
}

Qt::Alignment TavroText::horAlign() const
{
    return m_horAlign;
}

void TavroText::setHorAlign(const QFlags<Qt::AlignmentFlag> &alignment)
{
    m_horAlign = alignment;
    Q_EMIT horAlignChanged();
    setIsModified(true);
}

Qt::Alignment TavroText::verAlign() const
{
    return m_verAlign;
}

void TavroText::setVerAlign(const QFlags<Qt::AlignmentFlag> &alignment)
{
    m_verAlign = alignment;
    Q_EMIT verAlignChanged();
    setIsModified(true);
}

QFont TavroText::font() const
{
    return m_font;
}

QString TavroText::fontFamily() const
{
    return m_fontFamily;
}

int TavroText::fontPixSz() const
{
    return m_fontPixSz;
}

double TavroText::fontPtSz() const
{
    return m_fontPtSz;
}

void TavroText::setFontPtSz(const double &points)
{
    m_fontPtSz = points;
    syncFontPixSz();
    Q_EMIT fontPtSzChanged();
    setIsModified(true);
}

bool TavroText::isBold() const
{
    return m_isBold;
}

void TavroText::setIsBold(bool bold)
{
    storeAndRefit(m_isBold, bold);
    setIsModified(true);
}

bool TavroText::isItalic() const
{
    return m_isItalic;
}

void TavroText::setIsItalic(bool italic)
{
    storeAndRefit(m_isItalic, italic);
    setIsModified(true);
}

bool TavroText::isUnderline() const
{
    return m_isUnderline;
}

void TavroText::setIsUnderline(bool underline)
{
    storeAndRefit(m_isUnderline, underline);
    setIsModified(true);
}

bool TavroText::isStrikeOut() const
{
    return m_isStrikeOut;
}

void TavroText::setIsStrikeOut(bool strikeOut)
{
    storeAndRefit(m_isStrikeOut, strikeOut);
    setIsModified(true);
}

unsigned int TavroText::fontColor() const
{
    return m_fontColor;
}

void TavroText::setFontColor(const unsigned int &color)
{
    storeSetting(m_fontColor, color);
}

void TavroText::syncFontPixSz()
{
    m_fontPixSz = pointSzToPixSz(m_fontPtSz);
    QFont resized = m_font;
    resized.setPixelSize(m_fontPixSz);
    setFont(resized);
}

double TavroText::pixSzToPointSz(int pixels) const
{
    return units::pointSize(pixels, width(), phyWidth());
}

QTextOption TavroText::textOption() const
{
    QTextOption option(m_verAlign | m_horAlign);
    if (m_textFillingRule == Fill_Wrap || m_textFillingRule == Fill_WrapShrink)
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    else if (m_textFillingRule == Fill_Shrink || m_textFillingRule == Fill_NoWrap)
        option.setWrapMode(QTextOption::NoWrap);
    else
        option.setWrapMode(QTextOption::WordWrap);
    return option;
}

QFont TavroText::propertyFont() const
{
    QFont font;
    font.setFamily(m_fontFamily);
    font.setPixelSize(m_fontPixSz);
    font.setWeight(m_isBold ? QFont::Bold : QFont::Normal);
    font.setStyle(m_isItalic ? QFont::StyleItalic : QFont::StyleNormal);
    font.setStrikeOut(m_isStrikeOut);
    return font;
}

QFont TavroText::font_Shrink(const QString &text) const
{
    return textfitting::shrunkToWidth(propertyFont(), text, width());
}

QFont TavroText::font_wordWrapAndShrink(const QString &text)
{
    const textfitting::WrappedFit fit =
        textfitting::wrappedAndShrunk(propertyFont(), text, boundingRect().size(), m_horAlign | m_verAlign);
    m_lineCount = fit.lineCount;
    return fit.font;
}

int TavroText::lineCount() const
{
    return m_lineCount;
}

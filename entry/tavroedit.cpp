// SPDX-License-Identifier: MIT
#include "entry/tavroedit.h"

#include "core/paintersaver.h"
#include "core/pixels.h"
#include "entry/chineseamount.h"
#include "entry/englishamount.h"
#include "entry/inputformat.h"
#include "entry/numericformat.h"
#include "entry/serialnumber.h"
#include "entry/textedit.h"

#include <QDebug>
#include <QGraphicsProxyWidget>
#include <QGraphicsSceneMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QTimer>

namespace {

QString textOf(const QVariant &value)
{
    const int type = value.userType();
    if (type == QMetaType::Double || type == QMetaType::Float)
        return QString::number(value.toDouble(), 'g', 6);
    return value.toString();
}

} // namespace

TavroEdit::TavroEdit(QGraphicsItem *parent)
    : TavroText(parent)
    , m_editor(new TextEdit)
    , m_widgetPrxy(new QGraphicsProxyWidget(this))
{
    setObjType(Obj_Edit);
    // A proxy shows a widget that was not hidden, which costs a window of the platform, for most fields in vain.
    m_editor->hide();
    m_widgetPrxy->setWidget(m_editor);
    // Taking the widget, the proxy takes its minimum size too, which is higher than most fields.
    m_widgetPrxy->setMinimumSize(0, 0);
    m_widgetPrxy->hide();
    setFocusProxy(m_widgetPrxy);
    connect(m_editor, &TextEdit::textChanged, this, &TavroEdit::syncContentData);
    setFormatType(Format_Text);
}

TavroEdit::~TavroEdit() = default;

void TavroEdit::renew()
{
    if (!isResetAtRenew())
        return;
    if (m_formatType == Format_SerialNumber)
        increaseSerialNum();
    else
        setContentData(presetData());
}

void TavroEdit::setBoundingRect(const QRectF &rect)
{
    TavroText::setBoundingRect(rect);
    syncTextEditGeometry();
}

void TavroEdit::setContentData(const QVariant &content)
{
    TavroPrototype::setContentData(content);
    syncTextEditContent();
    // A slot may have given the object another content while the signal was out. What it holds by now is validated,
    // since that is what is converted and printed.
    convertIfValid(contentText());
    postAdjustTextStyle();
}

// The geometry that follows in the same turn, as when a form is loaded, is fitted once. One shot at a time: a batch
// that never lets the event loop turn must not pile them up.
void TavroEdit::postAdjustTextStyle()
{
    if (m_isFitPosted)
        return;
    m_isFitPosted = true;
    QTimer::singleShot(0, this, [this] {
        m_isFitPosted = false;
        adjustTextStyle();
    });
}

void TavroEdit::setPresetData(const QVariant &preset)
{
    TavroText::setPresetData(preset);
    syncTextEditContent();
}

void TavroEdit::setPaintMode(const Paint_Mode &mode)
{
    // Hidden again afterwards, since a host may have shown it while it heard of the new mode.
    const bool hidesEditor = mode != Paint_Input;
    if (hidesEditor && m_widgetPrxy)
        m_widgetPrxy->hide();
    TavroText::setPaintMode(mode);
    if (hidesEditor && m_widgetPrxy)
        m_widgetPrxy->hide();
}

bool TavroEdit::isValid()
{
    const QString text = contentText();
    return isMatched(text) && isUsrDefineRegExpMatch(text);
}

void TavroEdit::designPaint(QPainter *painter)
{
    fillBackground(painter, boundingRect());
    drawEditContent(painter);
    TavroText::designPaint(painter);
}

void TavroEdit::inputPaint(QPainter *painter)
{
    fillBackground(painter, boundingRect());
    TavroText::inputPaint(painter);
    if (m_displayText.isEmpty())
        drawPlaceholder(painter);
    else
        drawEditContent(painter);
}

void TavroEdit::printPaint(QPainter *painter)
{
    if (isPrint())
        drawEditContent(painter);
}

void TavroEdit::setPrefix(const QString &prefix)
{
    TavroText::setPrefix(prefix);
    syncTextEditContent();
}

void TavroEdit::setFont(const QFont &font)
{
    TavroText::setFont(font);
    syncTextEditFont();
}

void TavroEdit::adjustTextStyle()
{
    fitFontTo(prefix() + m_displayText);
}

Input_Format TavroEdit::formatType() const
{
    return m_formatType;
}

void TavroEdit::setFormatType(const Input_Format &format)
{
    m_formatType = format;
    syncMatchRegExp();
    if (m_editor)
        m_editor->setFormatType(m_formatType);
    setIsModified(true);
}

QString TavroEdit::customizedFormat() const
{
    return m_customizedFormat;
}

void TavroEdit::setCustomizedFormat(const QString &pattern)
{
    storeSetting(m_customizedFormat, pattern);
}

bool TavroEdit::isZeroClear() const
{
    return m_isZeroClear;
}

void TavroEdit::setIsZeroClear(bool clear)
{
    storeSetting(m_isZeroClear, clear);
}

QString TavroEdit::usrRegExpPattern() const
{
    return m_usrRegExpPattern.pattern();
}

void TavroEdit::setUsrRegExpPattern(const QString &pattern)
{
    storeSetting(m_usrRegExpPattern, UserPattern(pattern));
}

QString TavroEdit::placeholder() const
{
    return m_placeholder;
}

void TavroEdit::setPlaceholder(const QString &text)
{
    m_placeholder = text;
}

void TavroEdit::setAddZero(bool beforeThousand, bool beforeJiao)
{
    setAddZeroBeforeThousandState(beforeThousand);
    setAddZeroBeforeJiaoState(beforeJiao);
}

bool TavroEdit::getAddZeroBeforeThousandState() const
{
    return m_addZeroBeforeThousand;
}

void TavroEdit::setAddZeroBeforeThousandState(bool add)
{
    m_addZeroBeforeThousand = add;
}

bool TavroEdit::getAddZeroBeforeJiaoState() const
{
    return m_addZeroBeforeJiao;
}

void TavroEdit::setAddZeroBeforeJiaoState(bool add)
{
    m_addZeroBeforeJiao = add;
}

QString TavroEdit::matchPattern() const
{
    return m_matchPattern;
}

void TavroEdit::syncMatchRegExp()
{
    m_matchPattern = inputformat::matchPattern(m_formatType);
}

bool TavroEdit::isMatched(const QString &text)
{
    const bool matched = inputformat::accepts(m_formatType, text);
    if (!matched)
        m_displayText.clear();
    return matched;
}

bool TavroEdit::isUsrDefineRegExpMatch(const QString &text)
{
    const bool matched = m_usrRegExpPattern.matches(text);
    if (!matched)
        m_displayText.clear();
    return matched;
}

QString TavroEdit::displayText() const
{
    return m_displayText;
}

QString TavroEdit::contentText() const
{
    return textOf(contentData());
}

// The plain string, not the six digits of contentText(): a floating-point 12345.67 keeps its cents.
QString TavroEdit::amountContent() const
{
    return contentData().toString();
}

void TavroEdit::convertIfValid(const QString &text)
{
    if (isMatched(text) && isUsrDefineRegExpMatch(text))
        modifyTextAsFormatType();
    else
        Q_EMIT invalidDataOccured();
}

void TavroEdit::modifyTextAsFormatType()
{
    m_displayText.clear();
    const QString text = contentText();
    if (isAllZero(text)) {
        handleAllZero();
        return;
    }
    switch (m_formatType) {
    case Format_Text:
    case Format_Number:
        m_displayText = text;
        break;
    case Format_RmbCapital:
    case Format_RmbCapitalAlt:
    case Format_RmbCapitalYuan:
    case Format_UsdCapital:
    case Format_RmbCapitalNoSuffix:
        m_displayText =
            chineseamount::amountText(amountContent(), m_formatType, {m_addZeroBeforeThousand, m_addZeroBeforeJiao});
        break;
    case Format_EnglishAmount:
        convertDigitsToEnglishMoneyFormat();
        break;
    case Format_SerialNumber:
    case Format_FreeText:
        m_displayText = contentData().toString();
        break;
    case Format_Customized:
        m_displayText = numericformat::format(m_customizedFormat, text.toDouble());
        break;
    }
}

bool TavroEdit::isAllZero(const QString &text) const
{
    return chineseamount::isAllZero(text);
}

void TavroEdit::handleAllZero()
{
    if (m_isZeroClear)
        return;
    switch (m_formatType) {
    case Format_Text:
    case Format_Number:
    case Format_SerialNumber:
    case Format_FreeText:
    case Format_Customized:
        m_displayText = contentText();
        break;
    default:
        m_displayText = chineseamount::allZeroText(m_formatType);
    }
}

void TavroEdit::convertDigitsToMoneyFormat()
{
    chineseamount::appendPlaces(m_displayText, amountContent());
}

void TavroEdit::completeSuffix()
{
    chineseamount::completeSuffix(m_displayText);
}

void TavroEdit::convertDigitsToEnglishMoneyFormat()
{
    m_displayText = englishamount::amountText(contentText());
}

void TavroEdit::increaseSerialNum()
{
    const QString number = contentText();
    const QString next = serialnumber::sumOfNumString(number, QStringLiteral("1"));
    qDebug() << number << next << ":increasedNum";
    setContentData(next);
}

QString TavroEdit::sumOfNumString(const QString &a, const QString &b) const
{
    return serialnumber::sumOfNumString(a, b);
}

void TavroEdit::drawEditContent(QPainter *painter)
{
    const PainterSaver saver(painter);
    painter->setPen(QColor(fontColor()));
    painter->setFont(font());
    painter->drawText(boundingRect(), prefix() + m_displayText, textOption());
}

void TavroEdit::drawPlaceholder(QPainter *painter)
{
    QFont plain = font();
    plain.setWeight(QFont::Normal);
    plain.setStyle(QFont::StyleNormal);
    const PainterSaver saver(painter);
    painter->setPen(QPen(Qt::gray, 1));
    painter->setFont(plain);
    painter->drawText(boundingRect(), m_placeholder, textOption());
}

QGraphicsProxyWidget *TavroEdit::widgetPrxy() const
{
    return m_widgetPrxy;
}

void TavroEdit::readyForEdit()
{
    if (isReadOnly() || !m_editor || !m_widgetPrxy)
        return;
    m_widgetPrxy->show();
    m_editor->selectAll();
    m_editor->setFocus(Qt::OtherFocusReason);
    m_editor->moveCursor(QTextCursor::End);
}

void TavroEdit::setBorderColor(const QString &color)
{
    if (m_editor)
        m_editor->setBorderColor(color);
}

void TavroEdit::syncContentData()
{
    if (!m_editor)
        return;
    storeContent(m_editor->toPlainText());
    Q_EMIT contentDataChanged();
    // As in setContentData(), a slot may have corrected the text.
    convertIfValid(contentText());
    adjustTextStyle();
}

void TavroEdit::syncTextEditContent()
{
    if (!m_editor)
        return;
    const QString text = contentText();
    if (m_editor->toPlainText() == text)
        return;
    const QSignalBlocker blocker(m_editor);
    m_editor->setPlainText(text);
}

void TavroEdit::syncTextEditGeometry()
{
    if (!m_widgetPrxy)
        return;
    const qreal inset = borderWpx();
    m_widgetPrxy->setGeometry(pixels::edgesRounded(boundingRect()).adjusted(inset, inset, -inset, -inset));
}

void TavroEdit::syncTextEditFont()
{
    if (!m_editor)
        return;
    m_editor->setFont(font());
    m_editor->setWordWrapMode(textOption().wrapMode());
}

void TavroEdit::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    const bool isInput = paintMode() == Paint_Input;
    if (isInput)
        readyForEdit();
    TavroText::mousePressEvent(event);
    // A field that can be neither selected nor moved lets the press through, and one below it would take the focus.
    if (isInput && !isReadOnly())
        event->accept();
}

void TavroEdit::focusInEvent(QFocusEvent *event)
{
    readyForEdit();
    TavroText::focusInEvent(event);
}

// SPDX-License-Identifier: MIT
#include "choice/tavrocombx.h"

#include "choice/comboxpopups.h"
#include "choice/symbols.h"
#include "core/paintersaver.h"
#include "core/pixels.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QGraphicsProxyWidget>
#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>
#include <utility>

namespace {

QString styleSheetWithBorder(const QString &color)
{
    return QStringLiteral("QComboBox{                             border: 1px solid ") + color +
           QStringLiteral(";                             border-radius: 3px;"
                          "                             padding: 1px 1px 1px 1px;}");
}

QFont withVerticalHinting(QFont font)
{
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

} // namespace

TavroCombx::TavroCombx(QGraphicsItem *parent)
    : TavroText(parent)
    , m_comboBox(new QComboBox)
    , m_widgetPrxy(new QGraphicsProxyWidget(this))
{
    setObjType(Obj_Combx);
    setUpComboBox();
    m_widgetPrxy->setWidget(m_comboBox);
    m_widgetPrxy->setMinimumSize(0, 0);
    m_widgetPrxy->hide();
    setFocusProxy(m_widgetPrxy);
    connect(m_comboBox, &QComboBox::currentTextChanged, this, &TavroCombx::syncContentData);
    connect(m_comboBox, QOverload<int>::of(&QComboBox::activated), this, &TavroCombx::onCurrentIndexChanged);
    // A hidden object does not hear that the pointer leaves.
    connect(this, &TavroCombx::visibleChanged, this, [this] {
        if (m_isHovered && isEnabled())
            onHoverEvent(isVisible());
    });
}

TavroCombx::~TavroCombx()
{
    // A combo box that loses the keyboard when it goes may still choose what was typed, for an object that is no more.
    if (m_comboBox)
        m_comboBox->disconnect(this);
    // Open completions close now, and give the keyboard back.
    m_completer.reset();
}

void TavroCombx::setUpComboBox()
{
    m_comboBox->setFont(withVerticalHinting(m_comboBox->font()));
    m_comboBox->setEditable(true);
    m_comboBox->lineEdit()->setFont(withVerticalHinting(m_comboBox->lineEdit()->font()));
    m_comboBox->lineEdit()->setTextMargins(0, 0, 0, 0);
    m_comboBox->setDuplicatesEnabled(true);
    m_comboBox->setInsertPolicy(QComboBox::NoInsert);
    m_comboBox->setFont(font());
    auto *view = new QListView;
    m_comboBox->setView(view);
    view->setStyleSheet(QStringLiteral("QAbstractItemView::item {height: 1.1em;}"));
    m_popups = new ComboxPopups(m_comboBox);
    m_comboBox->setStyleSheet(styleSheetWithBorder(QStringLiteral("#1ba39c")));
}

void TavroCombx::setBoundingRect(const QRectF &rect)
{
    TavroText::setBoundingRect(rect);
    syncCombxGeometry();
}

void TavroCombx::setContentData(const QVariant &content)
{
    TavroText::setContentData(content);
    syncComboxText();
}

void TavroCombx::setPaintMode(const Paint_Mode &mode)
{
    TavroText::setPaintMode(mode);
    showHideCombx();
    // A pointer that stays where it is, enters and leaves nothing. A disabled object keeps its combo box disabled.
    if (m_isHovered && isEnabled())
        onHoverEvent(isUnderMouse());
}

void TavroCombx::designPaint(QPainter *painter)
{
    TavroText::designPaint(painter);
    drawCombxFeature(painter);
    drawCombxText(painter);
}

void TavroCombx::inputPaint(QPainter *) {}

void TavroCombx::printPaint(QPainter *painter)
{
    if (isPrint())
        drawCombxText(painter);
}

void TavroCombx::setFont(const QFont &font)
{
    TavroText::setFont(font);
    syncCombxFont();
}

QStringList TavroCombx::optionList() const
{
    if (!m_comboBox)
        return {};
    QStringList options;
    for (int i = 0; i < m_comboBox->count(); ++i)
        options.append(m_comboBox->itemText(i));
    return options;
}

void TavroCombx::setOptionList(const QStringList &options)
{
    setIsModified(true);
    if (!m_comboBox)
        return;
    auto completer = std::make_unique<QCompleter>(options);
    completer->setFilterMode(Qt::MatchContains);
    completer->popup()->setWindowFlag(Qt::FramelessWindowHint);
    m_popups->setCompletions(completer->popup());

    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->clear();
    m_comboBox->insertItems(0, options);
    m_comboBox->setCompleter(completer.get());
    // The one before may be at work: its popup passes the keys on to which the host answers with another list.
    if (auto before = std::exchange(m_completer, std::move(completer))) {
        before->setParent(m_comboBox);
        before.release()->deleteLater();
    }
    // A filled list shows its first option, which nobody chose and the content does not hold.
    syncComboxText();
}

QString TavroCombx::textAt(int index) const
{
    return m_comboBox ? m_comboBox->itemText(index) : QString();
}

bool TavroCombx::isOptionsFromDB() const
{
    return m_isOptionsFromDB;
}

void TavroCombx::setIsOptionsFromDB(bool fromDB)
{
    storeSetting(m_isOptionsFromDB, fromDB);
}

int TavroCombx::currentIndx() const
{
    return m_comboBox ? m_comboBox->currentIndex() : -1;
}

void TavroCombx::setCurrentIndx(int index)
{
    if (m_comboBox)
        m_comboBox->setCurrentIndex(index);
}

QString TavroCombx::currentText() const
{
    return m_comboBox ? m_comboBox->currentText() : QString();
}

void TavroCombx::setCurrentText(const QString &text)
{
    if (!m_comboBox)
        return;
    m_comboBox->setCurrentText(text);
    // With the combo box's signals blocked the content has not heard of the text, and would take it back.
    if (contentData().toString() == text)
        syncComboxText();
}

QGraphicsProxyWidget *TavroCombx::widgetPrxy() const
{
    return m_widgetPrxy;
}

void TavroCombx::setBorderColor(const QString &color)
{
    if (m_comboBox)
        m_comboBox->setStyleSheet(styleSheetWithBorder(color));
}

void TavroCombx::syncContentData()
{
    if (!m_comboBox)
        return;
    storeContent(currentText());
    adjustTextStyle();
    syncCombxFont();
    Q_EMIT contentDataChanged();
}

void TavroCombx::syncComboxText()
{
    if (!m_comboBox)
        return;
    const QSignalBlocker blocker(m_comboBox);
    const QString text = contentData().toString();
    // When the user leaves a combo box that stands on another option than it shows, it reports the shown one as chosen.
    if (textAt(currentIndx()) != text)
        m_comboBox->setCurrentIndex(m_comboBox->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    m_comboBox->setCurrentText(text);
}

void TavroCombx::syncCombxFont()
{
    if (!m_comboBox)
        return;
    m_comboBox->setFont(font());
    if (QLineEdit *line = m_comboBox->lineEdit())
        line->setFont(font());
}

void TavroCombx::syncCombxGeometry()
{
    if (m_widgetPrxy)
        m_widgetPrxy->setGeometry(pixels::edgesRounded(boundingRect()));
}

void TavroCombx::showHideCombx()
{
    if (!m_widgetPrxy)
        return;
    if (paintMode() == Paint_Input)
        m_widgetPrxy->show();
    else if (paintMode() == Paint_Design || paintMode() == Paint_Print)
        m_widgetPrxy->hide();
}

void TavroCombx::onHoverEvent(bool hovered)
{
    m_isHovered = hovered;
    const bool isReadOnlyInput = paintMode() == Paint_Input && isReadOnly();
    // What was disabled is enabled again, also where it has ceased to be read-only meanwhile.
    const bool wasLocked = std::exchange(m_isLockedByHover, isReadOnlyInput && hovered);
    if (m_comboBox && (isReadOnlyInput || wasLocked))
        m_comboBox->setEnabled(!m_isLockedByHover);
}

void TavroCombx::onCurrentIndexChanged(int index)
{
    Q_EMIT currentIndexChanged(index, tableDB(), columnDB());
}

void TavroCombx::drawCombxText(QPainter *painter)
{
    const PainterSaver saver(painter);
    painter->setPen(QPen(QColor(fontColor()), 1));
    painter->setFont(font());
    painter->drawText(boundingRect(), prefix() + contentData().toString(), textOption());
}

void TavroCombx::drawCombxFeature(QPainter *painter)
{
    constexpr qreal side = 10;
    constexpr qreal inset = 1;
    const QRectF square(boundingRect().right() - inset - side, boundingRect().top() + inset, side, side);
    painter->fillRect(square, Qt::white);
    symbols::draw(painter, square, symbols::Triangle);
}

void TavroCombx::hoverEnterEvent(QGraphicsSceneHoverEvent *event)
{
    TavroText::hoverEnterEvent(event);
    onHoverEvent(true);
}

void TavroCombx::hoverLeaveEvent(QGraphicsSceneHoverEvent *event)
{
    TavroText::hoverLeaveEvent(event);
    onHoverEvent(false);
}

// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotext.h"

#include <QPointer>
#include <QStringList>
#include <memory>

class ComboxPopups;
class QComboBox;
class QCompleter;
class QGraphicsProxyWidget;

/// Field that is filled in by choosing from a list, or by typing any text. The content is the text; free text is never
/// added to the list. The host sets the options, from the bound database column where isOptionsFromDB() says so. The
/// list opens in a window of its own, above everything on the scene and beyond the edge of its view. A new object
/// counts as not modified.
class TAVRO_EXPORT TavroCombx : public TavroText
{
    Q_OBJECT

public:
    explicit TavroCombx(QGraphicsItem *parent = nullptr);
    ~TavroCombx() override;

    // operations of the bases
    void setBoundingRect(const QRectF &rect) override;
    void setContentData(const QVariant &content) override;
    void setPaintMode(const Paint_Mode &mode) override;
    void designPaint(QPainter *painter) override;
    /// Nothing: the combo box shows itself.
    void inputPaint(QPainter *painter) override;
    void printPaint(QPainter *painter) override;
    void setFont(const QFont &font) override;

    // options
    QStringList optionList() const;
    /// Replaces the list, and the completer, which offers every option that contains what was typed. The content stays.
    /// Marks modified.
    void setOptionList(const QStringList &options);
    /// Empty for an index that the list does not have.
    QString textAt(int index) const;
    bool isOptionsFromDB() const;
    /// Whether the options are those of the bound column; kept for the host. Marks modified.
    void setIsOptionsFromDB(bool fromDB);

    // choice; setters change the content like a choice of the user, but do not emit currentIndexChanged()
    int currentIndx() const;
    void setCurrentIndx(int index);
    QString currentText() const;
    void setCurrentText(const QString &text);

    /// Carries the combo box; a child of the object, null once it was destroyed from outside.
    QGraphicsProxyWidget *widgetPrxy() const;
    using TavroText::setBorderColor;
    /// Border colour of the combo box, a name or a hexadecimal colour.
    void setBorderColor(const QString &color);

    // synchronisation
    /// Content to combo box, which then stands on the option that equals it, on none where none does.
    void syncComboxText();
    void syncCombxFont();
    void syncCombxGeometry();
    void showHideCombx();
    /// A read-only combo box is disabled while the pointer is over it, in input mode.
    void onHoverEvent(bool hovered);

    // painting
    /// Mark that tells a combo box from an edit in design mode.
    void drawCombxFeature(QPainter *painter);
    void drawCombxText(QPainter *painter);

public Q_SLOTS:
    /// Text of the combo box to content. Emits contentDataChanged().
    void syncContentData();
    void onCurrentIndexChanged(int index);

Q_SIGNALS:
    /// The user chose an option; with the table and the column that the object is bound to.
    void currentIndexChanged(int index, const QString &table, const QString &column);

protected:
    void hoverEnterEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;

private:
    void setUpComboBox();

    QPointer<QComboBox> m_comboBox;
    QPointer<QGraphicsProxyWidget> m_widgetPrxy;
    bool m_isOptionsFromDB = true;
    bool m_isHovered = false;
    bool m_isLockedByHover = false;
    ComboxPopups *m_popups = nullptr; // as long as the combo box
    std::unique_ptr<QCompleter> m_completer;
};

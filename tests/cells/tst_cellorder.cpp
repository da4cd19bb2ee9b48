// SPDX-License-Identifier: MIT
#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "tests/cells/cellview.h"
#include "tests/support/itemprobes.h"
#include "tests/support/stricttest.h"

#include <algorithm>

namespace {

const QRectF Row(20, 40, 240, 60);

// Where a press meets a cell, and where it meets the object beside its cells: a gap, or the row of words.
template <typename Edit>
struct Places;
template <>
struct Places<TavroFinancialEdit>
{
    static constexpr QPointF cell{90, 80};
    static constexpr QPointF beside{90, 45};
};
template <>
struct Places<TavroSeperateEdit>
{
    static constexpr QPointF cell{24, 80};
    static constexpr QPointF beside{40, 80};
};

template <typename Edit>
Edit *addedTo(CellView &view, Paint_Mode mode)
{
    auto *edit = view.add<Edit>(Row, mode);
    edit->setPhyRect({0, 0, 48, 30});
    edit->setBoundingRect(Row);
    return edit;
}

// Counts the contents that reach a kind derived by a host.
template <typename Edit>
class DerivedRow : public Edit
{
public:
    void setContentData(const QVariant &content) override
    {
        ++contents;
        Edit::setContentData(content);
    }

    int contents = 0;
};

template <typename Edit>
void renewStoresDirectly()
{
    DerivedRow<Edit> row;
    row.setPresetData(QStringLiteral("12.00"));
    row.renew();
    QCOMPARE(row.contentData().toString(), QStringLiteral("12.00"));
    QCOMPARE(row.contents, 0);
}

template <typename Edit>
void presses()
{
    CellView view;
    QVERIFY(view.isActive());
    auto *edit = addedTo<Edit>(view, Paint_Input);
    QCOMPARE(edit->hitEditable(Places<Edit>::beside), -1);
    QVERIFY(edit->hitEditable(Places<Edit>::cell) >= 0);
    QCOMPARE(view.takerOfPress(Places<Edit>::cell), edit);
    QVERIFY(!view.takerOfPress(Places<Edit>::beside));
    QVERIFY(!edit->isSelected());
    edit->setPaintMode(Paint_Print);
    QVERIFY(!view.takerOfPress(Places<Edit>::cell));
    edit->setPaintMode(Paint_Design);
    QCOMPARE(view.takerOfPress(Places<Edit>::beside), edit);
    QVERIFY(edit->isSelected());
}

QString cellsOf(const TavroFinancialEdit &edit)
{
    QStringList cells;
    for (int i = 0; i < edit.numOfEditable(); ++i)
        cells.append(edit.digitAt(i).isEmpty() ? QStringLiteral("_") : edit.digitAt(i));
    return cells.join(QString());
}

} // namespace

/// What happens in which order, and what is left to others, in both kinds of rows.
class TestCellOrder : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void renewOfADerivedKind();
    void pressesOfASeparatedRow();
    void pressesOfAGrid();
    void gridAnnouncesADigitAtItsEnd();
    void gridAnnouncesBackspaceBeforeItFillsZeros();
    void limitBeyondAShorterRange();
};

void TestCellOrder::renewOfADerivedKind()
{
    renewStoresDirectly<TavroFinancialEdit>();
    renewStoresDirectly<TavroSeperateEdit>();
}

void TestCellOrder::pressesOfASeparatedRow()
{
    presses<TavroSeperateEdit>();
}

void TestCellOrder::pressesOfAGrid()
{
    presses<TavroFinancialEdit>();
}

void TestCellOrder::gridAnnouncesADigitAtItsEnd()
{
    TavroFinancialEdit edit;
    QStringList seen;
    connect(&edit, &TavroPrototype::contentDataChanged, &edit, [&] {
        seen.append(
            QStringLiteral("%1 %2 %3").arg(edit.contentData().toString(), cellsOf(edit)).arg(edit.cursorIndx()));
    });
    edit.updateDigitByKey(Qt::Key_1, QStringLiteral("1"));
    QCOMPARE(seen, QStringList{QStringLiteral("1000000000.00 100000000000 1")});
}

void TestCellOrder::gridAnnouncesBackspaceBeforeItFillsZeros()
{
    CellView view;
    QVERIFY(view.isActive());
    auto *edit = addedTo<TavroFinancialEdit>(view, Paint_Input);
    edit->setUnitRange(0, 3);
    edit->setIsShowZero(true);
    view.click({200, 80});
    QVERIFY(edit->hasFocus());
    edit->moveCursorTo(2);
    QStringList seen;
    connect(edit, &TavroPrototype::contentDataChanged, edit, [&] {
        seen.append(
            QStringLiteral("%1 %2 %3").arg(edit->contentData().toString(), cellsOf(*edit)).arg(edit->cursorIndx()));
    });
    view.press(Qt::Key_Backspace);
    QCOMPARE(seen, QStringList{QStringLiteral(".00 ____ 1")});
    QCOMPARE(cellsOf(*edit), QStringLiteral("_000"));
}

void TestCellOrder::limitBeyondAShorterRange()
{
    TavroFinancialEdit edit;
    edit.setBoundingRect(Row);
    edit.setIsShowLimit(true);
    edit.setLimitUnit(0);
    // The cell of the limit stays the twelfth, and the row has four.
    edit.setUnitRange(0, 3);
    edit.setPaintMode(Paint_Input);
    const QVector<PaintCommand> commands = probes::paintedBy(edit);
    const auto gray = std::count_if(commands.cbegin(), commands.cend(), [](const PaintCommand &command) {
        return command.kind == PaintCommand::Rect && command.brush.color() == QColor(Qt::gray);
    });
    QCOMPARE(static_cast<int>(gray), 4);
}

QTEST_MAIN(TestCellOrder)
#include "tst_cellorder.moc"

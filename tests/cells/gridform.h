// SPDX-License-Identifier: MIT
#pragma once

#include "tests/cells/cellview.h"
#include "tests/cells/gridcells.h"

/// A form with one grid, whose row of words is 10 px high and whose cells are 20 px wide.
class GridForm : public CellView
{
public:
    explicit GridForm(const QRectF &form = QRectF(0, 0, 400, 300))
        : CellView(form)
        , edit(addGrid(place()))
    {
    }

    static QRectF place() { return {20, 40, 240, 60}; }

    TavroFinancialEdit *addGrid(const QRectF &rect)
    {
        auto *grid = add<TavroFinancialEdit>(rect);
        grid->setPhyRect({0, 0, 120, 30});
        grid->setBoundingRect(rect);
        return grid;
    }

    /// Gives the grid the keyboard.
    bool takesKeys()
    {
        edit->setFocus();
        return isActive() && edit->hasFocus();
    }

    TavroFinancialEdit *edit;
};

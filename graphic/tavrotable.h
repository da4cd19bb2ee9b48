// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroprototype.h"

/// Room for a table that the host draws: everything of a form object but a look of its own. Paints nothing in any mode,
/// neither border nor lock sign, so that only handles and dashed frame show it, while it is selected.
class TAVRO_EXPORT TavroTable : public TavroPrototype
{
    Q_OBJECT

public:
    explicit TavroTable(QGraphicsItem *parent = nullptr);
    ~TavroTable() override;

    void designPaint(QPainter *painter) override;
    void inputPaint(QPainter *painter) override;
    void printPaint(QPainter *painter) override;
};

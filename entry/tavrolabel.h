// SPDX-License-Identifier: MIT
#pragma once

#include "entry/tavroedit.h"

/// Fixed text on a form: an edit object whose editor no click opens. Keyboard focus still does.
class TAVRO_EXPORT TavroLabel : public TavroEdit
{
    Q_OBJECT

public:
    explicit TavroLabel(QGraphicsItem *parent = nullptr);
    ~TavroLabel() override;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
};

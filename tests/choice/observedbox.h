// SPDX-License-Identifier: MIT
#pragma once

#include "choice/tavrocheckbox.h"

#include <QCheckBox>
#include <QVector>

/// What a host reads in its slot.
struct Told
{
    QVariant content;
    Qt::CheckState state;
};

/// Check box that keeps what it told.
class ObservedBox : public TavroCheckBox
{
public:
    explicit ObservedBox(QGraphicsItem *parent = nullptr)
        : TavroCheckBox(parent)
    {
        connect(this, &TavroCheckBox::contentDataChanged, this, [this] { told.append({contentData(), state()}); });
    }
    void setContentData(const QVariant &content) override
    {
        ++contentCalls;
        TavroCheckBox::setContentData(content);
    }
    Qt::CheckState state() const { return checkBx() ? checkBx()->checkState() : Qt::Unchecked; }

    QVector<Told> told;
    int contentCalls = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "choice/tavrocheckbox.h"

#include <QCheckBox>

/// Style and state of a tick field that is painted.
namespace boxprobes {

inline void show(TavroCheckBox &box, int style, int state)
{
    box.setBoundingRect(QRectF(2, 3, 24, 24));
    box.setCheckStyle(static_cast<Check_Style>(style));
    box.checkBx()->setCheckState(static_cast<Qt::CheckState>(state));
}

} // namespace boxprobes

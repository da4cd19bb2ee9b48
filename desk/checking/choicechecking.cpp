// SPDX-License-Identifier: MIT
#include "desk/checking/choicechecking.h"

#include "choice/tavrocheckbox.h"
#include "choice/tavrocombx.h"
#include "desk/checking/textfit.h"
#include "desk/messages.h"
#include "desk/printing.h"
#include "desk/settings/choicesettings.h"

#include <QButtonGroup>
#include <QCheckBox>

namespace choicechecking {

namespace {

// A smaller mark is a blot.
constexpr double LeastSide = 2; // mm

bool isTicked(const TavroCheckBox &object)
{
    return object.contentData().toInt() != Qt::Unchecked;
}

QString problemOfTick(const TavroCheckBox &object, QSet<QString> *toldGroups)
{
    const QButtonGroup *group = object.checkBx() ? object.checkBx()->group() : nullptr;
    if (!group)
        return isTicked(object) ? QString() : QStringLiteral("required, but not ticked");
    const QString name = object.checkGroupId();
    if (group->checkedButton() || toldGroups->contains(name))
        return {};
    toldGroups->insert(name);
    return QStringLiteral("required, but nothing in group %1 is ticked").arg(messages::quoted(name));
}

QString problemOfMark(const TavroCheckBox &object)
{
    const QSizeF size = object.phyRect().size();
    if (isTicked(object) && !choicesettings::isNamed(object.checkStyle()))
        return QStringLiteral("ticked, but nothing is printed in style %1").arg(object.checkStyle());
    if (qAbs(size.width()) < LeastSide || qAbs(size.height()) < LeastSide)
        return QStringLiteral("mark too small to be read, with sides below %1 mm").arg(LeastSide);
    return {};
}

} // namespace

QString problemOf(const TavroCheckBox &object, QSet<QString> *toldGroups)
{
    const QString problem = object.isRequired() ? problemOfTick(object, toldGroups) : QString();
    if (!problem.isEmpty())
        return problem;
    return printing::isPrinted(object) ? problemOfMark(object) : QString();
}

QString problemOf(const TavroCombx &object)
{
    const QString content = object.contentData().toString();
    if (object.isRequired() && content.trimmed().isEmpty())
        return QStringLiteral("required, but missing");
    const QString text = object.prefix() + content;
    if (printing::isPrinted(object) && !textfit::fitsObject(object, text))
        return QStringLiteral("text does not fit its rectangle: %1").arg(messages::quoted(text));
    return {};
}

} // namespace choicechecking

// SPDX-License-Identifier: MIT
#include "desk/checking/checking.h"

#include "barcode/tavrobarcode.h"
#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "choice/tavrocheckbox.h"
#include "choice/tavrocombx.h"
#include "datetime/tavrodatetime.h"
#include "desk/checking/barcodechecking.h"
#include "desk/checking/cellchecking.h"
#include "desk/checking/choicechecking.h"
#include "desk/checking/datetimechecking.h"
#include "desk/checking/picturechecking.h"
#include "desk/checking/textfit.h"
#include "desk/form.h"
#include "desk/messages.h"
#include "desk/printing.h"
#include "entry/tavroedit.h"
#include "graphic/tavropicture.h"

namespace checking {

namespace {

QString named(const TavroPrototype &object, int index)
{
    const QString place = QStringLiteral("objects[%1]").arg(index);
    return object.tavroID().isEmpty() ? place : QStringLiteral("%1 %2").arg(place, messages::quoted(object.tavroID()));
}

// An empty value is missing where it is required, and no mistake where it is not, whatever its format.
QString problemOf(TavroEdit *edit)
{
    const QString content = edit->contentData().toString();
    const bool isEmpty = content.trimmed().isEmpty();
    if (isEmpty && edit->isRequired())
        return QStringLiteral("required, but missing");
    if (!isEmpty && !edit->isValid())
        return QStringLiteral("invalid value %1").arg(messages::quoted(content));
    const QString shown = edit->displayText();
    if (edit->isRequired() && shown.trimmed().isEmpty())
        return QStringLiteral("required, but %1 prints nothing").arg(messages::quoted(content));
    const QString text = edit->prefix() + shown;
    if (printing::isPrinted(*edit) && !textfit::fitsObject(*edit, text))
        return QStringLiteral("text does not fit its rectangle: %1").arg(messages::quoted(text));
    return {};
}

// Objects of the other kinds cannot be wrong.
QString problemOf(TavroPrototype *object, QSet<QString> *toldGroups)
{
    if (auto *edit = qobject_cast<TavroEdit *>(object))
        return problemOf(edit);
    if (const auto *row = qobject_cast<TavroSeperateEdit *>(object))
        return cellchecking::problemOf(*row);
    if (const auto *grid = qobject_cast<TavroFinancialEdit *>(object))
        return cellchecking::problemOf(*grid);
    if (auto *date = qobject_cast<TavroDatetime *>(object))
        return datetimechecking::problemOf(*date);
    if (auto *barcode = qobject_cast<TavroBarcode *>(object))
        return barcodechecking::problemOf(*barcode);
    if (const auto *box = qobject_cast<TavroCheckBox *>(object))
        return choicechecking::problemOf(*box, toldGroups);
    if (const auto *combo = qobject_cast<TavroCombx *>(object))
        return choicechecking::problemOf(*combo);
    if (const auto *picture = qobject_cast<TavroPicture *>(object))
        return picturechecking::problemOf(*picture);
    return {};
}

} // namespace

QStringList problems(const Form &form)
{
    QStringList found;
    for (const QString &name : form.unknownNames())
        found.append(messages::oneLine(QStringLiteral("unknown %1").arg(name)));
    form.fitTexts();
    QSet<QString> toldGroups;
    int index = 0;
    for (const Form::Entry &entry : form.entries) {
        const QString problem = problemOf(entry.object.data(), &toldGroups);
        if (!problem.isEmpty())
            found.append(QStringLiteral("%1: %2").arg(named(*entry.object, index), problem));
        ++index;
    }
    return found;
}

} // namespace checking

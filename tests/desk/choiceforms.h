// SPDX-License-Identifier: MIT
#pragma once

#include "choice/tavrocheckbox.h"
#include "tests/desk/deskforms.h"

#include <QCheckBox>

/// Forms with check boxes.
namespace choiceforms {

inline QJsonObject json(const QByteArray &text)
{
    return deskforms::value(text.constData()).toObject();
}

/// Check box of a form file.
inline QJsonObject box(const QByteArray &settings)
{
    return deskforms::object("checkBox", {10, 10, 4, 4}, json(settings));
}

/// Two groups of which the first has a tick, and a box without a group that has one.
inline std::unique_ptr<Form> formWithGroups()
{
    return deskforms::formWith({box(R"({"id":"mr","group":"title","preset":true})"),
                                box(R"({"id":"ms","group":"title"})"), box(R"({"id":"dr","group":"title"})"),
                                box(R"({"id":"yes","group":"resident"})"), box(R"({"id":"no","group":"resident"})"),
                                box(R"({"id":"post","preset":true})"), box(R"({"id":"mail"})")});
}

/// Identifiers of the ticked check boxes.
inline QStringList tickedOf(const Form &form)
{
    QStringList ticked;
    for (const Form::Entry &entry : form.entries) {
        const auto *object = qobject_cast<TavroCheckBox *>(entry.object.data());
        // The box and the content of an object never differ.
        if (object->checkBx()->isChecked() != (object->contentData().toInt() != 0))
            return {QStringLiteral("box and content of %1 differ").arg(object->tavroID())};
        if (object->checkBx()->isChecked())
            ticked.append(object->tavroID());
    }
    return ticked;
}

} // namespace choiceforms

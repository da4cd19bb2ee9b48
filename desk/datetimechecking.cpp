// SPDX-License-Identifier: MIT
#include "desk/datetimechecking.h"

#include "datetime/tavrodatetime.h"
#include "desk/datetimesections.h"
#include "desk/datetimevalues.h"
#include "desk/messages.h"
#include "desk/printing.h"
#include "desk/textfit.h"

#include <algorithm>

namespace datetimechecking {

namespace {

using Sections = QVector<datetimesections::Section>;

bool isBlank(const Sections &sections)
{
    return std::all_of(sections.begin(), sections.end(),
                       [](const auto &section) { return section.text.trimmed().isEmpty(); });
}

QString problemOfValue(const TavroDatetime &object, const Sections &sections)
{
    const QString text = datetimevalues::contentText(object);
    if (object.isRequired() && text.trimmed().isEmpty())
        return QStringLiteral("required, but missing");
    if (!datetimevalues::isValid(object))
        return QStringLiteral("invalid value %1").arg(messages::quoted(text));
    if (object.isRequired() && isBlank(sections))
        return QStringLiteral("required, but %1 prints nothing").arg(messages::quoted(text));
    return {};
}

} // namespace

QString problemOf(TavroDatetime &object)
{
    object.updateDataRealTime();
    const Sections sections = datetimesections::printed(object);
    const QString problem = problemOfValue(object, sections);
    if (!problem.isEmpty() || !printing::isPrinted(object))
        return problem;
    const QString place = object.isCustomSection() ? QStringLiteral("rectangle") : QStringLiteral("section");
    for (const datetimesections::Section &section : sections) {
        if (!textfit::fitsCell(section.rect, object.font(), section.text))
            return QStringLiteral("text does not fit its %1: %2").arg(place, messages::quoted(section.text));
    }
    return {};
}

} // namespace datetimechecking

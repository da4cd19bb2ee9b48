// SPDX-License-Identifier: MIT
#include "desk/checking/datetimechecking.h"

#include "datetime/tavrodatetime.h"
#include "desk/checking/textfit.h"
#include "desk/datetimesections.h"
#include "desk/datetimevalues.h"
#include "desk/messages.h"
#include "desk/printing.h"

#include <QFont>
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
    // A date with the words of a time has no sections.
    if (!text.isEmpty() && printing::isPrinted(object) && isBlank(sections))
        return QStringLiteral("%1 prints nothing").arg(messages::quoted(text));
    return {};
}

// The ink of a separator may be wider than the text, by which its width is measured.
bool fits(const datetimesections::Section &section, const QFont &font)
{
    const double beside = section.isSeparator ? section.rect.width() : 0;
    return textfit::fitsCell(section.rect.adjusted(-beside, 0, beside, 0), font, section.text);
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
        if (!fits(section, object.font()))
            return QStringLiteral("text does not fit its %1: %2").arg(place, messages::quoted(section.text));
    }
    return {};
}

} // namespace datetimechecking

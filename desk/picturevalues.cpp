// SPDX-License-Identifier: MIT
#include "desk/picturevalues.h"

#include "desk/jsonfile.h"
#include "desk/picturesource.h"
#include "graphic/tavropicture.h"

#include <QVariant>

namespace picturevalues {

namespace {

// Where an object keeps what was wrong with its value.
constexpr char ProblemProperty[] = "tavroDeskPictureProblem";

} // namespace

void setContent(TavroPicture &object, const QJsonValue &value, const QString &folder)
{
    const picturesource::Result result = picturesource::read(value.isNull() ? QString() : value, folder);
    const QString problem =
        result.expectation.isEmpty() ? QString() : jsonfile::mismatch(result.expectation, result.found);
    object.setProperty(ProblemProperty, problem);
    object.setContentData(result.png);
}

QString problemOf(const TavroPicture &object)
{
    // The host may have given a picture since.
    return object.image().isNull() ? object.property(ProblemProperty).toString() : QString();
}

} // namespace picturevalues

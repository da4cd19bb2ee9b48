// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavroprototype.h"
#include "tests/support/settingtable.h"

/// The getter and setter pairs that every form object has.
namespace prototypesettings {

using P = TavroPrototype;

constexpr bool Marks = true;
constexpr bool DoesNotMark = false;

template <typename Value, typename Getter, typename Setter>
Setting<P> of(const char *name, Getter get, Setter set, const Value &initial, const Value &written, bool marks)
{
    return setting<P>(name, get, set, initial, written, marks);
}

inline QVector<Setting<P>> all()
{
    const auto setTable = [](P &object, const QString &table) { object.bindToDB(table, QStringLiteral("c")); };
    const auto setColumn = [](P &object, const QString &column) { object.bindToDB({QStringLiteral("t"), column}); };
    const auto color = [](unsigned int value) { return value; };
    return {
        of<QString>("originalID", &P::originalID, &P::setOriginalID, {}, QStringLiteral("o1"), DoesNotMark),
        of<QString>("tavroID", &P::tavroID, &P::setTavroID, {}, QStringLiteral("t1"), Marks),
        of<QString>("tableDB", &P::tableDB, setTable, {}, QStringLiteral("cheques"), Marks),
        of<QString>("columnDB", &P::columnDB, setColumn, {}, QStringLiteral("payee"), Marks),
        of<int>("iniAngle", &P::getIniAngle, &P::setIniAngle, 0, 45, DoesNotMark),
        of<int>("rotateAngle", &P::getRotateAngle, &P::setRotateAngle, 0, -30, DoesNotMark),
        of<int>("borderWpx", &P::borderWpx, &P::setBorderWpx, 1, 7, DoesNotMark),
        of<bool>("hasBorder", &P::hasBorder, &P::setHasBorder, true, false, Marks),
        of<unsigned>("borderColor", &P::borderColor, &P::setBorderColor, color(0x1BA39C), 0x123456, Marks),
        of<bool>("isPrint", &P::isPrint, &P::setIsPrint, true, false, Marks),
        of<bool>("isLocked", &P::isLocked, &P::setIsLocked, false, true, Marks),
        of<bool>("isRequired", &P::isRequired, &P::setIsRequired, false, true, Marks),
        of<bool>("isObjVisible", &P::isObjVisible, &P::setObjVisible, true, false, Marks),
        of<bool>("isObjEnabled", &P::isObjEnabled, &P::setObjEnabled, true, false, Marks),
        of<bool>("isReadOnly", &P::isReadOnly, &P::setIsReadOnly, false, true, Marks),
        of<bool>("isResetAtRenew", &P::isResetAtRenew, &P::setIsResetAtRenew, true, false, Marks),
        of<bool>("isZeroForThousand", &P::isZeroForThousand, &P::setIsZeroForThousand, false, true, Marks),
        of<bool>("isZeroForPoint", &P::isZeroForPoint, &P::setIsZeroForPoint, false, true, Marks),
        of<int>("tabOrder", &P::tabOrder, &P::setTabOrder, 0, -3, Marks),
        of<int>("backgroundStyle", &P::backgroundStyle, &P::setBackgroundStyle, 0, 9, Marks),
        of<unsigned>("backgroundColor", &P::backgroundColor, &P::setBackgroundColor, color(0xFFFFFF), 0x654321, Marks),
        of<Paint_Mode>("paintMode", &P::paintMode, &P::setPaintMode, Paint_Design, Paint_Print, DoesNotMark),
        of<QVariant>("contentData", &P::contentData, &P::setContentData, {}, 12.5, DoesNotMark),
        of<QVariant>("presetData", &P::presetData, &P::setPresetData, {}, QStringLiteral("none"), Marks),
        of<QRectF>("boundingRect", &P::boundingRect, &P::setBoundingRect, {}, {1, 2, -3, 4}, DoesNotMark),
        of<double>("objX", &P::objX, &P::setObjX, 0, 2.5, DoesNotMark),
        of<double>("objY", &P::objY, &P::setObjY, 0, 2.5, DoesNotMark),
        of<QPointF>("objPos", &P::objPos, &P::setObjPos, {}, {2.5, -1}, DoesNotMark),
        of<double>("width", &P::width, &P::setWidth, 0, -2.5, DoesNotMark),
        of<double>("height", &P::height, &P::setHeight, 0, -2.5, DoesNotMark),
        of<QRectF>("phyRect", &P::phyRect, &P::setPhyRect, {}, {1, 2, 3, 4}, Marks),
        of<double>("phyBoundingRectWidth", &P::getPhyBoundingRectWidth, &P::setPhyBoundingRectWidth, 0, 80.5,
                   DoesNotMark),
        of<double>("phyBoundingRectHeight", &P::getPhyBoundingRectHeight, &P::setPhyBoundingRectHeight, 0, 20.5,
                   DoesNotMark),
        of<bool>("isProportional", &P::isProportional, &P::setProportional, false, true, DoesNotMark),
    };
}

} // namespace prototypesettings

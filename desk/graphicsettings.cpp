// SPDX-License-Identifier: MIT
#include "desk/graphicsettings.h"

#include "desk/commonsettings.h"
#include "desk/settingmaker.h"
#include "graphic/tavroline.h"
#include "graphic/tavrorect.h"

namespace graphicsettings {

namespace {

using settingmaker::choosing;
using settingmaker::member;
using settingmaker::ranged;
using Type = Setting::Type;
using Settings = QVector<Setting>;

template <typename Stroked>
Settings strokeSettings()
{
    Setting width = ranged(
        member("lineWidth", "Line width (mm)", "Line", Type::Number, &Stroked::lineWidthPhy, &Stroked::setLineWidthPhy),
        0, 100);
    width.set = [](TavroPrototype &object, const QVariant &value, double scale) {
        auto &stroked = static_cast<Stroked &>(object);
        stroked.setLineWidthPhy(value.toDouble());
        stroked.setLineWidthPix(value.toDouble() * scale);
    };
    return commonsettings::ofObjects() +
           Settings{width,
                    member("lineColor", "Line colour", "Line", Type::AlphaColor, &Stroked::lineColor,
                           &Stroked::setLineColor),
                    // The type of pen styles holds no other numbers.
                    ranged(choosing(member("lineStyle", "Line style", "Line", Type::Choice, &Stroked::lineStyle,
                                           &Stroked::setLineStyle),
                                    {{"none", Qt::NoPen},
                                     {"solid", Qt::SolidLine},
                                     {"dash", Qt::DashLine},
                                     {"dot", Qt::DotLine},
                                     {"dashDot", Qt::DashDotLine},
                                     {"dashDotDot", Qt::DashDotDotLine}}),
                           Qt::NoPen, Qt::DashDotDotLine)};
}

} // namespace

QVector<Setting> ofLines()
{
    return strokeSettings<TavroLine>();
}

QVector<Setting> ofRects()
{
    return strokeSettings<TavroRect>();
}

} // namespace graphicsettings

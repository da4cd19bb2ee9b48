// SPDX-License-Identifier: MIT
#include "desk/settings/graphicsettings.h"

#include "desk/settings/commonsettings.h"
#include "desk/settings/settingmaker.h"
#include "graphic/tavroline.h"
#include "graphic/tavropicture.h"
#include "graphic/tavrorect.h"

namespace graphicsettings {

namespace {

using settingmaker::choosing;
using settingmaker::member;
using settingmaker::named;
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

// Bytes that are no image leave the object without a picture and without a preset.
Setting picture()
{
    Setting setting = named("preset", "Picture", "Value", Type::Picture);
    setting.get = [](const TavroPrototype &object) { return object.presetData().toByteArray(); };
    setting.set = [](TavroPrototype &object, const QVariant &value, double) {
        object.setContentData(value);
        const bool isPicture = !static_cast<TavroPicture &>(object).image().isNull();
        object.setPresetData(isPicture ? value : QByteArray());
    };
    return setting;
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

QVector<Setting> ofPictures()
{
    using P = TavroPicture;
    return commonsettings::ofObjects() + commonsettings::ofFrames() +
           Settings{
               choosing(member("fill", "Filling rule", "Look", Type::Choice, &P::fillMode, &P::setFillMode),
                        {{"fit", Picture_Fit}, {"stretch", Picture_Stretch}, {"actual", Picture_Actual}}),
               ranged(member("angle", "Angle of the picture", "Look", Type::Number, &P::angle, &P::setAngle), -360,
                      360),
               member("canQuery", "Can be looked up", "Behaviour", Type::Flag, &P::canQuery, &P::setCanQuery),
               picture(),
           };
}

QVector<Setting> ofTables()
{
    return commonsettings::ofObjects();
}

} // namespace graphicsettings

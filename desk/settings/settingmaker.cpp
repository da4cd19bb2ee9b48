// SPDX-License-Identifier: MIT
#include "desk/settings/settingmaker.h"

namespace settingmaker {

Setting named(const char *key, const char *label, const char *group, Setting::Type type)
{
    Setting setting;
    setting.key = QString::fromLatin1(key);
    setting.label = QString::fromLatin1(label);
    setting.group = QString::fromLatin1(group);
    setting.type = type;
    return setting;
}

Setting ranged(Setting setting, double minimum, double maximum)
{
    setting.minimum = minimum;
    setting.maximum = maximum;
    return setting;
}

Setting choosing(Setting setting, std::initializer_list<std::pair<const char *, int>> choices)
{
    for (const auto &[name, value] : choices)
        setting.choices.append({QString::fromLatin1(name), value});
    return ranged(setting, Setting::LeastInt, Setting::MostInt);
}

} // namespace settingmaker

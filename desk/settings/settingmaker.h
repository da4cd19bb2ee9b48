// SPDX-License-Identifier: MIT
#pragma once

#include "desk/settings/setting.h"

#include <QtCore/qnamespace.h>
#include <initializer_list>
#include <type_traits>
#include <utility>

/// Makes settings from the interfaces of the library.
namespace settingmaker {

/// How a value of an interface travels in a QVariant: enumerations and flags as integers.
template <typename Value, bool isEnumeration = std::is_enum_v<Value>>
struct Carried
{
    using As = Value;
};
template <typename Value>
struct Carried<Value, true>
{
    using As = int;
};
template <>
struct Carried<Qt::Alignment, false>
{
    using As = int;
};

/// Names only; the caller gives it a getter and a setter.
Setting named(const char *key, const char *label, const char *group, Setting::Type type);

/// A setting that is one getter and one setter of a class.
template <typename Owner, typename Value, typename Setter, typename Given>
Setting member(const char *key, const char *label, const char *group, Setting::Type type, Value (Owner::*get)() const,
               void (Setter::*set)(Given))
{
    using As = typename Carried<Value>::As;
    Setting setting = named(key, label, group, type);
    setting.get = [get](const TavroPrototype &object) {
        return QVariant::fromValue(static_cast<As>((static_cast<const Owner &>(object).*get)()));
    };
    setting.set = [set](TavroPrototype &object, const QVariant &value, double) {
        (static_cast<Setter &>(object).*set)(static_cast<Value>(value.value<As>()));
    };
    return setting;
}

/// The setting, followed by what else the object has to do for the value to take effect.
template <typename Owner>
Setting followed(Setting setting, void (*follow)(Owner &))
{
    setting.set = [set = setting.set, follow](TavroPrototype &object, const QVariant &value, double scale) {
        set(object, value, scale);
        follow(static_cast<Owner &>(object));
    };
    return setting;
}

Setting ranged(Setting setting, double minimum, double maximum);

/// The names, and every other number too.
Setting choosing(Setting setting, std::initializer_list<std::pair<const char *, int>> choices);

} // namespace settingmaker

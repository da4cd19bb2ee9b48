// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>
#include <QString>
#include <QVariant>
#include <QVector>
#include <functional>
#include <limits>

class TavroPrototype;

/// One setting of a kind of object: how it is called, what values it takes, and how an object gives and takes it.
struct Setting
{
    enum class Type {
        Flag,
        Integer,
        Number,
        Text,
        Texts,      ///< a list, which may be empty
        Color,      ///< "#rrggbb"
        AlphaColor, ///< "#aarrggbb"
        Numbers,    ///< a list, which may be empty
        Picture,    ///< PNG in a QByteArray, base64 in JSON
        Choice      ///< a name, or a number for values without a name
    };

    /// Name in the form file and number in the library of one value of a Choice.
    struct Choice
    {
        QString name;
        int value;
    };

    /// Range of a whole number.
    static constexpr int LeastInt = std::numeric_limits<int>::min();
    static constexpr int MostInt = std::numeric_limits<int>::max();

    QString key;   ///< name in the form file
    QString label; ///< name on the screen
    QString group; ///< heading under which it stands
    Type type = Type::Flag;
    std::function<QVariant(const TavroPrototype &)> get;
    /// `scale` is the form's, in pixels per millimetre.
    std::function<void(TavroPrototype &, const QVariant &, double scale)> set;
    QVector<Choice> choices; ///< of a Choice
    /// Of an Integer, a Number, each of the Numbers, and the numbers that a Choice takes.
    double minimum = 0;
    double maximum = 0;
    QString condition; ///< what the object asks of a value beyond that; it keeps its own where the condition fails
    bool bringsOthers =
        false; ///< whether the value decides what values later settings have as long as they are not set

    /// Value to give to set(), or an invalid one where the JSON value does not fit.
    QVariant fromJson(const QJsonValue &json) const;
    QJsonValue toJson(const QVariant &value) const;
    /// What fromJson() takes, in words.
    QString expectation() const;
};

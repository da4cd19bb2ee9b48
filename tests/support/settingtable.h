// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>
#include <QVector>
#include <functional>

/// One getter and setter of an object: what a new object reads, what is stored and read back, and whether storing it
/// marks the object modified.
template <typename Object>
struct Setting
{
    const char *name;
    std::function<bool(const Object &)> isInitial;
    std::function<void(Object &)> write;
    std::function<bool(const Object &)> isWritten;
    bool marksModified;
};

/// Getter and setter are members, or functions that take the object.
template <typename Object, typename Getter, typename Setter, typename Value>
Setting<Object> setting(const char *name, Getter get, Setter set, const Value &initial, const Value &written,
                        bool marksModified)
{
    return {name, [=](const Object &object) { return std::invoke(get, object) == initial; },
            [=](Object &object) { std::invoke(set, object, written); },
            [=](const Object &object) { return std::invoke(get, object) == written; }, marksModified};
}

/// Rows named after the settings; the column "index" leads back into the table.
template <typename Object>
void addSettingRows(const QVector<Setting<Object>> &table)
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < table.size(); ++i)
        QTest::newRow(table.at(i).name) << i;
}

/// Stores and reads back, and looks at the mark, whatever the object was before.
template <typename Object>
void checkStoring(const Setting<Object> &tested, Object &object)
{
    for (const bool modifiedBefore : {false, true}) {
        // The second round stores an equal value, which marks like any other.
        object.setIsModified(modifiedBefore);
        tested.write(object);
        QVERIFY2(tested.isWritten(object), "not read back");
        QCOMPARE(object.isModified(), modifiedBefore || tested.marksModified);
    }
    object.setIsModified(false);
    tested.write(object);
    QCOMPARE(object.isModified(), tested.marksModified);
}

template <typename Object>
void checkSetting(const Setting<Object> &tested)
{
    Object object;
    QVERIFY2(tested.isInitial(object), "initial value");
    checkStoring(tested, object);
}

// SPDX-License-Identifier: MIT
#include "desk/settings/setting.h"
#include "tests/desk/deskforms.h"

#include <QTest>

namespace {

using Type = Setting::Type;

Setting settingOf(Type type)
{
    Setting setting;
    setting.type = type;
    setting.minimum = -2;
    setting.maximum = 5;
    setting.choices = {{QStringLiteral("left"), 1}, {QStringLiteral("right"), 2}};
    return setting;
}

} // namespace

Q_DECLARE_METATYPE(Setting::Type)

class SettingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromJson_data();
    void fromJson();
    void fromJsonRefuses_data();
    void fromJsonRefuses();
    void toJson_data();
    void toJson();
    void expectation_data();
    void expectation();
    void choiceOfAnyNumber();
    void conditionOfTheObject();
};

void SettingTest::fromJson_data()
{
    QTest::addColumn<Setting::Type>("type");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QVariant>("expected");

    const auto add = [](const char *name, Type type, const char *json, const QVariant &expected) {
        QTest::newRow(name) << type << QByteArray(json) << expected;
    };
    add("flag on", Type::Flag, "true", true);
    add("flag off", Type::Flag, "false", false);
    add("integer", Type::Integer, "3", 3);
    add("whole number with a point", Type::Integer, "3.0", 3);
    add("least integer", Type::Integer, "-2", -2);
    add("largest integer", Type::Integer, "5", 5);
    add("number", Type::Number, "0.125", 0.125);
    add("least number", Type::Number, "-2", -2.0);
    add("largest number", Type::Number, "5", 5.0);
    add("numbers", Type::Numbers, "[-2, 0.125, 5]", QVariantList{-2.0, 0.125, 5.0});
    add("no numbers", Type::Numbers, "[]", QVariantList());
    add("text", Type::Text, "\"金额\"", QStringLiteral("金额"));
    add("texts", Type::Texts, "[\"金额\", \"\", \"金额\"]",
        QStringList({QStringLiteral("金额"), QString(), QStringLiteral("金额")}));
    add("no texts", Type::Texts, "[]", QStringList());
    add("no picture", Type::Picture, "\"\"", QByteArray());
    add("empty text", Type::Text, "\"\"", QString());
    add("colour", Type::Color, "\"#1ba39c\"", 0x1BA39Cu);
    add("colour in capitals", Type::Color, "\"#1BA39C\"", 0x1BA39Cu);
    add("opaque colour", Type::AlphaColor, "\"#ff1ba39c\"", 0xFF1BA39Cu);
    add("clear colour", Type::AlphaColor, "\"#00000000\"", 0u);
    add("choice by name", Type::Choice, "\"right\"", 2);
    add("choice by number", Type::Choice, "2", 2);
    add("choice without a name", Type::Choice, "5", 5);
    add("negative choice", Type::Choice, "-2", -2);
}

void SettingTest::fromJson()
{
    QFETCH(Setting::Type, type);
    QFETCH(QByteArray, json);
    QFETCH(QVariant, expected);
    const QVariant read = settingOf(type).fromJson(deskforms::value(json.constData()));
    QCOMPARE(read, expected);
    QCOMPARE(read.userType(), expected.userType());
}

void SettingTest::fromJsonRefuses_data()
{
    QTest::addColumn<Setting::Type>("type");
    QTest::addColumn<QByteArray>("json");

    const auto add = [](const char *name, Type type, const char *json) {
        QTest::newRow(name) << type << QByteArray(json);
    };
    const QVector<QPair<const char *, Type>> types{
        {"flag", Type::Flag},    {"integer", Type::Integer},         {"number", Type::Number}, {"text", Type::Text},
        {"colour", Type::Color}, {"alpha colour", Type::AlphaColor}, {"choice", Type::Choice}};
    for (const auto &[name, type] : types) {
        for (const char *json : {"null", "[]", "[1]", "{}"})
            QTest::addRow("%s as %s", name, json) << type << QByteArray(json);
        if (type != Type::Flag)
            QTest::addRow("%s as true", name) << type << QByteArrayLiteral("true");
        if (type != Type::Text)
            QTest::addRow("%s as another text", name) << type << QByteArrayLiteral("\"x\"");
    }
    add("flag as a number", Type::Flag, "1");
    add("text as a number", Type::Text, "1");
    add("integer with a fraction", Type::Integer, "2.5");
    add("integer below", Type::Integer, "-3");
    add("integer above", Type::Integer, "6");
    add("integer beyond int", Type::Integer, "4294967297");
    add("integer as a text", Type::Integer, "\"3\"");
    add("number below", Type::Number, "-2.001");
    add("number above", Type::Number, "5.001");
    add("number beyond all", Type::Number, "1e308");
    add("texts as a text", Type::Texts, "\"a\"");
    add("texts as an object", Type::Texts, "{}");
    add("texts with a number", Type::Texts, "[\"a\",1]");
    add("texts with nothing between", Type::Texts, "[\"a\",null]");
    add("texts with a list", Type::Texts, "[[\"a\"]]");
    add("picture as a number", Type::Picture, "1");
    add("picture as a list", Type::Picture, "[]");
    add("picture that is no base64", Type::Picture, "\"%\"");
    add("picture in base64 that is none", Type::Picture, "\"aGVsbG8=\"");
    add("picture beside a file, which a setting does not know", Type::Picture, R"({"file":"a.png"})");
    add("numbers as a number", Type::Numbers, "1");
    add("numbers as a text", Type::Numbers, "\"1\"");
    add("numbers as an object", Type::Numbers, "{}");
    add("numbers with a text", Type::Numbers, "[1,\"2\"]");
    add("numbers with a list", Type::Numbers, "[1,[2]]");
    add("numbers with nothing between", Type::Numbers, "[1,null,2]");
    add("one of the numbers below", Type::Numbers, "[1,-2.001]");
    add("one of the numbers above", Type::Numbers, "[5.001,1]");
    add("colour as a number", Type::Color, "1810332");
    add("colour without #", Type::Color, "\"1ba39c\"");
    add("colour with another sign", Type::Color, "\"x1ba39c\"");
    add("colour too short", Type::Color, "\"#1ba39\"");
    add("colour too long", Type::Color, "\"#1ba39cf\"");
    add("colour with opacity", Type::Color, "\"#ff1ba39c\"");
    add("alpha colour without opacity", Type::AlphaColor, "\"#1ba39c\"");
    add("colour with a letter beyond f", Type::Color, "\"#1ba39g\"");
    add("colour with a sign", Type::Color, "\"#+ba39c\"");
    add("colour with a space", Type::Color, "\"# ba39c\"");
    add("colour with a prefix", Type::Color, "\"#0xa39c\"");
    add("alpha colour with a prefix", Type::AlphaColor, "\"#0x1ba39c\"");
    add("choice with a fraction", Type::Choice, "1.5");
    add("choice below", Type::Choice, "-3");
    add("choice above", Type::Choice, "6");
    add("choice beyond int", Type::Choice, "4294967297");
    add("choice in capitals", Type::Choice, "\"Left\"");
    add("choice without letters", Type::Choice, "\"\"");
}

void SettingTest::fromJsonRefuses()
{
    QFETCH(Setting::Type, type);
    QFETCH(QByteArray, json);
    const QJsonValue value = deskforms::value(json.constData());
    QVERIFY(!value.isUndefined());
    QCOMPARE(settingOf(type).fromJson(value), QVariant());
}

void SettingTest::toJson_data()
{
    QTest::addColumn<Setting::Type>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("expected");

    const auto add = [](const char *name, Type type, const QVariant &value, const char *expected) {
        QTest::newRow(name) << type << value << QByteArray(expected);
    };
    add("flag", Type::Flag, true, "true");
    add("integer", Type::Integer, -7, "-7");
    add("number", Type::Number, 0.1, "0.1");
    add("whole number", Type::Number, 3.0, "3");
    add("numbers", Type::Numbers, QVariantList{0.1, 3.0}, "[0.1, 3]");
    add("no numbers", Type::Numbers, QVariantList(), "[]");
    add("text", Type::Text, QStringLiteral("金额"), "\"金额\"");
    add("no text", Type::Text, QVariant(), "\"\"");
    add("texts", Type::Texts, QStringList({QStringLiteral("金额"), QString()}), "[\"金额\", \"\"]");
    add("no texts", Type::Texts, QStringList(), "[]");
    add("bytes", Type::Picture, QByteArray("\x89PNG"), "\"iVBORw==\"");
    add("no bytes", Type::Picture, QVariant(), "\"\"");
    add("colour", Type::Color, 0x1BA39Cu, "\"#1ba39c\"");
    add("dark colour", Type::Color, 0x9Cu, "\"#00009c\"");
    add("colour with opacity", Type::AlphaColor, 0xFF1BA39Cu, "\"#ff1ba39c\"");
    add("clear colour", Type::AlphaColor, 0x9Cu, "\"#0000009c\"");
    add("choice", Type::Choice, 2, "\"right\"");
    add("choice without a name", Type::Choice, 77, "77");
}

void SettingTest::toJson()
{
    QFETCH(Setting::Type, type);
    QFETCH(QVariant, value);
    QFETCH(QByteArray, expected);
    QCOMPARE(settingOf(type).toJson(value), deskforms::value(expected.constData()));
}

void SettingTest::expectation_data()
{
    QTest::addColumn<Setting::Type>("type");
    QTest::addColumn<QString>("expected");

    QTest::newRow("flag") << Type::Flag << QStringLiteral("true or false");
    QTest::newRow("integer") << Type::Integer << QStringLiteral("a whole number from -2 to 5");
    QTest::newRow("number") << Type::Number << QStringLiteral("a number from -2 to 5");
    QTest::newRow("numbers") << Type::Numbers << QStringLiteral("a list of numbers from -2 to 5");
    QTest::newRow("text") << Type::Text << QStringLiteral("a text");
    QTest::newRow("texts") << Type::Texts << QStringLiteral("a list of texts");
    QTest::newRow("picture") << Type::Picture
                             << QStringLiteral("a picture in base64, or an object with the name of its \"file\" alone");
    QTest::newRow("colour") << Type::Color << QStringLiteral("a colour such as \"#1ba39c\"");
    QTest::newRow("alpha colour") << Type::AlphaColor
                                  << QStringLiteral("a colour with its opacity such as \"#ff1ba39c\"");
    QTest::newRow("choice") << Type::Choice << QStringLiteral("one of left, right, or a whole number from -2 to 5");
}

void SettingTest::expectation()
{
    QFETCH(Setting::Type, type);
    QFETCH(QString, expected);
    QCOMPARE(settingOf(type).expectation(), expected);
}

void SettingTest::choiceOfAnyNumber()
{
    Setting setting = settingOf(Type::Choice);
    setting.minimum = Setting::LeastInt;
    setting.maximum = Setting::MostInt;
    QCOMPARE(setting.expectation(), QStringLiteral("one of left, right, or a whole number"));
    QCOMPARE(setting.fromJson(-2147483648.0), QVariant(Setting::LeastInt));
    QCOMPARE(setting.fromJson(2147483647.0), QVariant(Setting::MostInt));
    QCOMPARE(setting.fromJson(2147483648.0), QVariant());
    QCOMPARE(setting.fromJson(-2147483649.0), QVariant());
}

void SettingTest::conditionOfTheObject()
{
    Setting setting = settingOf(Type::Integer);
    setting.condition = QStringLiteral("not above that");
    QCOMPARE(setting.expectation(), QStringLiteral("a whole number from -2 to 5, not above that"));
}

QTEST_APPLESS_MAIN(SettingTest)
#include "tst_setting.moc"

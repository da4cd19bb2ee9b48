// SPDX-License-Identifier: MIT
#include "choice/tavrocombx.h"
#include "desk/formreader.h"
#include "desk/formwriter.h"
#include "tests/desk/choiceforms.h"
#include "tests/support/stricttest.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGraphicsProxyWidget>
#include <QTest>

using choiceforms::box;
using choiceforms::formWithGroups;
using choiceforms::json;
using choiceforms::tickedOf;

namespace {

const QRectF Place(10, 20, 40, 8);

} // namespace

class ChoicesTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void styles_data();
    void styles();
    void presetOfACheckBox();
    void partialPresetIsATick();
    void checkBoxKeepsItsProportions();
    void groups();
    void groupsOfOneForm();
    void twoPresetsOfAGroup_data();
    void twoPresetsOfAGroup();
    void options();
    void presetOfAComboBox();
    void frameOfAComboBox_data();
    void frameOfAComboBox();
};

void ChoicesTest::styles_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<int>("style");
    QTest::newRow("default") << QByteArray("{}") << int(EmptyTick);
    QTest::newRow("tick") << QByteArray(R"({"style":"tick"})") << int(EmptyTick);
    QTest::newRow("tick or cross") << QByteArray(R"({"style":"tickOrCross"})") << int(CrossTick);
    QTest::newRow("circle") << QByteArray(R"({"style":"circle"})") << int(EmptyCircle);
    QTest::newRow("circle or cross") << QByteArray(R"({"style":"circleOrCross"})") << int(CrossCircle);
    QTest::newRow("block") << QByteArray(R"({"style":"block"})") << int(EmptyTickBlock);
    QTest::newRow("number") << QByteArray(R"({"style":3})") << int(CrossCircle);
    QTest::newRow("number without a name") << QByteArray(R"({"style":-7})") << -7;
}

void ChoicesTest::styles()
{
    QFETCH(QByteArray, settings);
    QFETCH(int, style);
    const std::unique_ptr<Form> form = deskforms::formWith({box(settings)});
    QVERIFY(form);
    QCOMPARE(int(static_cast<TavroCheckBox &>(*form->entries.front().object).checkStyle()), style);
}

void ChoicesTest::presetOfACheckBox()
{
    const std::unique_ptr<Form> form =
        deskforms::formWith({box(R"({"preset":true})"), box(R"({"preset":false})"), box("{}")});
    QVERIFY(form);
    for (std::size_t i = 0; i < 3; ++i) {
        const auto &object = static_cast<TavroCheckBox &>(*form->entries.at(i).object);
        const int state = i == 0 ? Qt::Checked : Qt::Unchecked;
        QCOMPARE(object.presetData(), QVariant(state));
        QCOMPARE(object.contentData(), QVariant(state));
        QCOMPARE(int(object.checkBx()->checkState()), state);
    }
}

// A host may have preset the third state, which becomes a tick as soon as it is shown.
void ChoicesTest::partialPresetIsATick()
{
    const std::unique_ptr<Form> form = deskforms::formWith({box("{}")});
    QVERIFY(form);
    form->entries.front().object->setPresetData(1);
    QVERIFY(formwriter::toBytes(*form).contains("\"preset\": true"));
}

void ChoicesTest::checkBoxKeepsItsProportions()
{
    const std::unique_ptr<Form> form = deskforms::formWith({box("{}"), box(R"({"proportional":false})")});
    QVERIFY(form);
    QVERIFY(form->entries.at(0).object->isProportional());
    QVERIFY(!form->entries.at(1).object->isProportional());
}

void ChoicesTest::groups()
{
    const std::unique_ptr<Form> form = formWithGroups();
    QVERIFY(form);
    QCOMPARE(tickedOf(*form), QStringList({QStringLiteral("mr"), QStringLiteral("post")}));
    const auto boxOf = [&form](const char *id) {
        return static_cast<TavroCheckBox &>(*form->objectWithId(QLatin1String(id))).checkBx();
    };
    QCOMPARE(boxOf("mail")->group(), nullptr);
    QCOMPARE(boxOf("post")->group(), nullptr);
    QCOMPARE(boxOf("mr")->group()->buttons().size(), 3);
    QCOMPARE(boxOf("mr")->group()->checkedButton(), boxOf("mr"));
    QVERIFY(boxOf("yes")->group() != boxOf("mr")->group());
    QVERIFY(boxOf("yes")->group()->exclusive());
    boxOf("dr")->click();
    boxOf("no")->click();
    boxOf("mail")->click();
    QCOMPARE(tickedOf(*form),
             QStringList({QStringLiteral("dr"), QStringLiteral("no"), QStringLiteral("post"), QStringLiteral("mail")}));
}

// Names are those of one form: a second one of the same file is a choice of its own.
void ChoicesTest::groupsOfOneForm()
{
    const std::unique_ptr<Form> other = formWithGroups();
    {
        const std::unique_ptr<Form> form = formWithGroups();
        QVERIFY(form && other);
        static_cast<TavroCheckBox &>(*form->objectWithId(QStringLiteral("ms"))).checkBx()->click();
        QCOMPARE(tickedOf(*form), QStringList({QStringLiteral("ms"), QStringLiteral("post")}));
        // Grouping again keeps the choice.
        form->groupCheckBoxes();
        QCOMPARE(tickedOf(*form), QStringList({QStringLiteral("ms"), QStringLiteral("post")}));
        // One that has left its group is no member of it any more.
        auto &left = static_cast<TavroCheckBox &>(*form->objectWithId(QStringLiteral("ms")));
        left.setCheckGroupId(QString());
        form->groupCheckBoxes();
        QCOMPARE(left.checkBx()->group(), nullptr);
    }
    QCOMPARE(tickedOf(*other), QStringList({QStringLiteral("mr"), QStringLiteral("post")}));
}

void ChoicesTest::twoPresetsOfAGroup_data()
{
    QTest::addColumn<QJsonArray>("objects");
    QTest::addColumn<QString>("error");

    const QJsonObject tick = box(R"({"group":"a","preset":true})");
    const QJsonObject other = box(R"({"group":"b","preset":true})");
    const QJsonObject alone = box(R"({"preset":true})");
    const QString error = QStringLiteral("f: objects[%1].preset: expected at most one ticked check box in group \"a\", "
                                         "objects[%2] is ticked too, found true");
    QTest::newRow("two") << QJsonArray{tick, tick} << error.arg(1).arg(0);
    QTest::newRow("among others") << QJsonArray{other, tick, alone, alone, tick} << error.arg(4).arg(1);
    QTest::newRow("one of each") << QJsonArray{other, tick, alone, alone} << QString();
    QTest::newRow("capital letter") << QJsonArray{tick, box(R"({"group":"A","preset":true})")} << QString();
}

void ChoicesTest::twoPresetsOfAGroup()
{
    QFETCH(QJsonArray, objects);
    QFETCH(QString, error);
    QCOMPARE(formreader::fromJson(deskforms::file(objects), QStringLiteral("f")).error, error);
}

void ChoicesTest::options()
{
    const QStringList cities{QStringLiteral("北京"), QString(), QStringLiteral("上海"), QStringLiteral("北京")};
    const std::unique_ptr<Form> form = deskforms::formWith(
        {deskforms::object("comboBox", Place, json(R"({"options":["北京","","上海","北京"],"preset":"上海"})")),
         deskforms::object("comboBox", Place, json(R"({"options":[],"optionsFromDB":false})"))});
    QVERIFY(form);
    const auto &chosen = static_cast<TavroCombx &>(*form->entries.at(0).object);
    QCOMPARE(chosen.optionList(), cities);
    QCOMPARE(chosen.currentIndx(), 2);
    QVERIFY(chosen.isOptionsFromDB());
    const auto &empty = static_cast<TavroCombx &>(*form->entries.at(1).object);
    QCOMPARE(empty.optionList(), QStringList());
    QVERIFY(!empty.isOptionsFromDB());
    // A list of which nobody chose is no value.
    QCOMPARE(empty.contentData().toString(), QString());
}

void ChoicesTest::presetOfAComboBox()
{
    const std::unique_ptr<Form> form =
        deskforms::formWith({deskforms::object("comboBox", Place, json(R"({"options":["a","b"]})")),
                             deskforms::object("comboBox", Place, json(R"({"options":["a","b"],"preset":"c"})"))});
    QVERIFY(form);
    const auto &open = static_cast<TavroCombx &>(*form->entries.at(0).object);
    QCOMPARE(open.contentData().toString(), QString());
    QCOMPARE(open.currentText(), QString());
    const auto &other = static_cast<TavroCombx &>(*form->entries.at(1).object);
    QCOMPARE(other.currentText(), QStringLiteral("c"));
    QCOMPARE(other.presetData().toString(), QStringLiteral("c"));
    QCOMPARE(other.optionList(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
}

void ChoicesTest::frameOfAComboBox_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("color");
    QTest::newRow("default") << QByteArray("{}") << QStringLiteral("#1ba39c");
    QTest::newRow("colour") << QByteArray(R"({"borderColor":"#00ab0c"})") << QStringLiteral("#00ab0c");
    QTest::newRow("none") << QByteArray(R"({"border":false})") << QStringLiteral("transparent");
    QTest::newRow("none in a colour") << QByteArray(R"({"border":false,"borderColor":"#00ab0c"})")
                                      << QStringLiteral("transparent");
}

// While the form is filled in, the frame is that of the widget.
void ChoicesTest::frameOfAComboBox()
{
    QFETCH(QByteArray, settings);
    QFETCH(QString, color);
    const std::unique_ptr<Form> form = deskforms::formWith({deskforms::object("comboBox", Place, json(settings))});
    QVERIFY(form);
    const auto &combo = static_cast<TavroCombx &>(*form->entries.front().object);
    const QString styleSheet = combo.widgetPrxy()->widget()->styleSheet();
    QVERIFY2(styleSheet.contains(QStringLiteral("border: 1px solid %1;").arg(color)), qPrintable(styleSheet));
}

QTEST_MAIN(ChoicesTest)
#include "tst_choices.moc"

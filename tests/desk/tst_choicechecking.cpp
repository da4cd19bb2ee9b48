// SPDX-License-Identifier: MIT
#include "choice/tavrocheckbox.h"
#include "desk/checking/checking.h"
#include "desk/record.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QCheckBox>
#include <QTest>

namespace {

QJsonObject json(const QByteArray &text)
{
    return deskforms::value(text.constData()).toObject();
}

QJsonObject box(const QByteArray &settings, const QSizeF &millimetres = {4, 4})
{
    return deskforms::object("checkBox", {{10, 10}, millimetres}, json(settings));
}

QStringList problemsOf(const QJsonArray &objects)
{
    const std::unique_ptr<Form> form = deskforms::formWith(objects);
    return form ? checking::problems(*form) : QStringList(QStringLiteral("no form"));
}

QStringList listOf(const QString &problem)
{
    return problem.isEmpty() ? QStringList() : QStringList(problem);
}

} // namespace

class ChoiceCheckingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void checkBoxes_data();
    void checkBoxes();
    void groups_data();
    void groups();
    void choiceOfTheUser();
    void comboBoxes_data();
    void comboBoxes();
    void tables();
};

void ChoiceCheckingTest::checkBoxes_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("problem");

    const auto add = [](const char *name, const QSizeF &size, const char *settings, const char *problem) {
        QTest::newRow(name) << size << QByteArray(settings) << QString::fromUtf8(problem);
    };
    const char *required = "objects[0] \"a\": required, but not ticked";
    const char *small = "objects[0] \"a\": mark too small to be read, with sides below 2 mm";
    add("open", {4, 4}, "{}", "");
    add("required", {4, 4}, R"({"required":true})", required);
    add("required and ticked", {4, 4}, R"({"required":true,"preset":true})", "");
    add("required on the screen alone", {4, 4}, R"({"required":true,"print":false})", required);
    add("required and small", {1, 1}, R"({"required":true})", required);
    add("smallest", {2, 2}, R"({"preset":true})", "");
    add("narrow", {1.99, 4}, "{}", small);
    add("low", {4, 1.99}, R"({"preset":true})", small);
    add("nothing", {0, 0}, "{}", small);
    add("dragged over its corner", {-4, -4}, "{}", "");
    add("small over its corner", {-1, -4}, "{}", small);
    add("small on the screen alone", {1, 1}, R"({"print":false})", "");
    add("small and invisible", {1, 1}, R"({"visible":false})", "");
    add("style without a mark", {4, 4}, R"({"style":5,"preset":true})",
        "objects[0] \"a\": ticked, but nothing is printed in style 5");
    add("negative style", {4, 4}, R"({"style":-1,"preset":true})",
        "objects[0] \"a\": ticked, but nothing is printed in style -1");
    add("style without a mark that is not ticked", {4, 4}, R"({"style":5})", "");
    add("style without a mark on the screen alone", {4, 4}, R"({"style":5,"preset":true,"print":false})", "");
    for (const char *style : {"tick", "tickOrCross", "circle", "circleOrCross", "block"})
        QTest::newRow(style) << QSizeF(4, 4) << QByteArray(R"({"preset":true,"style":")") + style + "\"}" << QString();
}

void ChoiceCheckingTest::checkBoxes()
{
    QFETCH(QSizeF, size);
    QFETCH(QByteArray, settings);
    QFETCH(QString, problem);
    QJsonObject object = box(settings, size);
    object.insert(QStringLiteral("id"), QStringLiteral("a"));
    QCOMPARE(problemsOf({object}), listOf(problem));
}

void ChoiceCheckingTest::groups_data()
{
    QTest::addColumn<QJsonArray>("objects");
    QTest::addColumn<QStringList>("problems");

    const QJsonObject open = box(R"({"group":"a"})");
    const QJsonObject required = box(R"({"group":"a","required":true})");
    const QJsonObject ticked = box(R"({"group":"a","preset":true})");
    const QJsonObject other = box(R"({"group":"b\nc","required":true})");
    const QString missing = QStringLiteral("objects[%1]: required, but nothing in group \"%2\" is ticked");
    const QString missingA = QStringLiteral("a");
    QTest::newRow("nothing required") << QJsonArray{open, open} << QStringList();
    QTest::newRow("required") << QJsonArray{required} << QStringList(missing.arg(0).arg(missingA));
    QTest::newRow("one of them required") << QJsonArray{open, required} << QStringList(missing.arg(1).arg(missingA));
    QTest::newRow("all of them required")
        << QJsonArray{required, required, required} << QStringList(missing.arg(0).arg(missingA));
    QTest::newRow("another one ticked") << QJsonArray{required, ticked, required} << QStringList();
    QTest::newRow("two groups") << QJsonArray{required, other, required, other}
                                << QStringList(
                                       {missing.arg(0).arg(missingA), missing.arg(1).arg(QStringLiteral("b\\nc"))});
    QTest::newRow("one of two groups") << QJsonArray{ticked, required, other}
                                       << QStringList(missing.arg(2).arg(QStringLiteral("b\\nc")));
}

void ChoiceCheckingTest::groups()
{
    QFETCH(QJsonArray, objects);
    QFETCH(QStringList, problems);
    QCOMPARE(problemsOf(objects), problems);
}

void ChoiceCheckingTest::choiceOfTheUser()
{
    const std::unique_ptr<Form> form = deskforms::formWith(
        {box(R"({"group":"a","required":true,"preset":true})"), box(R"({"group":"a","required":true,"id":"b"})")});
    QVERIFY(form);
    auto &first = static_cast<TavroCheckBox &>(*form->entries.at(0).object);
    QCOMPARE(checking::problems(*form), QStringList());
    static_cast<TavroCheckBox &>(*form->entries.at(1).object).checkBx()->click();
    QCOMPARE(first.contentData(), QVariant(0));
    QCOMPARE(checking::problems(*form), QStringList());
    record::fillFromJson(form.get(), json(R"({"b":false})"), QString());
    const QStringList missing(QStringLiteral("objects[0]: required, but nothing in group \"a\" is ticked"));
    QCOMPARE(checking::problems(*form), missing);
    QCOMPARE(checking::problems(*form), missing);
}

void ChoiceCheckingTest::comboBoxes_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("problem");

    const auto add = [](const char *name, const char *settings, const char *problem) {
        QTest::newRow(name) << QByteArray(settings) << QString::fromUtf8(problem);
    };
    const char *missing = "objects[0] \"c\": required, but missing";
    add("open", R"({"options":["a"]})", "");
    add("required", R"({"options":["a"],"required":true})", missing);
    add("required and blank", R"({"preset":" ","required":true})", missing);
    add("required behind a prefix", R"({"prefix":"￥","required":true})", missing);
    add("required and given", R"({"options":["a"],"preset":"a","required":true})", "");
    add("text that is no option", R"({"options":["a"],"preset":"b","required":true})", "");
    add("text in one line", R"({"fill":"noWrap","preset":"Savings"})", "");
    add("text that is too wide", R"({"fill":"noWrap","preset":"Savings account for minors"})",
        "objects[0] \"c\": text does not fit its rectangle: \"Savings account for minors\"");
    add("text that shrinks", R"({"fill":"shrink","preset":"Savings account for minors"})", "");
    add("prefix that is too wide", R"({"fill":"noWrap","prefix":"Account: ","preset":"Savings"})",
        "objects[0] \"c\": text does not fit its rectangle: \"Account: Savings\"");
    add("on the screen alone", R"({"fill":"noWrap","preset":"Savings account for minors","print":false})", "");
    add("wide options that nobody chose", R"({"fill":"noWrap","options":["Savings account for minors"]})", "");
}

void ChoiceCheckingTest::comboBoxes()
{
    QFETCH(QByteArray, settings);
    QFETCH(QString, problem);
    QJsonObject object = deskforms::text("comboBox", {10, 10, 20, 6}, json(settings));
    object.insert(QStringLiteral("id"), QStringLiteral("c"));
    QCOMPARE(problemsOf({object}), listOf(problem));
}

void ChoiceCheckingTest::tables()
{
    QCOMPARE(problemsOf({deskforms::object("table", {0, 0, 0, 0}), deskforms::object("table", {10, 10, 40, 30})}),
             QStringList());
}

QTEST_MAIN(ChoiceCheckingTest)
#include "tst_choicechecking.moc"

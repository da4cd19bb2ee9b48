// SPDX-License-Identifier: MIT
// Content, text and index of a combo box object, set from code.
#include "tests/choice/combxprobes.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <QTest>

using namespace combx;

class TavroCombxContentTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void contentToText_data();
    void contentToText();
    void emptyTextFollowsContent();
    void unheardText();
    void textToContent();
    void fontFitsBeforeTheSignal();
    void indexToContent();
    void renew_data();
    void renew();
    void contentStays_data();
    void contentStays();
    void indexFollowsContent_data();
    void indexFollowsContent();
};

void TavroCombxContentTest::contentToText_data()
{
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<QString>("text");
    QTest::newRow("option") << QVariant(QStringLiteral("Cherry")) << QStringLiteral("Cherry");
    QTest::newRow("free text") << QVariant(QStringLiteral("Fig")) << QStringLiteral("Fig");
    QTest::newRow("number") << QVariant(42) << QStringLiteral("42");
    QTest::newRow("null") << QVariant() << QString();
    QTest::newRow("list") << QVariant(QVariantList{1, 2}) << QString();
    QTest::newRow("Chinese") << QVariant(QStringLiteral("苹果")) << QStringLiteral("苹果");
}

void TavroCombxContentTest::contentToText()
{
    QFETCH(QVariant, content);
    QFETCH(QString, text);
    TavroCombx object;
    object.setOptionList(fruits());
    object.setContentData(QStringLiteral("Apple"));
    QSignalSpy contents(&object, &TavroCombx::contentDataChanged);
    QSignalSpy choices(&object, &TavroCombx::currentIndexChanged);
    QSignalSpy texts(boxOf(object), &QComboBox::currentTextChanged);
    object.setContentData(content);
    QCOMPARE(object.contentData(), content);
    QCOMPARE(object.currentText(), text);
    QCOMPARE(object.optionList(), fruits());
    QCOMPARE(contents.count(), 1);
    QCOMPARE(choices.count(), 0);
    QCOMPARE(texts.count(), 0);
    QCOMPARE(boxOf(object)->signalsBlocked(), false);
}

// The combo box is told with its signals blocked, and leaves the content as it was given.
void TavroCombxContentTest::emptyTextFollowsContent()
{
    TavroCombx object;
    boxOf(object)->blockSignals(true);
    boxOf(object)->setCurrentText(QStringLiteral("unheard"));
    boxOf(object)->blockSignals(false);
    QCOMPARE(object.currentText(), QStringLiteral("unheard"));
    QVERIFY(!object.contentData().isValid());
    object.syncComboxText();
    QCOMPARE(object.currentText(), QString());
    QVERIFY(!object.contentData().isValid());
}

// A host that blocks the signals of the combo box keeps the content, and gets its text all the same.
void TavroCombxContentTest::unheardText()
{
    TavroCombx object;
    object.setOptionList(fruits());
    object.setContentData(QStringLiteral("Plum"));
    boxOf(object)->blockSignals(true);
    object.setCurrentText(QStringLiteral("Fig"));
    boxOf(object)->blockSignals(false);
    QCOMPARE(object.currentText(), QStringLiteral("Fig"));
    QCOMPARE(object.contentData(), QVariant(QStringLiteral("Plum")));
    object.syncContentData();
    QCOMPARE(object.contentData(), QVariant(QStringLiteral("Fig")));
}

void TavroCombxContentTest::textToContent()
{
    TavroCombx object;
    object.setOptionList(fruits());
    QSignalSpy contents(&object, &TavroCombx::contentDataChanged);
    QSignalSpy choices(&object, &TavroCombx::currentIndexChanged);
    for (const QString &text : {QStringLiteral("Fig"), QStringLiteral("Plum"), QString()}) {
        contents.clear();
        object.setCurrentText(text);
        QCOMPARE(object.contentData(), QVariant(text));
        QCOMPARE(object.contentData().userType(), static_cast<int>(QMetaType::QString));
        QCOMPARE(object.currentText(), text);
        QCOMPARE(contents.count(), 1);
        object.setCurrentText(text);
        QCOMPARE(contents.count(), 1);
    }
    QCOMPARE(choices.count(), 0);
    QCOMPARE(object.optionList(), fruits());
}

void TavroCombxContentTest::fontFitsBeforeTheSignal()
{
    TavroCombx object;
    object.setTextFillingRule(Fill_Shrink);
    object.setBoundingRect({0, 0, 100, 30});
    const QFont whole = object.font();
    QVector<QFont> seen;
    bool haveParts = false;
    connect(&object, &TavroCombx::contentDataChanged, this, [&] {
        seen.append(object.font());
        haveParts = haveFont(object, object.font());
    });
    boxOf(object)->setCurrentText(QString(60, QLatin1Char('m')));
    QCOMPARE(seen.size(), 1);
    QVERIFY(seen.first().pixelSize() < whole.pixelSize());
    QCOMPARE(seen.first(), object.font());
    QVERIFY(haveParts);
}

void TavroCombxContentTest::indexToContent()
{
    TavroCombx object;
    object.setOptionList(fruits());
    QSignalSpy contents(&object, &TavroCombx::contentDataChanged);
    QSignalSpy choices(&object, &TavroCombx::currentIndexChanged);
    const QVector<QPair<int, QString>> steps{
        {2, fruits().at(2)}, {0, fruits().at(0)}, {99, {}}, {3, fruits().at(3)}, {-1, {}}};
    for (const auto &step : steps) {
        contents.clear();
        object.setCurrentIndx(step.first);
        QCOMPARE(object.currentIndx(), step.second.isEmpty() ? -1 : step.first);
        QCOMPARE(object.currentText(), step.second);
        QCOMPARE(object.contentData(), QVariant(step.second));
        QCOMPARE(contents.count(), 1);
    }
    QCOMPARE(choices.count(), 0);
}

void TavroCombxContentTest::renew_data()
{
    QTest::addColumn<bool>("resets");
    QTest::addColumn<QVariant>("preset");
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<QString>("text");
    const QVariant fig(QStringLiteral("Fig"));
    QTest::newRow("to the preset") << true << QVariant(QStringLiteral("Plum")) << QVariant(QStringLiteral("Plum"))
                                   << QStringLiteral("Plum");
    QTest::newRow("to nothing") << true << QVariant() << QVariant() << QString();
    QTest::newRow("kept") << false << QVariant(QStringLiteral("Plum")) << fig << QStringLiteral("Fig");
}

void TavroCombxContentTest::renew()
{
    QFETCH(bool, resets);
    QFETCH(QVariant, preset);
    TavroCombx object;
    object.setOptionList(fruits());
    object.setContentData(QStringLiteral("Fig"));
    object.setPresetData(preset);
    object.setIsResetAtRenew(resets);
    object.setIsModified(false);
    QSignalSpy contents(&object, &TavroCombx::contentDataChanged);
    object.renew();
    QTEST(object.contentData(), "content");
    QTEST(object.currentText(), "text");
    QCOMPARE(contents.count(), resets ? 1 : 0);
    QCOMPARE(object.isModified(), false);
}

void TavroCombxContentTest::contentStays_data()
{
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("index");
    const QVariant plum(QStringLiteral("Plum"));
    QTest::newRow("an option") << plum << fruits() << 3;
    QTest::newRow("no option") << plum << words("one two") << -1;
    QTest::newRow("other case") << QVariant(QStringLiteral("plum")) << fruits() << -1;
    QTest::newRow("part of an option") << QVariant(QStringLiteral("Pine")) << fruits() << -1;
    QTest::newRow("first of duplicates") << QVariant(QStringLiteral("b")) << words("a b a b") << 1;
    QTest::newRow("none left") << plum << QStringList() << -1;
    QTest::newRow("number") << QVariant(7) << words("6 7 8") << 1;
    QTest::newRow("nothing") << QVariant() << fruits() << -1;
    QTest::newRow("nothing, with an empty option") << QVariant() << QStringList{QStringLiteral("a"), QString()} << 1;
}

void TavroCombxContentTest::contentStays()
{
    QFETCH(QVariant, content);
    QFETCH(QStringList, options);
    TavroCombx object;
    object.setOptionList(words("x Plum y"));
    object.setContentData(content);
    object.setOptionList(options);
    QCOMPARE(object.contentData(), content);
    QCOMPARE(object.currentText(), content.toString());
    QTEST(object.currentIndx(), "index");
}

// Else a combo box that is entered and left would choose the option that its text was set to from code.
void TavroCombxContentTest::indexFollowsContent_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<int>("index");
    QTest::newRow("option") << QStringLiteral("b") << 1;
    QTest::newRow("free text") << QStringLiteral("z") << -1;
    QTest::newRow("nothing") << QString() << -1;
    QTest::newRow("the current one of duplicates") << QStringLiteral("a") << 2;
}

void TavroCombxContentTest::indexFollowsContent()
{
    QFETCH(QString, content);
    QFETCH(int, index);
    for (const bool byText : {false, true}) {
        TavroCombx object;
        object.setOptionList(words("a b a c"));
        object.setCurrentIndx(2);
        if (byText)
            object.setCurrentText(content);
        else
            object.setContentData(content);
        QCOMPARE(object.currentText(), content);
        QCOMPARE(object.contentData(), QVariant(content));
        QCOMPARE(object.currentIndx(), index);
    }
}

QTEST_MAIN(TavroCombxContentTest)
#include "tst_tavrocombxcontent.moc"

// SPDX-License-Identifier: MIT
// What an edit object makes of its content: the text that each format shows.
#include "entry/tavroedit.h"
#include "entry/textedit.h"
#include "tests/entry/amountcases.h"
#include "tests/support/stricttest.h"

#include <QGraphicsProxyWidget>
#include <QSignalSpy>
#include <QTest>
#include <array>
#include <vector>

using amountcases::Bad;
using amountcases::Shown;
using amountcases::string;

namespace {

// Every named format and two numbers beyond them.
const std::vector<int> Formats = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, -3};

Input_Format formatOf(int number)
{
    return static_cast<Input_Format>(number);
}

TextEdit *editorOf(const TavroEdit &edit)
{
    return qobject_cast<TextEdit *>(edit.widgetPrxy()->widget());
}

// Index: format. What zeros show while they are not cleared.
const std::array<const char *, 11> ZeroTexts = {
    Bad, Bad, "零元整", "零元整", "零圆整", "零元整", "零元零角零分", "AND CENTS ONLY", Bad, Bad, Bad};

void addShownRows(const std::vector<Shown> &cases)
{
    for (const Shown &shown : cases) {
        for (const int format : Formats) {
            const char *text = shown.in(format);
            QTest::addRow("%s, format %d", shown.name, format)
                << format << shown.content << (text != Bad) << QString::fromUtf8(text);
        }
    }
}

void addShownColumns()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("shown");
}

} // namespace

class TestTavroEdit : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void contentIsConverted_data();
    void contentIsConverted();
    void typedTextIsConverted_data();
    void typedTextIsConverted();
    void zerosAreCleared_data();
    void zerosAreCleared();
    void zerosAreShown_data() { zerosAreCleared_data(); }
    void zerosAreShown();
    void zerosOfOtherTypes();
    void invalidContentEmptiesTheShownText();
    void validContentReplacesTheShownText();
    void addedZeros_data();
    void addedZeros();
    void customizedFormat_data();
    void customizedFormat();
    void settersDoNotConvertAgain();
    void allZeroTest_data();
    void allZeroTest();
    void stagesOfAnAmount();
    void contentIsAnnouncedBeforeTheConversion();
    void contentOfASlotStays();
    void contentCorrectedByASlotIsShown();
    void contentSpoiledByASlotShowsNothing();
    void textCorrectedWhileTypingIsShown();
};

void TestTavroEdit::contentIsConverted_data()
{
    addShownColumns();
    addShownRows(amountcases::acceptedAmounts());
    addShownRows(amountcases::refusedAmounts());
    addShownRows(amountcases::otherTypes());
}

void TestTavroEdit::contentIsConverted()
{
    QFETCH(int, format);
    QFETCH(QVariant, content);
    QFETCH(bool, valid);
    QFETCH(QString, shown);
    TavroEdit edit;
    edit.setFormatType(formatOf(format));
    const QSignalSpy changed(&edit, &TavroEdit::contentDataChanged);
    const QSignalSpy invalid(&edit, &TavroEdit::invalidDataOccured);
    edit.setContentData(content);
    QCOMPARE(edit.displayText(), shown);
    QCOMPARE(edit.contentData(), content);
    QCOMPARE(edit.contentData().userType(), content.userType());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(invalid.count(), valid ? 0 : 1);
    QCOMPARE(edit.isValid(), valid);
    QCOMPARE(edit.displayText(), shown);
    QCOMPARE(invalid.count(), valid ? 0 : 1);
}

void TestTavroEdit::typedTextIsConverted_data()
{
    addShownColumns();
    std::vector<Shown> cases = amountcases::acceptedAmounts();
    for (const Shown &shown : amountcases::refusedAmounts()) {
        if (!shown.content.toString().isEmpty())
            cases.push_back(shown);
    }
    addShownRows(cases);
}

void TestTavroEdit::typedTextIsConverted()
{
    QFETCH(int, format);
    QFETCH(QVariant, content);
    QFETCH(bool, valid);
    QFETCH(QString, shown);
    TavroEdit edit;
    edit.setFormatType(formatOf(format));
    const QSignalSpy changed(&edit, &TavroEdit::contentDataChanged);
    const QSignalSpy invalid(&edit, &TavroEdit::invalidDataOccured);
    editorOf(edit)->insertPlainText(content.toString());
    QCOMPARE(edit.displayText(), shown);
    QCOMPARE(edit.contentData(), content);
    QCOMPARE(edit.contentData().userType(), int(QMetaType::QString));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(invalid.count(), valid ? 0 : 1);
    QCOMPARE(editorOf(edit)->toPlainText(), content.toString());

    // emptied again
    editorOf(edit)->clear();
    const bool acceptsEmpty = format <= 1 || format == 9 || format > 10;
    QCOMPARE(edit.contentData(), QVariant(QString()));
    QCOMPARE(edit.displayText(), QString());
    QCOMPARE(changed.count(), 2);
    QCOMPARE(invalid.count(), (valid ? 0 : 1) + (acceptsEmpty ? 0 : 1));
}

void TestTavroEdit::zerosAreCleared_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("valid");
    for (const char *content : {"0", "000", "0.", ".0", "0.00", "0.0", "00.000", "0000000000"}) {
        const bool isSerial = !QByteArray(content).contains('.');
        for (const int format : Formats) {
            const bool valid = format >= 0 && format <= 10 && (format != Format_SerialNumber || isSerial);
            QTest::addRow("%s, format %d", content, format) << format << QString::fromLatin1(content) << valid;
        }
    }
}

void TestTavroEdit::zerosAreCleared()
{
    QFETCH(int, format);
    QFETCH(QString, content);
    QFETCH(bool, valid);
    TavroEdit edit;
    edit.setFormatType(formatOf(format));
    const QSignalSpy invalid(&edit, &TavroEdit::invalidDataOccured);
    edit.setContentData(content);
    QCOMPARE(edit.displayText(), QString());
    QCOMPARE(edit.isValid(), valid);
    QCOMPARE(invalid.count(), valid ? 0 : 1);
}

void TestTavroEdit::zerosAreShown()
{
    QFETCH(int, format);
    QFETCH(QString, content);
    QFETCH(bool, valid);
    TavroEdit edit;
    edit.setFormatType(formatOf(format));
    edit.setIsZeroClear(false);
    edit.setAddZero(true, true);
    edit.setContentData(content);
    const char *words = format >= 0 && format <= 10 ? ZeroTexts[std::size_t(format)] : Bad;
    const QString text = words ? QString::fromUtf8(words) : content;
    QCOMPARE(edit.displayText(), valid ? text : QString());
}

void TestTavroEdit::zerosOfOtherTypes()
{
    TavroEdit edit;
    for (const Input_Format format : {Format_Text, Format_Number, Format_FreeText, Format_Customized}) {
        edit.setFormatType(format);
        for (const QVariant &zero : {QVariant(0.0), QVariant(0.0f), QVariant(0)}) {
            edit.setIsZeroClear(true);
            edit.setContentData(zero);
            QCOMPARE(edit.displayText(), QString());
            edit.setIsZeroClear(false);
            edit.setContentData(zero);
            QCOMPARE(edit.displayText(), QStringLiteral("0"));
        }
    }
}

void TestTavroEdit::invalidContentEmptiesTheShownText()
{
    TavroEdit edit;
    edit.setFormatType(Format_RmbCapital);
    edit.setContentData(QStringLiteral("1"));
    QCOMPARE(edit.displayText(), QStringLiteral("壹元整"));
    edit.setContentData(QStringLiteral("12345678901"));
    QCOMPARE(edit.displayText(), QString());
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("12345678901")));
    editorOf(edit)->setPlainText(QStringLiteral("2"));
    QCOMPARE(edit.displayText(), QStringLiteral("贰元整"));
    editorOf(edit)->setPlainText(QStringLiteral("x"));
    QCOMPARE(edit.displayText(), QString());
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("x")));
}

void TestTavroEdit::validContentReplacesTheShownText()
{
    TavroEdit edit;
    edit.setFormatType(Format_RmbCapital);
    edit.setContentData(QStringLiteral("1"));
    edit.setContentData(QStringLiteral("2"));
    QCOMPARE(edit.displayText(), QStringLiteral("贰元整"));
    edit.setContentData(QStringLiteral("0.00"));
    QCOMPARE(edit.displayText(), QString());
}

void TestTavroEdit::addedZeros_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("thousand");
    QTest::addColumn<bool>("jiao");
    QTest::addColumn<QString>("shown");
    const auto row = [](int format, const char *content, bool thousand, bool jiao, const char *shown) {
        QTest::addRow("%s, format %d, thousand %d, jiao %d", content, format, thousand, jiao)
            << format << QString::fromUtf8(content) << thousand << jiao << QString::fromUtf8(shown);
    };
    row(2, "15000", false, false, "壹万伍仟元整");
    row(2, "15000", true, false, "壹万零伍仟元整");
    row(2, "15000", false, true, "壹万伍仟元整");
    row(3, "15000", true, false, "壹万零伍仟元整");
    row(4, "15000", true, false, "壹万零伍仟圆整");
    row(5, "15000", true, false, "壹万零伍仟元整");
    row(6, "15000", true, false, "壹万零伍仟元零分");
    row(2, "10500", true, false, "壹万零伍佰元整");
    row(2, "10000", true, false, "壹万元整");
    row(4, "10000", true, false, "壹万圆整");
    row(2, "1.50", false, false, "壹元伍角整");
    row(2, "1.50", false, true, "壹元零伍角整");
    row(2, "1.50", true, false, "壹元伍角整");
    row(3, "1.50", false, true, "壹元零伍角整");
    row(4, "1.50", false, true, "壹圆零伍角整");
    row(5, "1.50", false, true, "壹元零伍拾美分");
    row(6, "1.50", false, true, "壹元零伍角零分");
    row(2, "1", false, true, "壹元整");
    row(2, "1.05", false, true, "壹元零伍分");
    row(2, "15000.50", true, true, "壹万零伍仟元零伍角整");
    row(7, "15000.50", true, true, "FIFTEEN THOUSAND CENTS FIFTY ONLY");
    row(10, "15000.50", true, true, "15,000.50");
    row(0, "万元", true, true, "万元");
    row(9, "万元", true, true, "万元");
}

void TestTavroEdit::addedZeros()
{
    QFETCH(int, format);
    QFETCH(QString, content);
    QFETCH(bool, thousand);
    QFETCH(bool, jiao);
    QFETCH(QString, shown);
    TavroEdit edit;
    edit.setFormatType(formatOf(format));
    edit.setAddZero(thousand, jiao);
    edit.setContentData(content);
    QCOMPARE(edit.displayText(), shown);
}

void TestTavroEdit::customizedFormat_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<QString>("shown");
    const QString initial = QStringLiteral("#,##0.00");
    QTest::newRow("groups") << initial << string("1234.5") << QStringLiteral("1,234.50");
    QTest::newRow("negative") << initial << string("-1234567.891") << QStringLiteral("-1,234,567.89");
    QTest::newRow("double, six digits") << initial << QVariant(1234.567) << QStringLiteral("1,234.57");
    QTest::newRow("no pattern") << QString() << string("1234.5") << QStringLiteral("1234.5");
    QTest::newRow("prefix and suffix") << QStringLiteral("¥ 0.0 元") << string("3") << QStringLiteral("¥ 3.0 元");
    QTest::newRow("turned sign") << QStringLiteral("-#,##0.00") << string("5") << QStringLiteral("-5.00");
    QTest::newRow("turned sign of a negative") << QStringLiteral("-#,##0.00") << string("-5") << QStringLiteral("5.00");
    QTest::newRow("integers") << QStringLiteral("000") << string("7") << QStringLiteral("007");
}

void TestTavroEdit::customizedFormat()
{
    QFETCH(QString, pattern);
    QFETCH(QVariant, content);
    QFETCH(QString, shown);
    TavroEdit edit;
    edit.setFormatType(Format_Customized);
    edit.setCustomizedFormat(pattern);
    QCOMPARE(edit.customizedFormat(), pattern);
    edit.setContentData(content);
    QCOMPARE(edit.displayText(), shown);
}

void TestTavroEdit::settersDoNotConvertAgain()
{
    TavroEdit edit;
    edit.setContentData(QStringLiteral("15000"));
    QCOMPARE(edit.displayText(), QStringLiteral("15000"));
    const QSignalSpy invalid(&edit, &TavroEdit::invalidDataOccured);
    edit.setFormatType(Format_RmbCapital);
    edit.setAddZero(true, false);
    edit.setCustomizedFormat(QStringLiteral("0"));
    edit.setUsrRegExpPattern(QStringLiteral("1.*"));
    edit.setIsZeroClear(false);
    QCOMPARE(edit.displayText(), QStringLiteral("15000"));
    QCOMPARE(invalid.count(), 0);
    edit.setContentData(QStringLiteral("16000"));
    QCOMPARE(edit.displayText(), QStringLiteral("壹万零陆仟元整"));
}

void TestTavroEdit::allZeroTest_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("zero");
    for (const char *text : {"0", "000", "0.", ".0", "0.00", "00.000"})
        QTest::newRow(text) << QString::fromLatin1(text) << true;
    for (const char *text : {"", ".", "-0", "0.01", "10", "0.0.0", " 0", "0\n"})
        QTest::addRow("not '%s'", text) << QString::fromLatin1(text) << false;
}

void TestTavroEdit::allZeroTest()
{
    QFETCH(QString, text);
    QFETCH(bool, zero);
    const TavroEdit edit;
    QCOMPARE(edit.isAllZero(text), zero);
}

// The operations under their own names, as a host may call them.
void TestTavroEdit::stagesOfAnAmount()
{
    TavroEdit edit;
    edit.setContentData(QStringLiteral("-1"));
    edit.setFormatType(Format_RmbCapital);
    QVERIFY(!edit.isMatched(QString()));
    QCOMPARE(edit.displayText(), QString());
    edit.convertDigitsToMoneyFormat();
    QCOMPARE(edit.displayText(), QStringLiteral("负壹元零角零分"));
    edit.completeSuffix();
    QCOMPARE(edit.displayText(), QStringLiteral("负壹元整"));
    edit.convertDigitsToEnglishMoneyFormat();
    QCOMPARE(edit.displayText(), QStringLiteral("Negative ONLY"));
    edit.setIsZeroClear(false);
    edit.handleAllZero();
    QCOMPARE(edit.displayText(), QStringLiteral("零元整"));
    edit.modifyTextAsFormatType();
    QCOMPARE(edit.displayText(), QStringLiteral("负壹元整"));
}

void TestTavroEdit::contentIsAnnouncedBeforeTheConversion()
{
    TavroEdit edit;
    edit.setContentData(QStringLiteral("old"));
    QStringList heard;
    connect(&edit, &TavroEdit::contentDataChanged, &edit,
            [&] { heard << edit.contentData().toString() + QLatin1Char('/') + edit.displayText(); });
    edit.setContentData(QStringLiteral("new"));
    editorOf(edit)->setPlainText(QStringLiteral("typed"));
    QCOMPARE(heard, QStringList({QStringLiteral("new/old"), QStringLiteral("typed/new")}));
    QCOMPARE(edit.displayText(), QStringLiteral("typed"));
}

void TestTavroEdit::contentOfASlotStays()
{
    TavroEdit edit;
    connect(&edit, &TavroEdit::contentDataChanged, &edit, [&edit] {
        if (edit.contentData().toString() == QStringLiteral("bad"))
            edit.setContentData(QStringLiteral("good"));
    });
    edit.setContentData(QStringLiteral("bad"));
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("good")));
    QCOMPARE(edit.displayText(), QStringLiteral("good"));
    QCOMPARE(editorOf(edit)->toPlainText(), QStringLiteral("good"));
}

void TestTavroEdit::contentCorrectedByASlotIsShown()
{
    TavroEdit edit;
    edit.setFormatType(Format_Number);
    connect(&edit, &TavroEdit::contentDataChanged, &edit, [&edit] {
        if (edit.contentData().toString() == QStringLiteral("bad"))
            edit.setContentData(QStringLiteral("15"));
    });
    const QSignalSpy invalid(&edit, &TavroEdit::invalidDataOccured);
    edit.setContentData(QStringLiteral("bad"));
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("15")));
    QCOMPARE(edit.displayText(), QStringLiteral("15"));
    QCOMPARE(invalid.count(), 0);
}

void TestTavroEdit::contentSpoiledByASlotShowsNothing()
{
    TavroEdit edit;
    edit.setFormatType(Format_RmbCapital);
    connect(&edit, &TavroEdit::contentDataChanged, &edit, [&edit] {
        if (edit.contentData().toString() == QStringLiteral("15"))
            edit.setContentData(QStringLiteral("1x5"));
    });
    const QSignalSpy invalid(&edit, &TavroEdit::invalidDataOccured);
    edit.setContentData(QStringLiteral("15"));
    QCOMPARE(edit.displayText(), QString());
    QVERIFY(invalid.count() > 0);
}

void TestTavroEdit::textCorrectedWhileTypingIsShown()
{
    TavroEdit edit;
    edit.setFormatType(Format_RmbCapital);
    connect(&edit, &TavroEdit::contentDataChanged, &edit, [&edit] {
        if (edit.contentData().toString() == QStringLiteral("15 000"))
            edit.setContentData(QStringLiteral("15000"));
    });
    const QSignalSpy invalid(&edit, &TavroEdit::invalidDataOccured);
    editorOf(edit)->setPlainText(QStringLiteral("15 000"));
    QCOMPARE(editorOf(edit)->toPlainText(), QStringLiteral("15000"));
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("15000")));
    QCOMPARE(edit.displayText(), QStringLiteral("壹万伍仟元整"));
    QCOMPARE(invalid.count(), 0);
}

QTEST_MAIN(TestTavroEdit)
#include "tst_tavroedit.moc"

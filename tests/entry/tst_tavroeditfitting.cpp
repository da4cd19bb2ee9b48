// SPDX-License-Identifier: MIT
// The font in which an edit object draws, and when it is fitted.
#include "entry/tavroedit.h"
#include "entry/textedit.h"
#include "tests/support/stricttest.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

namespace {

TextEdit *editorOf(const TavroEdit &edit)
{
    return qobject_cast<TextEdit *>(edit.widgetPrxy()->widget());
}

} // namespace

class TestTavroEditFitting : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void fontIsFittedToTheShownText_data();
    void fontIsFittedToTheShownText();
    void fittingIsSilent();
    void fittingRepaints();
    void contentIsFittedWhenTheLoopTurns();
    void everyContentIsFitted();
    void typedTextIsFittedAtOnce();
    void deletedBeforeTheLoopTurns();
};

void TestTavroEditFitting::fontIsFittedToTheShownText_data()
{
    QTest::addColumn<int>("rule");
    for (const int rule : {0, 1, 2, 3, 5, -1})
        QTest::addRow("rule %d", rule) << rule;
}

void TestTavroEditFitting::fontIsFittedToTheShownText()
{
    QFETCH(int, rule);
    TavroEdit edit;
    edit.setBoundingRect({0, 0, 150, 20});
    edit.setFontFamily(QStringLiteral("DejaVu Sans"));
    edit.setIsBold(true);
    edit.setIsItalic(true);
    edit.setIsUnderline(true);
    edit.setIsStrikeOut(true);
    edit.setTextFillingRule(static_cast<Text_Filling_Rule>(rule));
    edit.setPrefix(QStringLiteral("PAID "));
    edit.setFormatType(Format_EnglishAmount);
    edit.setContentData(QStringLiteral("20.05"));
    edit.setFont(QFont(QStringLiteral("DejaVu Serif"), 40));
    edit.adjustTextStyle();

    QFont settings(QStringLiteral("DejaVu Sans"));
    settings.setPixelSize(edit.fontPixSz());
    settings.setWeight(75);
    settings.setStyle(QFont::StyleItalic);
    settings.setStrikeOut(true);
    QFont expected = settings;
    const QString text = edit.prefix() + edit.displayText();
    if (rule == Fill_Shrink)
        expected = edit.font_Shrink(text);
    else if (rule == Fill_WrapShrink)
        expected = edit.font_wordWrapAndShrink(text);
    else if (rule == 5 || rule == -1)
        expected = QFont();
    QCOMPARE(edit.font(), expected);
    QCOMPARE(editorOf(edit)->font().family(), expected.family());
    if (rule == Fill_Shrink || rule == Fill_WrapShrink) {
        // neither the content nor the words alone take as small a font
        const auto sizeFor = [&edit, rule](const QString &fitted) {
            const QFont font = rule == Fill_Shrink ? edit.font_Shrink(fitted) : edit.font_wordWrapAndShrink(fitted);
            return font.pixelSize();
        };
        QVERIFY(edit.font().pixelSize() < sizeFor(edit.displayText()));
        QVERIFY(edit.font().pixelSize() < sizeFor(edit.prefix() + edit.contentData().toString()));
    }

    edit.setIsBold(false);
    edit.setIsItalic(false);
    edit.setIsStrikeOut(false);
    QCOMPARE(edit.font().weight(), 50);
    QCOMPARE(edit.font().style(), QFont::StyleNormal);
    QVERIFY(!edit.font().strikeOut());
}

void TestTavroEditFitting::fittingIsSilent()
{
    TavroEdit edit;
    const QSignalSpy changed(&edit, &TavroEdit::fontChanged);
    edit.adjustTextStyle();
    QCOMPARE(changed.count(), 0);
    QVERIFY(!edit.signalsBlocked());
}

void TestTavroEditFitting::fittingRepaints()
{
    QGraphicsScene scene;
    auto *edit = new TavroEdit;
    scene.addItem(edit);
    edit->setBoundingRect({5, 5, 100, 20});
    QRectF region;
    connect(&scene, &QGraphicsScene::changed, edit, [&region](const QList<QRectF> &rects) {
        for (const QRectF &rect : rects)
            region |= rect;
    });
    QTRY_VERIFY(!region.isEmpty());
    QCoreApplication::processEvents();
    region = QRectF();
    edit->adjustTextStyle();
    QTRY_VERIFY(!region.isEmpty());
    QVERIFY(region.contains(edit->boundingRect()));
}

void TestTavroEditFitting::contentIsFittedWhenTheLoopTurns()
{
    TavroEdit edit;
    edit.setFontFamily(QStringLiteral("DejaVu Sans"));
    edit.setTextFillingRule(Fill_Shrink);
    edit.setBoundingRect({0, 0, 50, 20});
    QCOMPARE(edit.font().pixelSize(), 15);
    edit.setContentData(QStringLiteral("much longer than the field"));
    QCOMPARE(edit.font().pixelSize(), 15);
    QTRY_VERIFY(edit.font().pixelSize() < 15);
    QCOMPARE(edit.font(), edit.font_Shrink(QStringLiteral("much longer than the field")));
}

void TestTavroEditFitting::everyContentIsFitted()
{
    TavroEdit edit;
    edit.setFontFamily(QStringLiteral("DejaVu Sans"));
    edit.setTextFillingRule(Fill_Shrink);
    edit.setBoundingRect({0, 0, 50, 20});
    edit.setContentData(QStringLiteral("a"));
    edit.setContentData(QStringLiteral("much longer than the field"));
    QTRY_VERIFY(edit.font().pixelSize() < 15);
    edit.setContentData(QStringLiteral("a"));
    QTRY_COMPARE(edit.font().pixelSize(), 15);
}

void TestTavroEditFitting::typedTextIsFittedAtOnce()
{
    TavroEdit edit;
    edit.setFontFamily(QStringLiteral("DejaVu Sans"));
    edit.setTextFillingRule(Fill_Shrink);
    edit.setBoundingRect({0, 0, 50, 20});
    editorOf(edit)->setPlainText(QStringLiteral("much longer than the field"));
    QCOMPARE(edit.font(), edit.font_Shrink(QStringLiteral("much longer than the field")));
    QVERIFY(edit.font().pixelSize() < 15);
}

void TestTavroEditFitting::deletedBeforeTheLoopTurns()
{
    const QPointer<TavroEdit> edit = new TavroEdit;
    edit->setContentData(QStringLiteral("a"));
    delete edit;
    QCoreApplication::processEvents();
    QVERIFY(!edit);
}

QTEST_MAIN(TestTavroEditFitting)
#include "tst_tavroeditfitting.moc"

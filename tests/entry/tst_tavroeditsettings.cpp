// SPDX-License-Identifier: MIT
// Settings of an edit object, how its editor follows them, and what happens without the editor.
#include "entry/tavroedit.h"
#include "entry/textedit.h"
#include "tests/support/stricttest.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QSignalBlocker>
#include <QSignalSpy>
#include <QTest>
#include <limits>

namespace {

TextEdit *editorOf(const TavroEdit &edit)
{
    return qobject_cast<TextEdit *>(edit.widgetPrxy()->widget());
}

// Brings the editor out of step with the object, without the object's notice.
void overwrite(TextEdit *editor)
{
    const QSignalBlocker blocker(editor);
    editor->setPlainText(QStringLiteral("out of step"));
}

using Change = void (*)(TavroEdit &);

} // namespace

Q_DECLARE_METATYPE(Change)

class TestTavroEditSettings : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsFreeText();
    void startsWithAHiddenEditor();
    void startsModified();
    void changesMarkModifiedOrNot_data();
    void changesMarkModifiedOrNot();
    void settersStore();
    void formatReachesPatternAndEditor_data();
    void formatReachesPatternAndEditor();
    void contentReachesTheEditor_data();
    void contentReachesTheEditor();
    void editorFollowsSilently();
    void presetBringsTheEditorInStep();
    void prefixBringsTheEditorInStep();
    void geometryIsInsetByTheBorder_data();
    void geometryIsInsetByTheBorder();
    void geometryFollowsEveryMove();
    void fontReachesTheEditor();
    void wrapModeReachesTheEditor_data();
    void wrapModeReachesTheEditor();
    void borderColorOfTheEditor();
    void leavingInputHidesTheEditor_data();
    void leavingInputHidesTheEditor();
    void editorShownByAListenerIsHiddenAgain();
    void inputModeShowsNoEditor();
    void modeReachesTheBase();
    void worksWithoutTheEditor_data();
    void worksWithoutTheEditor();
};

void TestTavroEditSettings::startsAsFreeText()
{
    const TavroEdit edit;
    QCOMPARE(edit.objType(), Obj_Edit);
    QCOMPARE(int(edit.objType()), 3);
    QCOMPARE(edit.formatType(), Format_Text);
    QCOMPARE(edit.customizedFormat(), QStringLiteral("#,##0.00"));
    QVERIFY(edit.isZeroClear());
    QCOMPARE(edit.usrRegExpPattern(), QString());
    QCOMPARE(edit.matchPattern(), QString());
    QCOMPARE(edit.displayText(), QString());
    QCOMPARE(edit.placeholder(), QString());
    QVERIFY(!edit.getAddZeroBeforeThousandState());
    QVERIFY(!edit.getAddZeroBeforeJiaoState());
    QVERIFY(!edit.contentData().isValid());
    QCOMPARE(edit.textFillingRule(), Fill_WrapShrink);
    QCOMPARE(edit.paintMode(), Paint_Design);
    QCOMPARE(edit.flags(), QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable |
                               QGraphicsItem::ItemIsFocusable | QGraphicsItem::ItemSendsGeometryChanges);
}

void TestTavroEditSettings::startsWithAHiddenEditor()
{
    const TavroEdit edit;
    QGraphicsProxyWidget *proxy = edit.widgetPrxy();
    QVERIFY(proxy);
    QCOMPARE(proxy->parentItem(), static_cast<const QGraphicsItem *>(&edit));
    QCOMPARE(proxy->minimumSize(), QSizeF(0, 0));
    QVERIFY(!proxy->isVisible());
    QVERIFY(!proxy->isVisibleTo(&edit));
    QCOMPARE(edit.focusProxy(), proxy);
    TextEdit *editor = editorOf(edit);
    QVERIFY(editor);
    QVERIFY(!editor->parent());
    QVERIFY(!editor->isVisible());
    QCOMPARE(editor->formatType(), Format_Text);
    QCOMPARE(editor->toPlainText(), QString());
}

void TestTavroEditSettings::startsModified()
{
    const TavroEdit edit;
    QVERIFY(edit.isModified());
}

void TestTavroEditSettings::changesMarkModifiedOrNot_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("modified");
    const auto row = [](const char *name, bool modified, Change change) { QTest::newRow(name) << change << modified; };
    row("format", true, [](TavroEdit &edit) { edit.setFormatType(Format_Number); });
    row("same format", true, [](TavroEdit &edit) { edit.setFormatType(Format_Text); });
    row("customised format", true, [](TavroEdit &edit) { edit.setCustomizedFormat(QStringLiteral("0")); });
    row("zeros cleared", true, [](TavroEdit &edit) { edit.setIsZeroClear(true); });
    row("user pattern", true, [](TavroEdit &edit) { edit.setUsrRegExpPattern(QStringLiteral("a")); });
    row("prefix", true, [](TavroEdit &edit) { edit.setPrefix(QStringLiteral("a")); });
    row("preset", true, [](TavroEdit &edit) { edit.setPresetData(1); });
    row("border colour of the object", true, [](TavroEdit &edit) { edit.setBorderColor(0xffU); });
    row("filling rule", true, [](TavroEdit &edit) { edit.setTextFillingRule(Fill_Wrap); });
    row("placeholder", false, [](TavroEdit &edit) { edit.setPlaceholder(QStringLiteral("a")); });
    row("both zeros", false, [](TavroEdit &edit) { edit.setAddZero(true, true); });
    row("zero before thousand", false, [](TavroEdit &edit) { edit.setAddZeroBeforeThousandState(true); });
    row("zero before jiao", false, [](TavroEdit &edit) { edit.setAddZeroBeforeJiaoState(true); });
    row("border colour of the editor", false, [](TavroEdit &edit) { edit.setBorderColor(QStringLiteral("red")); });
    row("content", false, [](TavroEdit &edit) { edit.setContentData(1); });
    row("typed text", false, [](TavroEdit &edit) { editorOf(edit)->setPlainText(QStringLiteral("1")); });
    row("rectangle", false, [](TavroEdit &edit) { edit.setBoundingRect({0, 0, 9, 9}); });
    row("font", false, [](TavroEdit &edit) { edit.setFont(QFont()); });
    row("paint mode", false, [](TavroEdit &edit) { edit.setPaintMode(Paint_Input); });
    row("renewed", false, [](TavroEdit &edit) { edit.renew(); });
    row("match pattern", false, [](TavroEdit &edit) { edit.syncMatchRegExp(); });
    row("validity", false, [](TavroEdit &edit) { edit.isValid(); });
    row("editor opened", false, [](TavroEdit &edit) { edit.readyForEdit(); });
}

void TestTavroEditSettings::changesMarkModifiedOrNot()
{
    QFETCH(Change, change);
    QFETCH(bool, modified);
    TavroEdit edit;
    edit.setIsModified(false);
    change(edit);
    QCOMPARE(edit.isModified(), modified);
    edit.setIsModified(true);
    change(edit);
    QVERIFY(edit.isModified());
}

void TestTavroEditSettings::settersStore()
{
    TavroEdit edit;
    edit.setCustomizedFormat(QStringLiteral("000"));
    QCOMPARE(edit.customizedFormat(), QStringLiteral("000"));
    edit.setIsZeroClear(false);
    QVERIFY(!edit.isZeroClear());
    edit.setUsrRegExpPattern(QStringLiteral("(a"));
    QCOMPARE(edit.usrRegExpPattern(), QStringLiteral("(a"));
    edit.setPlaceholder(QStringLiteral("hint"));
    QCOMPARE(edit.placeholder(), QStringLiteral("hint"));
    edit.setAddZero(true, false);
    QVERIFY(edit.getAddZeroBeforeThousandState());
    QVERIFY(!edit.getAddZeroBeforeJiaoState());
    edit.setAddZero(false, true);
    QVERIFY(!edit.getAddZeroBeforeThousandState());
    QVERIFY(edit.getAddZeroBeforeJiaoState());
    edit.setAddZeroBeforeThousandState(true);
    edit.setAddZeroBeforeJiaoState(false);
    QVERIFY(edit.getAddZeroBeforeThousandState());
    QVERIFY(!edit.getAddZeroBeforeJiaoState());
    edit.setPrefix(QStringLiteral("¥"));
    QCOMPARE(edit.prefix(), QStringLiteral("¥"));
    edit.setPresetData(5);
    QCOMPARE(edit.presetData(), QVariant(5));
}

void TestTavroEditSettings::formatReachesPatternAndEditor_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("pattern");
    const QString number = QStringLiteral("^[0-9]*\\.?[0-9]*");
    const QString amount = QStringLiteral("(^\\-?[0-9]{1,10}$)|(^\\-?[0-9]{0,10}\\.{1}[0-9]*$)");
    const QString serial = QStringLiteral("^[0-9]+$");
    const QStringList patterns = {QString(), number, amount, amount,    amount, amount,
                                  amount,    amount, serial, QString(), amount, QString()};
    for (int format = 0; format < patterns.size(); ++format)
        QTest::addRow("format %d", format) << format << patterns[format];
    QTest::newRow("format -3") << -3 << QString();
}

void TestTavroEditSettings::formatReachesPatternAndEditor()
{
    QFETCH(int, format);
    QFETCH(QString, pattern);
    TavroEdit edit;
    edit.setFormatType(static_cast<Input_Format>(format));
    QCOMPARE(int(edit.formatType()), format);
    QCOMPARE(int(editorOf(edit)->formatType()), format);
    QCOMPARE(edit.matchPattern(), pattern);
}

void TestTavroEditSettings::contentReachesTheEditor_data()
{
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QVariant(QStringLiteral("abc")) << QStringLiteral("abc");
    QTest::newRow("lines") << QVariant(QStringLiteral("a\nb")) << QStringLiteral("a\nb");
    QTest::newRow("int") << QVariant(7) << QStringLiteral("7");
    QTest::newRow("double, six digits") << QVariant(12345.67) << QStringLiteral("12345.7");
    QTest::newRow("null") << QVariant() << QString();
}

void TestTavroEditSettings::contentReachesTheEditor()
{
    QFETCH(QVariant, content);
    QFETCH(QString, text);
    TavroEdit edit;
    overwrite(editorOf(edit));
    edit.setContentData(content);
    QCOMPARE(editorOf(edit)->toPlainText(), text);
    overwrite(editorOf(edit));
    edit.syncTextEditContent();
    QCOMPARE(editorOf(edit)->toPlainText(), text);
    QCOMPARE(edit.contentData(), content);
}

void TestTavroEditSettings::editorFollowsSilently()
{
    TavroEdit edit;
    const QSignalSpy typed(editorOf(edit), &TextEdit::textChanged);
    const QSignalSpy changed(&edit, &TavroEdit::contentDataChanged);
    edit.setContentData(QStringLiteral("a"));
    edit.syncTextEditContent();
    QCOMPARE(typed.count(), 0);
    QCOMPARE(changed.count(), 1);
    QVERIFY(!editorOf(edit)->signalsBlocked());
}

void TestTavroEditSettings::presetBringsTheEditorInStep()
{
    TavroEdit edit;
    edit.setContentData(QStringLiteral("content"));
    overwrite(editorOf(edit));
    edit.setPresetData(QStringLiteral("preset"));
    QCOMPARE(editorOf(edit)->toPlainText(), QStringLiteral("content"));
    QCOMPARE(edit.contentData(), QVariant(QStringLiteral("content")));
}

void TestTavroEditSettings::prefixBringsTheEditorInStep()
{
    TavroEdit edit;
    edit.setContentData(QStringLiteral("content"));
    overwrite(editorOf(edit));
    const QSignalSpy changed(&edit, &TavroEdit::prefixChanged);
    edit.setPrefix(QStringLiteral("prefix"));
    QCOMPARE(editorOf(edit)->toPlainText(), QStringLiteral("content"));
    QCOMPARE(changed.count(), 1);
}

void TestTavroEditSettings::geometryIsInsetByTheBorder_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<int>("border");
    QTest::addColumn<QRectF>("geometry");
    QTest::newRow("initial border") << QRectF(10, 20, 100, 30) << 1 << QRectF(11, 21, 98, 28);
    QTest::newRow("wide border") << QRectF(10, 20, 100, 30) << 4 << QRectF(14, 24, 92, 22);
    QTest::newRow("no border") << QRectF(10, 20, 100, 30) << 0 << QRectF(10, 20, 100, 30);
    QTest::newRow("rounded edges") << QRectF(10.4, 20.6, 99.2, 29.8) << 1 << QRectF(11, 22, 98, 27);
    QTest::newRow("negative place") << QRectF(-10, -20, 100, 30) << 1 << QRectF(-9, -19, 98, 28);
    QTest::newRow("low field") << QRectF(0, 0, 30, 10) << 1 << QRectF(1, 1, 28, 8);
    QTest::newRow("no room within the border") << QRectF(0, 0, 2, 2) << 1 << QRectF(1, 1, 0, 0);
    QTest::newRow("less than the border") << QRectF(0, 0, 1, 1) << 1 << QRectF(1, 1, 0, 0);
    QTest::newRow("far to the left") << QRectF(-1e12, 0, 30, 20) << 1 << QRectF(-1e12 + 1, 1, 28, 18);
    const int widest = std::numeric_limits<int>::max();
    QTest::newRow("border beyond everything")
        << QRectF(5, 5, 100, 20) << widest << QRectF(widest + 5.0, widest + 5.0, 0, 0);
}

void TestTavroEditSettings::geometryIsInsetByTheBorder()
{
    QFETCH(QRectF, rect);
    QFETCH(int, border);
    QFETCH(QRectF, geometry);
    TavroEdit edit;
    edit.setBorderWpx(border);
    edit.setBoundingRect(rect);
    QCOMPARE(edit.boundingRect(), rect);
    QCOMPARE(edit.widgetPrxy()->geometry(), geometry);
    // a widget has no size at a place that no int can hold
    const QRectF reachable(-1e9, -1e9, 2e9, 2e9);
    if (reachable.contains(geometry.topLeft()))
        QCOMPARE(editorOf(edit)->size(), geometry.size().toSize());
}

void TestTavroEditSettings::geometryFollowsEveryMove()
{
    TavroEdit edit;
    edit.setBoundingRect({0, 0, 100, 30});
    edit.setObjX(50);
    QCOMPARE(edit.widgetPrxy()->geometry(), QRectF(51, 1, 98, 28));
    edit.setWidth(60);
    QCOMPARE(edit.widgetPrxy()->geometry(), QRectF(51, 1, 58, 28));
    edit.setBorderWpx(3);
    QCOMPARE(edit.widgetPrxy()->geometry(), QRectF(51, 1, 58, 28));
    edit.syncTextEditGeometry();
    QCOMPARE(edit.widgetPrxy()->geometry(), QRectF(53, 3, 54, 24));
}

void TestTavroEditSettings::fontReachesTheEditor()
{
    TavroEdit edit;
    QFont font(QStringLiteral("DejaVu Serif"));
    font.setPixelSize(23);
    font.setBold(true);
    font.setItalic(true);
    font.setStrikeOut(true);
    const QSignalSpy changed(&edit, &TavroEdit::fontChanged);
    edit.setFont(font);
    QCOMPARE(edit.font(), font);
    QCOMPARE(changed.count(), 1);
    const QFont shown = editorOf(edit)->font();
    QCOMPARE(shown.family(), QStringLiteral("DejaVu Serif"));
    QCOMPARE(shown.pixelSize(), 23);
    QVERIFY(shown.bold());
    QVERIFY(shown.italic());
    QVERIFY(shown.strikeOut());
    edit.setTextFillingRule(Fill_Wrap);
    QCOMPARE(editorOf(edit)->font().pixelSize(), 15);
}

void TestTavroEditSettings::wrapModeReachesTheEditor_data()
{
    QTest::addColumn<int>("rule");
    QTest::addColumn<int>("mode");
    QTest::newRow("wrapped") << 0 << int(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTest::newRow("shrunk") << 1 << int(QTextOption::NoWrap);
    QTest::newRow("wrapped and shrunk") << 2 << int(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTest::newRow("one line") << 3 << int(QTextOption::NoWrap);
    QTest::newRow("beyond the rules") << 5 << int(QTextOption::WordWrap);
}

void TestTavroEditSettings::wrapModeReachesTheEditor()
{
    QFETCH(int, rule);
    QFETCH(int, mode);
    TavroEdit edit;
    edit.setTextFillingRule(static_cast<Text_Filling_Rule>(rule));
    QCOMPARE(int(editorOf(edit)->wordWrapMode()), mode);
}

void TestTavroEditSettings::borderColorOfTheEditor()
{
    TavroEdit edit;
    QCOMPARE(editorOf(edit)->styleSheet(), QStringLiteral("TextEdit{border:1px solid #1ba39c;}"));
    edit.setBorderColor(QStringLiteral("#123456"));
    QCOMPARE(editorOf(edit)->styleSheet(), QStringLiteral("TextEdit{border:1px solid #123456;}"));
    QCOMPARE(edit.borderColor(), 0x1BA39CU);
    edit.setBorderColor(0xff0000U);
    QCOMPARE(edit.borderColor(), 0xff0000U);
    QCOMPARE(editorOf(edit)->styleSheet(), QStringLiteral("TextEdit{border:1px solid #123456;}"));
}

void TestTavroEditSettings::leavingInputHidesTheEditor_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0, 2, 7, -1})
        QTest::addRow("mode %d", mode) << mode;
}

void TestTavroEditSettings::leavingInputHidesTheEditor()
{
    QFETCH(int, mode);
    QGraphicsScene scene;
    auto *edit = new TavroEdit;
    scene.addItem(edit);
    edit->setPaintMode(Paint_Input);
    edit->readyForEdit();
    QVERIFY(edit->widgetPrxy()->isVisible());
    bool hiddenBefore = false;
    connect(edit, &TavroEdit::paintModeChanged, edit,
            [&] { hiddenBefore = !edit->widgetPrxy()->isVisible() && !editorOf(*edit)->isVisible(); });
    edit->setPaintMode(static_cast<Paint_Mode>(mode));
    QVERIFY(hiddenBefore);
    QVERIFY(!edit->widgetPrxy()->isVisible());
    QVERIFY(!editorOf(*edit)->isVisible());
    edit->setPaintMode(Paint_Input);
    QVERIFY(!edit->widgetPrxy()->isVisible());
}

void TestTavroEditSettings::editorShownByAListenerIsHiddenAgain()
{
    QGraphicsScene scene;
    auto *edit = new TavroEdit;
    scene.addItem(edit);
    connect(edit, &TavroEdit::paintModeChanged, edit, [edit] { edit->widgetPrxy()->show(); });
    edit->setPaintMode(Paint_Print);
    QVERIFY(!edit->widgetPrxy()->isVisible());
    edit->setPaintMode(Paint_Input);
    QVERIFY(edit->widgetPrxy()->isVisible());
}

void TestTavroEditSettings::inputModeShowsNoEditor()
{
    QGraphicsScene scene;
    auto *edit = new TavroEdit;
    scene.addItem(edit);
    edit->setPaintMode(Paint_Input);
    QVERIFY(edit->isVisible());
    QVERIFY(!edit->widgetPrxy()->isVisible());
    edit->readyForEdit();
    edit->setPaintMode(Paint_Input);
    QVERIFY(edit->widgetPrxy()->isVisible());
}

void TestTavroEditSettings::modeReachesTheBase()
{
    TavroEdit edit;
    edit.setObjVisible(false);
    edit.setObjEnabled(false);
    const QSignalSpy changed(&edit, &TavroEdit::paintModeChanged);
    edit.setPaintMode(Paint_Input);
    QCOMPARE(edit.paintMode(), Paint_Input);
    QVERIFY(!edit.isVisible());
    QVERIFY(!edit.isEnabled());
    QVERIFY(!(edit.flags() & QGraphicsItem::ItemIsMovable));
    edit.setPaintMode(Paint_Print);
    QCOMPARE(edit.paintMode(), Paint_Print);
    edit.setPaintMode(Paint_Design);
    QVERIFY(edit.isVisible());
    QCOMPARE(changed.count(), 3);
}

void TestTavroEditSettings::worksWithoutTheEditor_data()
{
    QTest::addColumn<Change>("destroy");
    QTest::newRow("editor destroyed") << Change([](TavroEdit &edit) { delete editorOf(edit); });
    QTest::newRow("proxy destroyed") << Change([](TavroEdit &edit) { delete edit.widgetPrxy(); });
    QTest::newRow("proxy destroyed while editing") << Change([](TavroEdit &edit) {
        edit.readyForEdit();
        delete edit.widgetPrxy();
    });
}

void TestTavroEditSettings::worksWithoutTheEditor()
{
    QFETCH(Change, destroy);
    QGraphicsScene scene;
    auto *edit = new TavroEdit;
    scene.addItem(edit);
    edit->setPaintMode(Paint_Input);
    destroy(*edit);
    QVERIFY(!edit->widgetPrxy());
    QVERIFY(!edit->focusProxy());
    edit->setFormatType(Format_RmbCapital);
    edit->setContentData(QStringLiteral("1"));
    QCOMPARE(edit->displayText(), QStringLiteral("壹元整"));
    edit->syncContentData();
    QCOMPARE(edit->contentData(), QVariant(QStringLiteral("1")));
    edit->setPresetData(QStringLiteral("2"));
    edit->setPrefix(QStringLiteral("¥"));
    edit->setBoundingRect({0, 0, 100, 20});
    edit->setFont(QFont());
    edit->setBorderColor(QStringLiteral("red"));
    edit->setTextFillingRule(Fill_Wrap);
    edit->adjustTextStyle();
    edit->syncTextEditContent();
    edit->syncTextEditGeometry();
    edit->syncTextEditFont();
    edit->renew();
    QCOMPARE(edit->displayText(), QStringLiteral("贰元整"));
    for (const Paint_Mode mode : {Paint_Print, Paint_Input, Paint_Design})
        edit->setPaintMode(mode);
    edit->readyForEdit();
    QFocusEvent focus(QEvent::FocusIn);
    scene.sendEvent(edit, &focus);
    QCoreApplication::processEvents();
    QCOMPARE(edit->formatType(), Format_RmbCapital);
}

QTEST_MAIN(TestTavroEditSettings)
#include "tst_tavroeditsettings.moc"

// SPDX-License-Identifier: MIT
// Editing in place, through a shown view.
#include "entry/tavroedit.h"
#include "entry/textedit.h"
#include "tests/entry/formview.h"
#include "tests/entry/keytable.h"
#include "tests/support/stricttest.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <memory>

using keytable::Keys;

namespace {

const QRectF Field(20, 20, 200, 30);

// Why a widget was given the keyboard.
class FocusReasons : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn)
            m_heard.append(static_cast<QFocusEvent *>(event)->reason());
        return false;
    }
    QVector<Qt::FocusReason> heard() const { return m_heard; }

private:
    QVector<Qt::FocusReason> m_heard;
};

} // namespace

class TestTavroEditEditing : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void clickOpensTheEditorInInputMode_data();
    void clickOpensTheEditorInInputMode();
    void clickOpensNoEditorOf_data();
    void clickOpensNoEditorOf();
    void openedEditorStandsBehindTheText();
    void openedEditorCoversTheFieldWithinItsBorder();
    void clickOpensTheUppermostField();
    void clickSelectsInDesignMode();
    void clickSelectsInInputModeWhereTheHostLetsIt();
    void focusOpensTheEditor_data();
    void focusOpensTheEditor();
    void readOnlyFieldsStayClosed();
    void openingSelectsAllBeforeTheCursorMoves();
    void openingGivesTheFocusForNoParticularReason();
    void openingSelectsNothing();
    void openingChangesNothing();
    void keysPerFormat_data() { keytable::addRows(); }
    void keysPerFormat();
    void typedAmountIsShownInWords();
    void acceptedKeysAreAnnouncedOnce();
    void refusedKeysAreNotAnnounced_data();
    void refusedKeysAreNotAnnounced();
    void typedUserPatternIsChecked();
    void pastedTextIsNotFiltered_data();
    void pastedTextIsNotFiltered();
    void tabGoesToTheNextOpenField();
    void tabLeavesTheLastField();
    void focusMayLeaveWithTheEditorShown();
    void leavingInputModeEndsTyping();
    void deletedWhileEditing();
    void sceneClearedWhileEditing();
    void windowClosedWhileEditing();
    void deletedLaterByAListener();
};

void TestTavroEditEditing::clickOpensTheEditorInInputMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("opens");
    QTest::newRow("design") << 0 << false;
    QTest::newRow("input") << 1 << true;
    QTest::newRow("print") << 2 << false;
    QTest::newRow("beyond the modes") << 7 << false;
}

void TestTavroEditEditing::clickOpensTheEditorInInputMode()
{
    QFETCH(int, mode);
    QFETCH(bool, opens);
    FormView form;
    QVERIFY(form.isActive());
    const auto *edit = form.add<TavroEdit>(Field, static_cast<Paint_Mode>(mode));
    form.click(edit);
    QCOMPARE(edit->widgetPrxy()->isVisible(), opens);
    QCOMPARE(FormView::isEdited(edit), opens);
    QCOMPARE(form.scene().focusItem() == edit->widgetPrxy(), opens);
}

void TestTavroEditEditing::clickOpensNoEditorOf_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("disabled field") << false << true << false;
    QTest::newRow("invisible field") << true << false << false;
    QTest::newRow("read-only field") << true << true << true;
}

void TestTavroEditEditing::clickOpensNoEditorOf()
{
    QFETCH(bool, enabled);
    QFETCH(bool, visible);
    QFETCH(bool, readOnly);
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Design);
    edit->setObjEnabled(enabled);
    edit->setObjVisible(visible);
    edit->setIsReadOnly(readOnly);
    edit->setPaintMode(Paint_Input);
    form.click(edit);
    QVERIFY(!edit->widgetPrxy()->isVisible());
    QVERIFY(!form.scene().focusItem());
}

void TestTavroEditEditing::openedEditorStandsBehindTheText()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    edit->setContentData(QStringLiteral("12\n34"));
    form.click(edit);
    QCOMPARE(FormView::editorOf(edit)->textCursor().position(), 5);
    QVERIFY(!FormView::editorOf(edit)->textCursor().hasSelection());
}

void TestTavroEditEditing::openedEditorCoversTheFieldWithinItsBorder()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(QRectF(20, 20, 60, 12), Paint_Input);
    form.click(edit);
    QCoreApplication::processEvents();
    QCOMPARE(edit->widgetPrxy()->sceneBoundingRect(), QRectF(21, 21, 58, 10));
    QCOMPARE(FormView::editorOf(edit)->size(), QSize(58, 10));
}

void TestTavroEditEditing::clickOpensTheUppermostField()
{
    FormView form;
    QVERIFY(form.isActive());
    const auto *below = form.add<TavroEdit>(Field, Paint_Input);
    const auto *above = form.add<TavroEdit>(Field.translated(50, 10), Paint_Input);
    form.click(QPointF(100, 40));
    QVERIFY(FormView::isEdited(above));
    QVERIFY(!below->widgetPrxy()->isVisible());
}

void TestTavroEditEditing::clickSelectsInDesignMode()
{
    FormView form;
    QVERIFY(form.isActive());
    const auto *edit = form.add<TavroEdit>(Field, Paint_Design);
    form.click(edit);
    QVERIFY(edit->isSelected());
}

void TestTavroEditEditing::clickSelectsInInputModeWhereTheHostLetsIt()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    form.click(edit);
    QVERIFY(!edit->isSelected());
    edit->widgetPrxy()->hide();
    edit->setFlag(QGraphicsItem::ItemIsSelectable);
    // the press already selects, not the release only
    QTest::mousePress(form.view()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      form.view()->mapFromScene(Field.center()));
    QVERIFY(edit->isSelected());
    QVERIFY(FormView::isEdited(edit));
}

void TestTavroEditEditing::focusOpensTheEditor_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0, 1, 2, 7})
        QTest::addRow("mode %d", mode) << mode;
}

void TestTavroEditEditing::focusOpensTheEditor()
{
    QFETCH(int, mode);
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, static_cast<Paint_Mode>(mode));
    QFocusEvent event(QEvent::FocusIn, Qt::TabFocusReason);
    form.scene().sendEvent(edit, &event);
    QVERIFY(FormView::isEdited(edit));
}

void TestTavroEditEditing::readOnlyFieldsStayClosed()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    edit->setIsReadOnly(true);
    edit->readyForEdit();
    QFocusEvent event(QEvent::FocusIn, Qt::TabFocusReason);
    form.scene().sendEvent(edit, &event);
    QVERIFY(!edit->widgetPrxy()->isVisible());
    QVERIFY(!form.scene().focusItem());
    edit->setIsReadOnly(false);
    edit->readyForEdit();
    QVERIFY(FormView::isEdited(edit));
}

void TestTavroEditEditing::openingSelectsAllBeforeTheCursorMoves()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    edit->setContentData(QStringLiteral("123"));
    QStringList selections;
    const TextEdit *editor = FormView::editorOf(edit);
    connect(editor, &TextEdit::selectionChanged, edit,
            [&selections, editor] { selections << editor->textCursor().selectedText(); });
    edit->readyForEdit();
    QCOMPARE(selections, QStringList({QStringLiteral("123"), QString()}));
}

void TestTavroEditEditing::openingGivesTheFocusForNoParticularReason()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    FocusReasons reasons;
    FormView::editorOf(edit)->installEventFilter(&reasons);
    edit->readyForEdit();
    QCOMPARE(reasons.heard(), QVector<Qt::FocusReason>({Qt::OtherFocusReason}));
}

void TestTavroEditEditing::openingSelectsNothing()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    edit->setContentData(QStringLiteral("123"));
    edit->readyForEdit();
    QTest::keyClick(form.view(), Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(FormView::editorOf(edit)->textCursor().selectedText(), QStringLiteral("3"));
    edit->readyForEdit();
    QVERIFY(!FormView::editorOf(edit)->textCursor().hasSelection());
    QTest::keyClick(form.view(), Qt::Key_4);
    QCOMPARE(edit->contentData(), QVariant(QStringLiteral("1234")));
}

void TestTavroEditEditing::openingChangesNothing()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    edit->setContentData(12345.67);
    const QSignalSpy changed(edit, &TavroEdit::contentDataChanged);
    form.click(edit);
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 0);
    QCOMPARE(edit->contentData(), QVariant(12345.67));
}

void TestTavroEditEditing::keysPerFormat()
{
    QFETCH(int, format);
    QFETCH(QString, before);
    QFETCH(Keys, keys);
    QFETCH(QString, after);
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(QRectF(20, 20, 200, 60), Paint_Input);
    edit->setFormatType(static_cast<Input_Format>(format));
    edit->setContentData(before);
    form.click(edit);
    keytable::type(form.view(), keys);
    QCOMPARE(FormView::editorOf(edit)->toPlainText(), after);
    QCOMPARE(edit->contentData(), QVariant(after));
}

void TestTavroEditEditing::typedAmountIsShownInWords()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    edit->setFormatType(Format_RmbCapital);
    form.click(edit);
    QStringList shown;
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_0, Qt::Key_Period, Qt::Key_5, Qt::Key_0, Qt::Key_7}) {
        QTest::keyClick(form.view(), key);
        shown << edit->displayText();
    }
    QCOMPARE(shown, QStringList({QStringLiteral("壹元整"), QStringLiteral("壹拾元整"), QStringLiteral("壹拾元整"),
                                 QStringLiteral("壹拾元伍角整"), QStringLiteral("壹拾元伍角整"),
                                 QStringLiteral("壹拾元伍角整")}));
    QCOMPARE(edit->contentData(), QVariant(QStringLiteral("10.50")));
}

void TestTavroEditEditing::acceptedKeysAreAnnouncedOnce()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    edit->setFormatType(Format_RmbCapital);
    form.click(edit);
    const QSignalSpy changed(edit, &TavroEdit::contentDataChanged);
    const QSignalSpy invalid(edit, &TavroEdit::invalidDataOccured);
    QTest::keyClick(form.view(), Qt::Key_1);
    QTest::keyClick(form.view(), Qt::Key_2);
    QCOMPARE(changed.count(), 2);
    QTest::keyClick(form.view(), Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(form.view(), Qt::Key_7);
    QCOMPARE(changed.count(), 3);
    QCOMPARE(edit->contentData(), QVariant(QStringLiteral("17")));
    QCOMPARE(invalid.count(), 0);
    QTest::keyClick(form.view(), Qt::Key_Backspace);
    QTest::keyClick(form.view(), Qt::Key_Backspace);
    QCOMPARE(changed.count(), 5);
    QCOMPARE(invalid.count(), 1);
}

void TestTavroEditEditing::refusedKeysAreNotAnnounced_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("key");
    QTest::newRow("third decimal") << QStringLiteral("1.23") << 0 << int(Qt::Key_4);
    QTest::newRow("third decimal behind the point") << QStringLiteral("1.23") << 2 << int(Qt::Key_4);
    QTest::newRow("eleventh digit") << QStringLiteral("1234567890") << 0 << int(Qt::Key_1);
    QTest::newRow("eleventh digit at the front") << QStringLiteral("1234567890") << 10 << int(Qt::Key_1);
    QTest::newRow("second point") << QStringLiteral("1.2") << 1 << int(Qt::Key_Period);
}

void TestTavroEditEditing::refusedKeysAreNotAnnounced()
{
    QFETCH(QString, before);
    QFETCH(int, steps);
    QFETCH(int, key);
    for (const Input_Format format : {Format_RmbCapital, Format_EnglishAmount, Format_Customized}) {
        FormView form;
        QVERIFY(form.isActive());
        auto *edit = form.add<TavroEdit>(Field, Paint_Input);
        edit->setFormatType(format);
        edit->setContentData(before);
        const QString shown = edit->displayText();
        form.click(edit);
        for (int i = 0; i < steps; ++i)
            QTest::keyClick(form.view(), Qt::Key_Left);
        const QSignalSpy typed(FormView::editorOf(edit), &TextEdit::textChanged);
        const QSignalSpy changed(edit, &TavroEdit::contentDataChanged);
        const QSignalSpy invalid(edit, &TavroEdit::invalidDataOccured);
        QTest::keyClick(form.view(), static_cast<Qt::Key>(key));
        QCOMPARE(FormView::editorOf(edit)->toPlainText(), before);
        QCOMPARE(FormView::editorOf(edit)->textCursor().position(), before.size());
        QCOMPARE(edit->contentData(), QVariant(before));
        QCOMPARE(edit->displayText(), shown);
        QCOMPARE(typed.count(), 0);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(invalid.count(), 0);
    }
}

void TestTavroEditEditing::typedUserPatternIsChecked()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    edit->setUsrRegExpPattern(QStringLiteral("[0-9]{2}"));
    form.click(edit);
    const QSignalSpy invalid(edit, &TavroEdit::invalidDataOccured);
    QTest::keyClick(form.view(), Qt::Key_1);
    QCOMPARE(invalid.count(), 1);
    QCOMPARE(edit->displayText(), QString());
    QTest::keyClick(form.view(), Qt::Key_2);
    QCOMPARE(invalid.count(), 1);
    QCOMPARE(edit->displayText(), QStringLiteral("12"));
}

void TestTavroEditEditing::pastedTextIsNotFiltered_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("shown");
    QTest::newRow("negative") << QStringLiteral("-5") << true << QStringLiteral("负伍元整");
    QTest::newRow("three decimals") << QStringLiteral("1.239") << true << QStringLiteral("壹元贰角叁分");
    QTest::newRow("letters") << QStringLiteral("abc") << false << QString();
    QTest::newRow("eleven digits") << QStringLiteral("12345678901") << false << QString();
}

void TestTavroEditEditing::pastedTextIsNotFiltered()
{
    QFETCH(QString, pasted);
    QFETCH(bool, valid);
    QFETCH(QString, shown);
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    edit->setFormatType(Format_RmbCapital);
    form.click(edit);
    const QSignalSpy invalid(edit, &TavroEdit::invalidDataOccured);
    QApplication::clipboard()->setText(pasted);
    QTest::keyClick(form.view(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(edit->contentData(), QVariant(pasted));
    QCOMPARE(edit->displayText(), shown);
    QCOMPARE(invalid.count(), valid ? 0 : 1);
}

void TestTavroEditEditing::tabGoesToTheNextOpenField()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *first = form.add<TavroEdit>(Field, Paint_Input);
    auto *second = form.add<TavroEdit>(Field.translated(0, 100), Paint_Input);
    second->readyForEdit();
    first->readyForEdit();
    QVERIFY(FormView::isEdited(first));
    QTest::keyClick(form.view(), Qt::Key_Tab);
    QVERIFY(FormView::isEdited(second));
    QTest::keyClick(form.view(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(FormView::isEdited(first));
    QCOMPARE(FormView::editorOf(first)->toPlainText(), QString());
    QCOMPARE(FormView::editorOf(second)->toPlainText(), QString());
}

void TestTavroEditEditing::tabLeavesTheLastField()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    QGraphicsScene scene;
    auto *view = new QGraphicsView(&scene);
    auto *next = new QLineEdit;
    layout->addWidget(view);
    layout->addWidget(next);
    auto *edit = new TavroEdit;
    edit->setPaintMode(Paint_Input);
    scene.addItem(edit);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    view->setFocus();
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        view->setFocus();
        edit->readyForEdit();
        QVERIFY(FormView::isEdited(edit));
        QTest::keyClick(view, key);
        QVERIFY(next->hasFocus());
        QCOMPARE(edit->contentData(), QVariant());
    }
}

void TestTavroEditEditing::focusMayLeaveWithTheEditorShown()
{
    FormView form;
    QVERIFY(form.isActive());
    const auto *first = form.add<TavroEdit>(Field, Paint_Input);
    const auto *second = form.add<TavroEdit>(Field.translated(0, 100), Paint_Input);
    form.click(first);
    form.click(second);
    QVERIFY(FormView::isEdited(second));
    QVERIFY(!FormView::isEdited(first));
    QVERIFY(first->widgetPrxy()->isVisible());
}

void TestTavroEditEditing::leavingInputModeEndsTyping()
{
    for (const Paint_Mode mode : {Paint_Design, Paint_Print}) {
        FormView form;
        QVERIFY(form.isActive());
        auto *edit = form.add<TavroEdit>(Field, Paint_Input);
        form.click(edit);
        QTest::keyClick(form.view(), Qt::Key_1);
        edit->setPaintMode(mode);
        QTest::keyClick(form.view(), Qt::Key_2);
        QCOMPARE(edit->contentData(), QVariant(QStringLiteral("1")));
        QVERIFY(!form.scene().focusItem());
    }
}

void TestTavroEditEditing::deletedWhileEditing()
{
    FormView form;
    QVERIFY(form.isActive());
    const QPointer<TavroEdit> edit = form.add<TavroEdit>(Field, Paint_Input);
    const QPointer<TextEdit> editor = FormView::editorOf(edit);
    form.click(edit);
    QTest::keyClick(form.view(), Qt::Key_1);
    delete edit;
    QVERIFY(!editor);
    QTest::keyClick(form.view(), Qt::Key_2);
    form.click(Field.center());
    QCoreApplication::processEvents();
    QVERIFY(!form.scene().focusItem());
    QVERIFY(form.scene().items().isEmpty());
}

void TestTavroEditEditing::sceneClearedWhileEditing()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    const QPointer<TextEdit> editor = FormView::editorOf(edit);
    form.click(edit);
    QVERIFY(FormView::isEdited(edit));
    form.scene().clear();
    QVERIFY(!editor);
    QTest::keyClick(form.view(), Qt::Key_2);
    QCoreApplication::processEvents();
    QVERIFY(!form.scene().focusItem());
}

void TestTavroEditEditing::windowClosedWhileEditing()
{
    auto form = std::make_unique<FormView>();
    QVERIFY(form->isActive());
    auto *edit = form->add<TavroEdit>(Field, Paint_Input);
    const QPointer<TextEdit> editor = FormView::editorOf(edit);
    edit->setContentData(QStringLiteral("1"));
    form->click(edit);
    QVERIFY(FormView::isEdited(edit));
    form.reset();
    QVERIFY(!editor);
    QCoreApplication::processEvents();
}

void TestTavroEditEditing::deletedLaterByAListener()
{
    FormView form;
    QVERIFY(form.isActive());
    const QPointer<TavroEdit> edit = form.add<TavroEdit>(Field, Paint_Input);
    connect(edit, &TavroEdit::contentDataChanged, edit, &QObject::deleteLater);
    form.click(edit);
    QTest::keyClick(form.view(), Qt::Key_1);
    QTRY_VERIFY(!edit);
}

QTEST_MAIN(TestTavroEditEditing)
#include "tst_tavroeditediting.moc"

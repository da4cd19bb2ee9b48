// SPDX-License-Identifier: MIT
#include "entry/tavrolabel.h"
#include "entry/textedit.h"
#include "tests/entry/amountcases.h"
#include "tests/entry/formview.h"
#include "tests/support/recordingpaintengine.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>
#include <QStyleOptionGraphicsItem>
#include <QTest>

namespace {

const QRectF Field(20, 20, 200, 30);

QVector<PaintCommand> painted(TavroEdit &edit)
{
    RecordingDevice device;
    QPainter painter(&device);
    const QStyleOptionGraphicsItem option;
    edit.paint(&painter, &option, nullptr);
    return device.commands();
}

} // namespace

class TestTavroLabel : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsAnEditOfItsOwnKind();
    void showsWhatAnEditShows_data();
    void showsWhatAnEditShows();
    void clickOpensNoEditor_data();
    void clickOpensNoEditor();
    void clickSelectsAsTheModeAllows_data();
    void clickSelectsAsTheModeAllows();
    void dragMovesInDesignMode();
    void clickIsLeftToTheFieldBelow();
    void focusOpensTheEditor();
    void paintsLikeAnEdit_data();
    void paintsLikeAnEdit();
    void renewsLikeAnEdit();
};

void TestTavroLabel::startsAsAnEditOfItsOwnKind()
{
    QGraphicsRectItem parent;
    const TavroLabel label(&parent);
    QCOMPARE(label.objType(), Obj_Label);
    QCOMPARE(int(label.objType()), 7);
    QCOMPARE(label.parentItem(), static_cast<QGraphicsItem *>(&parent));
    QCOMPARE(label.metaObject()->className(), "TavroLabel");
    QVERIFY(label.isModified());
    QCOMPARE(label.formatType(), Format_Text);
    QVERIFY(label.isZeroClear());
    QCOMPARE(label.customizedFormat(), QStringLiteral("#,##0.00"));
    QVERIFY(label.widgetPrxy());
    QVERIFY(!label.widgetPrxy()->isVisible());
    QCOMPARE(label.focusProxy(), label.widgetPrxy());
    QVERIFY(FormView::editorOf(&label));
    QCOMPARE(label.metaObject()->methodCount(), TavroEdit::staticMetaObject.methodCount());
}

void TestTavroLabel::showsWhatAnEditShows_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QVariant>("content");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("shown");
    std::vector<amountcases::Shown> cases = amountcases::acceptedAmounts();
    for (const amountcases::Shown &shown : amountcases::refusedAmounts())
        cases.push_back(shown);
    for (const amountcases::Shown &shown : cases) {
        for (int format = 0; format <= 11; ++format)
            QTest::addRow("%s, format %d", shown.name, format)
                << format << shown.content << (shown.in(format) != amountcases::Bad)
                << QString::fromUtf8(shown.in(format));
    }
}

void TestTavroLabel::showsWhatAnEditShows()
{
    QFETCH(int, format);
    QFETCH(QVariant, content);
    QFETCH(bool, valid);
    QFETCH(QString, shown);
    TavroLabel label;
    const QSignalSpy invalid(&label, &TavroEdit::invalidDataOccured);
    label.setFormatType(static_cast<Input_Format>(format));
    label.setContentData(content);
    QCOMPARE(label.displayText(), shown);
    QCOMPARE(invalid.count(), valid ? 0 : 1);
}

void TestTavroLabel::clickOpensNoEditor_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("design") << 0;
    QTest::newRow("input") << 1;
    QTest::newRow("print") << 2;
    QTest::newRow("beyond the modes") << 7;
}

void TestTavroLabel::clickOpensNoEditor()
{
    QFETCH(int, mode);
    FormView form;
    QVERIFY(form.isActive());
    const auto *label = form.add<TavroLabel>(Field, static_cast<Paint_Mode>(mode));
    form.click(label);
    QVERIFY(!label->widgetPrxy()->isVisible());
    QVERIFY(!form.scene().focusItem());
    QTest::keyClick(form.view(), Qt::Key_1);
    QCOMPARE(label->contentData(), QVariant());
}

void TestTavroLabel::clickSelectsAsTheModeAllows_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("selects");
    QTest::newRow("design") << 0 << true;
    QTest::newRow("input") << 1 << false;
    QTest::newRow("print") << 2 << false;
}

void TestTavroLabel::clickSelectsAsTheModeAllows()
{
    QFETCH(int, mode);
    QFETCH(bool, selects);
    FormView form;
    QVERIFY(form.isActive());
    auto *label = form.add<TavroLabel>(Field, static_cast<Paint_Mode>(mode));
    form.click(label);
    QCOMPARE(label->isSelected(), selects);
    // a host may let fields be picked while they are filled in
    label->setFlag(QGraphicsItem::ItemIsSelectable);
    form.click(label);
    QVERIFY(label->isSelected());
    QVERIFY(!label->widgetPrxy()->isVisible());
}

void TestTavroLabel::dragMovesInDesignMode()
{
    for (const Paint_Mode mode : {Paint_Design, Paint_Input}) {
        FormView form;
        QVERIFY(form.isActive());
        const auto *label = form.add<TavroLabel>(Field, mode);
        QWidget *viewport = form.view()->viewport();
        const QPoint from = form.view()->mapFromScene(Field.center());
        const QPoint to = from + QPoint(30, 40);
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, from);
        QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, to);
        QCOMPARE(label->pos(), mode == Paint_Design ? QPointF(30, 40) : QPointF(0, 0));
        QVERIFY(!label->widgetPrxy()->isVisible());
    }
}

void TestTavroLabel::clickIsLeftToTheFieldBelow()
{
    FormView form;
    QVERIFY(form.isActive());
    const auto *edit = form.add<TavroEdit>(Field, Paint_Input);
    const auto *label = form.add<TavroLabel>(Field, Paint_Input);
    form.click(label);
    QVERIFY(FormView::isEdited(edit));
    QVERIFY(!label->widgetPrxy()->isVisible());
}

void TestTavroLabel::focusOpensTheEditor()
{
    FormView form;
    QVERIFY(form.isActive());
    auto *label = form.add<TavroLabel>(Field, Paint_Input);
    QFocusEvent event(QEvent::FocusIn, Qt::TabFocusReason);
    form.scene().sendEvent(label, &event);
    QVERIFY(FormView::isEdited(label));
    QTest::keyClick(form.view(), Qt::Key_1);
    QCOMPARE(label->contentData(), QVariant(QStringLiteral("1")));
    QCOMPARE(label->displayText(), QStringLiteral("1"));
}

void TestTavroLabel::paintsLikeAnEdit_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("content");
    QTest::addColumn<int>("count");
    QTest::newRow("design") << 0 << QStringLiteral("5") << 3;
    QTest::newRow("input") << 1 << QStringLiteral("5") << 3;
    QTest::newRow("input, placeholder") << 1 << QString() << 3;
    QTest::newRow("print") << 2 << QStringLiteral("5") << 1;
}

void TestTavroLabel::paintsLikeAnEdit()
{
    QFETCH(int, mode);
    QFETCH(QString, content);
    QFETCH(int, count);
    TavroEdit edit;
    TavroLabel label;
    for (TavroEdit *object : {&edit, static_cast<TavroEdit *>(&label)}) {
        object->setFontFamily(QStringLiteral("DejaVu Sans"));
        object->setBoundingRect(Field);
        object->setFormatType(Format_EnglishAmount);
        object->setPlaceholder(QStringLiteral("hint"));
        object->setContentData(content);
        object->setPaintMode(static_cast<Paint_Mode>(mode));
    }
    const QVector<PaintCommand> expected = painted(edit);
    const QVector<PaintCommand> commands = painted(label);
    QCOMPARE(expected.size(), count);
    QCOMPARE(commands.size(), expected.size());
    for (int i = 0; i < commands.size(); ++i) {
        QCOMPARE(commands[i].kind, expected[i].kind);
        QCOMPARE(commands[i].rect, expected[i].rect);
        QCOMPARE(commands[i].text, expected[i].text);
        QCOMPARE(commands[i].pen, expected[i].pen);
        QCOMPARE(commands[i].font, expected[i].font);
    }
}

void TestTavroLabel::renewsLikeAnEdit()
{
    TavroLabel label;
    label.setPresetData(QStringLiteral("preset"));
    label.setContentData(QStringLiteral("content"));
    label.renew();
    QCOMPARE(label.displayText(), QStringLiteral("preset"));
    label.setFormatType(Format_SerialNumber);
    label.setContentData(QStringLiteral("0099"));
    label.renew();
    QCOMPARE(label.displayText(), QStringLiteral("0100"));
}

QTEST_MAIN(TestTavroLabel)
#include "tst_tavrolabel.moc"

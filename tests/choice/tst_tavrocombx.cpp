// SPDX-License-Identifier: MIT
// A combo box object off screen: its parts, settings, content, fonts, geometry and modes.
#include "tests/choice/combxprobes.h"
#include "tests/support/settingtable.h"
#include "tests/support/stricttest.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <cmath>

using namespace combx;

namespace {

using C = TavroCombx;

QVector<Setting<C>> settings()
{
    constexpr bool marks = true;
    constexpr bool doesNotMark = false;
    const auto setText = [](C &object, const QString &text) { object.setCurrentText(text); };
    const auto setFruits = [](C &object, const QStringList &options) { object.setOptionList(options); };
    return {
        setting<C>("isOptionsFromDB", &C::isOptionsFromDB, &C::setIsOptionsFromDB, true, false, marks),
        setting<C>("optionList", &C::optionList, setFruits, QStringList(), fruits(), marks),
        setting<C>("optionList emptied", &C::optionList, setFruits, QStringList(), QStringList(), marks),
        setting<C>("currentText", &C::currentText, setText, QString(), QStringLiteral("Fig"), doesNotMark),
        setting<C>("currentIndx beyond the options", &C::currentIndx, &C::setCurrentIndx, -1, -1, doesNotMark),
        setting<C>("contentData", &C::contentData, &C::setContentData, QVariant(), QVariant(QStringLiteral("Fig")),
                   doesNotMark),
        setting<C>("presetData", &C::presetData, &C::setPresetData, QVariant(), QVariant(QStringLiteral("Fig")), marks),
        setting<C>("boundingRect", &C::boundingRect, &C::setBoundingRect, QRectF(), QRectF(1, 2, 30, 40), doesNotMark),
        setting<C>("paintMode", &C::paintMode, &C::setPaintMode, Paint_Design, Paint_Input, doesNotMark),
        setting<C>("borderColor", &C::borderColor, QOverload<const unsigned int &>::of(&C::setBorderColor), 0x1BA39Cu,
                   0x123456u, marks),
    };
}

using FontStep = void (*)(TavroCombx &);

} // namespace

Q_DECLARE_METATYPE(FontStep)

class TavroCombxTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void settings_data() { addSettingRows(::settings()); }
    void settings();
    void constructor();
    void styleSheets();
    void borderColors();
    void metaObject();
    void fontsFollow_data();
    void fontsFollow();
    void geometry_data();
    void geometry();
    void showsOnlyInInputMode_data();
    void showsOnlyInInputMode();
};

void TavroCombxTest::settings()
{
    QFETCH(int, index);
    checkSetting(::settings().at(index));
}

void TavroCombxTest::constructor()
{
    QGraphicsRectItem form;
    auto *object = new TavroCombx(&form);
    QCOMPARE(object->parentItem(), &form);
    QCOMPARE(static_cast<int>(object->objType()), 8);
    QCOMPARE(object->isModified(), false);
    QVERIFY(!object->contentData().isValid());

    QGraphicsProxyWidget *proxy = object->widgetPrxy();
    QCOMPARE(proxy->parentItem(), object);
    QCOMPARE(proxy->isVisible(), false);
    QCOMPARE(proxy->minimumSize(), QSizeF(0, 0));
    QCOMPARE(object->focusProxy(), proxy);

    const QComboBox *box = boxOf(*object);
    QVERIFY(box);
    QCOMPARE(box->parentWidget(), nullptr);
    QCOMPARE(box->isEditable(), true);
    QCOMPARE(box->duplicatesEnabled(), true);
    QCOMPARE(box->insertPolicy(), QComboBox::NoInsert);
    QCOMPARE(box->lineEdit()->textMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(box->lineEdit()->font().hintingPreference(), QFont::PreferVerticalHinting);
    QCOMPARE(box->font().pixelSize(), 15);
    QVERIFY(haveFont(*object, object->font()));
    QCOMPARE(box->view()->metaObject(), &QListView::staticMetaObject);
}

void TavroCombxTest::styleSheets()
{
    const TavroCombx object;
    QCOMPARE(boxOf(object)->view()->styleSheet(), QStringLiteral("QAbstractItemView::item {height: 1.1em;}"));
    const QString blanks(29, QLatin1Char(' '));
    QCOMPARE(boxOf(object)->styleSheet(),
             QStringLiteral("QComboBox{") + blanks + QStringLiteral("border: 1px solid #1ba39c;") + blanks +
                 QStringLiteral("border-radius: 3px;") + blanks + QStringLiteral("padding: 1px 1px 1px 1px;}"));
}

void TavroCombxTest::borderColors()
{
    TavroCombx object;
    const QString first = boxOf(object)->styleSheet();
    // The number colours the border of the object, the text that of the combo box.
    object.setBorderColor(0xFF0000u);
    QCOMPARE(object.borderColor(), 0xFF0000u);
    QCOMPARE(boxOf(object)->styleSheet(), first);
    object.setIsModified(false);
    object.setBorderColor(QStringLiteral("rgb(1, 2, 3)"));
    QCOMPARE(object.borderColor(), 0xFF0000u);
    QCOMPARE(object.isModified(), false);
    QString expected = first;
    QCOMPARE(boxOf(object)->styleSheet(), expected.replace(QLatin1String("#1ba39c"), QLatin1String("rgb(1, 2, 3)")));
    object.setBorderColor(QStringLiteral("#1ba39c"));
    QCOMPARE(boxOf(object)->styleSheet(), first);
}

void TavroCombxTest::metaObject()
{
    const QMetaObject &meta = TavroCombx::staticMetaObject;
    QCOMPARE(meta.superClass(), &TavroText::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    const QMetaMethod chosen = meta.method(meta.methodOffset());
    QCOMPARE(chosen.methodSignature(), QByteArray("currentIndexChanged(int,QString,QString)"));
    QCOMPARE(chosen.methodType(), QMetaMethod::Signal);
    for (const char *slot : {"syncContentData()", "onCurrentIndexChanged(int)"}) {
        const int index = meta.indexOfSlot(slot);
        QVERIFY2(index >= meta.methodOffset(), slot);
        QCOMPARE(meta.method(index).access(), QMetaMethod::Public);
    }
}

void TavroCombxTest::fontsFollow_data()
{
    QTest::addColumn<FontStep>("step");
    const auto row = [](const char *name, FontStep step) { QTest::newRow(name) << step; };
    row("family", [](TavroCombx &object) { object.setFontFamily(QStringLiteral("DejaVu Serif")); });
    row("size", [](TavroCombx &object) { object.setFontPtSz(20); });
    row("bold", [](TavroCombx &object) { object.setIsBold(true); });
    row("italic", [](TavroCombx &object) { object.setIsItalic(true); });
    row("strike-out", [](TavroCombx &object) { object.setIsStrikeOut(true); });
    row("font itself", [](TavroCombx &object) {
        QFont font(QStringLiteral("DejaVu Sans Mono"));
        font.setPixelSize(31);
        object.setFont(font);
    });
    row("shrunk to the content", [](TavroCombx &object) { object.setContentData(QString(60, QLatin1Char('m'))); });
    row("shrunk to the text", [](TavroCombx &object) { object.setCurrentText(QString(60, QLatin1Char('m'))); });
    row("shrunk to the prefix", [](TavroCombx &object) { object.setPrefix(QString(60, QLatin1Char('m'))); });
    row("shrunk to the rectangle", [](TavroCombx &object) { object.setBoundingRect({0, 0, 9, 9}); });
}

void TavroCombxTest::fontsFollow()
{
    QFETCH(FontStep, step);
    TavroCombx object;
    object.setBoundingRect({0, 0, 200, 30});
    object.setPhyBoundingRectWidth(50);
    object.setTextFillingRule(Fill_Shrink);
    object.setContentData(QStringLiteral("Fig"));
    const QFont before = object.font();
    QVERIFY(haveFont(object, before));
    step(object);
    QVERIFY(object.font() != before);
    QVERIFY(haveFont(object, object.font()));
    QVERIFY(!haveFont(object, before));
}

void TavroCombxTest::geometry_data()
{
    constexpr double most = (1 << 24) - 1; // of a widget
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("whole") << QRectF(10, 20, 150, 30) << QRectF(10, 20, 150, 30);
    QTest::newRow("halves go up") << QRectF(0.5, 1.5, 100, 20) << QRectF(1, 2, 100, 20);
    QTest::newRow("negative halves go up") << QRectF(-0.5, -1.5, 100, 20) << QRectF(0, -1, 100, 20);
    QTest::newRow("edges, not size") << QRectF(0.4, 0.4, 10.4, 20.2) << QRectF(0, 0, 11, 21);
    QTest::newRow("edges down") << QRectF(0.6, 0.6, 10.6, 20.6) << QRectF(1, 1, 10, 20);
    QTest::newRow("lower than a combo box") << QRectF(0, 0, 30, 8) << QRectF(0, 0, 30, 8);
    QTest::newRow("empty") << QRectF() << QRectF();
    QTest::newRow("negative width") << QRectF(50, 10, -40, 20) << QRectF(50, 10, 0, 20);
    QTest::newRow("negative height") << QRectF(50, 10, 40, -20) << QRectF(50, 10, 40, 0);
    QTest::newRow("huge") << QRectF(-1e12, 1e12, 1e12, 1e12) << QRectF(-1e12, 1e12, most, most);
}

void TavroCombxTest::geometry()
{
    QFETCH(QRectF, rect);
    QFETCH(QRectF, expected);
    TavroCombx object;
    object.setPaintMode(Paint_Input);
    object.setBoundingRect(rect);
    QCOMPARE(object.boundingRect(), rect);
    QCOMPARE(object.widgetPrxy()->geometry(), expected);
    QCOMPARE(QSizeF(boxOf(object)->size()), expected.size());
    if (std::abs(rect.x()) < 1e6 && rect.width() >= 0 && rect.height() >= 0)
        QCOMPARE(object.widgetPrxy()->geometry(), QRectF(rect.toRect()));
    object.setPos(30, 40);
    QCOMPARE(object.widgetPrxy()->pos(), expected.topLeft());
}

void TavroCombxTest::showsOnlyInInputMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("fromHidden");
    QTest::addColumn<bool>("fromShown");
    QTest::newRow("design") << 0 << false << false;
    QTest::newRow("input") << 1 << true << true;
    QTest::newRow("print") << 2 << false << false;
    QTest::newRow("3") << 3 << false << true;
    QTest::newRow("-1") << -1 << false << true;
}

void TavroCombxTest::showsOnlyInInputMode()
{
    QFETCH(int, mode);
    TavroCombx object;
    QSignalSpy modes(&object, &TavroCombx::paintModeChanged);
    object.setPaintMode(static_cast<Paint_Mode>(mode));
    QCOMPARE(static_cast<int>(object.paintMode()), mode);
    QTEST(object.widgetPrxy()->isVisible(), "fromHidden");
    object.setPaintMode(Paint_Input);
    QCOMPARE(boxOf(object)->isVisible(), true);
    object.setPaintMode(static_cast<Paint_Mode>(mode));
    QTEST(object.widgetPrxy()->isVisible(), "fromShown");
    QTEST(boxOf(object)->isVisible(), "fromShown");
    QCOMPARE(modes.count(), 3);
}

QTEST_MAIN(TavroCombxTest)
#include "tst_tavrocombx.moc"

// SPDX-License-Identifier: MIT
#include "core/tavrotext.h"
#include "core/textfitting.h"
#include "tests/support/itemprobes.h"
#include "tests/support/settingtable.h"
#include "tests/support/stricttest.h"

#include <QSignalBlocker>
#include <functional>

namespace {

using T = TavroText;

const QString Song = QStringLiteral("宋体");
const QString DejaVu = QStringLiteral("DejaVu Sans");
const QString Sentence = QStringLiteral("Pay to the order of the Harbour Trading Company");

// Counts what kinds override.
class CountingText : public TavroText
{
public:
    void adjustTextStyle() override
    {
        ++refits;
        TavroText::adjustTextStyle();
    }
    void setFont(const QFont &font) override
    {
        ++fonts;
        TavroText::setFont(font);
    }

    int refits = 0;
    int fonts = 0;
};

// Everything that the signals of the text settings tell about.
QVariantList stateOf(const TavroText &text)
{
    return {text.font(),   text.fontFamily(),    text.fontPtSz(),      text.fontPixSz(),
            text.prefix(), int(text.horAlign()), int(text.verAlign()), text.textFillingRule()};
}

using Signal = void (T::*)();

// The object as a listener finds it when it is told of a change.
struct Heard
{
    Heard(const TavroText &text, Signal signal)
    {
        QObject::connect(&text, signal, [this, &text] {
            ++times;
            marked = text.isModified();
            state = stateOf(text);
            font = text.font();
        });
    }
    Q_DISABLE_COPY_MOVE(Heard)

    int times = 0;
    bool marked = false;
    QVariantList state;
    QFont font;
};

// A text object whose field is 200 by 20 px, in a font that is installed.
void prepare(TavroText &text, Text_Filling_Rule rule)
{
    text.setFontFamily(DejaVu);
    text.setTextFillingRule(rule);
    text.setBoundingRect(QRectF(0, 0, 200, 20));
}

QFont propertyFont(const QString &family, int pixels)
{
    QFont font;
    font.setFamily(family);
    font.setPixelSize(pixels);
    font.setWeight(50);
    return font;
}

template <typename Value, typename Getter, typename Setter>
Setting<T> of(const char *name, Getter get, Setter set, const Value &initial, const Value &written, bool marks = true)
{
    return setting<T>(name, get, set, initial, written, marks);
}

QVector<Setting<T>> settings()
{
    return {
        of<Text_Filling_Rule>("textFillingRule", &T::textFillingRule, &T::setTextFillingRule, Fill_WrapShrink,
                              Fill_NoWrap),
        of<QString>("prefix", &T::prefix, &T::setPrefix, {}, QStringLiteral("No. ")),
        of<Qt::Alignment>("horAlign", &T::horAlign, &T::setHorAlign, Qt::AlignLeft, Qt::AlignRight),
        of<Qt::Alignment>("verAlign", &T::verAlign, &T::setVerAlign, Qt::AlignVCenter, Qt::AlignTop),
        of<QFont>("font", &T::font, &T::setFont, propertyFont(Song, 15), QFont(DejaVu, 33), false),
        of<QString>("fontFamily", &T::fontFamily, &T::setFontFamily, Song, DejaVu),
        of<double>("fontPtSz", &T::fontPtSz, &T::setFontPtSz, 9.0, 10.5),
        of<bool>("isBold", &T::isBold, &T::setIsBold, false, true),
        of<bool>("isItalic", &T::isItalic, &T::setIsItalic, false, true),
        of<bool>("isUnderline", &T::isUnderline, &T::setIsUnderline, false, true),
        of<bool>("isStrikeOut", &T::isStrikeOut, &T::setIsStrikeOut, false, true),
        of<unsigned>("fontColor", &T::fontColor, &T::setFontColor, 0U, 0x123456U),
        of<QVariant>("contentData", &T::contentData, &T::setContentData, {}, Sentence, false),
        of<QRectF>("boundingRect", &T::boundingRect, &T::setBoundingRect, {}, {1, 2, 3, 4}, false),
    };
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(TavroText &)>)
Q_DECLARE_METATYPE(Signal)

/// Text settings, the filling rules and the drawing font.
class TestTavroText : public StrictTest
{
    Q_OBJECT

    using Operation = std::function<void(TavroText &)>;

private Q_SLOTS:
    void ruleNumbers();
    void construction();
    void settings_data() { addSettingRows(::settings()); }
    void settings();
    void setterEffects_data();
    void setterEffects();
    void fontDetails();
    void underlineIsStoredOnly();
    void fillingRules_data();
    void fillingRules();
    void ruleBeyond();
    void shrinksPrefixAndValue_data();
    void shrinksPrefixAndValue();
    void emptyTextKeepsTheSize();
    void refitsOnChange_data();
    void refitsOnChange();
    void fittedFonts();
    void countsLines();
    void textOptions_data();
    void textOptions();
    void signalsAreBlockedDuringRefit();
    void hostsBlockStays();
    void pointSizeDoesNotRefit();
    void pixelSizeKeepsTheRestOfTheFont();
    void fitsStartAtThePixelSize_data();
    void fitsStartAtThePixelSize();
    void conversionsAreAsymmetric();
    void signalsBeforeTheMark_data();
    void signalsBeforeTheMark();
    void baseSignalsBeforeTheRefit();
    void paintsTheBase();
    void refitRepaints();
};

void TestTavroText::ruleNumbers()
{
    QCOMPARE(static_cast<int>(Fill_Wrap), 0);
    QCOMPARE(static_cast<int>(Fill_Shrink), 1);
    QCOMPARE(static_cast<int>(Fill_WrapShrink), 2);
    QCOMPARE(static_cast<int>(Fill_NoWrap), 3);
}

void TestTavroText::construction()
{
    const TavroText text;
    QCOMPARE(text.objType(), Obj_None);
    QCOMPARE(text.type(), 65535);
    QCOMPARE(text.isModified(), false);
    QCOMPARE(text.fontPixSz(), 15);
    QCOMPARE(text.fontPtSz(), 9.0);
    QCOMPARE(text.lineCount(), 1); // the first fit lays the empty text out in one line
    QCOMPARE(text.font().family(), Song);
    QCOMPARE(text.font().pixelSize(), 15);
    QCOMPARE(text.font().weight(), 50);
    QCOMPARE(text.font().pointSize(), -1);
    QCOMPARE(static_cast<int>(text.horAlign()), 1);
    QCOMPARE(static_cast<int>(text.verAlign()), 0x80);
}

void TestTavroText::settings()
{
    QFETCH(int, index);
    checkSetting(::settings().at(index));
}

void TestTavroText::setterEffects_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QStringList>("told");
    QTest::addColumn<int>("refits");
    QTest::addColumn<int>("fonts");

    const auto row = [](const char *name, const Operation &operation, const QString &told, int refits, int fonts) {
        QTest::newRow(name) << operation << told.split(QLatin1Char(' '), Qt::SkipEmptyParts) << refits << fonts;
    };
    row(
        "filling rule", [](T &t) { t.setTextFillingRule(Fill_NoWrap); }, QStringLiteral("textFillingRule"), 1, 1);
    row(
        "prefix", [](T &t) { t.setPrefix(Sentence); }, QStringLiteral("prefix"), 1, 1);
    row(
        "font", [](T &t) { t.setFont(QFont()); }, QStringLiteral("font"), 0, 1);
    row(
        "family", [](T &t) { t.setFontFamily(DejaVu); }, QStringLiteral("fontFamily"), 1, 1);
    row(
        "point size", [](T &t) { t.setFontPtSz(9); }, QStringLiteral("font fontPtSz"), 0, 1);
    row(
        "pixel size in step", [](T &t) { t.syncFontPixSz(); }, QStringLiteral("font"), 0, 1);
    row(
        "horizontal", [](T &t) { t.setHorAlign(Qt::AlignRight); }, QStringLiteral("horAlign"), 0, 0);
    row(
        "vertical", [](T &t) { t.setVerAlign(Qt::AlignTop); }, QStringLiteral("verAlign"), 0, 0);
    row(
        "bold", [](T &t) { t.setIsBold(true); }, QString(), 1, 1);
    row(
        "italic", [](T &t) { t.setIsItalic(true); }, QString(), 1, 1);
    row(
        "underline", [](T &t) { t.setIsUnderline(true); }, QString(), 1, 1);
    row(
        "strike-out", [](T &t) { t.setIsStrikeOut(true); }, QString(), 1, 1);
    row(
        "colour", [](T &t) { t.setFontColor(1); }, QString(), 0, 0);
    row(
        "value", [](T &t) { t.setContentData(Sentence); }, QStringLiteral("contentData"), 1, 1);
    row(
        "rectangle",
        [](T &t) {
            t.setBoundingRect({1, 2, 3, 4});
        },
        QStringLiteral("boundingRect"), 1, 1);
    row(
        "width", [](T &t) { t.setWidth(7); }, QStringLiteral("boundingRect"), 1, 1);
    row(
        "preset", [](T &t) { t.setPresetData(Sentence); }, QString(), 0, 0);
}

void TestTavroText::setterEffects()
{
    QFETCH(Operation, operation);
    CountingText text;
    QStringList told;
    const auto note = [&](const char *name) { return [&told, name] { told.append(QLatin1String(name)); }; };
    connect(&text, &T::verAlignChanged, note("verAlign"));
    connect(&text, &T::horAlignChanged, note("horAlign"));
    connect(&text, &T::textFillingRuleChanged, note("textFillingRule"));
    connect(&text, &T::prefixChanged, note("prefix"));
    connect(&text, &T::fontChanged, note("font"));
    connect(&text, &T::fontFamilyChanged, note("fontFamily"));
    connect(&text, &T::fontPtSzChanged, note("fontPtSz"));
    connect(&text, &T::contentDataChanged, note("contentData"));
    connect(&text, &T::boundingRectChanged, note("boundingRect"));
    operation(text);
    QTEST(told, "told");
    QTEST(text.refits, "refits");
    QTEST(text.fonts, "fonts");
}

void TestTavroText::fontDetails()
{
    TavroText text;
    text.setTextFillingRule(Fill_Wrap);
    text.setFontFamily(DejaVu);
    QCOMPARE(text.font().family(), DejaVu);
    QCOMPARE(text.font().weight(), 50);
    QCOMPARE(text.font().style(), QFont::StyleNormal);
    QVERIFY(!text.font().strikeOut());
    text.setIsBold(true);
    QCOMPARE(text.font().weight(), 75);
    text.setIsItalic(true);
    QCOMPARE(text.font().style(), QFont::StyleItalic);
    text.setIsStrikeOut(true);
    QVERIFY(text.font().strikeOut());
    QCOMPARE(text.font().pixelSize(), 15);
    text.setIsBold(false);
    text.setIsItalic(false);
    text.setIsStrikeOut(false);
    QCOMPARE(text.font(), propertyFont(DejaVu, 15));
    // A font given from outside lasts until the next re-fit.
    text.setFont(QFont(DejaVu, 33));
    text.adjustTextStyle();
    QCOMPARE(text.font(), propertyFont(DejaVu, 15));
}

void TestTavroText::underlineIsStoredOnly()
{
    for (const int rule : {0, 1, 2, 3}) {
        TavroText text;
        text.setTextFillingRule(static_cast<Text_Filling_Rule>(rule));
        const QFont before = text.font();
        text.setIsUnderline(true);
        QVERIFY(text.isUnderline());
        QCOMPARE(text.font(), before);
        QVERIFY(!text.font().underline());
    }
}

void TestTavroText::fillingRules_data()
{
    QTest::addColumn<int>("rule");
    QTest::addColumn<bool>("shrunk");

    QTest::newRow("wrap") << 0 << false;
    QTest::newRow("shrink") << 1 << true;
    QTest::newRow("wrap and shrink") << 2 << true;
    QTest::newRow("no wrap") << 3 << false;
}

void TestTavroText::fillingRules()
{
    QFETCH(int, rule);
    QFETCH(bool, shrunk);
    TavroText text;
    prepare(text, static_cast<Text_Filling_Rule>(rule));
    text.setIsBold(true);
    text.setContentData(Sentence);
    QCOMPARE(text.font().pixelSize() < 15, shrunk);
    QCOMPARE(text.font().family(), DejaVu);
    QCOMPARE(text.font().weight(), 75);
    QCOMPARE(text.fontPixSz(), 15);
}

void TestTavroText::ruleBeyond()
{
    for (const int rule : {4, 5, -1}) {
        TavroText text;
        text.setIsBold(true);
        text.setIsStrikeOut(true);
        text.setTextFillingRule(static_cast<Text_Filling_Rule>(rule));
        QCOMPARE(text.font(), QFont());
        QCOMPARE(static_cast<int>(text.textFillingRule()), rule);
        QCOMPARE(text.textOption().wrapMode(), QTextOption::WordWrap);
    }
}

void TestTavroText::shrinksPrefixAndValue_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("value") << QString() << QVariant(Sentence) << Sentence;
    QTest::newRow("prefix") << Sentence << QVariant() << Sentence;
    QTest::newRow("both") << QStringLiteral("No. ") << QVariant(Sentence) << QStringLiteral("No. ") + Sentence;
    QTest::newRow("number") << Sentence << QVariant(1234567) << Sentence + QStringLiteral("1234567");
    QTest::newRow("neither") << QString() << QVariant() << QString();
    // Spaces between the two break the line, spaces behind both would hang over its end.
    const QString spaced = QStringLiteral("No.") + QString(80, QLatin1Char(' '));
    QTest::newRow("prefix comes first") << spaced << QVariant(7) << spaced + QStringLiteral("7");
}

void TestTavroText::shrinksPrefixAndValue()
{
    QFETCH(QString, prefix);
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    TavroText object;
    prepare(object, Fill_Shrink);
    object.setPrefix(prefix);
    object.setContentData(value);
    QCOMPARE(object.font(), textfitting::shrunkToWidth(propertyFont(DejaVu, 15), text, 200));
    object.setTextFillingRule(Fill_WrapShrink);
    const auto fit = textfitting::wrappedAndShrunk(propertyFont(DejaVu, 15), text, QSizeF(200, 20),
                                                   Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(object.font(), fit.font);
    QCOMPARE(object.lineCount(), fit.lineCount);
}

void TestTavroText::emptyTextKeepsTheSize()
{
    for (const Text_Filling_Rule rule : {Fill_Shrink, Fill_WrapShrink}) {
        TavroText text;
        prepare(text, rule);
        text.setBoundingRect(QRectF(0, 0, 3, 3));
        QCOMPARE(text.font().pixelSize(), 15);
    }
}

void TestTavroText::refitsOnChange_data()
{
    QTest::addColumn<int>("rule");

    QTest::newRow("shrink") << 1;
    QTest::newRow("wrap and shrink") << 2;
}

void TestTavroText::refitsOnChange()
{
    QFETCH(int, rule);
    TavroText text;
    prepare(text, static_cast<Text_Filling_Rule>(rule));
    text.setContentData(Sentence);
    const int narrow = text.font().pixelSize();
    QVERIFY(narrow < 15);
    text.setBoundingRect(QRectF(0, 0, 800, 40));
    QCOMPARE(text.font().pixelSize(), 15);
    text.setBoundingRect(QRectF(0, 0, 200, 20));
    QCOMPARE(text.font().pixelSize(), narrow);
    text.setContentData(QStringLiteral("Pay"));
    QCOMPARE(text.font().pixelSize(), 15);
    text.setPrefix(Sentence);
    QVERIFY(text.font().pixelSize() < 15);
}

void TestTavroText::fittedFonts()
{
    TavroText text;
    prepare(text, Fill_Wrap);
    QCOMPARE(text.font_Shrink(Sentence), textfitting::shrunkToWidth(propertyFont(DejaVu, 15), Sentence, 200));
    QVERIFY(text.font_Shrink(Sentence).pixelSize() < 15);
    QCOMPARE(text.font_wordWrapAndShrink(Sentence),
             textfitting::wrappedAndShrunk(propertyFont(DejaVu, 15), Sentence, QSizeF(200, 20), Qt::AlignLeft).font);
    QVERIFY(text.font_wordWrapAndShrink(Sentence).pixelSize() < 15);
    // They answer; the drawing font stays.
    QCOMPARE(text.font().pixelSize(), 15);
}

void TestTavroText::countsLines()
{
    TavroText text;
    prepare(text, Fill_Wrap);
    text.setBoundingRect(QRectF(0, 0, 200, 400));
    text.setContentData(Sentence);
    QCOMPARE(text.lineCount(), 1); // no other rule counts
    text.font_wordWrapAndShrink(QStringLiteral("a\u2028b\u2028c"));
    QCOMPARE(text.lineCount(), 3);
    text.setTextFillingRule(Fill_WrapShrink);
    QCOMPARE(text.lineCount(), 2);
    text.setContentData(QStringLiteral("Pay"));
    QCOMPARE(text.lineCount(), 1);
    text.setTextFillingRule(Fill_Shrink);
    text.setContentData(Sentence);
    QCOMPARE(text.lineCount(), 1);
}

void TestTavroText::textOptions_data()
{
    QTest::addColumn<int>("rule");
    QTest::addColumn<int>("wrapMode");

    QTest::newRow("wrap") << 0 << static_cast<int>(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTest::newRow("shrink") << 1 << static_cast<int>(QTextOption::NoWrap);
    QTest::newRow("wrap and shrink") << 2 << static_cast<int>(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTest::newRow("no wrap") << 3 << static_cast<int>(QTextOption::NoWrap);
    QTest::newRow("beyond") << 4 << static_cast<int>(QTextOption::WordWrap);
    QTest::newRow("negative") << -1 << static_cast<int>(QTextOption::WordWrap);
}

void TestTavroText::textOptions()
{
    QFETCH(int, rule);
    TavroText text;
    text.setTextFillingRule(static_cast<Text_Filling_Rule>(rule));
    text.setHorAlign(Qt::AlignHCenter);
    text.setVerAlign(Qt::AlignBottom);
    QTEST(static_cast<int>(text.textOption().wrapMode()), "wrapMode");
    QCOMPARE(text.textOption().alignment(), Qt::AlignHCenter | Qt::AlignBottom);
}

void TestTavroText::signalsAreBlockedDuringRefit()
{
    TavroText text;
    QSignalSpy told(&text, &T::fontChanged);
    text.adjustTextStyle();
    QCOMPARE(told.count(), 0);
    QVERIFY(!text.signalsBlocked());
    text.setFont(text.font());
    QCOMPARE(told.count(), 1);
}

void TestTavroText::hostsBlockStays()
{
    TavroText text;
    const QSignalBlocker blocker(&text);
    text.setContentData(Sentence);
    QVERIFY(text.signalsBlocked());
}

void TestTavroText::pointSizeDoesNotRefit()
{
    TavroText text;
    prepare(text, Fill_Shrink);
    text.setPhyBoundingRectWidth(50);
    text.setContentData(Sentence);
    text.setFontPtSz(10.5);
    // Four pixels a millimetre; the font takes the size as it is, far wider than the field.
    QCOMPARE(text.fontPixSz(), 14);
    QCOMPARE(text.font().pixelSize(), 14);
    QCOMPARE(text.font().family(), DejaVu);
    text.adjustTextStyle();
    QVERIFY(text.font().pixelSize() < 14);
    QCOMPARE(text.fontPixSz(), 14);
    text.setPhyBoundingRectWidth(25);
    QCOMPARE(text.fontPixSz(), 14);
    text.syncFontPixSz();
    QCOMPARE(text.fontPixSz(), 29);
    QCOMPARE(text.font().pixelSize(), 29);

    // Without a physical size, fonts have one pixel.
    TavroText bare;
    bare.setFontPtSz(72);
    QCOMPARE(bare.fontPixSz(), 1);
    QCOMPARE(bare.font().pixelSize(), 1);
}

// A font from outside keeps what the settings do not hold.
void TestTavroText::pixelSizeKeepsTheRestOfTheFont()
{
    TavroText text;
    prepare(text, Fill_Wrap);
    text.setPhyBoundingRectWidth(50);
    QFont outside(QStringLiteral("DejaVu Serif"), 33);
    outside.setUnderline(true);
    text.setFont(outside);
    text.setFontPtSz(10.5);
    outside.setPixelSize(14);
    QCOMPARE(text.font(), outside);
}

void TestTavroText::fitsStartAtThePixelSize_data()
{
    QTest::addColumn<int>("rule");

    for (const int rule : {0, 1, 2, 3})
        QTest::addRow("rule %d", rule) << rule;
}

void TestTavroText::fitsStartAtThePixelSize()
{
    QFETCH(int, rule);
    TavroText text;
    prepare(text, static_cast<Text_Filling_Rule>(rule));
    text.setPhyBoundingRectWidth(50);
    text.setFontPtSz(18);
    text.setContentData(QStringLiteral("Pay"));
    QCOMPARE(text.fontPixSz(), 25);
    QCOMPARE(text.font(), propertyFont(DejaVu, 25));
}

void TestTavroText::conversionsAreAsymmetric()
{
    TavroText text;
    text.setBoundingRect(QRectF(0, 0, 400, 20));
    text.setPhyBoundingRectWidth(100);
    text.setPhyRect(QRectF(0, 0, 50, 5));
    QCOMPARE(text.pointSzToPixSz(10.5), 14);
    QCOMPARE(text.pixSzToPointSz(14), 4.960629921259842);
    QCOMPARE(text.pixSzToPointSz(-14), -4.960629921259842);
}

void TestTavroText::signalsBeforeTheMark_data()
{
    QTest::addColumn<Signal>("signal");
    QTest::addColumn<Operation>("operation");

    const auto row = [](const char *name, Signal signal, const Operation &operation) {
        QTest::newRow(name) << signal << operation;
    };
    row("prefix", &T::prefixChanged, [](T &t) { t.setPrefix(Sentence); });
    row("family", &T::fontFamilyChanged, [](T &t) { t.setFontFamily(Song); });
    row("filling rule", &T::textFillingRuleChanged, [](T &t) { t.setTextFillingRule(Fill_NoWrap); });
    row("horizontal", &T::horAlignChanged, [](T &t) { t.setHorAlign(Qt::AlignRight); });
    row("vertical", &T::verAlignChanged, [](T &t) { t.setVerAlign(Qt::AlignTop); });
    row("point size", &T::fontPtSzChanged, [](T &t) { t.setFontPtSz(10.5); });
}

// Listeners that read the object see the new setting and font, on an object whose mark is not yet set.
void TestTavroText::signalsBeforeTheMark()
{
    QFETCH(Signal, signal);
    QFETCH(Operation, operation);
    TavroText text;
    prepare(text, Fill_Shrink);
    text.setPhyBoundingRectWidth(50);
    text.setContentData(Sentence);
    text.setIsModified(false);
    const QVariantList before = stateOf(text);
    const Heard heard(text, signal);
    operation(text);
    QCOMPARE(heard.times, 1);
    QVERIFY(!heard.marked);
    QVERIFY(heard.state != before);
    QCOMPARE(heard.state, stateOf(text));
    QVERIFY(text.isModified());
}

// The value and the rectangle are told as the base tells them, on an object that still has its old font.
void TestTavroText::baseSignalsBeforeTheRefit()
{
    TavroText text;
    prepare(text, Fill_Shrink);
    const Heard value(text, &T::contentDataChanged);
    text.setContentData(Sentence);
    QCOMPARE(value.font.pixelSize(), 15);
    const QFont narrow = text.font();
    QVERIFY(narrow.pixelSize() < 15);
    const Heard rectangle(text, &T::boundingRectChanged);
    text.setBoundingRect(QRectF(0, 0, 800, 20));
    QCOMPARE(rectangle.font, narrow);
    QCOMPARE(text.font().pixelSize(), 15);
}

void TestTavroText::paintsTheBase()
{
    TavroText text;
    prepare(text, Fill_Wrap);
    text.setContentData(Sentence);
    const QVector<PaintCommand> painted = probes::paintedBy(text);
    QCOMPARE(painted.size(), 1);
    QCOMPARE(painted.first().kind, PaintCommand::Rect);
    text.setPaintMode(Paint_Print);
    QVERIFY(probes::paintedBy(text).isEmpty());
}

void TestTavroText::refitRepaints()
{
    QGraphicsScene scene;
    auto *text = new TavroText;
    prepare(*text, Fill_Wrap);
    scene.addItem(text);
    QSignalSpy changed(&scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    changed.clear();
    text->adjustTextStyle();
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().value<QList<QRectF>>(), QList<QRectF>{QRectF(0, 0, 200, 20)});
}

QTEST_MAIN(TestTavroText)
#include "tst_tavrotext.moc"

// SPDX-License-Identifier: MIT
#include "desk/checking/checking.h"

#include "core/tavrotext.h"
#include "desk/printing.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <cmath>

namespace {

// Ten points are 28 px at the scale of the tests; the ink of a capital is 21 px high.
constexpr int FontPixels = 28;
const char Base[] = R"({"fontSize":10,"id":"field"})";

QFont testFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(FontPixels);
    return font;
}

double widthOf(const QString &text)
{
    return QFontMetricsF(testFont()).horizontalAdvance(text);
}

QJsonObject field(const char *kind, const QSizeF &pixels, const char *settings)
{
    QJsonObject json = deskforms::text(kind, {QPointF(10, 10), pixels / 8}, deskforms::value(Base).toObject());
    const QJsonObject more = deskforms::value(settings).toObject();
    for (auto it = more.begin(); it != more.end(); ++it)
        json.insert(it.key(), it.value());
    return json;
}

QStringList problemsOf(const QJsonObject &object)
{
    const std::unique_ptr<Form> form = deskforms::formWith({object});
    return form ? checking::problems(*form) : QStringList(QStringLiteral("no form"));
}

} // namespace

class CheckingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void messages_data();
    void messages();
    void fit_data();
    void fit();
    void widthDecides_data();
    void widthDecides();
    void heightDecides_data();
    void heightDecides();
    void whatFitsIsPrintedInside_data();
    void whatFitsIsPrintedInside();
    void everyObjectInItsOrder();
    void unknownNames();
};

void CheckingTest::values_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("problem");

    const QString none;
    const QString missing = QStringLiteral("required, but missing");
    const auto add = [](const char *name, const char *settings, const QString &problem) {
        QTest::newRow(name) << QByteArray(settings) << problem;
    };
    add("text", R"({"preset":"x"})", none);
    add("empty", R"({})", none);
    add("empty amount", R"({"format":"rmbCapital"})", none);
    add("empty serial number", R"({"format":"serialNumber"})", none);
    add("empty where a pattern asks for more", R"({"pattern":"[0-9]+"})", none);
    add("spaces in an amount", R"({"format":"rmbCapital","preset":"  "})", none);
    add("required", R"({"required":true})", missing);
    add("required amount", R"({"required":true,"format":"rmbCapital"})", missing);
    add("required, spaces only", R"({"required":true,"preset":" \n\t"})", missing);
    add("required and there", R"({"required":true,"preset":"x"})", none);
    add("prefix is no value", R"({"required":true,"prefix":"No."})", missing);
    add("not printed, but required", R"({"required":true,"print":false})", missing);
    add("number", R"({"format":"number","preset":"12.5"})", none);
    add("no number", R"({"format":"number","preset":"12,5"})", QStringLiteral("invalid value \"12,5\""));
    add("amount of eleven digits", R"({"format":"rmbCapital","preset":"12345678901"})",
        QStringLiteral("invalid value \"12345678901\""));
    add("pattern matches", R"({"pattern":"[0-9]{3}","preset":"123"})", none);
    add("pattern does not match", R"({"pattern":"[0-9]{3}","preset":"1234"})",
        QStringLiteral("invalid value \"1234\""));
    add("invalid and not printed", R"({"format":"number","preset":"x","print":false})",
        QStringLiteral("invalid value \"x\""));
    add("zero that prints nothing", R"({"format":"customized","preset":"0.00"})", none);
    add("required zero that prints nothing", R"({"required":true,"format":"customized","preset":"0.00"})",
        QStringLiteral("required, but \"0.00\" prints nothing"));
    add("required zero that prints", R"({"required":true,"format":"customized","preset":"0.00","zeroClear":false})",
        none);
    add("required format without a name", R"({"required":true,"format":77,"preset":"x"})",
        QStringLiteral("invalid value \"x\""));
}

void CheckingTest::values()
{
    QFETCH(QByteArray, settings);
    QFETCH(QString, problem);
    for (const char *kind : {"edit", "label"}) {
        settings.replace("\"preset\"", qstrcmp(kind, "label") == 0 ? "\"text\"" : "\"preset\"");
        QStringList expected;
        if (!problem.isEmpty())
            expected.append(QStringLiteral("objects[0] \"field\": ") + problem);
        QCOMPARE(problemsOf(field(kind, {600, 60}, settings.constData())), expected);
    }
}

void CheckingTest::messages_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("expected");

    const auto add = [](const char *name, const char *settings, const char *expected) {
        QTest::newRow(name) << QByteArray(settings) << QString::fromUtf8(expected);
    };
    add("object without identifier", R"({"id":"","required":true})", "objects[0]: required, but missing");
    add("identifier of two lines", R"({"id":"a\nb","required":true})", "objects[0] \"a\\nb\": required, but missing");
    add("value of two lines", R"({"format":"number","preset":"1\n2"})",
        "objects[0] \"field\": invalid value \"1\\n2\"");
    add("long value", R"({"format":"number","preset":"x123456789012345678901234567890123456789012345678901234567890"})",
        "objects[0] \"field\": invalid value \"x12345678901234567890123456789012345678901234567890123456789...\"");
    add("place holders", R"({"id":"%1","format":"number","preset":"%2"})", "objects[0] \"%1\": invalid value \"%2\"");
}

void CheckingTest::messages()
{
    QFETCH(QByteArray, settings);
    QFETCH(QString, expected);
    QCOMPARE(problemsOf(field("edit", {600, 60}, settings.constData())), QStringList(expected));
}

void CheckingTest::fit_data()
{
    QTest::addColumn<QSizeF>("pixels");
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<bool>("fits");

    const auto add = [](const char *name, QSizeF pixels, const char *settings, bool fits) {
        QTest::newRow(name) << pixels << QByteArray(settings) << fits;
    };
    add("wrapped on two lines", {120, 80}, R"({"fill":"wrap","preset":"Hello world"})", true);
    add("wrapped, too low for two lines", {120, 40}, R"({"fill":"wrap","preset":"Hello world"})", false);
    add("one line", {200, 40}, R"({"fill":"noWrap","preset":"Hello world"})", true);
    add("one line, too narrow", {120, 80}, R"({"fill":"noWrap","preset":"Hello world"})", false);
    add("shrunk to the width", {60, 40}, R"({"fill":"shrink","preset":"Hello world"})", true);
    add("shrunk to the width, too low", {200, 12}, R"({"fill":"shrink","preset":"Hello world"})", false);
    add("wrapped and shrunk", {60, 20}, R"({"fill":"wrapAndShrink","preset":"Hello world"})", true);
    add("wrapped and shrunk, one line too high", {200, 12}, R"({"fill":"wrapAndShrink","preset":"Hello"})", false);
    add("rule without a name", {40, 10}, R"({"fill":9,"preset":"Hello world"})", false);
    add("narrower than any character", {0.2, 80}, R"({"fill":"shrink","preset":"Hello world"})", false);
    add("written line ends", {200, 40}, R"({"fill":"noWrap","preset":"Hello\nworld"})", false);
    add("written line ends in a high box", {200, 80}, R"({"fill":"noWrap","preset":"Hello\nworld"})", true);
    add("amount in words", {400, 40}, R"({"fill":"noWrap","format":"englishAmount","preset":"12"})", true);
    add("amount in words, too narrow", {100, 40}, R"({"fill":"noWrap","format":"englishAmount","preset":"12"})", false);
    add("number through a pattern, too narrow", {60, 40}, R"({"fill":"noWrap","format":"customized","preset":"100"})",
        false);
    add("prefix beside the value", {200, 40}, R"({"fill":"noWrap","prefix":"Mr ","preset":"Hello"})", true);
    add("prefix makes it too wide", {90, 40}, R"({"fill":"noWrap","prefix":"Mr ","preset":"Hello"})", false);
    add("value alone", {90, 40}, R"({"fill":"noWrap","preset":"Hello"})", true);
    add("prefix of an empty value", {40, 40}, R"({"fill":"noWrap","prefix":"Hello"})", false);
    add("nothing at all in no box", {0, 0}, R"({"fill":"noWrap"})", true);
    add("spaces", {10, 40}, R"({"fill":"noWrap","preset":"               "})", true);
    add("not printed", {10, 10}, R"({"fill":"noWrap","preset":"Hello","print":false})", true);
    add("invisible while filling in", {10, 10}, R"({"fill":"noWrap","preset":"Hello","visible":false})", true);
    add("disabled while filling in", {10, 10}, R"({"fill":"noWrap","preset":"Hello","enabled":false})", false);
    add("turned upright", {200, 40}, R"({"fill":"noWrap","preset":"Hello world","rotation":90})", true);
    add("turned upright, too narrow", {40, 200}, R"({"fill":"noWrap","preset":"Hello world","rotation":90})", false);
    add("box of negative width", {-200, 40}, R"({"fill":"noWrap","preset":"Hello"})", false);
    add("box of negative height", {200, -40}, R"({"fill":"noWrap","preset":"Hello"})", false);
    add("box without a height", {200, 0}, R"({"fill":"noWrap","preset":"Hello"})", false);
    add("larger font", {200, 40}, R"({"fill":"noWrap","preset":"Hello","fontSize":40})", false);
}

void CheckingTest::fit()
{
    QFETCH(QSizeF, pixels);
    QFETCH(QByteArray, settings);
    QFETCH(bool, fits);
    const QStringList found = problemsOf(field("edit", pixels, settings.constData()));
    QCOMPARE(found.isEmpty(), fits);
    if (!fits)
        QVERIFY2(found.first().startsWith(QStringLiteral("objects[0] \"field\": text does not fit its rectangle: ")),
                 qPrintable(found.first()));
}

void CheckingTest::widthDecides_data()
{
    QTest::addColumn<QByteArray>("align");
    for (const char *align : {"left", "right", "center"})
        QTest::newRow(align) << QByteArray(align);
}

// Up to the width of the text, and not a pixel below.
void CheckingTest::widthDecides()
{
    QFETCH(QByteArray, align);
    const QByteArray settings = R"({"fill":"noWrap","preset":"Hello world","align":")" + align + "\"}";
    const double width = widthOf(QStringLiteral("Hello world"));
    QCOMPARE(problemsOf(field("edit", {width, 40}, settings.constData())), QStringList());
    QCOMPARE(problemsOf(field("edit", {width - 1, 40}, settings.constData())).size(), 1);
}

void CheckingTest::heightDecides_data()
{
    QTest::addColumn<QByteArray>("align");
    QTest::addColumn<double>("above");
    QTest::addColumn<double>("below");

    const QFontMetricsF metrics(testFont());
    const QRectF ink = metrics.tightBoundingRect(QStringLiteral("HH"));
    // Space of the line above the ink and below it; both are free where the text stands at the other side.
    const double above = metrics.ascent() + ink.top();
    const double below = metrics.descent() - ink.bottom();
    QTest::newRow("top") << QByteArrayLiteral("top") << above << 0.0;
    QTest::newRow("bottom") << QByteArrayLiteral("bottom") << 0.0 << below;
    QTest::newRow("center") << QByteArrayLiteral("center") << std::abs(above - below) << 0.0;
}

// The ink counts, not the line: fields on forms are often lower than the line height of their font.
void CheckingTest::heightDecides()
{
    QFETCH(QByteArray, align);
    QFETCH(double, above);
    QFETCH(double, below);
    const QByteArray settings = R"({"fill":"noWrap","preset":"HH","verticalAlign":")" + align + "\"}";
    const double ink = QFontMetricsF(testFont()).tightBoundingRect(QStringLiteral("HH")).height();
    const double height = ink + above + below;
    QVERIFY(height < QFontMetricsF(testFont()).height());
    QCOMPARE(problemsOf(field("edit", {200, height + 1}, settings.constData())), QStringList());
    QCOMPARE(problemsOf(field("edit", {200, height - 3}, settings.constData())).size(), 1);
}

void CheckingTest::whatFitsIsPrintedInside_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("fill");

    const QVector<QPair<const char *, const char *>> texts{{"word", "Hÿgjf"},
                                                           {"words", "Quick brown fjords vex jumpy dogs"},
                                                           {"two lines", "Äpfel\ngroß"},
                                                           {"Chinese", "人民币壹万零伍佰元整"}};
    for (const auto &[name, text] : texts) {
        for (const char *fill : {"wrap", "shrink", "wrapAndShrink", "noWrap"})
            QTest::addRow("%s, %s", name, fill) << QString::fromUtf8(text) << QByteArray(fill);
    }
}

// Whatever the check lets pass has no ink outside its rectangle, in boxes of all sizes.
void CheckingTest::whatFitsIsPrintedInside()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, fill);
    int fitting = 0;
    for (int width = 20; width <= 500; width += 60) {
        for (int height = 8; height <= 128; height += 24) {
            QJsonObject object = field("label", QSizeF(width, height), "{}");
            object.insert(QStringLiteral("text"), text);
            object.insert(QStringLiteral("fill"), QString::fromLatin1(fill));
            const std::unique_ptr<Form> form = deskforms::formWith({object});
            QVERIFY(form);
            if (!checking::problems(*form).isEmpty())
                continue;
            ++fitting;
            QImage page(form->pageRect().size().toSize(), QImage::Format_RGB32);
            page.fill(Qt::white);
            QPainter painter(&page);
            printing::prepare(form.get());
            printing::paintPage(&painter, form.get(), form->pageRect());
            // One pixel around, for the half that is tolerated and its antialiasing.
            painter.fillRect(QRect(79, 79, width + 2, height + 2), Qt::white);
            painter.end();
            QImage blank(page.size(), page.format());
            blank.fill(Qt::white);
            QVERIFY2(page == blank, qPrintable(QStringLiteral("%1 x %2").arg(width).arg(height)));
        }
    }
    QVERIFY(fitting > 0);
}

void CheckingTest::everyObjectInItsOrder()
{
    const std::unique_ptr<Form> form = deskforms::formWith(
        {field("edit", {200, 40}, R"({"id":"b","required":true})"), deskforms::object("line", {0, 0, 9, 9}),
         field("edit", {200, 40}, R"({"id":"c","preset":"fine"})"),
         field("label", {2, 2}, R"({"id":"a","text":"Hello"})"),
         field("edit", {200, 40}, R"({"id":"","format":"number","preset":"x"})")});
    QVERIFY(form);
    QCOMPARE(checking::problems(*form),
             QStringList({QStringLiteral("objects[0] \"b\": required, but missing"),
                          QStringLiteral("objects[3] \"a\": text does not fit its rectangle: \"Hello\""),
                          QStringLiteral("objects[4]: invalid value \"x\"")}));
}

void CheckingTest::unknownNames()
{
    const std::unique_ptr<Form> form =
        deskforms::formWith({deskforms::object("hologram", {}), field("edit", {200, 40}, R"({"a\nb":1})")});
    QVERIFY(form);
    QCOMPARE(checking::problems(*form), QStringList({QStringLiteral("unknown objects[0]: kind \"hologram\""),
                                                     QStringLiteral("unknown objects[1]: setting \"a\\nb\"")}));
}

QTEST_MAIN(CheckingTest)
#include "tst_checking.moc"

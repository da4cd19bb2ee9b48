// SPDX-License-Identifier: MIT
// Barcodes on forms: their place, their values and what is wrong with them.
#include "barcode/tavrobarcode.h"
#include "desk/checking/checking.h"
#include "desk/fonts.h"
#include "desk/formreader.h"
#include "desk/formwriter.h"
#include "desk/record.h"
#include "desk/settings/barcodesettings.h"
#include "desk/settings/catalogue.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QTest>

namespace {

const QRectF Roomy(10, 10, 70, 25);

QJsonObject settings(const QByteArray &json)
{
    return deskforms::value(json.constData()).toObject();
}

QJsonObject barcode(const QRectF &place, const QByteArray &json)
{
    QJsonObject object = deskforms::object("barcode", place, settings(json));
    object.insert(QStringLiteral("id"), QStringLiteral("code"));
    return object;
}

std::unique_ptr<Form> formOf(const QRectF &place, const QByteArray &json)
{
    return deskforms::formWith({barcode(place, json)});
}

TavroBarcode *codeOf(const Form &form)
{
    return qobject_cast<TavroBarcode *>(form.objectWithId(QStringLiteral("code")));
}

QStringList named(const QString &problem)
{
    return problem.isEmpty() ? QStringList() : QStringList(QStringLiteral("objects[0] \"code\": ") + problem);
}

QRectF inPixels(const QRectF &millimetres)
{
    return {millimetres.topLeft() * 8, millimetres.size() * 8};
}

QString misfit(const char *value)
{
    return QStringLiteral("symbol does not fit its rectangle: \"%1\"").arg(QLatin1String(value));
}

QString unencodable(const char *value)
{
    return QStringLiteral("value cannot be encoded: \"%1\"").arg(QString::fromUtf8(value));
}

QString miscounted(const char *value, int digits)
{
    return QStringLiteral("invalid value \"%1\", the symbology takes %2 digits").arg(QLatin1String(value)).arg(digits);
}

} // namespace

class BarcodesTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { fonts::substituteMissing(); }
    void symbologies_data();
    void symbologies();
    void refuses_data();
    void refuses();
    void withoutEffect();
    void settingsReachTheObject();
    void placeStays_data();
    void placeStays();
    void readableTextIsOnPaper();
    void everyFontSizeFollowsTheScale();
    void values_data();
    void values();
    void notPrinted_data();
    void notPrinted();
    void sizes_data();
    void sizes();
    void finestModule_data();
    void finestModule();
    void guardsOfACoarseForm();
};

void BarcodesTest::symbologies_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("content");
    const auto add = [](const char *name, int number, const char *content) {
        QTest::newRow(name) << QByteArray(name) << number << QByteArray(content);
    };
    add("code128", 20, "Tavro 42");
    add("code128B", 60, "Tavro 42");
    add("gs1-128", 16, "[01]06901234567892");
    add("code39", 8, "CHEQUE 42");
    add("ean13", -2, "690123456789");
    add("ean8", -1, "6901234");
    add("upcA", 34, "01234567890");
    add("upcE", 37, "0123456");
    add("ean14", 72, "0690123456789");
    add("interleaved2of5", 3, "1234567890");
    add("standard2of5", 2, "1234567890");
    add("iata2of5", 4, "1234567890");
    add("dataLogic2of5", 6, "1234567890");
    add("industrial2of5", 7, "1234567890");
    add("telepen", 32, "Tavro");
    add("msiPlessey", 47, "1234567890");
    add("plessey", 86, "12345ABC");
    add("dataBar", 29, "0690123456789");
    add("dataBarLimited", 30, "0690123456789");
    add("dataBarExpanded", 31, "[01]06901234567892");
    add("dataBarStacked", 79, "0690123456789");
    add("dataBarStackedOmni", 80, "0690123456789");
    add("dataBarExpandedStacked", 81, "[01]06901234567892");
    add("pdf417", 55, "Tavro");
    add("pdf417Truncated", 56, "Tavro");
    add("microPdf417", 84, "Tavro");
    add("qr", 58, "Tavro");
    add("microQr", 97, "TAVRO");
    add("dataMatrix", 71, "Tavro");
    add("aztec", 92, "Tavro");
    add("aztecRune", 128, "42");
    add("hibcCode128", 98, "A123BJC5D6E71");
    add("hibcCode39", 99, "A123BJC5D6E71");
    add("hibcPdf417", 106, "A123BJC5D6E71");
    add("hibcMicroPdf417", 108, "A123BJC5D6E71");
    add("hibcQr", 104, "A123BJC5D6E71");
    add("hibcDataMatrix", 102, "A123BJC5D6E71");
    add("hibcAztec", 112, "A123BJC5D6E71");
}

// Names and numbers mean the same, names are what is written, and each gives a symbol.
void BarcodesTest::symbologies()
{
    QFETCH(QByteArray, name);
    QFETCH(int, number);
    QFETCH(QByteArray, content);
    const QByteArray asNumber = R"({"symbology":)" + QByteArray::number(number) + R"(,"preset":")" + content + R"("})";
    const QByteArray asName = R"({"symbology":")" + name + R"(","preset":")" + content + R"("})";
    const std::unique_ptr<Form> byNumber = formOf(Roomy, asNumber);
    const std::unique_ptr<Form> byName = formOf(Roomy, asName);
    QVERIFY(byNumber && byName);
    QCOMPARE(codeOf(*byName)->symbology(), number);
    QCOMPARE(formwriter::toBytes(*byNumber), formwriter::toBytes(*byName));
    QCOMPARE(formwriter::toBytes(*byName).contains("\"symbology\": \"" + name + "\""), number != 58);
    QVERIFY(!codeOf(*byName)->actualSzFromExpectSz({400, 400}).isEmpty());
    QVERIFY(barcodesettings::isNamed(number));
}

void BarcodesTest::refuses_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    const QString symbologies =
        QStringLiteral("code128, code128B, gs1-128, code39, ean13, ean8, upcA, upcE, ean14, interleaved2of5, "
                       "standard2of5, iata2of5, dataLogic2of5, industrial2of5, telepen, msiPlessey, plessey, "
                       "dataBar, dataBarLimited, dataBarExpanded, dataBarStacked, dataBarStackedOmni, "
                       "dataBarExpandedStacked, pdf417, pdf417Truncated, microPdf417, qr, microQr, dataMatrix, "
                       "aztec, aztecRune, hibcCode128, hibcCode39, hibcPdf417, hibcMicroPdf417, hibcQr, "
                       "hibcDataMatrix, hibcAztec");
    const QString expected =
        QStringLiteral("symbology: expected one of %1, or a whole number, but not 13, which does not tell ean13 from "
                       "ean8, found %2");
    QTest::newRow("unknown symbology") << QByteArray(R"({"symbology":"barcode"})")
                                       << expected.arg(symbologies, QStringLiteral("\"barcode\""));
    QTest::newRow("all forms of EAN") << QByteArray(R"({"symbology":13})")
                                      << expected.arg(symbologies, QStringLiteral("13"));
    QTest::newRow("version") << QByteArray(R"({"qrVersion":41})")
                             << QStringLiteral("qrVersion: expected a whole number from 0 to 40, found 41");
    QTest::newRow("error correction")
        << QByteArray(R"({"qrErrorCorrection":5})")
        << QStringLiteral("qrErrorCorrection: expected one of low, medium, quartile, high, or a whole number from 0 to "
                          "4, found 5");
    QTest::newRow("readable text") << QByteArray(R"({"readableText":"12"})")
                                   << QStringLiteral("readableText: expected true or false, found \"12\"");
    QTest::newRow("preset") << QByteArray(R"({"preset":42})") << QStringLiteral("preset: expected a text, found 42");
}

void BarcodesTest::refuses()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    const formreader::Result read =
        formreader::fromJson(deskforms::file({barcode(Roomy, json)}), QStringLiteral("f.tform"));
    QVERIFY(!read.form);
    QCOMPARE(read.error, QStringLiteral("f.tform: objects[0].") + error);
}

// A setting that does nothing would promise what no barcode keeps.
void BarcodesTest::withoutEffect()
{
    for (const Setting &setting : catalogue::settingsOf(Obj_Barcode)) {
        for (const char *key : {"proportional", "readOnly", "border", "borderWidth", "borderColor", "backgroundColor",
                                "backgroundStyle", "fontFamily", "fontSize"})
            QVERIFY2(setting.key != QLatin1String(key), key);
    }
}

void BarcodesTest::settingsReachTheObject()
{
    const std::unique_ptr<Form> form =
        formOf(Roomy, R"({"symbology":"hibcQr","readableText":false,"qrVersion":7,"qrErrorCorrection":"high",
                   "keepCentre":false,"keepRegion":false,"required":true,"resetAtRenew":false,"preset":"A1"})");
    QVERIFY(form);
    TavroBarcode *code = codeOf(*form);
    QCOMPARE(code->symbology(), 104);
    QVERIFY(!code->hasReadableTxt());
    QCOMPARE(code->QRcodeVersion(), 7);
    QCOMPARE(code->QRcodeErrCorrection(), 4);
    QVERIFY(!code->isKeepAtCenter());
    QVERIFY(!code->isKeepRegionSz());
    QVERIFY(code->isRequired());
    QVERIFY(!code->isResetAtRenew());
    QCOMPARE(code->presetData().toString(), QStringLiteral("A1"));
    QCOMPARE(code->contentData().toString(), QStringLiteral("A1"));
    QVERIFY(!code->isModified());
}

void BarcodesTest::placeStays_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("new") << QByteArray("{}");
    QTest::newRow("other symbology") << QByteArray(R"({"symbology":"ean13"})");
    QTest::newRow("follows its symbol") << QByteArray(R"({"keepRegion":false,"preset":"1"})");
    QTest::newRow("follows its symbol from the corner")
        << QByteArray(R"({"keepRegion":false,"keepCentre":false,"symbology":"code128"})");
    QTest::newRow("version") << QByteArray(R"({"qrVersion":10,"qrErrorCorrection":"high"})");
    QTest::newRow("no symbol") << QByteArray(R"({"symbology":"code39","preset":"壹"})");
    QTest::newRow("turned") << QByteArray(R"({"symbology":"code128","rotation":90})");
}

// The rectangle of a file is a place on paper, whatever the symbol asks for.
void BarcodesTest::placeStays()
{
    QFETCH(QByteArray, json);
    const QRectF place(12.345, 6.7, 31.03, 23.7);
    const std::unique_ptr<Form> form = formOf(place, json);
    const std::unique_ptr<Form> upright = deskforms::formWith({deskforms::object(
        "edit", place, {{QStringLiteral("rotation"), settings(json).value(QStringLiteral("rotation")).toInt()}})});
    QVERIFY(form && upright);
    const TavroBarcode &code = *codeOf(*form);
    const QRectF onScene = upright->entries.front().object->sceneBoundingRect();
    QCOMPARE(code.boundingRect(), inPixels(place));
    QCOMPARE(code.sceneBoundingRect(), onScene);
    const QByteArray written = formwriter::toBytes(*form);
    const QJsonObject values{{QStringLiteral("code"), QStringLiteral("690123412345")}};
    QCOMPARE(record::fillFromJson(form.get(), values, QStringLiteral("r.json")).error, QString());
    QCOMPARE(code.contentData().toString(), QStringLiteral("690123412345"));
    QCOMPARE(code.boundingRect(), inPixels(place));
    QCOMPARE(code.sceneBoundingRect(), onScene);
    QCOMPARE(code.phyRect(), place);
    QCOMPARE(formwriter::toBytes(*form), written);
}

// Readable text that is wider than the symbol widens its modules, so its size shows in them.
void BarcodesTest::readableTextIsOnPaper()
{
    const std::unique_ptr<Form> form =
        formOf({10, 10, 1, 20}, R"({"symbology":"dataBarLimited","preset":"0690123456789"})");
    QVERIFY(form);
    const QSizeF shown = codeOf(*form)->actualSzFromExpectSz({8, 160});
    codeOf(*form)->syncReadableTextPixSz();
    QCOMPARE(codeOf(*form)->actualSzFromExpectSz({8, 160}), shown);
    // 18 characters of 9 points.
    QVERIFY2(shown.width() / 8 > 24 && shown.width() / 8 < 36, qPrintable(QString::number(shown.width() / 8)));
}

void BarcodesTest::everyFontSizeFollowsTheScale()
{
    QJsonObject file =
        deskforms::file({barcode({10, 10, 1, 20}, R"({"symbology":"dataBarLimited","preset":"0690123456789"})")});
    const std::unique_ptr<Form> coarse = deskforms::readFile(file);
    file.insert(QStringLiteral("pixelsPerMillimetre"), 16);
    const std::unique_ptr<Form> fine = deskforms::readFile(file);
    QVERIFY(coarse && fine);
    const double coarseText = codeOf(*coarse)->actualSzFromExpectSz({1, 1}).width();
    const double fineText = codeOf(*fine)->actualSzFromExpectSz({1, 1}).width();
    QVERIFY2(qAbs(fineText / coarseText - 2) < 0.1, qPrintable(QString::number(fineText / coarseText)));
}

void BarcodesTest::values_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("problem");
    const auto add = [](const char *name, const char *json, const QString &problem) {
        QTest::newRow(name) << QByteArray(json) << problem;
    };
    const QString missing = QStringLiteral("required, but missing");
    add("value", R"({"symbology":"code128","preset":"Tavro"})", {});
    add("required value", R"({"symbology":"code128","preset":"Tavro","required":true})", {});
    add("required and missing", R"({"symbology":"code128","preset":"","required":true})", missing);
    add("required and blank", R"({"symbology":"code128","preset":"  ","required":true})", missing);
    add("blank", R"({"symbology":"code128","preset":"  "})", {});
    add("nothing to print", R"({"symbology":"code128","preset":""})", QStringLiteral("no value to make a symbol of"));
    add("13 digits", R"({"symbology":"ean13","preset":"6901234567892"})", miscounted("6901234567892", 12));
    add("12 digits", R"({"symbology":"ean13","preset":"690123456789"})", {});
    add("11 digits", R"({"symbology":"ean13","preset":"69012345678"})", miscounted("69012345678", 12));
    add("letter in an EAN", R"({"symbology":"ean13","preset":"69012345678X"})", miscounted("69012345678X", 12));
    add("add-on", R"({"symbology":"ean13","preset":"69012345+123"})", miscounted("69012345+123", 12));
    add("7 digits", R"({"symbology":"ean8","preset":"6901234"})", {});
    add("6 digits", R"({"symbology":"ean8","preset":"690123"})", miscounted("690123", 7));
    add("8 digits", R"({"symbology":"ean8","preset":"69012341"})", miscounted("69012341", 7));
    const auto refused = [](const char *value, const char *expectation) {
        return QStringLiteral("invalid value \"%1\", the symbology takes %2")
            .arg(QString::fromLatin1(value), QString::fromLatin1(expectation));
    };
    add("UPC-A with fewer digits", R"({"symbology":"upcA","preset":"1234567"})", {});
    add("UPC-A with an add-on", R"({"symbology":"upcA","preset":"01234567890+12"})",
        refused("01234567890+12", "digits"));
    add("UPC-E", R"({"symbology":"upcE","preset":"1234567"})", {});
    add("UPC-E with fewer digits", R"({"symbology":"upcE","preset":"234567"})", {});
    add("UPC-E of another system", R"({"symbology":"upcE","preset":"2345678"})",
        refused("2345678", "7 digits, the first of them 0 or 1"));
    add("odd number of digits", R"({"symbology":"interleaved2of5","preset":"123"})",
        refused("123", "an even number of digits"));
    add("small letters in Code 39", R"({"symbology":"code39","preset":"Tavro"})", refused("Tavro", "capitals"));
    add("small letters in a label of health care", R"({"symbology":"hibcCode128","preset":"a123"})",
        refused("a123", "capitals"));
    add("letters in digits", R"({"symbology":"interleaved2of5","preset":"12A4"})", unencodable("12A4"));
    add("Chinese in bars", R"({"symbology":"code39","preset":"壹万"})", unencodable("壹万"));
    add("wrong check digit", R"({"symbology":"upcA","preset":"012345678901"})", unencodable("012345678901"));
    add("more than a version holds", R"({"qrVersion":1,"qrErrorCorrection":"high","preset":"Tavro, cheque 42"})",
        unencodable("Tavro, cheque 42"));
    add("symbology that is not drawn", R"({"symbology":25,"preset":"TAVRO"})",
        QStringLiteral("no symbol is printed in symbology 25"));
    add("composite", R"({"symbology":130,"preset":"TAVRO"})", QStringLiteral("no symbol is printed in symbology 130"));
    add("no symbology", R"({"symbology":9999,"preset":"TAVRO"})",
        QStringLiteral("no symbol is printed in symbology 9999"));
}

void BarcodesTest::values()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, problem);
    // QR Codes are square.
    const bool isQr = !json.contains("symbology");
    const std::unique_ptr<Form> form = formOf(isQr ? QRectF(10, 10, 25, 25) : Roomy, json);
    QVERIFY(form);
    QCOMPARE(checking::problems(*form), named(problem));
    QCOMPARE(codeOf(*form)->boundingRect().size(), isQr ? QSizeF(200, 200) : QSizeF(560, 200));
}

void BarcodesTest::notPrinted_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("problem");
    QTest::newRow("empty") << QByteArray(R"({"print":false,"preset":""})") << QString();
    QTest::newRow("invisible") << QByteArray(R"({"visible":false,"preset":""})") << QString();
    QTest::newRow("missing") << QByteArray(R"({"print":false,"preset":"","required":true})")
                             << QStringLiteral("required, but missing");
    QTest::newRow("misfit") << QByteArray(R"({"print":false})") << QString();
    QTest::newRow("wrong value") << QByteArray(R"({"print":false,"symbology":"ean8","preset":"12"})")
                                 << miscounted("12", 7);
}

void BarcodesTest::notPrinted()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, problem);
    const std::unique_ptr<Form> form = formOf(Roomy, json);
    QVERIFY(form);
    QCOMPARE(checking::problems(*form), named(problem));
}

void BarcodesTest::sizes_data()
{
    QTest::addColumn<QRectF>("place");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("problem");
    // 21 modules of 1 mm.
    const QByteArray qr = R"({"preset":"Tavro"})";
    QTest::newRow("square") << QRectF(10, 10, 21, 21) << qr << QString();
    QTest::newRow("half a module lower") << QRectF(10, 10, 21, 20.5) << qr << QString();
    QTest::newRow("lower") << QRectF(10, 10, 21, 20.25) << qr << misfit("Tavro");
    QTest::newRow("half a module narrower") << QRectF(10, 10, 20.5, 21) << qr << QString();
    QTest::newRow("narrower") << QRectF(10, 10, 20.25, 21) << qr << misfit("Tavro");
    QTest::newRow("drawn from the other corner") << QRectF(31, 31, -21, -21) << qr << QString();
    // 103 modules of 0.5 mm, six rows of three.
    const QByteArray pdf417 = R"({"symbology":"pdf417","preset":"Tavro 44 cheque"})";
    QTest::newRow("PDF417") << QRectF(10, 10, 51.5, 9) << pdf417 << QString();
    QTest::newRow("PDF417 that is too low") << QRectF(10, 10, 51.5, 8.5) << pdf417 << misfit("Tavro 44 cheque");
    QTest::newRow("PDF417 that is too narrow") << QRectF(10, 10, 50, 9) << pdf417 << misfit("Tavro 44 cheque");
    const QByteArray bars = R"({"symbology":"code128","preset":"Tavro 42"})";
    const QByteArray silent = R"({"symbology":"code128","preset":"Tavro 42","readableText":false})";
    QTest::newRow("bars") << QRectF(10, 10, 50, 10) << bars << QString();
    QTest::newRow("text is all there is") << QRectF(10, 10, 50, 3) << bars << misfit("Tavro 42");
    QTest::newRow("no text") << QRectF(10, 10, 50, 3) << silent << QString();
    const QString low = QStringLiteral("bars too low to be read: \"Tavro 42\"");
    QTest::newRow("bars of 2 mm") << QRectF(10, 10, 50, 2) << silent << QString();
    QTest::newRow("bars of less") << QRectF(10, 10, 50, 1.9) << silent << low;
    QTest::newRow("bars above their text") << QRectF(10, 10, 50, 6.5) << bars << QString();
    QTest::newRow("bars lower than their text allows") << QRectF(10, 10, 50, 5) << bars << low;
    QTest::newRow("low bars of an EAN") << QRectF(10, 10, 31, 5)
                                        << QByteArray(R"({"symbology":"ean13","preset":"690123456789"})")
                                        << QStringLiteral("bars too low to be read: \"690123456789\"");
    QTest::newRow("small square") << QRectF(10, 10, 1.95, 1.95)
                                  << QByteArray(R"({"symbology":"dataMatrix","preset":"12"})") << QString();
    QTest::newRow("no height at all") << QRectF(10, 10, 50, 0) << silent << low;
    const QByteArray ean = R"({"symbology":"ean13","preset":"690123456789"})";
    const QString crowded = QStringLiteral("digits run into each other below modules of this width: \"690123456789\"");
    QTest::newRow("digits of an EAN") << QRectF(10, 10, 31, 15) << ean << QString();
    QTest::newRow("crowded digits") << QRectF(10, 10, 23.4, 15) << ean << crowded;
    QTest::newRow("no digits to crowd") << QRectF(10, 10, 23.4, 15)
                                        << QByteArray(
                                               R"({"symbology":"ean13","preset":"690123456789","readableText":false})")
                                        << QString();
    const QByteArray limited = R"({"symbology":"dataBarLimited","preset":"0690123456789"})";
    QTest::newRow("text wider than the bars") << QRectF(10, 10, 20, 15) << limited << misfit("0690123456789");
    QTest::newRow("text as wide as the bars") << QRectF(10, 10, 36, 15) << limited << QString();
}

void BarcodesTest::sizes()
{
    QFETCH(QRectF, place);
    QFETCH(QByteArray, json);
    QFETCH(QString, problem);
    const std::unique_ptr<Form> form = formOf(place, json);
    QVERIFY(form);
    QCOMPARE(checking::problems(*form), named(problem));
}

void BarcodesTest::finestModule_data()
{
    QTest::addColumn<QRectF>("place");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QString>("problem");
    const QByteArray qr = R"({"preset":"Tavro"})";
    const QByteArray bars = R"({"symbology":"ean13","preset":"690123456789","readableText":false})";
    const auto fine = [](const char *width, const char *value) {
        return QStringLiteral("symbol too fine to be read, with modules of %1 mm: \"%2\"")
            .arg(QLatin1String(width), QLatin1String(value));
    };
    QTest::newRow("0.19 mm") << QRectF(10, 10, 3.99, 3.99) << qr << 8.0 << QString();
    QTest::newRow("0.18 mm") << QRectF(10, 10, 3.78, 3.78) << qr << 8.0 << fine("0.180", "Tavro");
    QTest::newRow("0.18 mm on a finer grid") << QRectF(10, 10, 3.78, 3.78) << qr << 40.0 << fine("0.180", "Tavro");
    QTest::newRow("0.18 mm to the left") << QRectF(20, 10, -3.78, 3.78) << qr << 8.0 << fine("0.180", "Tavro");
    // 95 modules and ten on each side.
    QTest::newRow("retail of 0.19 mm") << QRectF(10, 10, 21.85, 20) << bars << 8.0 << QString();
    QTest::newRow("retail of 0.15 mm") << QRectF(10, 10, 17.25, 20) << bars << 8.0 << fine("0.150", "690123456789");
}

void BarcodesTest::finestModule()
{
    QFETCH(QRectF, place);
    QFETCH(QByteArray, json);
    QFETCH(double, scale);
    QFETCH(QString, problem);
    QJsonObject file = deskforms::file({barcode(place, json)});
    file.insert(QStringLiteral("pixelsPerMillimetre"), scale);
    const std::unique_ptr<Form> form = deskforms::readFile(file);
    QVERIFY(form);
    QCOMPARE(checking::problems(*form), named(problem));
}

// Guard bars are 10 px longer than the others, at every scale of a form.
void BarcodesTest::guardsOfACoarseForm()
{
    const QRectF place(10, 10, 60, 40);
    const QByteArray ean = R"({"symbology":"ean13","preset":"690123456789"})";
    for (const double scale : {1.0, 8.0}) {
        QJsonObject file = deskforms::file({barcode(place, ean)});
        file.insert(QStringLiteral("pixelsPerMillimetre"), scale);
        const std::unique_ptr<Form> form = deskforms::readFile(file);
        QVERIFY(form);
        const QString problem =
            QStringLiteral("guard bars stick out of the rectangle, the form has too few pixels per millimetre: "
                           "\"690123456789\"");
        QCOMPARE(checking::problems(*form), named(scale < 2 ? problem : QString()));
    }
}

QTEST_MAIN(BarcodesTest)
#include "tst_barcodes.moc"

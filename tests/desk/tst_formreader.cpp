// SPDX-License-Identifier: MIT
#include "desk/formreader.h"

#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "core/tavrotext.h"
#include "entry/tavroedit.h"
#include "graphic/tavroline.h"
#include "graphic/tavrorect.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

const QRectF Place(10, 20, 40, 8);

// The smallest file with one change: a value at a name of the file or of its page.
QJsonObject changed(const QString &name, const QJsonValue &value)
{
    QJsonObject file = deskforms::file({});
    if (!name.startsWith(QLatin1String("page."))) {
        file.insert(name, value);
        return file;
    }
    QJsonObject page = file.value(QStringLiteral("page")).toObject();
    page.insert(name.mid(5), value);
    file.insert(QStringLiteral("page"), page);
    return file;
}

QJsonObject settings(const char *json)
{
    return deskforms::value(json).toObject();
}

} // namespace

class FormReaderTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void page();
    void marginsMayBeLeftOut();
    void limits_data();
    void limits();
    void geometry_data();
    void geometry();
    void settingsReachTheObject();
    void settingsLeftOut();
    void presetIsConvertedBySettings();
    void presetStandsInItsCells();
    void rowWithoutContentIsLikeAnEmptyOne();
    void fontSizeInPixels();
    void lineWidthInPixels();
    void objectsAreUnmodified();
    void orderOfTheFile();
    void unknownNames();
    void identifiersMayBeLeftOut();
    void refusesHead_data();
    void refusesHead();
    void refusesObject_data();
    void refusesObject();
    void fileIsRead();
    void fileInError();
};

void FormReaderTest::page()
{
    QJsonObject file = changed(QStringLiteral("page.margins"), deskforms::value("[1, 2.5, 3, 4]"));
    file.insert(QStringLiteral("pixelsPerMillimetre"), 4.5);
    const std::unique_ptr<Form> form = deskforms::readFile(file);
    QVERIFY(form);
    QCOMPARE(form->pageSize, QSizeF(100, 60));
    QCOMPARE(form->scale, 4.5);
    QCOMPARE(form->pageMargins, QMarginsF(1, 2.5, 3, 4));
    QCOMPARE(form->pageRect(), QRectF(0, 0, 450, 270));
}

void FormReaderTest::marginsMayBeLeftOut()
{
    const std::unique_ptr<Form> form = deskforms::formWith({});
    QVERIFY(form);
    QVERIFY(form->pageMargins.isNull());
    QVERIFY(form->entries.empty());
    QVERIFY(form->unknownNames().isEmpty());
}

void FormReaderTest::limits_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("version with a point") << QStringLiteral("version") << QByteArrayLiteral("1.0");
    QTest::newRow("least scale") << QStringLiteral("pixelsPerMillimetre") << QByteArrayLiteral("0.1");
    QTest::newRow("largest scale") << QStringLiteral("pixelsPerMillimetre") << QByteArrayLiteral("200");
    QTest::newRow("narrowest page") << QStringLiteral("page.width") << QByteArrayLiteral("1");
    QTest::newRow("widest page") << QStringLiteral("page.width") << QByteArrayLiteral("10000");
    QTest::newRow("lowest page") << QStringLiteral("page.height") << QByteArrayLiteral("1");
    QTest::newRow("highest page") << QStringLiteral("page.height") << QByteArrayLiteral("10000");
    QTest::newRow("no margins") << QStringLiteral("page.margins") << QByteArrayLiteral("[0, 0, 0, 0]");
    QTest::newRow("largest margins") << QStringLiteral("page.margins")
                                     << QByteArrayLiteral("[10000, 10000, 10000, 10000]");
}

void FormReaderTest::limits()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, json);
    QVERIFY(deskforms::readFile(changed(name, deskforms::value(json.constData()))));
}

void FormReaderTest::geometry_data()
{
    QTest::addColumn<QRectF>("millimetres");
    QTest::newRow("box") << Place;
    QTest::newRow("fractions") << QRectF(10.25, 20.5, 40.125, 0.1);
    QTest::newRow("up and to the left") << QRectF(50, 40, -30.5, -20.25);
    QTest::newRow("level") << QRectF(0, 0, 100, 0);
    QTest::newRow("point") << QRectF(1, 1, 0, 0);
    QTest::newRow("beside the page") << QRectF(-20, -10, 10, 5);
    QTest::newRow("limits") << QRectF(-10000, 10000, 10000, -10000);
}

// Millimetres are the truth; pixels follow, and so do the physical sizes through which fonts are converted.
void FormReaderTest::geometry()
{
    QFETCH(QRectF, millimetres);
    for (const char *kind :
         {"line", "rect", "edit", "label", "separatedEdit", "financialEdit", "datetime", "barcode"}) {
        const std::unique_ptr<Form> form = deskforms::formWith({deskforms::object(kind, millimetres)});
        QVERIFY(form);
        const TavroPrototype &object = *form->entries.front().object;
        QCOMPARE(object.phyRect(), millimetres);
        QCOMPARE(object.getPhyBoundingRectWidth(), millimetres.width());
        QCOMPARE(object.getPhyBoundingRectHeight(), millimetres.height());
        QCOMPARE(object.boundingRect(), QRectF(millimetres.topLeft() * 8, millimetres.size() * 8));
        QCOMPARE(object.scene(), &form->scene());
    }
}

void FormReaderTest::settingsReachTheObject()
{
    const std::unique_ptr<Form> form = deskforms::formWith({deskforms::object(
        "edit", Place,
        settings(R"({"id":"amount","print":false,"required":true,"align":"right","fill":"noWrap","fontSize":12.5,
                     "fontColor":"#102030","format":"number","tabOrder":7,"z":2.5,"column":"sum"})"))});
    QVERIFY(form);
    auto *edit = qobject_cast<TavroEdit *>(form->objectWithId(QStringLiteral("amount")));
    QVERIFY(edit);
    QVERIFY(!edit->isPrint());
    QVERIFY(edit->isRequired());
    QCOMPARE(edit->horAlign(), Qt::Alignment(Qt::AlignRight));
    QCOMPARE(edit->textFillingRule(), Fill_NoWrap);
    QCOMPARE(edit->fontPtSz(), 12.5);
    QCOMPARE(edit->fontColor(), 0x102030u);
    QCOMPARE(edit->formatType(), Format_Number);
    QCOMPARE(edit->tabOrder(), 7);
    QCOMPARE(edit->zValue(), 2.5);
    QCOMPARE(edit->columnDB(), QStringLiteral("sum"));
}

void FormReaderTest::settingsLeftOut()
{
    const TavroEdit fresh;
    const std::unique_ptr<Form> form = deskforms::formWith({deskforms::object("edit", Place)});
    QVERIFY(form);
    auto *edit = qobject_cast<TavroEdit *>(form->entries.front().object.data());
    QVERIFY(edit);
    QCOMPARE(edit->isPrint(), fresh.isPrint());
    QCOMPARE(edit->fontPtSz(), fresh.fontPtSz());
    QCOMPARE(edit->fontFamily(), fresh.fontFamily());
    QCOMPARE(edit->formatType(), fresh.formatType());
    QCOMPARE(edit->contentData().toString(), QString());
}

// Names stand in alphabetical order in memory, so the preset comes before some settings that convert it.
void FormReaderTest::presetIsConvertedBySettings()
{
    const std::unique_ptr<Form> form = deskforms::formWith({deskforms::object(
        "edit", Place,
        settings(R"({"preset":"0.00","zeroClear":false,"format":"customized","numberPattern":"0.0"})"))});
    QVERIFY(form);
    QCOMPARE(qobject_cast<TavroEdit *>(form->entries.front().object.data())->displayText(), QStringLiteral("0.00"));
    const std::unique_ptr<Form> amount = deskforms::formWith({deskforms::object(
        "edit", Place, settings(R"({"preset":"1080.5","zeroBeforeThousand":true,"format":"rmbCapital"})"))});
    QVERIFY(amount);
    QVERIFY(qobject_cast<TavroEdit *>(amount->entries.front().object.data())
                ->displayText()
                .startsWith(QStringLiteral("壹仟零捌拾")));
}

// Mode and range empty the cells, a limit the content; all of them come before the preset, wherever they stand.
void FormReaderTest::presetStandsInItsCells()
{
    const std::unique_ptr<Form> form = deskforms::formWith(
        {deskforms::object("separatedEdit", Place, settings(R"({"preset":"20","highestUnit":4,"lowestUnit":2})")),
         deskforms::object("separatedEdit", Place, settings(R"({"preset":"a1","mode":"chars6","separatorWidth":1})")),
         deskforms::object(
             "financialEdit", Place,
             settings(R"({"preset":"7.5","limitUnit":3,"showLimit":true,"highestUnit":4,"unitRowHeight":3})"))});
    QVERIFY(form);
    const auto &amount = static_cast<TavroSeperateEdit &>(*form->entries.at(0).object);
    QCOMPARE(amount.numOfEditable(), 3);
    QCOMPARE(QStringList({amount.charAt(0), amount.charAt(1), amount.charAt(2)}),
             QStringList({QString(), QStringLiteral("2"), QStringLiteral("0")}));
    const auto &characters = static_cast<TavroSeperateEdit &>(*form->entries.at(1).object);
    QCOMPARE(characters.charAt(1), QStringLiteral("1"));
    QCOMPARE(characters.rectAt(0).size(), QSizeF((40 - 5.0) / 6 * 8, 8 * 8));
    const auto &grid = static_cast<TavroFinancialEdit &>(*form->entries.at(2).object);
    QCOMPARE(grid.contentData().toString(), QStringLiteral("7.5"));
    QCOMPARE(grid.digitAt(2), QStringLiteral("7"));
    QCOMPARE(grid.cursorIndx(), 1);
    QCOMPARE(grid.rectAt(0), QRectF(10 * 8, 23 * 8, 8 * 8, 5 * 8));
}

// Whether a record names a field without a value or leaves it out makes no difference on paper.
void FormReaderTest::rowWithoutContentIsLikeAnEmptyOne()
{
    const std::unique_ptr<Form> form =
        deskforms::formWith({deskforms::object("separatedEdit", Place, settings(R"({"prefixAll":true})")),
                             deskforms::object("financialEdit", Place, settings(R"({"showZero":true})"))});
    QVERIFY(form);
    const auto cells = [&form] {
        QStringList texts;
        for (int i = 0; i < 12; ++i) {
            texts.append(static_cast<TavroSeperateEdit &>(*form->entries.at(0).object).charAt(i));
            texts.append(static_cast<TavroFinancialEdit &>(*form->entries.at(1).object).digitAt(i));
        }
        return texts;
    };
    const QStringList before = cells();
    QCOMPARE(before.count(QStringLiteral("0")), 6);
    for (const Form::Entry &entry : form->entries)
        entry.object->setContentData(QString());
    QCOMPARE(cells(), before);
}

void FormReaderTest::fontSizeInPixels()
{
    QJsonObject file = deskforms::file(
        {deskforms::object("label", Place), deskforms::object("label", Place, settings(R"({"fontSize":36})"))});
    file.insert(QStringLiteral("pixelsPerMillimetre"), 10);
    const std::unique_ptr<Form> form = deskforms::readFile(file);
    QVERIFY(form);
    // 9 points, the size of a new object, are 3.175 mm; 36 points are 12.7 mm.
    QCOMPARE(qobject_cast<TavroText *>(form->entries.at(0).object.data())->fontPixSz(), 31);
    QCOMPARE(qobject_cast<TavroText *>(form->entries.at(1).object.data())->fontPixSz(), 127);
}

void FormReaderTest::lineWidthInPixels()
{
    QJsonObject file = deskforms::file({deskforms::object("line", Place), deskforms::object("rect", Place),
                                        deskforms::object("line", Place, settings(R"({"lineWidth":0.5})")),
                                        deskforms::object("rect", Place, settings(R"({"lineWidth":0})"))});
    file.insert(QStringLiteral("pixelsPerMillimetre"), 20);
    const std::unique_ptr<Form> form = deskforms::readFile(file);
    QVERIFY(form);
    QCOMPARE(qobject_cast<TavroLine *>(form->entries.at(0).object.data())->lineWidthPix(), 5.0);
    QCOMPARE(qobject_cast<TavroRect *>(form->entries.at(1).object.data())->lineWidthPix(), 5.0);
    QCOMPARE(qobject_cast<TavroLine *>(form->entries.at(2).object.data())->lineWidthPix(), 10.0);
    QCOMPARE(qobject_cast<TavroRect *>(form->entries.at(3).object.data())->lineWidthPix(), 0.0);
}

void FormReaderTest::objectsAreUnmodified()
{
    const std::unique_ptr<Form> form = deskforms::readFile(deskforms::fullFile());
    QVERIFY(form);
    for (const Form::Entry &entry : form->entries) {
        QVERIFY2(!entry.object->isModified(), qPrintable(entry.object->tavroID()));
        QCOMPARE(entry.object->originalID(), entry.object->tavroID());
        QVERIFY(!entry.object->originalID().isEmpty());
    }
}

void FormReaderTest::orderOfTheFile()
{
    const std::unique_ptr<Form> form = deskforms::formWith(
        {deskforms::object("rect", Place), deskforms::object("hologram", Place), deskforms::object("line", Place)});
    QVERIFY(form);
    QCOMPARE(form->entries.size(), std::size_t(3));
    QCOMPARE(form->entries.at(0).object->objType(), Obj_Rect);
    QVERIFY(!form->entries.at(1).object);
    QCOMPARE(form->entries.at(2).object->objType(), Obj_Line);
    // Equal z values are painted in this order.
    const QList<QGraphicsItem *> painted = form->scene().items(Qt::AscendingOrder);
    QVERIFY(painted.indexOf(form->entries.at(0).object) < painted.indexOf(form->entries.at(2).object));
}

void FormReaderTest::unknownNames()
{
    QJsonObject file = deskforms::file({deskforms::object("line", Place, settings(R"({"glow":1,"prefix":"x"})")),
                                        deskforms::object("hologram", {}, settings(R"({"rect":"any","glow":{}})"))});
    file.insert(QStringLiteral("author"), QStringLiteral("x"));
    QJsonObject page = file.value(QStringLiteral("page")).toObject();
    page.insert(QStringLiteral("watermark"), 1);
    file.insert(QStringLiteral("page"), page);
    const std::unique_ptr<Form> form = deskforms::readFile(file);
    QVERIFY(form);
    const QStringList expected{QStringLiteral("setting \"author\""), QStringLiteral("page: setting \"watermark\""),
                               QStringLiteral("objects[0]: setting \"glow\""),
                               QStringLiteral("objects[0]: setting \"prefix\""),
                               QStringLiteral("objects[1]: kind \"hologram\"")};
    QCOMPARE(form->unknownNames(), expected);
}

void FormReaderTest::identifiersMayBeLeftOut()
{
    const std::unique_ptr<Form> form =
        deskforms::formWith({deskforms::object("rect", Place), deskforms::object("rect", Place),
                             deskforms::object("rect", Place, settings(R"({"id":""})")),
                             deskforms::object("rect", Place, settings(R"({"id":"a"})"))});
    QVERIFY(form);
    QVERIFY2(!form->objectWithId(QString()), "no identifier is not an identifier");
    QVERIFY(!form->objectWithId(QStringLiteral("b")));
    QCOMPARE(form->objectWithId(QStringLiteral("a")), form->entries.at(3).object.data());
}

void FormReaderTest::refusesHead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");

    const auto add = [](const char *row, const char *name, const char *json, const char *error) {
        QTest::newRow(row) << QString::fromLatin1(name) << QByteArray(json) << QString::fromUtf8(error);
    };
    const char *scale = "pixelsPerMillimetre: expected a number from 0.1 to 200, found ";
    const char *width = "page.width: expected a number from 1 to 10000, found ";
    const char *height = "page.height: expected a number from 1 to 10000, found ";
    const char *margins = "page.margins: expected an array of four numbers in millimetres (left, top, right, bottom), "
                          "found ";
    const auto with = [](const char *start, const char *found) { return QByteArray(start) + found; };
    add("later version", "version", "2", "version: expected the form file version 1, found 2");
    add("version as a text", "version", "\"1\"", "version: expected the form file version 1, found \"1\"");
    add("version as true", "version", "true", "version: expected the form file version 1, found true");
    add("no scale", "pixelsPerMillimetre", "null", with(scale, "null").constData());
    add("scale of zero", "pixelsPerMillimetre", "0", with(scale, "0").constData());
    add("scale too small", "pixelsPerMillimetre", "0.09", with(scale, "0.09").constData());
    add("scale too large", "pixelsPerMillimetre", "200.5", with(scale, "200.5").constData());
    add("scale beyond all", "pixelsPerMillimetre", "1e308", with(scale, "1e+308").constData());
    add("page as a number", "page", "5", "page: expected an object with width and height in millimetres, found 5");
    add("width too small", "page.width", "0.5", with(width, "0.5").constData());
    add("width too large", "page.width", "10001", with(width, "10001").constData());
    add("width as a text", "page.width", "\"210mm\"", with(width, "\"210mm\"").constData());
    add("height negative", "page.height", "-1", with(height, "-1").constData());
    add("height as null", "page.height", "null", with(height, "null").constData());
    add("margins as a number", "page.margins", "5", with(margins, "5").constData());
    add("margins as null", "page.margins", "null", with(margins, "null").constData());
    add("three margins", "page.margins", "[1,2,3]", with(margins, "an array of 3").constData());
    add("negative margin", "page.margins", "[1,2,-3,4]",
        "page.margins[2]: expected a number from 0 to 10000, found -3");
    add("objects as an object", "objects", "{}", "objects: expected an array of objects, found an object");
    add("object as a text", "objects", "[\"line\"]", "objects[0]: expected an object of the form, found \"line\"");
}

void FormReaderTest::refusesHead()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    const formreader::Result result =
        formreader::fromJson(changed(name, deskforms::value(json.constData())), QStringLiteral("f.tform"));
    QVERIFY(!result.form);
    QCOMPARE(result.error, QStringLiteral("f.tform: ") + error);
}

void FormReaderTest::refusesObject_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");

    const auto add = [](const char *row, const char *json, const char *error) {
        QTest::newRow(row) << QByteArray(json) << QString::fromUtf8(error);
    };
    add("no kind", R"({"rect":[0,0,1,1]})",
        "objects[1].kind: expected a kind such as line, rect, edit, label, separatedEdit, financialEdit, "
        "datetime, barcode, checkBox, comboBox, picture, table, found nothing");
    add("kind as a number", R"({"kind":3,"rect":[0,0,1,1]})",
        "objects[1].kind: expected a kind such as line, rect, edit, label, separatedEdit, financialEdit, "
        "datetime, barcode, checkBox, comboBox, picture, table, found 3");
    add("no rectangle", R"({"kind":"line"})",
        "objects[1].rect: expected an array of four numbers in millimetres (x, y, width, height), found nothing");
    add("five numbers", R"({"kind":"line","rect":[1,2,3,4,5]})",
        "objects[1].rect: expected an array of four numbers in millimetres (x, y, width, height), found an array of 5");
    add("text in the rectangle", R"({"kind":"line","rect":[1,2,"3",4]})",
        "objects[1].rect[2]: expected a number from -10000 to 10000, found \"3\"");
    add("too far left", R"({"kind":"line","rect":[-10000.5,2,3,4]})",
        "objects[1].rect[0]: expected a number from -10000 to 10000, found -10000.5");
    add("too high", R"({"kind":"line","rect":[1,2,3,10001]})",
        "objects[1].rect[3]: expected a number from -10000 to 10000, found 10001");
    add("flag as a number", R"({"kind":"line","rect":[1,2,3,4],"print":1})",
        "objects[1].print: expected true or false, found 1");
    add("number out of range", R"({"kind":"edit","rect":[1,2,3,4],"fontSize":0.4})",
        "objects[1].fontSize: expected a number from 0.5 to 500, found 0.4");
    add("fraction of a degree", R"({"kind":"edit","rect":[1,2,3,4],"rotation":0.5})",
        "objects[1].rotation: expected a whole number from -360 to 360, found 0.5");
    add("unknown choice", R"({"kind":"edit","rect":[1,2,3,4],"align":"middle"})",
        "objects[1].align: expected one of left, right, center, justify, or a whole number, found \"middle\"");
    add("colour", R"({"kind":"line","rect":[1,2,3,4],"lineColor":"red"})",
        "objects[1].lineColor: expected a colour with its opacity such as \"#ff1ba39c\", found \"red\"");
    add("pen style that is none", R"({"kind":"line","rect":[1,2,3,4],"lineStyle":6})",
        "objects[1].lineStyle: expected one of none, solid, dash, dot, dashDot, dashDotDot, or a whole number from 0 "
        "to 5, found 6");
    add("row upside down", R"({"kind":"separatedEdit","rect":[1,2,3,4],"highestUnit":4,"lowestUnit":5})",
        "objects[1].lowestUnit: expected a whole number from 0 to 11, not above highestUnit, found 5");
    add("row above its own highest unit", R"({"kind":"separatedEdit","rect":[1,2,3,4],"lowestUnit":7})",
        "objects[1].lowestUnit: expected a whole number from 0 to 11, not above highestUnit, found 7");
    add("row that does not reach 元", R"({"kind":"separatedEdit","rect":[1,2,3,4],"highestUnit":1})",
        "objects[1].highestUnit: expected a whole number from 2 to 11, not below lowestUnit, found 1");
    add("row upside down without amounts",
        R"({"kind":"separatedEdit","rect":[1,2,3,4],"mode":"digits6","lowestUnit":7})",
        "objects[1].lowestUnit: expected a whole number from 0 to 11, not above highestUnit, found 7");
    add("grid upside down", R"({"kind":"financialEdit","rect":[1,2,3,4],"lowestUnit":9,"highestUnit":8})",
        "objects[1].lowestUnit: expected a whole number from 0 to 11, not above highestUnit, found 9");
    add("grid that does not reach 角", R"({"kind":"financialEdit","rect":[1,2,3,4],"highestUnit":0})",
        "objects[1].highestUnit: expected a whole number from 1 to 11, not below lowestUnit, found 0");
    add("unit without a word", R"({"kind":"financialEdit","rect":[1,2,3,4],"highestUnit":12})",
        "objects[1].highestUnit: expected a whole number from 1 to 11, not below lowestUnit, found 12");
    add("unit by its word", R"({"kind":"financialEdit","rect":[1,2,3,4],"limitUnit":"万"})",
        "objects[1].limitUnit: expected a whole number from 0 to 11, found \"万\"");
    add("negative gap", R"({"kind":"separatedEdit","rect":[1,2,3,4],"separatorWidth":-0.1})",
        "objects[1].separatorWidth: expected a number from 0 to 100, found -0.1");
    add("unknown currency", R"({"kind":"financialEdit","rect":[1,2,3,4],"currency":"euro"})",
        "objects[1].currency: expected one of none, yuan, dollar, pound, cent, usd, or a whole number, found \"euro\"");
    add("too few sections", R"({"kind":"datetime","rect":[1,2,40,4],"sections":[10,2,10,2,10]})",
        "objects[1].sections: expected a list of numbers from 0 to 10000, one for each section and separator, "
        "found an array of 5");
    add("too many sections of a time", R"({"kind":"datetime","rect":[1,2,40,4],"sections":[9,2,9,2,9,2],"format":"time",
        "order":"hm"})",
        "objects[1].sections: expected a list of numbers from 0 to 10000, one for each section and separator, "
        "found an array of 6");
    add("sections of a pattern", R"({"kind":"datetime","rect":[1,2,40,4],"sections":[40],"format":"custom"})",
        "objects[1].sections: expected a list of numbers from 0 to 10000, one for each section and separator, "
        "found an array of 1");
    add("negative section", R"({"kind":"datetime","rect":[1,2,40,4],"sections":[10,2,-1,2,10,2]})",
        "objects[1].sections: expected a list of numbers from 0 to 10000, one for each section and separator, "
        "found an array of 6");
    add("section as a text", R"({"kind":"datetime","rect":[1,2,40,4],"sections":"10"})",
        "objects[1].sections: expected a list of numbers from 0 to 10000, one for each section and separator, "
        "found \"10\"");
    add("format of a date without a name", R"({"kind":"datetime","rect":[1,2,40,4],"format":7})",
        "objects[1].format: expected one of capitalFormal, capital, numeral, arabicPadded, arabic, time, custom, or a "
        "whole number from 0 to 6, found 7");
    add("order of times for a date", R"({"kind":"datetime","rect":[1,2,40,4],"order":"hm"})",
        "objects[1].order: expected one of ymd, dmy, ydm, ym, md, my, dm, y, hms, hm, or a whole number from -2 to 7, "
        "that the format can have, found \"hm\"");
    add("order of dates for a time", R"({"kind":"datetime","rect":[1,2,40,4],"order":"ymd","format":"time"})",
        "objects[1].order: expected one of ymd, dmy, ydm, ym, md, my, dm, y, hms, hm, or a whole number from -2 to 7, "
        "that the format can have, found \"ymd\"");
    add("preset that is no date", R"({"kind":"datetime","rect":[1,2,40,4],"preset":"2022-02-30"})",
        "objects[1].preset: expected a text, a date and time such as 2022-01-05, 2022-01-05T08:05:09 or 08:05:09, "
        "found \"2022-02-30\"");
    add("text of two lines", R"({"kind":"line","rect":[1,2,3,4],"print":"a\nb"})",
        "objects[1].print: expected true or false, found \"a\\nb\"");
    add("same identifier", R"({"kind":"edit","rect":[1,2,3,4],"id":"first"})",
        "objects[1].id: expected an identifier of its own, that of objects[0] is the same, found \"first\"");
}

void FormReaderTest::refusesObject()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    const QJsonArray objects{deskforms::object("rect", Place, settings(R"({"id":"first"})")),
                             deskforms::value(json.constData())};
    const formreader::Result result = formreader::fromJson(deskforms::file(objects), QStringLiteral("f.tform"));
    QVERIFY(!result.form);
    QCOMPARE(result.error, QStringLiteral("f.tform: ") + error);
}

void FormReaderTest::fileIsRead()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("支票.tform"));
    QVERIFY(deskforms::write(name, deskforms::bytesOf(deskforms::file({deskforms::object("line", Place)}))));
    const formreader::Result result = formreader::read(name);
    QCOMPARE(result.error, QString());
    QCOMPARE(result.form->entries.size(), std::size_t(1));
}

void FormReaderTest::fileInError()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("bad.tform"));
    QVERIFY(deskforms::write(name, "{\"version\":1}"));
    QCOMPARE(formreader::read(name).error,
             name + QStringLiteral(": pixelsPerMillimetre: expected a number from 0.1 to 200, found nothing"));
    QVERIFY(deskforms::write(name, "{\"version\":1"));
    QVERIFY(!formreader::read(name).form);
    QVERIFY(formreader::read(name).error.startsWith(name + QStringLiteral(": line 1, column 13: expected JSON: ")));
}

QTEST_MAIN(FormReaderTest)
#include "tst_formreader.moc"

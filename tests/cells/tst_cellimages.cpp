// SPDX-License-Identifier: MIT
#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "tests/support/imagecompare.h"
#include "tests/support/stricttest.h"

#include <QFontInfo>
#include <QTest>

namespace {

const QRectF Place(7, 9, 288, 48);

// The same shapes whatever the hinting of the machine.
QFont fixedFont(const QString &family, int pixels)
{
    QFont font(family);
    font.setPixelSize(pixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

template <typename Edit>
void setUp(Edit &edit, int mode, const QFont &font)
{
    edit.setPhyRect({0, 0, 96, 16});
    edit.setBoundingRect(Place);
    edit.setBackgroundColor(0xffe9c9);
    edit.setFontColor(0x1b3a8c);
    edit.setPaintMode(static_cast<Paint_Mode>(mode));
    edit.setContentData(QStringLiteral("50734.20"));
    // The last, since every content fits the font anew.
    edit.setFont(font);
}

} // namespace

/// Rows of cells as they look, beside images kept from before.
class TestCellImages : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void grid_data() { addModes("grid"); }
    void grid();
    void separatedRow_data() { addModes("separated"); }
    void separatedRow();
    void plainDigits_data() { addModes("digits"); }
    void plainDigits();

private:
    static void addModes(const char *name);
    static void compare(TavroPrototype &object);
};

void TestCellImages::initTestCase()
{
    for (const QString &family : {QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans CJK SC")})
        QVERIFY2(QFontInfo(QFont(family)).family() == family, "a font that scripts/deps installs is missing");
}

void TestCellImages::addModes(const char *name)
{
    QTest::addColumn<int>("mode");
    QTest::addRow("%s-design", name) << 0;
    QTest::addRow("%s-input", name) << 1;
    QTest::addRow("%s-print", name) << 2;
}

void TestCellImages::compare(TavroPrototype &object)
{
    // Edges of letters differ a little from one version of the font renderer to the next.
    constexpr int tolerance = 40;
    const QString found = imagecompare::difference(imagecompare::painted(object, QSize(304, 64)),
                                                   QString::fromLatin1(QTest::currentDataTag()), tolerance);
    QVERIFY2(found.isEmpty(), qPrintable(found));
}

void TestCellImages::grid()
{
    QFETCH(int, mode);
    TavroFinancialEdit edit;
    edit.setCurrency(Currency_Yuan);
    edit.setIsShowLimit(true);
    edit.setLimitUnit(8);
    setUp(edit, mode, fixedFont(QStringLiteral("Noto Sans CJK SC"), 12));
    edit.moveCursorTo(7);
    edit.triggerDrawCursor();
    compare(edit);
}

void TestCellImages::separatedRow()
{
    QFETCH(int, mode);
    TavroSeperateEdit edit;
    edit.setUnitRange(0, 7);
    setUp(edit, mode, fixedFont(QStringLiteral("Noto Sans CJK SC"), 15));
    edit.moveCursorTo(3);
    edit.triggerDrawCursor();
    compare(edit);
}

void TestCellImages::plainDigits()
{
    QFETCH(int, mode);
    TavroSeperateEdit edit;
    edit.setSeperateMode(Sep_Digits18);
    setUp(edit, mode, fixedFont(QStringLiteral("DejaVu Sans"), 14));
    edit.moveCursorTo(8);
    edit.triggerDrawCursor();
    compare(edit);
}

QTEST_MAIN(TestCellImages)
#include "tst_cellimages.moc"

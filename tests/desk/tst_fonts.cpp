// SPDX-License-Identifier: MIT
#include "desk/fonts.h"

#include "core/tavrotext.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QTest>

class FontsTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { fonts::substituteMissing(); }
    void substitutes_data();
    void substitutes();
    void installedFamiliesStay();
    void facesInTheOrderOfTheForm();
    void printsTheSubstitute();
};

void FontsTest::substitutes_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<QStringList>("faces");

    QTest::newRow("Song") << QStringLiteral("宋体")
                          << QStringList{QStringLiteral("Noto Serif CJK SC"), QStringLiteral("AR PL UMing CN"),
                                         QStringLiteral("AR PL SungtiL GB")};
    QTest::newRow("Hei") << QStringLiteral("黑体")
                         << QStringList{QStringLiteral("Noto Sans CJK SC"), QStringLiteral("WenQuanYi Zen Hei"),
                                        QStringLiteral("WenQuanYi Micro Hei")};
    QTest::newRow("Kai") << QStringLiteral("楷体")
                         << QStringList{QStringLiteral("AR PL UKai CN"), QStringLiteral("AR PL KaitiM GB"),
                                        QStringLiteral("Noto Serif CJK SC")};
}

// The first installed face of the list; all of them have the shapes of mainland China.
void FontsTest::substitutes()
{
    QFETCH(QString, family);
    QFETCH(QStringList, faces);
    const QStringList installed = QFontDatabase().families();
    QString expected = family;
    for (int i = faces.size() - 1; i >= 0 && !installed.contains(family); --i) {
        if (installed.contains(faces.at(i)))
            expected = faces.at(i);
    }
    QVERIFY2(installed.contains(expected), "none of the faces is installed");
    QCOMPARE(QFontInfo(QFont(family)).family(), expected);
}

void FontsTest::installedFamiliesStay()
{
    QCOMPARE(QFont::substitutes(QStringLiteral("DejaVu Sans")), QStringList());
    QCOMPARE(QFontInfo(QFont(QStringLiteral("DejaVu Sans"))).family(), QStringLiteral("DejaVu Sans"));
}

void FontsTest::facesInTheOrderOfTheForm()
{
    const QJsonObject serif{{QStringLiteral("fontFamily"), QStringLiteral("DejaVu Serif")}};
    const std::unique_ptr<Form> form =
        deskforms::formWith({deskforms::object("label", {5, 5, 30, 6}, serif), deskforms::object("hologram", {}),
                             deskforms::object("rect", {5, 5, 30, 6}), deskforms::text("edit", {5, 5, 30, 6}),
                             deskforms::object("label", {5, 5, 30, 6}, serif)});
    QVERIFY(form);
    QCOMPARE(fonts::facesUsedBy(*form), QStringList({QStringLiteral("font \"DejaVu Serif\": using \"DejaVu Serif\""),
                                                     QStringLiteral("font \"DejaVu Sans\": using \"DejaVu Sans\"")}));
}

// What a new object asks for is what the objects draw with.
void FontsTest::printsTheSubstitute()
{
    const std::unique_ptr<Form> form = deskforms::formWith({deskforms::object("label", {5, 5, 30, 6})});
    QVERIFY(form);
    const auto *text = qobject_cast<TavroText *>(form->entries.front().object.data());
    QCOMPARE(text->fontFamily(), QStringLiteral("宋体"));
    QCOMPARE(QFontInfo(text->font()).family(), QFontInfo(QFont(QStringLiteral("宋体"))).family());
    const QString face = QFontInfo(text->font()).family();
    QCOMPARE(fonts::facesUsedBy(*form), QStringList(QStringLiteral("font \"宋体\": using \"%1\"").arg(face)));
}

QTEST_MAIN(FontsTest)
#include "tst_fonts.moc"
